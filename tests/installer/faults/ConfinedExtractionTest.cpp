// ConfinedExtractionTest.cpp: hostile archives against one line of defence at a time: an extractor without rules in the
// helper's confinement, and the helper's rules on a kernel that cannot confine.

#include "Engine/core/archive/TreeManifest.h"
#include "Installer/Confinement.h"
#include "tests/installer/EvilArchives.h"
#include "tests/installer/FaultChecks.h"

#include <gtest/gtest.h>

#include <archive.h>
#include <archive_entry.h>

#include <cerrno>
#include <filesystem>
#include <set>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

class EvilArchive : public testing::TestWithParam<Evil>
{
};

std::string ArchiveOf(Evil const& evil)
{
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    entries.insert(entries.end(), evil.entries.begin(), evil.entries.end());
    return MakeArchive(evil.isInTar ? Container::TarGzip : Container::Zip, entries);
}

/// Extracts every entry unchanged to the working folder.
void ExtractWithoutRules(std::string const& bytes)
{
    archive* const reader = archive_read_new();
    archive_read_support_format_tar(reader);
    archive_read_support_format_zip(reader);
    archive_read_support_filter_gzip(reader);
    archive_read_open_memory(reader, bytes.data(), bytes.size());
    archive_entry* entry = nullptr;
    while (archive_read_next_header(reader, &entry) >= ARCHIVE_WARN)
    {
        archive_read_extract(reader, entry, ARCHIVE_EXTRACT_PERM | ARCHIVE_EXTRACT_TIME);
    }
    archive_read_free(reader);
}

TEST_P(EvilArchive, ExtractedWithoutRulesStaysInTheConfinement)
{
    Workspace const place;
    place.Put({{"staging", 'd', {}, 0700}, {"decoy", 'd', {}, 0755}, {"decoy/x", 'f', "untouched"}});
    std::string const bytes = ArchiveOf(GetParam());
    pid_t const child = ::fork();
    if (child == 0)
    {
        std::string const staging = place.Path() + "/staging";
        UniqueFd const folder(::open(staging.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        bool const isThere = ::chdir(staging.c_str()) == 0;
        Pelnar::Installer::ConfineTo(folder.Get(), {});
        ExtractWithoutRules(bytes);
        ::_exit(isThere && ::access("My App.app/run", F_OK) == 0 ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0) << "the right part of the archive comes out";
    EXPECT_EQ(place.Names(), (std::vector<std::string>{"decoy", "staging"}));
    EXPECT_EQ(place.Names("decoy"), std::vector<std::string>{"x"});
    EXPECT_EQ(std::filesystem::file_size(place.Path() + "/decoy/x"), 9u);
    EXPECT_FALSE(std::filesystem::exists("/tmp/pelnar-evil"));
}

/// Prepares the scene's archive. Returns how often the helper has created something on the disk. \a atConfinement is
/// the fate of the call that starts the confinement.
int PrepareAndCountWrites(UpdateScene& scene, CallVerdict const& atConfinement, HelperOutcome& outcome)
{
    std::set<long> const making{SYS_mkdirat, SYS_symlinkat, SYS_linkat, SYS_mknodat, SYS_renameat, SYS_renameat2};
    int writes = 0;
    HelperStart start;
    start.atEveryCall = [&](CallStop const& stop)
    {
        writes += making.count(stop.call) != 0 ? 1 : 0;
        return stop.call == SYS_landlock_create_ruleset ? atConfinement : CallVerdict::GoOn();
    };
    outcome = scene.Prepare(scene.MakePrepareJob(), start);
    return writes;
}

/// The bundle's folder is the first entry of each archive.
void ExpectRefusedBeforeTheFirstWrite(Evil const& evil, CallVerdict const& atConfinement)
{
    Versions const versions;
    UpdateScene scene(ArchiveOf(evil));
    HelperOutcome outcome;
    EXPECT_EQ(PrepareAndCountWrites(scene, atConfinement, outcome), 0);
    EXPECT_EQ(outcome.traced.faulted.size(), atConfinement.kind == CallVerdict::Kind::Fail ? 1u : 0u);
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.Fault(), evil.fault);
    EXPECT_EQ(outcome.Find<PreparedReport>(), nullptr);
    EXPECT_TRUE(scene.Place().Names(scene.StagingName()).empty());
    ExpectRecovered(scene, versions);
}

TEST_P(EvilArchive, IsRefusedByTheHelperBeforeTheFirstWrite)
{
    ExpectRefusedBeforeTheFirstWrite(GetParam(), CallVerdict::GoOn());
}

TEST_P(EvilArchive, IsRefusedByTheHelperOnAKernelThatCannotConfine)
{
    ExpectRefusedBeforeTheFirstWrite(GetParam(), CallVerdict::Fail(ENOSYS));
}

TEST(HonestArchive, IsWrittenConfinedOrNot)
{
    for (CallVerdict const& atConfinement : {CallVerdict::GoOn(), CallVerdict::Fail(ENOSYS)})
    {
        UpdateScene scene;
        HelperOutcome outcome;
        EXPECT_GT(PrepareAndCountWrites(scene, atConfinement, outcome), 0);
        EXPECT_NE(outcome.Find<PreparedReport>(), nullptr) << FaultName(outcome.Fault());
    }
}

TEST(Confinement, IsNeededWhereTheKernelHasIt)
{
    UpdateScene scene;
    for (int const error : {EPERM, EINVAL, ENOMEM})
    {
        HelperStart start;
        start.atEveryCall = [error](CallStop const& stop)
        { return stop.call == SYS_landlock_restrict_self ? CallVerdict::Fail(error) : CallVerdict::GoOn(); };
        EXPECT_EQ(scene.Prepare(scene.MakePrepareJob(), start).Fault(), UpdateFault::ConfinementFailed);
        EXPECT_TRUE(scene.Place().Names(scene.StagingName()).empty());
    }
}

INSTANTIATE_TEST_SUITE_P(Table, EvilArchive, testing::ValuesIn(EvilArchives()),
                         [](testing::TestParamInfo<Evil> const& info) { return info.param.name; });

} // namespace
