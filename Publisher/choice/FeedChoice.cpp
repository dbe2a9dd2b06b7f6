#include "Publisher/choice/FeedChoice.h"

#include "App/UpdateChecker/SparkleImpl/SparkleManager/Extensions_p.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/VersionOperators_p.h"

#include <functional>
#include <map>
#include <memory>

namespace Pelnar::Publisher
{
namespace
{

using App::Session::ItemRecord;
using App::Session::Judgement;
using App::Session::SelectionSubject;
using Engine::FeedItem;

class FeedItemSource final : public App::Session::IItemSource
{
public:
    explicit FeedItemSource(FeedItem const& item)
        : m_item(item), m_fileAddress(item.fileUrl.toString(QUrl::FullyEncoded))
    {
    }

    QString const& MinimumSystemVersion() const override { return m_item.minimumSystemVersion; }
    QString const& MaximumSystemVersion() const override { return m_item.maximumSystemVersion; }
    QString const& VersionString() const override { return m_item.versionString; }
    QString const& FileAddress() const override { return m_fileAddress; }
    QString const& DateString() const override { return m_item.dateString; }
    std::uint64_t ContentLength() const override { return m_item.contentLength; }
    bool IsDelta() const override { return m_item.isDelta; }

private:
    FeedItem const& m_item;
    QString const m_fileAddress;
};

/// An item as the rules see it.
struct Candidate
{
    explicit Candidate(FeedItem const& feedItem) : item(feedItem), source(feedItem), record(source) {}
    Candidate(Candidate const&) = delete;
    Candidate& operator=(Candidate const&) = delete;

    FeedItem const& item;
    FeedItemSource const source;
    ItemRecord record;
};

/// The rules refer to the operators that they are lent.
class Subject
{
public:
    explicit Subject(Client const& client) : m_client(client) {}
    Subject(Subject const&) = delete;
    Subject& operator=(Subject const&) = delete;

    SelectionSubject Get() const { return {m_client.systemVersion, m_client.localVersion, m_isOlder, m_isSame}; }

private:
    Client const m_client;
    std::function<bool(Core::Version const&, Core::Version const&)> const m_isOlder = App::Session::IsOlderVersion;
    std::function<bool(Core::Version const&, Core::Version const&)> const m_isSame = App::Session::IsSameVersion;
};

/// Keeps the best of the items that it is offered one after the other.
class Contest
{
public:
    explicit Contest(SelectionSubject const& subject) : m_subject(subject) {}

    void Offer(FeedItem const& item)
    {
        auto challenger = std::make_unique<Candidate>(item);
        if (App::Session::Judge(challenger->record, m_subject) != Judgement::VALID)
        {
            return;
        }
        if (!m_best)
        {
            m_best = std::move(challenger);
            return;
        }
        std::optional<App::Session::Preference> const byType =
            App::Session::PreferByVersionAndType(m_best->record, challenger->record, m_subject);
        App::Session::Preference const preference =
            byType ? *byType : App::Session::PreferByDownload(m_best->record, challenger->record);
        if (&preference.item == &challenger->record)
        {
            std::swap(m_best, challenger);
        }
        m_duels.push_back({&m_best->item, &challenger->item, preference.rule});
    }

    FeedItem const* Best() const { return m_best ? &m_best->item : nullptr; }
    std::vector<Duel> const& Duels() const { return m_duels; }

private:
    SelectionSubject const m_subject;
    std::unique_ptr<Candidate> m_best;
    std::vector<Duel> m_duels;
};

/// The deltas that the session meets.
std::vector<FeedItem const*> MetDeltas(FeedItem const& full)
{
    std::map<QString, FeedItem const*> lastOfText;
    for (FeedItem const& delta : full.deltas)
    {
        lastOfText[delta.deltaFrom] = &delta;
    }
    std::vector<FeedItem const*> met;
    for (FeedItem const& delta : full.deltas)
    {
        if (lastOfText[delta.deltaFrom] == &delta)
        {
            met.push_back(&delta);
        }
    }
    return met;
}

} // namespace

FeedChoice ChooseFromFeed(std::vector<FeedItem> const& items, Client const& client)
{
    Subject const subject(client);
    Contest contest(subject.Get());
    for (FeedItem const& item : items)
    {
        contest.Offer(item);
    }
    FeedChoice choice;
    choice.full = contest.Best();
    if (choice.full && client.previousAnswer == PreviousAnswer::None)
    {
        for (FeedItem const* delta : MetDeltas(*choice.full))
        {
            if (App::Session::StartsFromRunningVersion(delta->deltaFrom, subject.Get()))
            {
                contest.Offer(*delta);
            }
        }
    }
    choice.chosen = contest.Best();
    choice.duels = contest.Duels();
    return choice;
}

Judgement JudgeFeedItem(FeedItem const& item, Client const& client)
{
    Candidate candidate(item);
    return App::Session::Judge(candidate.record, Subject(client).Get());
}

App::Session::UpdateType UpdateTypeOf(FeedItem const& item)
{
    return Candidate(item).record.Type();
}

bool ServesClient(FeedItem const& delta, Client const& client)
{
    return client.previousAnswer == PreviousAnswer::None &&
           App::Session::StartsFromRunningVersion(delta.deltaFrom, Subject(client).Get());
}

QVariantMap ExtensionsOf(FeedItem const& item)
{
    QVariantMap result;
    QVariantMap const properties = item.AllProperties();
    for (auto property = properties.cbegin(); property != properties.cend(); ++property)
    {
        if (std::optional<QString> const key = App::Session::ExtensionKey(property.key()))
        {
            result[*key] = property.value().type() == QVariant::String ? property.value() : QVariant();
        }
    }
    return result;
}

} // namespace Pelnar::Publisher
