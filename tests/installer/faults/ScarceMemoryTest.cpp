// ScarceMemoryTest.cpp: one allocation of the helper fails, in any of its processes, or all allocations after one of
// them. The default run takes a sample; with PELNAR_EVERY_PLACE=1 in the environment it takes all.

#include "tests/installer/FaultChecks.h"
#include "tests/installer/faults/FailingAllocator.h"
#include "tests/installer/faults/HelperSteps.h"
#include "tests/support/Sanitizers.h"

#include <gtest/gtest.h>

#include <csignal>
#include <limits>
#include <tuple>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr char LOADER[] = "/lib64/ld-linux-x86-64.so.2";
constexpr std::uint64_t NONE = std::numeric_limits<std::uint64_t>::max();
constexpr int SAMPLE = 12; ///< places of a sweep

/// The plan of one helper, in a file.
class SharedPlan
{
public:
    SharedPlan(AllocationPlan::Mode mode, std::uint64_t firstRefused)
    {
        UniqueFd const file(::open(Path().c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
        EXPECT_EQ(::ftruncate(file.Get(), sizeof(AllocationPlan)), 0);
        void* const memory = ::mmap(nullptr, sizeof(AllocationPlan), PROT_READ | PROT_WRITE, MAP_SHARED, file.Get(), 0);
        EXPECT_NE(memory, MAP_FAILED);
        m_plan = new (memory) AllocationPlan;
        m_plan->mode = mode;
        m_plan->firstRefused = firstRefused;
    }
    ~SharedPlan() { ::munmap(m_plan, sizeof(AllocationPlan)); }
    SharedPlan(SharedPlan const&) = delete;
    SharedPlan& operator=(SharedPlan const&) = delete;

    AllocationPlan const& Counts() const { return *m_plan; }

    /// The allocator is an argument of the loader, because the helper would remove the environment variable.
    HelperStart Start() const
    {
        return {
            {"/bin/sh", "-c",
             "exec " + std::to_string(ALLOCATION_PLAN_DESCRIPTOR) + "<>\"$0\"; exec /usr/bin/env -i \"$@\" 2>/dev/null",
             Path(), LOADER, "--preload", PELNAR_FAILING_ALLOCATOR},
            {}};
    }

private:
    std::string Path() const { return m_folder.Path() + "/plan"; }

    Workspace m_folder;
    AllocationPlan* m_plan = nullptr;
};

using Row = std::tuple<Step, AllocationPlan::Mode>;

class ScarceMemory : public testing::TestWithParam<Row>
{
protected:
    void SetUp() override
    {
        if (IS_SANITIZED)
        {
            GTEST_SKIP() << "a sanitizer replaces this allocator";
        }
    }

    void ExpectHonest(UpdateScene const& scene, HelperOutcome const& outcome) const
    {
        // Some libraries end the process without memory. The language does so if it cannot even throw. The exit status
        // says enough to the host.
        bool const isDeath = outcome.signal == SIGABRT || outcome.signal == SIGSEGV;
        EXPECT_TRUE(outcome.exitStatus == 0 || outcome.exitStatus == 1 || isDeath)
            << outcome.exitStatus << ", signal " << outcome.signal;
        EXPECT_TRUE(outcome.exitStatus == 0 || outcome.Find<PreparedReport>() == nullptr);
        std::string const version = ExpectWhole(scene, versions);
        if (outcome.exitStatus == 0 && IsInstallation(step))
        {
            EXPECT_EQ(version, "2.0");
        }
        if (outcome.exitStatus == 0 && IsPreparation(step))
        {
            EXPECT_TRUE(TreeOf(scene.StagingPath() + '/' + APP) == versions.next);
        }
    }

    Step const step = std::get<Step>(GetParam());
    AllocationPlan::Mode const mode = std::get<AllocationPlan::Mode>(GetParam());
    Versions const versions = VersionsOf(step);
};

TEST_P(ScarceMemory, LeavesOneOfTheVersionsAndReportsNoFalseResult)
{
    std::uint64_t count = 0;
    {
        Subject subject(step, InstallOutcome::NotKept);
        SharedPlan const plan(AllocationPlan::Mode::One, NONE);
        ASSERT_EQ(subject.Run(plan.Start()).exitStatus, 0);
        count = plan.Counts().asked;
        ASSERT_GT(count, 20u) << "the allocator is not under the helper";
    }
    std::uint64_t const stride = IsEveryPlaceWanted() ? 1 : std::max<std::uint64_t>(count / SAMPLE, 1);
    int runs = 0;
    int met = 0;
    int refused = 0;
    int died = 0;
    for (std::uint64_t place = 1; place <= count; place += stride)
    {
        SCOPED_TRACE(testing::Message() << "allocation " << place << " of " << count);
        Subject subject(step, InstallOutcome::NotKept);
        SharedPlan const plan(mode, place);
        HelperOutcome const outcome = subject.Run(plan.Start());
        // A run may allocate less than the one before: a shorter process number gives a shorter path.
        EXPECT_EQ(plan.Counts().refused > 0, plan.Counts().asked >= place);
        ++runs;
        met += plan.Counts().refused > 0 ? 1 : 0;
        ExpectHonest(subject.scene, outcome);
        refused += outcome.Fault() == UpdateFault::SystemLimitReached ? 1 : 0;
        died += outcome.signal != 0 ? 1 : 0;
        ExpectRecovered(subject.scene, versions);
    }
    EXPECT_GE(met * 10, runs * 9) << "too few of the places were met";
    EXPECT_GT(mode == AllocationPlan::Mode::One ? refused : died, 0);
    RecordProperty("allocations", std::to_string(count));
    RecordProperty("refused", refused);
    RecordProperty("died", died);
}

INSTANTIATE_TEST_SUITE_P(Steps, ScarceMemory,
                         testing::Combine(testing::Values(Step::Preparation, Step::PreparationByADelta,
                                                          Step::PreparationFromATar, Step::Installation,
                                                          Step::Recovery),
                                          testing::Values(AllocationPlan::Mode::One, AllocationPlan::Mode::AllFrom)),
                         [](testing::TestParamInfo<Row> const& info)
                         {
                             bool const isOne = std::get<AllocationPlan::Mode>(info.param) == AllocationPlan::Mode::One;
                             return StepName(std::get<Step>(info.param)) + (isOne ? "WithoutOne" : "WithoutAnyMore");
                         });

} // namespace
