// LeftoversTest.cpp: what ends a process of the tool, in processes of their own.

#include "Publisher/files/Leftovers.h"

#include "Engine/core/base/Descriptor.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/support/NoFurtherThread.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Testing
{
namespace
{

using Publisher::Leftover;

class EndOfAProcess : public ::testing::Test
{
protected:
    EndOfAProcess() { ::testing::FLAGS_gtest_death_test_style = "threadsafe"; }
};

/// Reads a byte of a mapped file that is no longer there.
void ReadPastTheCut(std::string const& path, std::string const& leftover)
{
    Publisher::RemoveLeftoversWhenInterrupted();
    WriteFile(leftover, "temporary");
    Leftover const listed(leftover);
    WriteFile(path, std::string(1 << 20, 'x'));
    Engine::UniqueFd const file(::open(path.c_str(), O_RDWR | O_CLOEXEC));
    Engine::FileMapping const mapping(file.Get(), 1 << 20);
    if (::ftruncate(file.Get(), 0) == 0)
    {
        std::exit(mapping.Content()[1 << 19] == 'x' ? 90 : 91);
    }
}

void EndBySignal()
{
    NoFurtherThread const noThread;
    Publisher::RemoveLeftoversWhenInterrupted();
    ::raise(SIGTERM);
    std::exit(0);
}

} // namespace

TEST_F(EndOfAProcess, TellsOfAFileThatIsCutShortWhileItIsRead)
{
    // The process of the test starts the test once more, so the names must not change.
    std::string const folder = ::testing::TempDir() + "pelnar-cut-" + std::to_string(::getuid());
    ::mkdir(folder.c_str(), 0700);
    EXPECT_EXIT(ReadPastTheCut(folder + "/Test-2.0.zip", folder + "/leftover"), ::testing::ExitedWithCode(2),
                "error: .*/Test-2.0.zip: was cut short while it was read; run this again when the file is complete");
    EXPECT_NE(::access((folder + "/leftover").c_str(), F_OK), 0);
    ::unlink((folder + "/Test-2.0.zip").c_str());
    ::rmdir(folder.c_str());
}

TEST_F(EndOfAProcess, ComesBySignalsAsUsualWhereTheSystemHasNoThreadForThem)
{
    EXPECT_EXIT(EndBySignal(), ::testing::KilledBySignal(SIGTERM), "");
}

TEST(Leftovers, GoAtTheEnd)
{
    Workspace const place;
    std::string const path = place.Path() + "/file";
    WriteFile(path, "temporary");
    {
        Leftover leftover(path);
        leftover.LeaveToTheEnd();
    }
    Publisher::RemoveLeftovers();
    EXPECT_TRUE(place.Names().empty());
}

} // namespace Pelnar::Testing
