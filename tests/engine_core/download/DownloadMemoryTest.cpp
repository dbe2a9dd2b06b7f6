// DownloadMemoryTest.cpp: one allocation of a download fails, or all after one of them, in a process of its own. The
// default run takes a sample; with PELNAR_EVERY_PLACE=1 in the environment it takes many more.
#include "tests/engine_core/download/ArchiveServer.h"
#include "tests/engine_core/download/DownloadHarness.h"
#include "tests/installer/faults/FailingAllocator.h"
#include "tests/support/Sanitizers.h"

#include <QProcess>

#include <csignal>
#include <cstdlib>
#include <limits>

#include <fcntl.h>
#include <sys/mman.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr int SIZE = 1000000;
constexpr std::uint64_t NONE = std::numeric_limits<std::uint64_t>::max();
constexpr std::uint64_t SAMPLE = 24;
constexpr std::uint64_t LARGE_SAMPLE = 1000;

/// The end of the probe.
struct End
{
    int status = -1; ///< minus one for a signal
    int cause = -1;  ///< of the reported error; 0 for none, -1 if it printed nothing
    std::uint64_t asked = 0;
    std::uint64_t refused = 0;
};

class ScarceMemory : public DownloadTest, public ::testing::WithParamInterface<AllocationPlan::Mode>
{
protected:
    void SetUp() override
    {
        if (IS_SANITIZED)
        {
            GTEST_SKIP() << "a sanitizer replaces this allocator";
        }
    }

    End Download(std::uint64_t firstRefused)
    {
        QString const path = place.filePath(QStringLiteral("plan"));
        UniqueFd const file(::open(path.toStdString().c_str(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
        EXPECT_EQ(::ftruncate(file.Get(), sizeof(AllocationPlan)), 0);
        void* const memory = ::mmap(nullptr, sizeof(AllocationPlan), PROT_READ | PROT_WRITE, MAP_SHARED, file.Get(), 0);
        EXPECT_NE(memory, MAP_FAILED);
        auto* const plan = new (memory) AllocationPlan;
        plan->mode = GetParam();
        plan->firstRefused = firstRefused;
        QProcess process;
        process.start(QStringLiteral("/bin/sh"),
                      {QStringLiteral("-c"),
                       QStringLiteral("exec %1<>\"$0\"; exec \"$@\"").arg(ALLOCATION_PLAN_DESCRIPTOR), path,
                       QStringLiteral("/lib64/ld-linux-x86-64.so.2"), QStringLiteral("--preload"),
                       QStringLiteral(PELNAR_FAILING_ALLOCATOR), QStringLiteral(PELNAR_DOWNLOAD_PROBE),
                       server.Url().toString(), QString::number(SIZE), Folder()});
        EXPECT_TRUE(WaitFor([&process] { return process.state() == QProcess::NotRunning; }, 60000)) << "it hangs";
        End end;
        end.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        QByteArray const said = process.readAllStandardOutput();
        int const at = said.indexOf("cause=");
        end.cause = at < 0 ? -1 : std::atoi(said.constData() + at + 6);
        end.asked = plan->asked;
        end.refused = plan->refused;
        ::munmap(memory, sizeof(AllocationPlan));
        return end;
    }

    QByteArray const archive = MakeArchive(SIZE);
    LoopbackServer server{Serving({archive})};
};

INSTANTIATE_TEST_SUITE_P(Refusals, ScarceMemory,
                         ::testing::Values(AllocationPlan::Mode::One, AllocationPlan::Mode::AllFrom),
                         [](auto const& row)
                         { return row.param == AllocationPlan::Mode::One ? "WithoutOne" : "WithoutAnyMore"; });

TEST_P(ScarceMemory, ReportsNoFalseResultAndTheNextRunBringsTheArchive)
{
    End const whole = Download(NONE);
    ASSERT_EQ(whole.cause, 0);
    ASSERT_GT(whole.asked, 1000u) << "the allocator is not under the probe";
    std::uint64_t const sample = std::getenv("PELNAR_EVERY_PLACE") ? LARGE_SAMPLE : SAMPLE;
    int refused = 0;
    int spoilt = 0;
    for (std::uint64_t number = 1; number <= whole.asked; number += std::max<std::uint64_t>(whole.asked / sample, 1))
    {
        SCOPED_TRACE(testing::Message() << "allocation " << number << " of " << whole.asked);
        RemoveFolder();
        End const end = Download(number);
        refused += end.refused > 0 ? 1 : 0;
        spoilt += end.cause != 0 ? 1 : 0;
        // A program without memory may end. Its output until then must be true.
        EXPECT_TRUE(end.cause <= 0 || (end.cause >= 200 && end.cause < 1000)) << end.cause;
        if (end.cause == 0)
        {
            EXPECT_EQ(PartialBytes(), archive);
        }
        DownloadResult const next = Run(RequestFor(server.Url(), SIZE));
        EXPECT_EQ(next.cause, ErrorCause::NoUpdate) << next.error.sentence.English().toStdString();
        EXPECT_TRUE(next.bytes == archive);
    }
    EXPECT_GT(refused, 0);
    EXPECT_GT(spoilt, 0) << "the allocator refuses and the download does not miss it";
}

} // namespace
