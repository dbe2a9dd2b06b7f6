// Contest.h: the choice among the items of a feed: the best item, and then the best of its deltas that start from the
// running version. The session and the publisher's tool lend it their items. Plain C++, private to the session.
// Thread: the caller's. Ownership: items belong to the host; the best one must outlive the contest.
#pragma once

#include "App/UpdateChecker/SparkleImpl/Choice/AppcastJudgement.h"

namespace Pelnar::App::Session
{

class Contest;

/// The feed and the installation of a contest. An operator of the subject may change what the host returns next.
class IContestHost
{
public:
    /// False if nothing can be judged now, and so no item is valid. Called for each item of each comparison.
    [[nodiscard]] virtual bool CanJudge() const = 0;
    /// REQUIRES: the host has an installation to judge for.
    virtual SelectionSubject Subject() const = 0;
    /// Offers every item, in the order of the feed.
    virtual void OfferItems(Contest& contest) = 0;
    /// Offers every delta of \a full.
    virtual void OfferDeltas(ItemRecord& full, Contest& contest) = 0;
    /// Called for every two valid items.
    virtual void OnPreferred(Preference const& preferred, ItemRecord& other) = 0;

protected:
    ~IContestHost() = default;
};

/// False for null.
[[nodiscard]] bool IsValid(ItemRecord* item, IContestHost const& host);

/// Null if neither is valid. Either may be null.
ItemRecord* BetterOf(ItemRecord* a, ItemRecord* b, IContestHost& host);

/// The session's previous answer in the same check. After a delta the framework asks for a full item as the fallback.
enum class PreviousAnswer
{
    NONE,
    DELTA,
};

class Contest
{
public:
    explicit Contest(IContestHost& host) : m_host(host) {}

    /// Runs the whole contest. False if no item of the feed is valid.
    [[nodiscard]] bool Run(PreviousAnswer previous);

    void Offer(ItemRecord& item);
    /// \a from is the version that the delta starts from, as the feed writes it.
    void OfferDelta(QString const& from, ItemRecord& delta);

    /// The best of the items that were offered so far; null if none was valid. The contest has forgotten all others.
    ItemRecord* Best() const { return m_best; }

private:
    IContestHost& m_host;
    ItemRecord* m_best = nullptr; ///< valid when it was offered
};

} // namespace Pelnar::App::Session
