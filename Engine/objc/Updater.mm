#include "Engine/objc/Updater_p.h"

#import "Engine/objc/SUAppcast_p.h"
#import "Engine/objc/SUUpdater_p.h"

#include "Engine/objc/BundleSettings_p.h"
#include "Foundation/FoundationText.h"
#include "Foundation/RaisedException.h"

#include <QCoreApplication>

#include <glog/logging.h>

#include <utility>

using namespace Pelnar::Foundation;

namespace Pelnar::Engine
{
namespace
{

/// The updater that has started a check since the application object was made.
Updater* runningUpdater = nullptr;

NSError* ToNSError(EngineError const& error)
{
    NSError* underlying = nil;
    if (error.cause != ErrorCause::NoUpdate)
    {
        NSDictionary* const detail = error.detail.isEmpty()
                                         ? nil
                                         : [NSDictionary dictionaryWithObject:ToNSString(error.detail)
                                                                       forKey:NSLocalizedDescriptionKey];
        underlying = [NSError errorWithDomain:ToNSString(error.UnderlyingDomain())
                                         code:error.UnderlyingCode()
                                     userInfo:detail];
    }
    NSMutableDictionary* const information = [NSMutableDictionary dictionaryWithObject:ToNSString(error.sentence)
                                                                                forKey:NSLocalizedDescriptionKey];
    if (underlying)
    {
        [information setObject:underlying forKey:NSUnderlyingErrorKey];
    }
    return [NSError errorWithDomain:SUSparkleErrorDomain code:static_cast<NSInteger>(error.code) userInfo:information];
}

} // namespace

Updater::Updater(SUUpdater* face) : m_face(face) {}

Updater::~Updater() = default;

QUrl Updater::FeedUrl() const { return m_feedUrl.isEmpty() ? ReadFeedUrl() : m_feedUrl; }

void Updater::StartCheck(CheckKind kind)
{
    if (IsInProgress())
    {
        LOG(WARNING) << "A check for updates is running already; the new one is ignored";
        return;
    }
    if (!QCoreApplication::instance())
    {
        LOG(ERROR) << "A check for updates needs Qt's application object; it is not started";
        return;
    }
    m_kind = kind;
    CheckSettings settings = ReadCheckSettings(FeedUrl());
    if (m_fetchLimits)
    {
        qint64 const maxBodyBytes = settings.fetchLimits.maxBodyBytes;
        settings.fetchLimits = *m_fetchLimits;
        settings.fetchLimits.maxBodyBytes = maxBodyBytes;
    }
    m_run = std::make_unique<CheckRun>(kind, std::move(settings), *this);
    if (!std::exchange(runningUpdater, this))
    {
        qAddPostRoutine(&Updater::AbandonRunningCheck);
    }
    m_run->Start();
}

void Updater::AbandonRunningCheck()
{
    // The application object forgets its routines when it has run them.
    Updater* const updater = std::exchange(runningUpdater, nullptr);
    updater->m_run.reset();
    updater->m_appcast.Reset();
}

void Updater::FeedLoaded(std::vector<FeedItem> const& items)
{
    CallTranslatingRaised(
        [this, &items]
        {
            @autoreleasepool
            {
                m_appcast = Retained<SUAppcast>::Adopt([[SUAppcast alloc] initWithFeedItems:items]);
            }
        });
}

BestItemAnswer Updater::AskForBestItem()
{
    BestItemAnswer answer;
    CallTranslatingRaised(
        [this, &answer]
        {
            @autoreleasepool
            {
                if (![m_delegate respondsToSelector:@selector(bestValidUpdateInAppcast:forUpdater:)])
                {
                    answer.kind = BestItemAnswer::Kind::NotAsked;
                    return;
                }
                SUAppcastItem* const item = [m_delegate bestValidUpdateInAppcast:m_appcast.Get() forUpdater:m_face];
                if (!item)
                {
                    return;
                }
                std::optional<ItemPlace> const place = [m_appcast.Get() placeOfItem:item];
                answer.kind = place ? BestItemAnswer::Kind::Place : BestItemAnswer::Kind::Foreign;
                answer.place = place.value_or(ItemPlace{});
            }
        });
    return answer;
}

int Updater::CompareVersions(QString const& a, QString const& b)
{
    int order = 0;
    CallTranslatingRaised(
        [this, &a, &b, &order]
        {
            @autoreleasepool
            {
                id<SUVersionComparison> comparator = nil;
                if ([m_delegate respondsToSelector:@selector(versionComparatorForUpdater:)])
                {
                    comparator = [m_delegate versionComparatorForUpdater:m_face];
                }
                if (!comparator)
                {
                    comparator = [SUStandardVersionComparator defaultComparator];
                }
                order = static_cast<int>([comparator compareVersion:ToNSString(a) toVersion:ToNSString(b)]);
            }
        });
    return order;
}

void Updater::TellFound(ItemPlace const& place)
{
    CallTranslatingRaised(
        [this, &place]
        {
            @autoreleasepool
            {
                SUAppcastItem* const item = [m_appcast.Get() itemAtPlace:place];
                if ([m_delegate respondsToSelector:@selector(updater:didFindValidUpdate:)])
                {
                    [m_delegate updater:m_face didFindValidUpdate:item];
                }
                LOG_IF(INFO, m_kind != CheckKind::Probe) << "An update was found; the check ends with this report";
            }
        });
}

void Updater::TellNotFound()
{
    CallTranslatingRaised(
        [this]
        {
            @autoreleasepool
            {
                if ([m_delegate respondsToSelector:@selector(updaterDidNotFindUpdate:)])
                {
                    [m_delegate updaterDidNotFindUpdate:m_face];
                }
            }
        });
}

void Updater::TellAborted(EngineError const& error)
{
    CallTranslatingRaised(
        [this, &error]
        {
            @autoreleasepool
            {
                if ([m_delegate respondsToSelector:@selector(updater:didAbortWithError:)])
                {
                    [m_delegate updater:m_face didAbortWithError:ToNSError(error)];
                }
            }
        });
}

void Updater::CheckEnded()
{
    @autoreleasepool
    {
        WriteLastCheckTime();
    }
    m_appcast.Reset();
    // The run is on the stack below this call.
    m_run.release()->deleteLater();
}

} // namespace Pelnar::Engine
