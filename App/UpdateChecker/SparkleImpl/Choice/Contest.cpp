#include "App/UpdateChecker/SparkleImpl/Choice/Contest.h"

namespace Pelnar::App::Session
{
namespace
{

/// Each is valid or null.
ItemRecord* PreferredOf(ItemRecord* a, ItemRecord* b, IContestHost& host)
{
    if (!a || !b)
    {
        return a ? a : b;
    }
    std::optional<Preference> const byType = PreferByVersionAndType(*a, *b, host.Subject());
    Preference const preferred = byType ? *byType : PreferByDownload(*a, *b);
    host.OnPreferred(preferred, &preferred.item == a ? *b : *a);
    return &preferred.item;
}

} // namespace

bool IsValid(ItemRecord* item, IContestHost const& host)
{
    // Deliberate: the host is asked before a missing item is noticed.
    return host.CanJudge() && item && Judge(*item, host.Subject()) == Judgement::VALID;
}

ItemRecord* BetterOf(ItemRecord* a, ItemRecord* b, IContestHost& host)
{
    bool const isValidA = IsValid(a, host);
    bool const isValidB = IsValid(b, host);
    return PreferredOf(isValidA ? a : nullptr, isValidB ? b : nullptr, host);
}

bool Contest::Run(PreviousAnswer previous)
{
    m_host.OfferItems(*this);
    bool const hasFull = m_best;
    if (hasFull && previous == PreviousAnswer::NONE)
    {
        m_host.OfferDeltas(*m_best, *this);
    }
    return hasFull;
}

void Contest::Offer(ItemRecord& item)
{
    // The best item was judged when it was offered.
    ItemRecord* const best = m_host.CanJudge() ? m_best : nullptr;
    m_best = PreferredOf(best, IsValid(&item, m_host) ? &item : nullptr, m_host);
}

void Contest::OfferDelta(QString const& from, ItemRecord& delta)
{
    if (StartsFromRunningVersion(from, m_host.Subject()))
    {
        Offer(delta);
    }
}

} // namespace Pelnar::App::Session
