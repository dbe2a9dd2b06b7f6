// FeedChoice.cpp: the session's rules over the items of a parsed feed.
#include "fuzz/FeedChoice.h"

#include "App/UpdateChecker/SparkleImpl/SparkleManager/AppcastJudgement_p.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/VersionText_p.h"

namespace Pelnar::Fuzz
{

namespace
{

using App::Session::ItemRecord;
using App::Session::Judgement;
using App::Session::SelectionSubject;

class FeedItemSource final : public App::Session::IItemSource
{
public:
    explicit FeedItemSource(Engine::FeedItem const& feedItem)
        : item(feedItem), fileAddress(feedItem.fileUrl.toString(QUrl::FullyEncoded))
    {
    }

    QString const& MinimumSystemVersion() const override { return item.minimumSystemVersion; }
    QString const& MaximumSystemVersion() const override { return item.maximumSystemVersion; }
    QString const& VersionString() const override { return item.versionString; }
    QString const& FileAddress() const override { return fileAddress; }
    QString const& DateString() const override { return item.dateString; }
    std::uint64_t ContentLength() const override { return item.contentLength; }
    bool IsDelta() const override { return item.isDelta; }

private:
    Engine::FeedItem const& item;
    QString fileAddress;
};

bool Less(Core::Version const& a, Core::Version const& b)
{
    return Core::Util::ShrinkVersion(a, 4) < Core::Util::ShrinkVersion(b, 4);
}

bool Equal(Core::Version const& a, Core::Version const& b)
{
    return Core::Util::ShrinkVersion(a, 4) == Core::Util::ShrinkVersion(b, 4);
}

Engine::FeedItem const* Better(Engine::FeedItem const* best, Engine::FeedItem const& candidate,
                               SelectionSubject const& subject)
{
    FeedItemSource const candidateSource(candidate);
    ItemRecord candidateRecord(candidateSource);
    if (App::Session::Judge(candidateRecord, subject) != Judgement::VALID)
    {
        return best;
    }
    if (best == nullptr)
    {
        return &candidate;
    }
    FeedItemSource const bestSource(*best);
    ItemRecord bestRecord(bestSource);
    auto preference = App::Session::PreferByVersionAndType(bestRecord, candidateRecord, subject);
    ItemRecord const& preferred =
        preference ? preference->item : App::Session::PreferByDownload(bestRecord, candidateRecord).item;
    return &preferred == &bestRecord ? best : &candidate;
}

} // namespace

Engine::FeedItem const* ChooseItem(std::vector<Engine::FeedItem> const& items, Core::Version const& localVersion,
                                   Core::Version const& systemVersion)
{
    std::function<bool(Core::Version const&, Core::Version const&)> const less = Less;
    std::function<bool(Core::Version const&, Core::Version const&)> const equal = Equal;
    SelectionSubject const subject{systemVersion, localVersion, less, equal};
    Engine::FeedItem const* best = nullptr;
    for (Engine::FeedItem const& item : items)
    {
        best = Better(best, item, subject);
    }
    if (best == nullptr)
    {
        return nullptr;
    }
    Engine::FeedItem const* const full = best;
    for (Engine::FeedItem const& delta : full->deltas)
    {
        Core::Version const from = App::Session::VersionFromStringNoexcept(delta.deltaFrom);
        if (from.IsValid() && Equal(localVersion, from))
        {
            best = Better(best, delta, subject);
        }
    }
    return best;
}

} // namespace Pelnar::Fuzz
