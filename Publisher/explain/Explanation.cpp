#include "Publisher/explain/Explanation.h"

#include <algorithm>

namespace Pelnar::Publisher
{
namespace
{

using App::Session::Judgement;
using App::Session::PreferenceRule;
using Engine::FeedItem;

QString Quoted(QString const& text)
{
    return u'"' + text + u'"';
}

QString FailedTest(FeedItem const& item, Judgement judgement, Client const& client)
{
    switch (judgement)
    {
    case Judgement::SYSTEM_TOO_OLD:
        return u"system %1 < minimum %2"_s.arg(TextOf(client.systemVersion), item.minimumSystemVersion);
    case Judgement::SYSTEM_TOO_NEW:
        return u"system %1 > maximum %2"_s.arg(TextOf(client.systemVersion), item.maximumSystemVersion);
    case Judgement::VERSION_UNREADABLE:
        return item.versionString.isEmpty()
                   ? u"no version"_s
                   : u"version %1 is not one to four numbers separated by dots"_s.arg(Quoted(item.versionString));
    case Judgement::VERSION_OLDER:
        return u"version %1 < installed %2"_s.arg(item.versionString, TextOf(client.localVersion));
    case Judgement::VERSION_EQUAL:
        return u"version %1 = installed %2"_s.arg(item.versionString, TextOf(client.localVersion));
    case Judgement::URL_INVALID:
        return u"no enclosure with a valid address"_s;
    case Judgement::DATE_REFUSED:
        return u"date %1 is in the text form that is refused"_s.arg(Quoted(item.dateString));
    case Judgement::LENGTH_ZERO:
        return u"length is 0, missing or not a number"_s;
    case Judgement::VALID:
        return {};
    }
    return {};
}

class Explainer
{
public:
    Explainer(std::vector<FeedItem> const& items, Client const& client, Engine::Installation const& installation)
        : m_items(items)
        , m_client(client)
        , m_installation(InstallationAmong(items, client, installation))
        , m_choice(ChooseFromFeed(items, client, installation))
    {
    }

    Explanation Explain() const
    {
        Explanation result;
        result.choice = m_choice;
        result.chosenIndex = m_choice.full ? int(m_choice.full - m_items.data()) : 0;
        for (FeedItem const& item : m_items)
        {
            result.items.push_back(ExplainItem(item, int(result.items.size())));
            for (FeedItem const& delta : item.deltas)
            {
                std::vector<ItemExplanation>& deltas = result.items.back().deltas;
                deltas.push_back(ExplainItem(delta, int(deltas.size())));
                LookAtDelta(deltas.back(), item);
            }
        }
        return result;
    }

private:
    ItemExplanation ExplainItem(FeedItem const& item, int index) const
    {
        ItemExplanation result;
        result.item = &item;
        result.index = index;
        result.verdict = JudgeFeedItem(item, m_client);
        result.policy = PolicyOf(item, m_installation);
        result.extensions = ExtensionsOf(item);
        if (Engine::IsLeftOut(result.policy))
        {
            result.standing = Standing::LeftOut;
            result.detail = Engine::ReasonOf(result.policy, item, m_installation);
        }
        else if (result.verdict != Judgement::VALID)
        {
            result.standing = Standing::Refused;
            result.detail = FailedTest(item, result.verdict, m_client);
        }
        else if (&item == m_choice.chosen)
        {
            result.standing = Standing::Chosen;
            result.detail = u"chosen"_s + OtherAnswers(item);
            if (result.policy != Engine::PolicyVerdict::Plain)
            {
                result.detail += u": "_s + Engine::ReasonOf(result.policy, item, m_installation);
            }
        }
        else if (std::count(m_choice.rivals.begin(), m_choice.rivals.end(), &item) != 0)
        {
            result.standing = Standing::Rival;
            result.detail = u"may be chosen"_s + OtherAnswers(item);
        }
        else
        {
            result.standing = Standing::Lost;
            result.detail = HowLost(item);
        }
        return result;
    }

    /// A delta that the client does not consider keeps its verdict. The detail says why it does not count.
    void LookAtDelta(ItemExplanation& delta, FeedItem const& parent) const
    {
        if (delta.standing == Standing::LeftOut)
        {
            return;
        }
        QString reason;
        if (&parent != m_choice.full)
        {
            reason = u"not considered: item is not the best full one"_s;
        }
        else if (m_client.previousAnswer == PreviousAnswer::DELTA)
        {
            reason = u"not considered: the previous answer was a delta"_s;
        }
        else if (!ServesClient(*delta.item, m_client))
        {
            reason = u"not considered: starts from %1, installed is %2"_s.arg(
                delta.item->deltaFrom.isEmpty() ? Quoted(QString()) : delta.item->deltaFrom,
                TextOf(m_client.localVersion));
        }
        else if (delta.standing == Standing::Lost && delta.detail.isEmpty())
        {
            reason = u"not considered: a later delta starts from %1 too"_s.arg(delta.item->deltaFrom);
        }
        if (!reason.isEmpty())
        {
            delta.standing = Standing::NotAsked;
            delta.detail =
                delta.detail.isEmpty() || delta.verdict == Judgement::VALID ? reason : reason + u"; "_s + delta.detail;
        }
    }

    /// Empty if the answer is definite.
    QString OtherAnswers(FeedItem const& item) const
    {
        QStringList others;
        for (FeedItem const* const other : m_choice.rivals)
        {
            others.append(NameOf(other == &item ? *m_choice.chosen : *other));
        }
        return others.isEmpty() ? QString()
                                : u", or %1: no rule defines the order of these deltas"_s.arg(others.join(u", or "_s));
    }

    QString NameOf(FeedItem const& item) const
    {
        if (item.isDelta)
        {
            return u"the delta from %1"_s.arg(item.deltaFrom);
        }
        return u"item %1"_s.arg(&item - m_items.data());
    }

    /// Empty if \a item was compared with no other item.
    QString HowLost(FeedItem const& item) const
    {
        auto const duel = std::find_if(m_choice.duels.begin(), m_choice.duels.end(),
                                       [&](Duel const& each) { return each.loser == &item; });
        if (duel == m_choice.duels.end())
        {
            return {};
        }
        return u"lost to %1: %2"_s.arg(NameOf(*duel->winner), Reason(*duel));
    }

    QString Reason(Duel const& duel) const
    {
        FeedItem const& winner = *duel.winner;
        FeedItem const& loser = *duel.loser;
        switch (duel.rule)
        {
        case PreferenceRule::NEWER_VERSION:
            return u"newer version, %1 > %2"_s.arg(winner.versionString, loser.versionString);
        case PreferenceRule::WANTED_TYPE:
            return u"kind, %1 is preferred to %2"_s.arg(UpdateTypeNameOf(winner), UpdateTypeNameOf(loser));
        case PreferenceRule::SAME_ADDRESS:
            return u"same address, and it comes first"_s;
        case PreferenceRule::LATER_DATE:
            return u"later date, %1 > %2"_s.arg(winner.dateString, loser.dateString);
        case PreferenceRule::SMALLER_LENGTH:
            return winner.contentLength == loser.contentLength
                       ? u"same size of %1 bytes, and it comes first"_s.arg(winner.contentLength)
                       : u"smaller size, %1 < %2 bytes"_s.arg(winner.contentLength).arg(loser.contentLength);
        }
        return {};
    }

    std::vector<FeedItem> const& m_items;
    Client const m_client;
    Engine::Installation const m_installation;
    FeedChoice const m_choice;
};

} // namespace

char const* ItemExplanation::VerdictName() const
{
    bool const isOfPolicy = Engine::IsLeftOut(policy) ||
                            (policy != Engine::PolicyVerdict::Plain && verdict == App::Session::Judgement::VALID);
    return isOfPolicy ? Engine::NameOf(policy) : App::Session::JudgementName(verdict);
}

Explanation ExplainFeed(std::vector<FeedItem> const& items, Client const& client,
                        Engine::Installation const& installation)
{
    return Explainer(items, client, installation).Explain();
}

} // namespace Pelnar::Publisher
