// RefusedCallTest.cpp: a sandbox refuses one kind of system call, each time, from the helper's start to its end. The
// default run takes a third of the kinds; with PELNAR_EVERY_PLACE=1 in the environment it takes them all.
#include "tests/installer/CallPlaces.h"
#include "tests/installer/OutcomeScene.h"

#include <cerrno>
#include <set>

#include <sys/syscall.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr int SAMPLE_OF = 3;

/// The kinds of calls of a preparation and an installation.
std::set<long> CallsOfAnUpdate()
{
    std::set<long> calls;
    HelperStart start;
    start.atEveryCall = [&calls](CallStop const& stop)
    {
        calls.insert(stop.call);
        return CallVerdict::GoOn();
    };
    UpdateScene scene;
    InstallJob job = scene.MakeInstallJob({});
    HelperOutcome const outcome = scene.Prepare(scene.MakePrepareJob(), start);
    auto const* const prepared = outcome.Find<PreparedReport>();
    EXPECT_NE(prepared, nullptr);
    job = scene.MakeInstallJob(prepared ? prepared->digest : ContentHash{});
    job.targetPath = scene.Place().Path() + '/' + APP;
    UpdateScene::KeepRecord(job);
    scene.Host().End();
    EXPECT_EQ(scene.Install(job, start).exitStatus, 0);
    calls.erase(SYS_exit); // no system refuses these
    calls.erase(SYS_exit_group);
    return calls;
}

class RefusedCall : public testing::TestWithParam<int>
{
};

TEST_P(RefusedCall, EndsInTheNewVersionOrInAReason)
{
    int installed = 0;
    int told = 0;
    int number = GetParam();
    for (long const call : CallsOfAnUpdate())
    {
        if (number++ % SAMPLE_OF != 0 && !IsEveryPlaceWanted())
        {
            continue;
        }
        SCOPED_TRACE(CallName(call));
        HelperStart sandbox;
        sandbox.atEveryCall = [call](CallStop const& stop)
        { return stop.call == call ? CallVerdict::Fail(GetParam()) : CallVerdict::GoOn(); };
        UpdateScene scene;
        HelperOutcome const preparation = scene.Prepare(scene.MakePrepareJob(), sandbox);
        auto const* const prepared = preparation.Find<PreparedReport>();

        if (!prepared)
        {
            EXPECT_NE(preparation.exitStatus, 0);
            ++told; // by the report, or as a helper that failed
            continue;
        }
        InstallJob job = scene.MakeInstallJob(prepared->digest);
        job.targetPath = scene.Place().Path() + '/' + APP;
        UpdateScene::KeepRecord(job);
        scene.Host().End();
        HelperOutcome const outcome = scene.Install(job, sandbox);
        std::ifstream file(scene.Downloads().Path() + '/' + RECORD_NAME, std::ios::binary);
        auto const record = DecodeInstallRecord(std::string(std::istreambuf_iterator<char>(file), {}));
        std::string const version = scene.Place().StartedVersion();
        EXPECT_EQ(outcome.signal, 0);
        if (version == "2.0")
        {
            ++installed;
            continue;
        }
        ++told;
        EXPECT_EQ(version, "1.0");
        EXPECT_NE(outcome.exitStatus, 0);
        // Without a record the helper refuses before it waits, so the host can tell.
        bool const isTold = record
                                ? JudgePastInstallation(*record, "1.0", HelperLife::Ended) == PastInstallation::Failed
                                : outcome.progress.empty();
        EXPECT_TRUE(isTold);
    }
    EXPECT_GT(installed, 0);
    EXPECT_GT(told, 0);
    RecordProperty("installed", installed);
    RecordProperty("told", told);
}

INSTANTIATE_TEST_SUITE_P(Errors, RefusedCall, testing::Values(EPERM, ENOSYS, EACCES),
                         [](auto const& info) {
                             return info.param == EPERM ? "NotPermitted" : info.param == ENOSYS ? "Missing" : "Denied";
                         });

} // namespace
