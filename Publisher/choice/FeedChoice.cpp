#include "Publisher/choice/FeedChoice.h"

#include "App/UpdateChecker/SparkleImpl/Choice/Contest.h"
#include "App/UpdateChecker/SparkleImpl/Choice/Extensions.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <list>
#include <map>
#include <utility>

namespace Pelnar::Publisher
{
namespace
{

using App::Session::IsOlderVersion;
using App::Session::ItemRecord;
using App::Session::Judgement;
using App::Session::VersionFromStringNoexcept;
using Engine::FeedItem;

App::Session::SelectionSubject SubjectOf(Client const& client)
{
    static std::function<bool(Core::Version const&, Core::Version const&)> const isOlder = IsOlderVersion;
    static std::function<bool(Core::Version const&, Core::Version const&)> const isSame = App::Session::IsSameVersion;
    return {client.systemVersion, client.localVersion, isOlder, isSame};
}

/// The version of a client that is older than every version of an item.
Core::Version const OLDER_THAN_ALL;

/// An item as the rules see it.
class Candidate final : public App::Session::IItemSource, public ItemRecord
{
public:
    explicit Candidate(FeedItem const& feedItem) : ItemRecord(static_cast<IItemSource const&>(*this)), item(feedItem) {}
    Candidate(Candidate const&) = delete;
    Candidate& operator=(Candidate const&) = delete;

    QString MinimumSystemVersion() const override { return item.minimumSystemVersion; }
    QString MaximumSystemVersion() const override { return item.maximumSystemVersion; }
    QString VersionString() const override { return item.versionString; }
    QString FileAddress() const override { return item.fileUrl.toString(QUrl::FullyEncoded); }
    QString DateString() const override { return item.dateString; }
    std::uint64_t ContentLength() const override { return item.contentLength; }
    bool IsDelta() const override { return item.isDelta; }

    FeedItem const& item;
};

FeedItem const& ItemOf(ItemRecord const& record)
{
    return static_cast<Candidate const&>(record).item;
}

/// A full item, with the parts of its policy that are read for many clients.
struct FullItem
{
    FullItem(FeedItem const& item, Engine::Installation const& installation)
        : candidate(item)
        , minimumUpdate(VersionFromStringNoexcept(item.policy.minimumUpdateVersion))
        , criticalBelow(VersionFromStringNoexcept(item.policy.criticalBelow))
        , dependsOnVersion(Engine::DependsOnVersion(item))
    {
        QDateTime const time = installation.rolloutGroup && item.policy.rolloutSeconds != 0
                                   ? Engine::RolloutTime(item, installation.rolloutGroup(item.versionString))
                                   : QDateTime();
        isStaged = time.isValid() && installation.now < time;
        for (FeedItem const& delta : item.deltas)
        {
            deltaStarts.push_back(WholeVersion(delta.deltaFrom));
        }
    }

    /// A cheap part of the policy: a hundredth of the cost of the whole.
    bool IsCertainlyLeftOut(Core::Version const& version) const
    {
        bool const mayBeCritical =
            candidate.item.isCritical && (!criticalBelow.IsValid() || IsOlderVersion(version, criticalBelow));
        return IsOlderVersion(version, minimumUpdate) || (isStaged && !mayBeCritical);
    }

    Candidate candidate;
    Core::Version const minimumUpdate; ///< invalid: every version can be updated
    Core::Version const criticalBelow;
    bool const dependsOnVersion;
    bool isStaged = false;                  ///< and this group must wait
    std::vector<Core::Version> deltaStarts; ///< of each of the item's deltas
};

using FullItems = std::vector<FullItem*>;

/// The engine's verdicts for one client. The installation is made only when it is needed, which is rare.
class ClientPolicy
{
public:
    ClientPolicy(Client const& client, Engine::Installation const& common, QStringList const& trustedKeys)
        : m_client(client), m_common(common), m_trustedKeys(trustedKeys)
    {
    }

    bool IsLeftOut(FeedItem const& item)
    {
        if (!m_installation)
        {
            m_installation = InstallationOf(m_client, m_common);
            m_installation->trustedKeys = m_trustedKeys;
        }
        return Engine::IsLeftOut(PolicyOf(item, *m_installation));
    }

    bool IsLeftOut(FullItem const& full)
    {
        FeedItem const& item = full.candidate.item;
        bool const isCertain = !full.dependsOnVersion && Engine::SignatureFor(item, m_trustedKeys);
        return !isCertain && (full.IsCertainlyLeftOut(m_client.localVersion) || IsLeftOut(item));
    }

private:
    Client const& m_client;
    Engine::Installation const& m_common;
    QStringList const& m_trustedKeys;
    std::optional<Engine::Installation> m_installation;
};

/// The contest of one client.
class FeedContest final : public App::Session::IContestHost
{
public:
    FeedContest(FullItems const& items, Client const& client, ClientPolicy& policy)
        : m_items(items), m_client(client), m_policy(policy)
    {
    }

    FeedChoice Run()
    {
        App::Session::Contest contest(*this);
        if (contest.Run(m_client.previousAnswer))
        {
            m_choice.chosen = &ItemOf(*contest.Best());
            m_choice.full = m_choice.full ? m_choice.full : m_choice.chosen;
            FindRivals(*contest.Best());
        }
        return std::move(m_choice);
    }

    bool CanJudge() const override { return true; }
    App::Session::SelectionSubject Subject() const override { return SubjectOf(m_client); }

    void OfferItems(App::Session::Contest& contest) override
    {
        for (FullItem* const full : m_items)
        {
            contest.Offer(full->candidate);
        }
    }

    void OfferDeltas(ItemRecord& best, App::Session::Contest& contest) override
    {
        m_choice.full = &ItemOf(best);
        for (FeedItem const* const delta : MetDeltas())
        {
            contest.OfferDelta(delta->deltaFrom, m_deltas.emplace_back(*delta));
        }
    }

    void OnPreferred(App::Session::Preference const& preferred, ItemRecord& other) override
    {
        m_choice.duels.push_back({&ItemOf(preferred.item), &ItemOf(other), preferred.rule});
    }

private:
    /// A delta that is preferred to each other one, in both orders, is chosen in every order.
    void FindRivals(ItemRecord& best)
    {
        bool isDefinite = true;
        std::vector<FeedItem const*> rivals{m_choice.chosen};
        for (Candidate& delta : m_deltas)
        {
            if (!m_choice.chosen->isDelta || &delta == &best || !App::Session::IsValid(&delta, *this) ||
                App::Session::PreferByVersionAndType(best, delta, Subject()))
            {
                continue;
            }
            rivals.push_back(&delta.item);
            isDefinite = isDefinite && &App::Session::PreferByDownload(best, delta).item == &best &&
                         &App::Session::PreferByDownload(delta, best).item == &best;
        }
        if (!isDefinite)
        {
            std::sort(rivals.begin(), rivals.end(),
                      [](FeedItem const* a, FeedItem const* b) { return a->deltaFrom < b->deltaFrom; });
            m_choice.chosen = rivals.front();
            m_choice.rivals.assign(rivals.begin() + 1, rivals.end());
        }
    }

    /// Those that start from this version. Of several with the same text, the last one.
    std::vector<FeedItem const*> MetDeltas()
    {
        FullItem const& full =
            **std::find_if(m_items.begin(), m_items.end(),
                           [this](FullItem const* each) { return &each->candidate.item == m_choice.full; });
        Core::Version const local = WholeVersion(m_client.localVersion);
        std::vector<FeedItem const*> met;
        for (std::size_t i = 0; i < full.deltaStarts.size(); ++i)
        {
            FeedItem const& delta = m_choice.full->deltas[i];
            if (!(full.deltaStarts[i] == local) || m_policy.IsLeftOut(delta))
            {
                continue;
            }
            auto const isSameText = [&delta](FeedItem const* each) { return each->deltaFrom == delta.deltaFrom; };
            met.erase(std::remove_if(met.begin(), met.end(), isSameText), met.end());
            met.push_back(&delta);
        }
        return met;
    }

    FullItems const& m_items;
    Client const& m_client;
    ClientPolicy& m_policy;
    std::list<Candidate> m_deltas;
    FeedChoice m_choice;
};

} // namespace

struct FeedChooser::Data
{
    /// The clients that run this system and trust the keys with these ids.
    using Clients = std::pair<Core::Version, QStringList>;

    void TakeKeys(FeedItem const& item);
    QStringList const& TrustedBy(Core::Version const& version) const;
    FullItems const& WithinReach(Clients const& clients);

    Engine::Installation const installation;
    std::deque<FullItem> items; ///< without those that are left out for every version
    FullItems newestFirst;
    std::map<Core::Version, QStringList> trusted; ///< ids of the keys that each version trusts
    std::map<Clients, FullItems> withinReach;
    std::pair<Clients const, FullItems> const* lastReach = nullptr;
};

FeedChooser::FeedChooser(std::vector<FeedItem> const& items, Engine::Installation installation,
                         std::vector<FeedItem> const& otherItems)
    : m_data(new Data{std::move(installation), {}, {}, {}, {}})
{
    Engine::Installation withoutKeys = m_data->installation;
    withoutKeys.trustedKeys.clear();
    for (FeedItem const& item : items)
    {
        if (Engine::DependsOnVersion(item) || !Engine::IsLeftOut(PolicyOf(item, withoutKeys)))
        {
            m_data->newestFirst.push_back(&m_data->items.emplace_back(item, m_data->installation));
        }
        m_data->TakeKeys(item);
    }
    std::for_each(otherItems.begin(), otherItems.end(), [this](FeedItem const& item) { m_data->TakeKeys(item); });
    std::stable_sort(m_data->newestFirst.begin(), m_data->newestFirst.end(),
                     [](FullItem* a, FullItem* b)
                     { return IsOlderVersion(b->candidate.Version(), a->candidate.Version()); });
}

FeedChooser::~FeedChooser() = default;

void FeedChooser::Data::TakeKeys(FeedItem const& item)
{
    Core::Version const version = item.trustedKeys.isEmpty() ? Core::Version() : WholeVersion(item.versionString);
    if (version.IsValid())
    {
        trusted.try_emplace(version, item.trustedKeys);
    }
}

QStringList const& FeedChooser::Data::TrustedBy(Core::Version const& version) const
{
    auto const known = installation.trustedKeys.isEmpty() ? trusted.find(WholeVersion(version)) : trusted.end();
    return known != trusted.end() ? known->second : installation.trustedKeys;
}

/// The items that some of \a clients may be offered, newest first, down to the first version that none of them leaves
/// out. No older item can win, because newer versions are preferred first.
FullItems const& FeedChooser::Data::WithinReach(Clients const& clients)
{
    if (lastReach && lastReach->first == clients)
    {
        return lastReach->second;
    }
    auto const [reach, isNew] = withinReach.try_emplace(clients);
    Candidate* certain = nullptr;
    for (auto each = newestFirst.begin(); isNew && each != newestFirst.end(); ++each)
    {
        Candidate& candidate = (*each)->candidate;
        if (certain && IsOlderVersion(candidate.Version(), certain->Version()))
        {
            break;
        }
        bool const isTrusted = Engine::SignatureFor(candidate.item, clients.second).has_value();
        if ((isTrusted || candidate.item.policy.isInformational) &&
            App::Session::Judge(candidate, SubjectOf({OLDER_THAN_ALL, clients.first})) == Judgement::VALID)
        {
            reach->second.push_back(*each);
            certain = isTrusted && !(*each)->dependsOnVersion ? &candidate : certain;
        }
    }
    lastReach = &*reach;
    return reach->second;
}

FeedChoice FeedChooser::Choose(Client const& client)
{
    ClientPolicy policy(client, m_data->installation, m_data->TrustedBy(client.localVersion));
    FullItems kept;
    for (FullItem& full : m_data->items)
    {
        if (!policy.IsLeftOut(full))
        {
            kept.push_back(&full);
        }
    }
    return FeedContest(kept, client, policy).Run();
}

FeedChoice FeedChooser::Answer(Client const& client)
{
    QStringList const& trustedKeys = m_data->TrustedBy(client.localVersion);
    FullItems const& reach = m_data->WithinReach({client.systemVersion, trustedKeys});
    if (reach.empty() || !IsOlderVersion(client.localVersion, reach.front()->candidate.Version()))
    {
        return {};
    }
    ClientPolicy policy(client, m_data->installation, trustedKeys);
    FullItems finalists;
    for (FullItem* const full : reach)
    {
        if (!finalists.empty() && IsOlderVersion(full->candidate.Version(), finalists.front()->candidate.Version()))
        {
            break;
        }
        if (!policy.IsLeftOut(*full))
        {
            finalists.push_back(full);
        }
    }
    return FeedContest(finalists, client, policy).Run();
}

FeedChoice ChooseFromFeed(std::vector<FeedItem> const& items, Client const& client,
                          Engine::Installation const& installation)
{
    return FeedChooser(items, installation).Choose(client);
}

Judgement JudgeFeedItem(FeedItem const& item, Client const& client)
{
    Candidate candidate(item);
    return App::Session::Judge(candidate, SubjectOf(client));
}

App::Session::UpdateType UpdateTypeOf(FeedItem const& item)
{
    return Candidate(item).Type();
}

QString UpdateTypeNameOf(FeedItem const& item)
{
    return QLatin1String(App::Session::UpdateTypeName(UpdateTypeOf(item)));
}

bool ServesClient(FeedItem const& delta, Client const& client)
{
    return client.previousAnswer == PreviousAnswer::NONE &&
           App::Session::StartsFromRunningVersion(delta.deltaFrom, SubjectOf(client));
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
