#include "Engine/core/check/BackOff.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

using namespace Pelnar::Engine;
using std::chrono::hours;

QDateTime At(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}
TEST(BackOff, DoublesFromOneHourToADay)
{
    std::vector<hours> const expected = {hours(0),  hours(1),  hours(2),  hours(4), hours(8),
                                         hours(16), hours(24), hours(24), hours(24)};
    for (int failures = 0; failures < static_cast<int>(expected.size()); ++failures)
    {
        EXPECT_EQ(BackOffAfter(failures), expected[static_cast<std::size_t>(failures)]) << failures;
    }
    EXPECT_EQ(BackOffAfter(-1), hours(0));
    EXPECT_EQ(BackOffAfter(std::numeric_limits<int>::max()), hours(24));
}

TEST(BackOff, HoldsBackUntilTheTimeIsOverAndNeverBecauseOfAClockThatWasSetBack)
{
    struct Row
    {
        char const* name;
        BackOffState state;
        qint64 now;
        bool isHeldBack;
    };
    for (Row const& row :
         {Row{"no failure", {}, 100000, false}, Row{"just failed", {1, At(100000)}, 100000, true},
          Row{"before the hour is over", {1, At(100000)}, 103599, true},
          Row{"when the hour is over", {1, At(100000)}, 103600, false},
          Row{"second failure", {2, At(100000)}, 107199, true}, Row{"after a day", {50, At(100000)}, 186400, false},
          Row{"clock set back", {50, At(100000)}, 99999, false}, Row{"no time", {3, QDateTime()}, 100000, false},
          Row{"nonsense", {-3, At(100000)}, 100000, false}})
    {
        EXPECT_EQ(IsHeldBack(row.state, At(row.now)), row.isHeldBack) << row.name;
    }
}

TEST(BackOff, CountsWithoutOverflow)
{
    EXPECT_EQ(AfterFailure({}, At(5)), (BackOffState{1, At(5)}));
    EXPECT_EQ(AfterFailure({2, At(1)}, At(5)), (BackOffState{3, At(5)}));
    EXPECT_EQ(AfterFailure({-7, At(1)}, At(5)).failures, 1);
    EXPECT_EQ(AfterFailure({std::numeric_limits<int>::max(), At(1)}, At(5)).failures, std::numeric_limits<int>::max());
}

} // namespace
