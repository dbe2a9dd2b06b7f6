#include "tests/corpus/ShippedChoice.h"

#include "App/UpdateChecker/SparkleImpl/SparkleManager/PelnarSparkleUpdaterDelegate.h"
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/SparkleUpdateContext.h"
#include "Engine/objc/SUAppcast_p.h"
#include "Foundation/FoundationText.h"
#include "Foundation/Retained.h"

#include <memory>

namespace Pelnar::Testing
{
namespace
{

std::shared_ptr<App::SparkleUpdateContext> MakeContext(Core::Version const& localVersion)
{
    auto context = std::make_shared<App::SparkleUpdateContext>();
    context->localVersion = localVersion;
    context->versionLess = [](Core::Version const& a, Core::Version const& b)
    { return Core::Util::ShrinkVersion(a, 4) < Core::Util::ShrinkVersion(b, 4); };
    context->versionEqual = [](Core::Version const& a, Core::Version const& b)
    { return Core::Util::ShrinkVersion(a, 4) == Core::Util::ShrinkVersion(b, 4); };
    return context;
}

/// The version that \a delta starts from, according to its item.
NSString* StartOfDelta(SUAppcast* appcast, SUAppcastItem* delta)
{
    for (SUAppcastItem* item in [appcast items])
    {
        for (NSString* start in [item deltaUpdates])
        {
            if ([[item deltaUpdates] objectForKey:start] == delta)
            {
                return start;
            }
        }
    }
    return nil;
}

} // namespace

std::optional<ShippedChoice> ChooseFromFeed(std::vector<Engine::FeedItem> const& items,
                                            Core::Version const& localVersion)
{
    @autoreleasepool
    {
        App::SparkleManager::Impl session;
        session.context = MakeContext(localVersion);
        auto const delegate = Foundation::Retained<PelnarSparkleUpdaterDelegate>::Adopt(
            [[PelnarSparkleUpdaterDelegate alloc] initWithImpl:&session]);
        auto const appcast = Foundation::Retained<SUAppcast>::Adopt([[SUAppcast alloc] initWithFeedItems:items]);
        SUAppcastItem* const best = [delegate.Get() bestValidUpdateInAppcast:appcast.Get() forUpdater:nil];
        if (best == nil)
        {
            return std::nullopt;
        }
        ShippedChoice choice;
        choice.version = Foundation::ToQString([best versionString]);
        choice.deltaFrom = Foundation::ToQString(StartOfDelta(appcast.Get(), best));
        choice.length = [best contentLength];
        choice.url = Foundation::ToQString([[best fileURL] absoluteString]);
        choice.extensions = session.DetectExtensions(best);
        return choice;
    }
}

} // namespace Pelnar::Testing
