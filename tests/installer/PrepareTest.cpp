#include "Engine/core/archive/TreeManifest.h"
#include "Installer/Confinement.h"
#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include <elf.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

/// A zip of the bundle with one changed entry.
std::string ZipWith(std::string const& path, std::string const& content, std::uint32_t mode = 0644)
{
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    std::string const whole = std::string(APP) + '/' + path;
    entries.erase(
        std::remove_if(entries.begin(), entries.end(), [&](ForgedEntry const& entry) { return entry.path == whole; }),
        entries.end());
    entries.push_back({whole, 'f', content, mode});
    return MakeZip(entries);
}

std::string ZipWithout(std::string const& path)
{
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    std::string const whole = std::string(APP) + '/' + path;
    entries.erase(
        std::remove_if(entries.begin(), entries.end(), [&](ForgedEntry const& entry) { return entry.path == whole; }),
        entries.end());
    return MakeZip(entries);
}

std::string const INFORMATION = "Resources/Info-gnustep.plist";

std::string ForeignProgram()
{
    Elf64_Ehdr header{};
    std::copy_n(ELFMAG, SELFMAG, header.e_ident);
    header.e_ident[EI_CLASS] = ELFCLASS64;
    header.e_ident[EI_DATA] = ELFDATA2LSB;
    header.e_type = ET_EXEC;
    header.e_machine = EM_S390;
    return std::string(reinterpret_cast<char const*>(&header), sizeof header);
}

TEST(Prepare, VerifiedArchiveBecomesTheBundleThatIsReported)
{
    UpdateScene scene;
    HelperOutcome const outcome = scene.Prepare(scene.MakePrepareJob());
    EXPECT_EQ(outcome.exitStatus, 0);
    ASSERT_EQ(outcome.reports.size(), 1u);
    auto const* prepared = outcome.Find<PreparedReport>();
    ASSERT_NE(prepared, nullptr);
    EXPECT_EQ(prepared->stagedName, APP);
    UniqueFd const staged(::open((scene.StagingPath() + '/' + APP).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    EXPECT_EQ(DigestTree(staged.Get()), prepared->digest);
    EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
    ASSERT_GE(outcome.progress.size(), 4u);
    EXPECT_EQ(outcome.progress.front().phase, HelperPhase::Verifying);
    EXPECT_EQ(outcome.progress.back().phase, HelperPhase::Unpacking);
    EXPECT_EQ(outcome.progress.back().doneBytes, outcome.progress.back().totalBytes);
    struct stat status;
    ASSERT_EQ(::stat(scene.StagingPath().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777u, 0700u);
}

TEST(Prepare, EnvironmentOfTheHostIsNotTheHelpers)
{
    UpdateScene scene;
    HelperStart start;
    start.environment = {"LD_LIBRARY_PATH=/nowhere", "TMPDIR=/nowhere", "OPENSSL_CONF=/nowhere/x", "LC_ALL=tr_TR.UTF-8",
                         "LD_BIND_NOW=1"};
    EXPECT_EQ(scene.Prepare(scene.MakePrepareJob(), start).exitStatus, 0);
}

struct JobRow
{
    char const* name;
    void (*change)(PrepareJob&);
    UpdateFault fault;
};

class PrepareJobs : public testing::TestWithParam<JobRow>
{
};

TEST_P(PrepareJobs, AreRefusedBeforeAnythingIsUnpacked)
{
    UpdateScene scene;
    PrepareJob job = scene.MakePrepareJob();
    GetParam().change(job);
    HelperOutcome const outcome = scene.Prepare(job);
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.Fault(), GetParam().fault);
    EXPECT_TRUE(scene.Place().Names(scene.StagingName()).empty());
    EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
}

INSTANTIATE_TEST_SUITE_P(
    Table, PrepareJobs,
    testing::Values(
        JobRow{"LengthDiffers", [](PrepareJob& job) { ++job.archiveBytes; }, UpdateFault::ArchiveLengthDiffers},
        JobRow{"NoSignature", [](PrepareJob& job) { job.signature.clear(); }, UpdateFault::SignatureMissing},
        JobRow{"BadSignature", [](PrepareJob& job) { job.signature += "="; }, UpdateFault::SignatureMalformed},
        JobRow{"WrongSignature", [](PrepareJob& job) { job.signature = Base64(Sign("other", MakeKeyPair(7))); },
               UpdateFault::SignatureMismatch},
        JobRow{"NoKey", [](PrepareJob& job) { job.publicKeys = {}; }, UpdateFault::KeyMissing},
        JobRow{"BadKey", [](PrepareJob& job) { job.publicKeys = {"AAAA"}; }, UpdateFault::KeyMalformed},
        JobRow{"SignedByTheNewKeyOnly", [](PrepareJob& job) { job.publicKeys = {MakeKeyPair(9).publicKey}; },
               UpdateFault::SignatureMismatch}),
    [](testing::TestParamInfo<JobRow> const& info) { return info.param.name; });

TEST(Prepare, AnyChangeOfTheArchiveIsRefusedAndTheInstalledVersionStays)
{
    std::string const whole = MakeZip(MakeBundle("2.0"));
    std::vector<std::string> changed{whole + '\0', whole + "x", whole.substr(0, whole.size() - 1), whole.substr(1), ""};
    for (std::size_t offset = 0; offset < whole.size(); offset += 1 + whole.size() / 40)
    {
        changed.push_back(whole);
        changed.back()[offset] = static_cast<char>(whole[offset] ^ 1 << offset % 8);
    }
    std::string const signature = UpdateScene(whole).MakePrepareJob().signature;
    for (std::size_t i = 0; i < changed.size(); ++i)
    {
        UpdateScene scene(changed[i]);
        PrepareJob job = scene.MakePrepareJob(); // the length is the one of the changed archive
        job.signature = signature;
        HelperOutcome const outcome = scene.Prepare(job);
        EXPECT_EQ(outcome.exitStatus, 1) << i;
        EXPECT_EQ(outcome.Fault(), changed[i].empty() ? UpdateFault::ArchiveEmpty : UpdateFault::SignatureMismatch)
            << i;
        EXPECT_EQ(outcome.Find<PreparedReport>(), nullptr) << i;
        EXPECT_TRUE(scene.Place().Names(scene.StagingName()).empty()) << i;
        EXPECT_EQ(scene.Place().StartedVersion(), "1.0") << i;
    }
}

struct BundleRow
{
    char const* name;
    std::string archive;
    UpdateFault fault;
};

void PrintTo(BundleRow const& row, std::ostream* out)
{
    *out << row.name;
}

class PreparedBundles : public testing::TestWithParam<BundleRow>
{
};

TEST_P(PreparedBundles, AreCheckedAgainstTheItem)
{
    UpdateScene scene(GetParam().archive);
    HelperOutcome const outcome = scene.Prepare(scene.MakePrepareJob());
    EXPECT_EQ(outcome.exitStatus, GetParam().fault == UpdateFault::None ? 0 : 1);
    EXPECT_EQ(outcome.Fault(), GetParam().fault);
    EXPECT_EQ(outcome.Find<PreparedReport>() != nullptr, GetParam().fault == UpdateFault::None);
}

INSTANTIATE_TEST_SUITE_P(
    Table, PreparedBundles,
    testing::Values(
        BundleRow{"NothingInIt", MakeZip({}), UpdateFault::ContainerUnknown},
        BundleRow{"NoBundle", MakeZip({{"README", 'f', "x"}}), UpdateFault::BundleMissing},
        BundleRow{"BundleNotOnTop", MakeZip(MakeBundle("2.0", "folder/My App.app")), UpdateFault::BundleMissing},
        BundleRow{"BundleIsALink", MakeZip({{APP, 'l', "/tmp"}}), UpdateFault::LinkEscapes},
        BundleRow{"BundleIsALinkToItself", MakeZip({{APP, 'l', APP}}), UpdateFault::BundleNotAFolder},
        BundleRow{"BundleIsAFile", MakeZip({{APP, 'f', "x"}}), UpdateFault::BundleNotAFolder},
        BundleRow{"OldBuildUnderANewNumber", MakeZip(MakeBundle("0.9")), UpdateFault::VersionDiffers},
        BundleRow{"NewerThanTheItem", MakeZip(MakeBundle("2.0.1")), UpdateFault::VersionDiffers},
        BundleRow{"OtherProduct", ZipWith(INFORMATION, InformationText("2.0", "org.other")),
                  UpdateFault::IdentifierDiffers},
        BundleRow{"NoInformation", ZipWithout(INFORMATION), UpdateFault::InformationMissing},
        BundleRow{"BadInformation", ZipWith(INFORMATION, "{ CFBundleVersion = "), UpdateFault::InformationMalformed},
        BundleRow{"InformationIsText", ZipWith(INFORMATION, "hello"), UpdateFault::InformationMalformed},
        BundleRow{"InformationOfTwoMegabytes", ZipWith(INFORMATION, std::string(2 << 20, ' ')),
                  UpdateFault::InformationTooLarge},
        BundleRow{"InformationInXml",
                  ZipWith(INFORMATION, "<plist><dict><key>CFBundleIdentifier</key><string>org.pelnar.test</string>"
                                       "<key>CFBundleVersion</key><string>2.0</string><key>NSExecutable</key>"
                                       "<string>run</string><key>SUPublicEDKey</key><string>x</string></dict></plist>"),
                  UpdateFault::None},
        BundleRow{
            "NoKeyForTheNextUpdate",
            ZipWith(INFORMATION, "{CFBundleIdentifier = org.pelnar.test; CFBundleVersion = 2.0; NSExecutable = run;}"),
            UpdateFault::BundleKeyMissing},
        BundleRow{"ExecutableOutsideTheBundle",
                  ZipWith(INFORMATION, "{CFBundleIdentifier = org.pelnar.test; CFBundleVersion = 2.0; "
                                       "NSExecutable = ../run; SUPublicEDKey = x;}"),
                  UpdateFault::ExecutableNameInvalid},
        BundleRow{"NoExecutable", ZipWithout("run"), UpdateFault::ExecutableMissing},
        BundleRow{"ExecutableWithoutTheRight", ZipWith("run", "#!/bin/sh\n", 0644), UpdateFault::ExecutableNotRunnable},
        BundleRow{"ExecutableIsText", ZipWith("run", "hello", 0755), UpdateFault::ExecutableForeign},
        BundleRow{"ExecutableIsEmpty", ZipWith("run", "", 0755), UpdateFault::ExecutableForeign},
        BundleRow{"ExecutableOfAnotherMachine", ZipWith("run", ForeignProgram(), 0755),
                  UpdateFault::ExecutableForeign}),
    [](testing::TestParamInfo<BundleRow> const& info) { return info.param.name; });

/// A bundle "My App.app" whose information file does not name a program: the program named after the folder counts. Its
/// programs are \a programs.
std::string ZipWithoutExecutableName(std::vector<std::string> const& programs)
{
    std::vector<ForgedEntry> entries{
        {std::string(APP) + "/Resources/Info-gnustep.plist", 'f',
         "{CFBundleIdentifier = org.pelnar.test; CFBundleVersion = 2.0; SUPublicEDKey = x;}"}};
    for (std::string const& program : programs)
    {
        entries.push_back({std::string(APP) + '/' + program, 'f', "#!/bin/sh\necho 2.0\n", 0755});
    }
    return MakeZip(entries);
}

TEST(Prepare, ProgramIsLookedForUnderTheNameThatTheBundleWillHave)
{
    struct Row
    {
        char const* installedName;
        std::vector<std::string> programs;
        UpdateFault fault;
    };
    for (Row const& row :
         {Row{APP, {"My App"}, UpdateFault::None}, Row{APP, {"Renamed"}, UpdateFault::ExecutableMissing},
          Row{"Renamed.app", {"My App"}, UpdateFault::ExecutableMissing},
          Row{"Renamed.app", {"My App", "Renamed"}, UpdateFault::None}, Row{"Renamed", {"Renamed"}, UpdateFault::None},
          Row{u8"\u304c.app", {u8"\u304c"}, UpdateFault::None},
          Row{u8"\u304c.app", {u8"\u304b\u3099"}, UpdateFault::ExecutableMissing}})
    {
        UpdateScene scene(ZipWithoutExecutableName(row.programs));
        PrepareJob job = scene.MakePrepareJob();
        job.bundleName = row.installedName;
        EXPECT_EQ(scene.Prepare(job).Fault(), row.fault) << row.installedName << ' ' << row.programs.front();
    }
}

TEST(Prepare, VersionMustBeNewerThanTheInstalledOne)
{
    struct Row
    {
        char const* installed;
        UpdateFault fault;
    };
    for (Row const& row :
         {Row{"2.0", UpdateFault::VersionNotNewer}, Row{"2", UpdateFault::VersionNotNewer},
          Row{"2.0.0.1", UpdateFault::VersionNotNewer}, Row{"10", UpdateFault::VersionNotNewer},
          Row{"1.99", UpdateFault::None}, Row{"01.9", UpdateFault::None}, Row{"2.0b", UpdateFault::None}})
    {
        UpdateScene scene;
        PrepareJob job = scene.MakePrepareJob();
        job.installedVersion = row.installed;
        EXPECT_EQ(scene.Prepare(job).Fault(), row.fault) << row.installed;
    }
}

TEST(Prepare, ArchiveThatSomebodyMayStillWriteIsRefused)
{
    UpdateScene scene;
    UniqueFd const writer(::open((scene.Downloads().Path() + "/update").c_str(), O_WRONLY | O_CLOEXEC));
    HelperOutcome const outcome = scene.Prepare(scene.MakePrepareJob());
    EXPECT_EQ(outcome.Fault(), UpdateFault::ArchiveInUse);
    EXPECT_TRUE(scene.Place().Names(scene.StagingName()).empty());
}

TEST(Prepare, JobsAreStrictAndModesKnowTheirOwn)
{
    Workspace const place;
    std::string const recover = EncodeUpdateJob(RecoverJob{APP, "1.0"});
    HelperOutcome const foreign = RunHelper("prepare", recover, {});
    EXPECT_EQ(foreign.exitStatus, 1);
    EXPECT_EQ(foreign.Fault(), UpdateFault::JobMalformed);
    EXPECT_EQ(RunHelper("recover", "nonsense", {}).Fault(), UpdateFault::JobMalformed);
    EXPECT_EQ(RunHelper("recover", "", {}).Fault(), UpdateFault::JobMalformed);
    EXPECT_EQ(RunHelper("recover", recover, {}).Fault(), UpdateFault::DescriptorUnusable);
    for (std::string const& mode : {"", "--help", "-prepare", "prepare;ls", "$PATH"})
    {
        HelperOutcome const outcome = RunHelper(mode, recover, {});
        EXPECT_EQ(outcome.exitStatus, 2) << mode;
        EXPECT_TRUE(outcome.reports.empty()) << mode;
    }
}

/// The result of \a act in a process that is confined to one folder: 0 or an errno.
int TryConfined(Workspace const& inside, int (*act)(std::string const& inside))
{
    pid_t const child = ::fork();
    if (child == 0)
    {
        Pelnar::Installer::ConfineTo(inside.Descriptor(), {});
        ::_exit(act(inside.Path()) == 0 ? 0 : errno);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WEXITSTATUS(status);
}

int MakeFileAt(std::string const& path)
{
    int const file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    return file < 0 ? -1 : ::close(file);
}

TEST(Confinement, HoldsWithoutTheEntryPolicy)
{
    Workspace const inside;
    WriteFile(inside.Path() + "-outside", "x"); // this user's own file: only the confinement forbids access
    struct Row
    {
        char const* name;
        int (*act)(std::string const& inside);
        int expected;
    };
    for (Row const& row :
         {
             Row{"file inside", [](std::string const& path) { return MakeFileAt(path + "/f"); }, 0},
             Row{"folder inside", [](std::string const& path) { return ::mkdir((path + "/d").c_str(), 0755); }, 0},
             Row{"link inside", [](std::string const& path) { return ::symlink("/tmp", (path + "/l").c_str()); }, 0},
             Row{"file through that link", [](std::string const& path) { return MakeFileAt(path + "/l/pelnar-evil"); },
                 EACCES},
             Row{"file beside", [](std::string const& path) { return MakeFileAt(path + "-evil"); }, EACCES},
             Row{"file through dots", [](std::string const& path) { return MakeFileAt(path + "/../pelnar-evil"); },
                 EACCES},
             Row{"folder beside", [](std::string const& path) { return ::mkdir((path + "-evil").c_str(), 0755); },
                 EACCES},
             Row{"reading a file of the system",
                 [](std::string const&) { return ::open("/etc/passwd", O_RDONLY | O_CLOEXEC) < 0 ? -1 : 0; }, EACCES},
             Row{"changing a file outside",
                 [](std::string const& path)
                 { return ::open((path + "-outside").c_str(), O_WRONLY | O_CLOEXEC) < 0 ? -1 : 0; },
                 EACCES},
             Row{"FIFO inside", [](std::string const& path) { return ::mkfifo((path + "/p").c_str(), 0644); }, EACCES},
             Row{"hard link to the outside",
                 [](std::string const& path) { return ::link((path + "-outside").c_str(), (path + "/h").c_str()); },
                 EXDEV},
             Row{"removing inside", [](std::string const& path) { return ::unlink((path + "/f").c_str()); }, EACCES},
             Row{"running a program",
                 [](std::string const&)
                 {
                     char* const none[] = {nullptr};
                     return ::execve("/bin/true", none, none);
                 },
                 EACCES},
         })
    {
        EXPECT_EQ(TryConfined(inside, row.act), row.expected) << row.name;
    }
    EXPECT_EQ(::unlink((inside.Path() + "-outside").c_str()), 0);
}

} // namespace
