// SessionEndTest.cpp: the session ends, with each of its signals, at each call that moves the bundles or makes them
// durable. EveryCall.IsWhereTheSessionEnds takes a sample of all calls; these calls must not be left half done.

#include "tests/installer/FaultChecks.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <map>
#include <set>

#include <sys/syscall.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

enum class Exchange
{
    Possible,
    Refused,
};

/// An update whose host has ended.
class ReadyScene
{
public:
    ReadyScene() : m_job(scene.PrepareForInstall()) { scene.Host().End(); }

    /// Installs it. \a visitor decides about each call.
    HelperOutcome Install(Exchange exchange, CallVisitor const& visitor)
    {
        HelperStart start;
        start.atEveryCall = [&](CallStop const& stop)
        {
            CallVerdict const verdict = visitor(stop);
            bool const isRefused = exchange == Exchange::Refused && stop.call == SYS_renameat2;
            return isRefused && verdict.kind == CallVerdict::Kind::GoOn ? CallVerdict::Fail(EINVAL) : verdict;
        };
        return scene.Install(m_job, start);
    }

    UpdateScene scene;

private:
    InstallJob m_job;
};

/// The successful renames and syncs of an installation, each with its number among its kind.
std::vector<std::pair<long, int>> CriticalCalls(Exchange exchange)
{
    std::set<long> const critical{SYS_renameat, SYS_renameat2, SYS_fsync};
    std::vector<std::pair<long, int>> calls;
    std::map<long, int> counts;
    ReadyScene ready;
    HelperOutcome const outcome = ready.Install(exchange,
                                                [&](CallStop const& stop)
                                                {
                                                    bool const isRefused =
                                                        exchange == Exchange::Refused && stop.call == SYS_renameat2;
                                                    if (critical.count(stop.call) != 0 && !isRefused)
                                                    {
                                                        calls.emplace_back(stop.call, ++counts[stop.call]);
                                                    }
                                                    return CallVerdict::GoOn();
                                                });
    EXPECT_EQ(outcome.exitStatus, 0);
    // One rename for the journal, and one or two for the bundle.
    EXPECT_EQ(counts[SYS_renameat] + counts[SYS_renameat2], exchange == Exchange::Possible ? 2 : 3);
    EXPECT_EQ(counts[SYS_fsync], 4);
    return calls;
}

class SessionEnd : public testing::TestWithParam<Exchange>
{
};

TEST_P(SessionEnd, LeavesNoCallOfTheSwapUndone)
{
    Versions const versions;
    for (auto const& [call, nth] : CriticalCalls(GetParam()))
    {
        for (int const signal : {SIGTERM, SIGHUP, SIGINT, SIGQUIT})
        {
            SCOPED_TRACE(testing::Message() << CallName(call) << " number " << nth << ", " << ::strsignal(signal));
            int count = 0;
            int index = -1;
            ReadyScene ready;
            HelperOutcome const outcome =
                ready.Install(GetParam(),
                              [&, call = call, nth = nth](CallStop const& stop)
                              {
                                  bool const isMet = stop.call == call && ++count == nth;
                                  index = isMet ? stop.index : index;
                                  return isMet ? CallVerdict::SignalAll(signal) : CallVerdict::GoOn();
                              });
            EXPECT_EQ(outcome.traced.faulted.count(index), 1u) << "nobody got the signal";
            EXPECT_EQ(outcome.exitStatus, 0) << outcome.signal << ' ' << FaultName(outcome.Fault());
            EXPECT_EQ(outcome.output.substr(0, 3), "2.0") << "the new version is started";
            EXPECT_EQ(ExpectWhole(ready.scene, versions), "2.0");
            ExpectRecovered(ready.scene, versions);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Exchanges, SessionEnd, testing::Values(Exchange::Possible, Exchange::Refused),
                         [](testing::TestParamInfo<Exchange> const& info)
                         { return info.param == Exchange::Possible ? "Possible" : "Refused"; });

/// Signals to a terminal's or a session's processes do not reach the helper.
TEST(Session, IsTheHelpersOwn)
{
    std::set<pid_t> sessions;
    std::set<pid_t> groups;
    ReadyScene ready;
    HelperOutcome const outcome = ready.Install(Exchange::Possible,
                                                [&](CallStop const& stop)
                                                {
                                                    if (stop.call == SYS_renameat2)
                                                    {
                                                        sessions.insert(::getsid(stop.process));
                                                        groups.insert(::getpgid(stop.process));
                                                    }
                                                    return CallVerdict::GoOn();
                                                });
    EXPECT_EQ(outcome.exitStatus, 0);
    ASSERT_EQ(sessions.size(), 1u);
    ASSERT_EQ(groups.size(), 1u);
    EXPECT_NE(*sessions.begin(), ::getsid(0));
    EXPECT_NE(*groups.begin(), ::getpgid(0));
    EXPECT_GT(*sessions.begin(), 0);
}

} // namespace
