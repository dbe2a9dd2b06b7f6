// How a program is started after an update: with the arguments that the host gave last, which the helper reads from a
// file, and in the host's folder and environment.
#include "Engine/core/helper/RelaunchArguments.h"
#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;
using namespace std::string_literals;
using Arguments = std::vector<std::string>;

UniqueFd FileOf(std::string const& bytes)
{
    UniqueFd file(::memfd_create("arguments", MFD_CLOEXEC));
    EXPECT_EQ(::write(file.Get(), bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    return file;
}

/// Version 2.0, whose program prints its folder, a variable and its arguments, and ends with \a status.
std::string Talkative(int status = 0, std::string const& moreInformation = {})
{
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    entries[1].content = "#!/bin/sh\nprintf '2.0|%s|%s|%s' \"$(pwd -P)\" \"$PELNAR_TEST\" \"$#\"\n"
                         "for argument in \"$@\"; do printf '[%s]' \"$argument\"; done\necho\nexit " +
                         std::to_string(status) + "\n";
    std::string& information = entries[3].content;
    information.insert(information.find('{') + 1, moreInformation);
    return MakeArchive(Container::Zip, entries);
}

std::string Printed(Arguments const& arguments)
{
    std::string text = std::to_string(arguments.size());
    for (std::string const& argument : arguments)
    {
        text += '[' + argument + ']';
    }
    return text + '\n';
}

/// None of these may have a meaning for the helper, a shell or the loader.
Arguments const ODD{"--open",
                    "/home/a b/caf\xc3\xa9 \"quoted\" $(id) `id` ; & |.txt",
                    "/home/latin1/caf\xe9.txt",
                    "\xff\xfe\x80",
                    "",
                    "-",
                    "--",
                    "install",
                    "prepare",
                    "--preload=/tmp/x.so",
                    "LD_PRELOAD=/tmp/x.so",
                    "two\nlines\t",
                    std::string(60000, 'x')};

TEST(RelaunchArguments, ComeBackAndNoPieceOfThemDoes)
{
    for (Arguments const& arguments : {Arguments(), Arguments{""}, Arguments{"a", "", "b\xff"}})
    {
        std::string const bytes = EncodeRelaunchArguments(arguments);
        EXPECT_EQ(DecodeRelaunchArguments(bytes), arguments);
        EXPECT_EQ(ReadRelaunchArguments(FileOf(bytes).Get()), arguments);
        for (std::size_t size = 0; size < bytes.size(); ++size)
        {
            EXPECT_FALSE(DecodeRelaunchArguments(bytes.substr(0, size))) << size;
        }
        EXPECT_FALSE(DecodeRelaunchArguments(bytes + '\0'));
        EXPECT_FALSE(DecodeRelaunchArguments(std::string(8, '\0') + bytes.substr(8))) << "written half";
    }
}

TEST(RelaunchArguments, LimitsAreMetToTheByte)
{
    struct Row
    {
        Arguments arguments;
        bool isGood;
    };
    std::size_t const most = RELAUNCH_ARGUMENTS_MAX_BYTES;
    for (Row const& row :
         {Row{Arguments(1024), true}, Row{Arguments(1025), false}, Row{{std::string(most - 1, 'x')}, true},
          Row{{std::string(most, 'x')}, false}, Row{{std::string(most - 2, 'x'), ""}, true},
          Row{{std::string(most - 2, 'x'), "y"}, false}, Row{{"a\0b"s}, false}, Row{{"\0"s}, false},
          Row{Arguments(1024, std::string(63, 'x')), true}, Row{Arguments(1024, std::string(64, 'x')), false}})
    {
        EXPECT_EQ(FaultOfRelaunchArguments(row.arguments) == nullptr, row.isGood);
        // The reader has the same limits.
        std::string const bytes = EncodeRelaunchArguments(row.arguments);
        EXPECT_EQ(DecodeRelaunchArguments(bytes).has_value(), row.isGood);
        EXPECT_EQ(ReadRelaunchArguments(FileOf(bytes).Get()), row.isGood ? row.arguments : Arguments());
    }
}

TEST(RelaunchArguments, WhatIsNoFileSaysNone)
{
    Workspace const place;
    int ends[2];
    ASSERT_EQ(::pipe2(ends, O_CLOEXEC), 0); // nothing is written to it: a reader would wait for ever
    UniqueFd const reader(ends[0]);
    UniqueFd const writer(ends[1]);
    for (int const descriptor : {-1, place.Descriptor(), reader.Get()})
    {
        EXPECT_EQ(ReadRelaunchArguments(descriptor), Arguments());
    }
    UniqueFd const huge(::memfd_create("arguments", MFD_CLOEXEC));
    ASSERT_EQ(::ftruncate(huge.Get(), off_t{1} << 40), 0);
    EXPECT_EQ(ReadRelaunchArguments(huge.Get()), Arguments());
}

TEST(RelaunchedProgram, GetsTheArgumentsToTheByteInTheFolderAndTheEnvironmentOfTheHost)
{
    for (Arguments const& arguments : {Arguments(), Arguments{"/home/me/a.txt"}, ODD})
    {
        UpdateScene scene(Talkative());
        Workspace const folder;
        UniqueFd const file = FileOf(EncodeRelaunchArguments(arguments));
        scene.argumentsDescriptor = file.Get();
        InstallJob job = scene.PrepareForInstall();
        job.environment = {"PELNAR_TEST=\xff of the host"};
        job.workingFolder = folder.Path();
        scene.Host().End();
        HelperOutcome const outcome = scene.Install(job);
        EXPECT_EQ(outcome.exitStatus, 0);
        EXPECT_EQ(outcome.output, "2.0|" + folder.Path() + "|\xff of the host|" + Printed(arguments));
    }
}

TEST(RelaunchedProgram, GetsNoneThatAreDamaged)
{
    for (std::string const& bytes : {""s, std::string(8, '\0') + EncodeRelaunchArguments({"a"}).substr(8),
                                     EncodeRelaunchArguments(Arguments(1025)), std::string(1 << 20, 'x')})
    {
        UpdateScene scene(Talkative());
        UniqueFd const file = FileOf(bytes);
        scene.argumentsDescriptor = file.Get();
        InstallJob const job = scene.PrepareForInstall();
        scene.Host().End();
        HelperOutcome const outcome = scene.Install(job);
        EXPECT_EQ(outcome.exitStatus, 0);
        EXPECT_EQ(outcome.output, "2.0|/||" + Printed({}));
    }
}

TEST(RelaunchedProgram, GetsNoneThatTheSystemDoesNotTakeBesideTheEnvironment)
{
    UpdateScene scene(Talkative());
    UniqueFd const file = FileOf(EncodeRelaunchArguments({std::string(RELAUNCH_ARGUMENTS_MAX_BYTES - 1, 'x')}));
    scene.argumentsDescriptor = file.Get();
    InstallJob job = scene.PrepareForInstall();
    long left = ::sysconf(_SC_ARG_MAX) - (32 << 10);
    constexpr long LONGEST = 100000;
    for (int i = 0; left > 0; ++i, left -= LONGEST)
    {
        std::string const name = "V" + std::to_string(i) + "=";
        job.environment.push_back(name + std::string(static_cast<std::size_t>(std::min(left, LONGEST)), 'v'));
    }
    ASSERT_TRUE(DecodeUpdateJob(EncodeUpdateJob(job))) << "this system takes more than a job may hold";
    scene.Host().End();
    HelperOutcome const outcome = scene.Install(job);
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.output, "2.0|/||" + Printed({}));
}

TEST(RelaunchedProgram, OfTheVersionThatStaysGetsNone)
{
    UpdateScene scene(Talkative());
    UniqueFd const file = FileOf(EncodeRelaunchArguments({"document"}));
    scene.argumentsDescriptor = file.Get();
    InstallJob job = scene.PrepareForInstall();
    job.installedVersion = "0.9"; // not the installed one
    scene.Host().End();
    HelperOutcome const outcome = scene.Install(job);
    EXPECT_EQ(outcome.Fault(), UpdateFault::TargetChanged);
    EXPECT_EQ(outcome.output, "1.0|" + scene.Place().Path() + "/" + APP + "/run|0|\n");
}

TEST(RelaunchedProgram, ThatDoesNotStartWellIsTriedTwiceWithThemAndThePreviousOneWithout)
{
    UpdateScene scene(Talkative(1, "PelnarConfirmsGoodStart = YES;"));
    UniqueFd const file = FileOf(EncodeRelaunchArguments({"document"}));
    scene.argumentsDescriptor = file.Get();
    InstallJob const job = scene.PrepareForInstall();
    scene.Host().End();
    HelperOutcome const outcome = scene.Install(job);
    std::string const failing = "2.0|/||" + Printed({"document"});
    EXPECT_EQ(outcome.output, failing + failing + "1.0|" + scene.Place().Path() + "/" + APP + "/run|0|\n");
}

TEST(RelaunchedProgram, IsNoneWithoutARelaunchWhateverTheArguments)
{
    UpdateScene scene(Talkative());
    UniqueFd const file = FileOf(EncodeRelaunchArguments({"document"}));
    scene.argumentsDescriptor = file.Get();
    InstallJob job = scene.PrepareForInstall();
    job.targetPath.clear();
    scene.Host().End();
    HelperOutcome const outcome = scene.Install(job);
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_NE(outcome.Find<InstalledReport>(), nullptr);
}

} // namespace
