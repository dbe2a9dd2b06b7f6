#include "Publisher/choice/FeedChoice.h"

#include "App/UpdateChecker/SparkleImpl/Choice/Extensions.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "HostFramework/VersionText.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <unordered_map>
#include <unordered_set>
#include <utility>

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

Core::Version WholeVersionOf(Core::Version const& version)
{
    return Core::Util::ShrinkVersion(version, Core::Version::COMPONENT_COUNT);
}

/// As the version of a client: compares as older than every version of an item.
Core::Version const OLDER_THAN_ALL;

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

    void Offer(Candidate& candidate)
    {
        if (App::Session::Judge(candidate.record, m_subject) != Judgement::VALID)
        {
            return;
        }
        Candidate* challenger = &candidate;
        if (!m_best)
        {
            m_best = challenger;
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
    Candidate* m_best = nullptr;
    std::vector<Duel> m_duels;
};

/// The deltas that the session meets.
std::vector<FeedItem const*> MetDeltas(FeedItem const& full, Engine::Installation const& installation)
{
    std::map<QString, FeedItem const*> lastOfText;
    for (FeedItem const& delta : full.deltas)
    {
        if (!Engine::IsLeftOut(PolicyOf(delta, installation)))
        {
            lastOfText[delta.deltaFrom] = &delta;
        }
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

class FeedChooser::Impl
{
public:
    Impl(std::vector<FeedItem> const& items, Engine::Installation installation);

    FeedChoice Choose(Client const& client);
    FeedItem const* Chosen(Client const& client);

private:
    using Candidates = std::vector<Candidate*>;

    FeedChoice ChooseAmong(Candidates const& candidates, Client const& client);
    Candidates Finalists(Core::Version const& systemVersion, std::vector<FeedItem const*> const& leftOut);
    /// As InstallationOf, with the keys of that version.
    Engine::Installation InstallationFor(Client const& client) const;
    std::vector<FeedItem const*> const& UntrustedBy(QStringList const& keys);
    /// The items that are left out for the version of \a client, and not for every one.
    std::vector<FeedItem const*> LeftOut(Client const& client);
    Candidate& CandidateOf(FeedItem const& item) { return m_candidates.try_emplace(&item, item).first->second; }

    Engine::Installation const m_installation;
    std::unordered_map<FeedItem const*, Candidate> m_candidates; ///< items and deltas that were looked at
    Candidates m_all;                                            ///< but for those that are left out for every version
    std::vector<FeedItem const*> m_bound;                        ///< those of them that depend on the version
    std::map<Core::Version, QStringList> m_trusted;              ///< ids of keys, by the versions that trust them
    std::map<QStringList, std::vector<FeedItem const*>> m_untrusted; ///< what those who trust these ids do not take
    std::map<std::pair<Core::Version, std::vector<FeedItem const*>>, Candidates> m_finalists; ///< by system version
};

FeedChooser::Impl::Impl(std::vector<FeedItem> const& items, Engine::Installation installation)
    : m_installation(std::move(installation))
{
    for (FeedItem const& item : items)
    {
        bool const isBound = Engine::DependsOnVersion(item);
        if (isBound || !Engine::IsLeftOut(PolicyOf(item, m_installation)))
        {
            m_all.push_back(&CandidateOf(item));
        }
        if (isBound)
        {
            m_bound.push_back(&item);
        }
        Core::Version const version =
            item.trustedKeys.isEmpty() ? Core::Version() : App::Session::VersionFromStringNoexcept(item.versionString);
        if (version.IsValid())
        {
            m_trusted.try_emplace(WholeVersionOf(version), item.trustedKeys);
        }
    }
}

Engine::Installation FeedChooser::Impl::InstallationFor(Client const& client) const
{
    Engine::Installation installation = InstallationOf(client, m_installation);
    auto const known = m_trusted.find(WholeVersionOf(client.localVersion));
    if (installation.trustedKeys.isEmpty() && known != m_trusted.end())
    {
        installation.trustedKeys = known->second;
    }
    return installation;
}

std::vector<FeedItem const*> const& FeedChooser::Impl::UntrustedBy(QStringList const& keys)
{
    auto const [untrusted, isNew] = m_untrusted.try_emplace(keys);
    for (auto candidate = m_all.begin(); isNew && candidate != m_all.end(); ++candidate)
    {
        if (!Engine::SignatureFor((*candidate)->item, keys))
        {
            untrusted->second.push_back(&(*candidate)->item);
        }
    }
    return untrusted->second;
}

std::vector<FeedItem const*> FeedChooser::Impl::LeftOut(Client const& client)
{
    std::vector<FeedItem const*> leftOut;
    if (m_bound.empty() && m_trusted.empty() && m_installation.trustedKeys.isEmpty())
    {
        return leftOut;
    }
    Engine::Installation const installation = InstallationFor(client);
    auto const isLeftOut = [&](FeedItem const* item) { return Engine::IsLeftOut(PolicyOf(*item, installation)); };
    std::copy_if(m_bound.begin(), m_bound.end(), std::back_inserter(leftOut), isLeftOut);
    std::vector<FeedItem const*> const& untrusted = UntrustedBy(installation.trustedKeys);
    std::copy_if(untrusted.begin(), untrusted.end(), std::back_inserter(leftOut), isLeftOut);
    return leftOut;
}

FeedChoice FeedChooser::Impl::Choose(Client const& client)
{
    std::vector<FeedItem const*> const leftOut = LeftOut(client);
    Candidates candidates;
    std::copy_if(m_all.begin(), m_all.end(), std::back_inserter(candidates),
                 [&](Candidate const* candidate)
                 { return std::find(leftOut.begin(), leftOut.end(), &candidate->item) == leftOut.end(); });
    return ChooseAmong(candidates, client);
}

FeedItem const* FeedChooser::Impl::Chosen(Client const& client)
{
    std::vector<FeedItem const*> leftOut = LeftOut(client);
    auto const [finalists, isNew] = m_finalists.try_emplace({client.systemVersion, leftOut});
    if (isNew)
    {
        finalists->second = Finalists(client.systemVersion, leftOut);
    }
    return ChooseAmong(finalists->second, client).chosen;
}

/// The items of the newest version that this system can take, in the order of the feed. No other item can win: the
/// newer version is preferred before anything else is compared.
FeedChooser::Impl::Candidates FeedChooser::Impl::Finalists(Core::Version const& systemVersion,
                                                           std::vector<FeedItem const*> const& leftOut)
{
    Subject const subject({OLDER_THAN_ALL, systemVersion});
    std::unordered_set<FeedItem const*> const absent(leftOut.begin(), leftOut.end());
    Candidates finalists;
    for (Candidate* const candidate : m_all)
    {
        if (absent.count(&candidate->item) != 0 ||
            App::Session::Judge(candidate->record, subject.Get()) != Judgement::VALID)
        {
            continue;
        }
        if (!finalists.empty() &&
            App::Session::IsOlderVersion(finalists.front()->record.Version(), candidate->record.Version()))
        {
            finalists.clear();
        }
        if (finalists.empty() ||
            App::Session::IsSameVersion(finalists.front()->record.Version(), candidate->record.Version()))
        {
            finalists.push_back(candidate);
        }
    }
    return finalists;
}

FeedChoice FeedChooser::Impl::ChooseAmong(Candidates const& candidates, Client const& client)
{
    Subject const subject(client);
    Contest contest(subject.Get());
    for (Candidate* const candidate : candidates)
    {
        contest.Offer(*candidate);
    }
    FeedChoice choice;
    choice.full = contest.Best();
    if (choice.full && client.previousAnswer == PreviousAnswer::None)
    {
        for (FeedItem const* delta : MetDeltas(*choice.full, InstallationFor(client)))
        {
            if (App::Session::StartsFromRunningVersion(delta->deltaFrom, subject.Get()))
            {
                contest.Offer(CandidateOf(*delta));
            }
        }
    }
    choice.chosen = contest.Best();
    choice.duels = contest.Duels();
    return choice;
}

FeedChooser::FeedChooser(std::vector<FeedItem> const& items, Engine::Installation installation)
    : m_impl(std::make_unique<Impl>(items, std::move(installation)))
{
}

FeedChooser::~FeedChooser() = default;

FeedChoice FeedChooser::Choose(Client const& client)
{
    return m_impl->Choose(client);
}

FeedItem const* FeedChooser::Chosen(Client const& client)
{
    return m_impl->Chosen(client);
}

FeedChoice ChooseFromFeed(std::vector<FeedItem> const& items, Client const& client,
                          Engine::Installation const& installation)
{
    return FeedChooser(items, installation).Choose(client);
}

Engine::Installation InstallationOf(Client const& client, Engine::Installation installation)
{
    installation.version =
        Util::VersionToString(client.localVersion, Util::VersionToStringDetail::PresentComponents, QStringLiteral("."));
    return installation;
}

int OrderOfTexts(QString const& textA, QString const& textB)
{
    Core::Version const a = App::Session::VersionFromStringNoexcept(textA);
    Core::Version const b = App::Session::VersionFromStringNoexcept(textB);
    if (!a.IsValid() || !b.IsValid() || App::Session::IsSameVersion(a, b))
    {
        return 0;
    }
    return App::Session::IsOlderVersion(a, b) ? -1 : 1;
}

Engine::Installation InstallationAmong(std::vector<FeedItem> const& items, Client const& client,
                                       Engine::Installation installation)
{
    Engine::Installation among = InstallationOf(client, std::move(installation));
    for (FeedItem const& item : items)
    {
        bool const isAsked = among.trustedKeys.isEmpty() && !item.trustedKeys.isEmpty();
        Core::Version const version =
            isAsked ? App::Session::VersionFromStringNoexcept(item.versionString) : Core::Version();
        if (version.IsValid() && App::Session::IsSameVersion(version, client.localVersion))
        {
            among.trustedKeys = item.trustedKeys;
        }
    }
    among.stones = Engine::SteppingStonesOf(items, among, OrderOfTexts);
    return among;
}

Engine::PolicyVerdict PolicyOf(FeedItem const& item, Engine::Installation const& installation)
{
    return Engine::JudgePolicy(item, installation, OrderOfTexts);
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
