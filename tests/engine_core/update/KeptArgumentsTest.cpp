// The arguments for the next start: the last call counts, also if a helper already waits.
#include "Engine/core/update/KeptArguments.h"
#include "Engine/core/helper/RelaunchArguments.h"
#include "Engine/core/update/HelperProcess.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestApplication.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include <fcntl.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;
using namespace std::string_literals;
using Arguments = std::vector<std::string>;

class KeptArgumentsTest : public ::testing::Test
{
protected:
    KeptArgumentsTest() { kept.Forget(); }
    ~KeptArgumentsTest() override { kept.Forget(); }

    KeptArguments& kept = KeptArguments::OfProcess();
};

TEST_F(KeptArgumentsTest, FileHoldsTheLastArguments)
{
    ASSERT_TRUE(kept.Keep({"before", "it was shared"}));
    UniqueFd const file = kept.Share();
    EXPECT_EQ(ReadRelaunchArguments(file.Get()), (Arguments{"before", "it was shared"}));
    for (Arguments const& arguments :
         {Arguments{std::string(60000, 'x')}, Arguments{"", "\xff"}, Arguments(), Arguments{"last"}})
    {
        ASSERT_TRUE(kept.Keep(arguments));
        EXPECT_EQ(ReadRelaunchArguments(file.Get()), arguments);
        EXPECT_EQ(ReadRelaunchArguments(kept.Share().Get()), arguments);
    }
    EXPECT_NE(::fcntl(file.Get(), F_GETFD) & FD_CLOEXEC, 0) << "no program that the host starts inherits it";
}

TEST_F(KeptArgumentsTest, RefusedOnesChangeNothingAndAreLogged)
{
    ASSERT_TRUE(kept.Keep({"good"}));
    UniqueFd const file = kept.Share();
    LogCapture const log;
    EXPECT_FALSE(kept.Keep(Arguments(1025)));
    EXPECT_FALSE(kept.Keep({"a\0b"s}));
    EXPECT_FALSE(kept.Keep({std::string(64 << 10, 'x')}));
    EXPECT_EQ(ReadRelaunchArguments(file.Get()), Arguments{"good"});
    std::string const begin = "The arguments for the next start are refused, because ";
    EXPECT_EQ(log.Texts(),
              (std::vector<std::string>{begin + "there are more than 1024", begin + "one of them contains a NUL",
                                        begin + "they are longer than 64 KiB"}));
}

TEST_F(KeptArgumentsTest, ForgottenOnesAreGivenToNobody)
{
    ASSERT_TRUE(kept.Keep({"document"}));
    UniqueFd const earlier = kept.Share();
    kept.Forget();
    EXPECT_EQ(ReadRelaunchArguments(kept.Share().Get()), Arguments());
    ASSERT_TRUE(kept.Keep({"next"}));
    EXPECT_EQ(ReadRelaunchArguments(earlier.Get()), Arguments{"document"}) << "a file for each update";
}

std::string ReadFile(std::string const& path)
{
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

TEST_F(KeptArgumentsTest, ReachTheNewVersionThroughTheHelperThatWaited)
{
    TestApplication<> const application;
    Workspace const place;
    std::string const told = place.Path() + "/told";
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    entries[1].content = "#!/bin/sh\nprintf '[%s]' \"$@\" \"$(pwd -P)\" > \"$PELNAR_TEST.part\"\n"
                         "mv \"$PELNAR_TEST.part\" \"$PELNAR_TEST\"\n";
    UpdateScene scene(MakeArchive(Container::Zip, entries));
    InstallJob job = scene.PrepareForInstall();
    job.environment = {"PELNAR_TEST=" + told, "PATH=/usr/bin:/bin"};
    job.workingFolder = place.Path();

    ASSERT_TRUE(kept.Keep({"early"}));
    bool isWaiting = false;
    std::optional<HelperEnd> end;
    HelperProcess helper(std::make_shared<SealedProgram>(PELNAR_INSTALLER_PROGRAM));
    {
        UniqueFd const arguments = kept.Share();
        helper.Start(
            job,
            DescriptorMap(job, {scene.StagingDescriptor(), scene.Place().Descriptor(), scene.Host().ProcessDescriptor(),
                                scene.Downloads().Descriptor(), arguments.Get()}),
            [&isWaiting](HelperReport const& report)
            {
                auto const* const progress = std::get_if<ProgressReport>(&report);
                isWaiting = isWaiting || (progress && progress->phase == HelperPhase::Waiting);
            },
            [&end](HelperEnd ended) { end = ended; });
    }
    ASSERT_TRUE(WaitFor([&isWaiting] { return isWaiting; }));
    ASSERT_TRUE(kept.Keep({"late", "caf\xe9"}));
    scene.Host().End();
    ASSERT_TRUE(WaitFor([&end] { return end.has_value(); }));
    EXPECT_EQ(end, HelperEnd::Done);
    ASSERT_TRUE(WaitFor([&told] { return std::filesystem::exists(told); }));
    EXPECT_EQ(ReadFile(told), "[late][caf\xe9][" + place.Path() + "]");
}

} // namespace
