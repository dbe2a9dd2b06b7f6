// AccidentTest.cpp: accidents of a publisher that "generate" must not publish. Each error names the file, the entry and
// the mend. The exit status is 1, and nothing changes in the folder.

#include "Engine/core/feed/ReleaseRules.h"
#include "tests/publisher/gate/AccidentFixture.h"

#include <elf.h>

namespace Pelnar::Testing
{

TEST_F(Accident, NoProgram)
{
    BundleText text = Version("2.0");
    text.executable = "run";
    m_folder.PutBundle(text);
    ExpectRefused(Generate(), {"Test-2.0.zip: the bundle has no program: \"Test.app/run\"; put the program there"});
}

TEST_F(Accident, ProgramIsNamedAfterAnotherFolder)
{
    m_folder.PutVersion("1.0");
    Publish();
    m_folder.Put("New.zip", MakeArchive(Container::Zip, MakePublishedBundle(Version("2.0"), "Other.app")));
    // An installed bundle keeps its folder's name, and its program is searched by that name.
    ExpectRefused(Generate(),
                  {"New.zip: the bundle has no program: \"Other.app/Test\" (seen by clients of version 1.0)"});
}

TEST_F(Accident, ProgramMayNotBeExecuted)
{
    BundleText text = Version("2.0");
    text.programMode = 0644;
    m_folder.PutBundle(text);
    ExpectRefused(Generate(),
                  {"Test-2.0.zip: the bundle's program is not executable: \"Test.app/Test\"; use chmod 755"});
}

TEST_F(Accident, ProgramIsALinkOrAFolder)
{
    for (bool const isLink : {true, false})
    {
        std::vector<ForgedEntry> entries = MakePublishedBundle(Version("2.0"));
        for (ForgedEntry& entry : entries)
        {
            if (entry.path == "Test.app/Test")
            {
                entry = isLink ? ForgedEntry{entry.path, 'l', "data"} : ForgedEntry{entry.path, 'd', {}, 0755};
            }
        }
        m_folder.Put("Test-2.0.tar.xz", MakeArchive(Container::TarXz, entries));
        ExpectRefused(Generate(),
                      {"Test-2.0.tar.xz: ", isLink ? "\"Test.app/Test\" is a link" : "\"Test.app/Test\" is a folder"});
    }
}

TEST_F(Accident, ProgramIsForAnotherMachine)
{
    BundleText text = Version("2.0");
    text.program = ElfProgram(EM_AARCH64);
    m_folder.PutBundle(text);
    ExpectRefused(Generate({QStringLiteral("--machine"), QStringLiteral("x86_64")}),
                  {"Test-2.0.zip: the bundle's program is not built for the release's machine: "
                   "\"Test.app/Test\"; build it for that machine"});
    EXPECT_EQ(m_folder.Generate({QStringLiteral("--machine"), QStringLiteral("aarch64")}).status, 0);
}

TEST_F(Accident, ProgramOfANewVersionIsForAnotherMachineAlone)
{
    BundleText text = Version("1.0");
    bool const isIntel = Engine::OwnMachineName() == QLatin1String("x86_64");
    text.program = ElfProgram(isIntel ? EM_X86_64 : EM_AARCH64);
    m_folder.PutBundle(text);
    Publish();
    text = Version("2.0");
    text.program = ElfProgram(isIntel ? EM_AARCH64 : EM_X86_64);
    m_folder.PutBundle(text);
    ExpectRefused(Generate(), {"Test-2.0.zip: the bundle's program is not built for the release's machine: "
                               "\"Test.app/Test\"",
                               "build it for that machine"});
    // Together with the same version for this machine it is intended.
    text.program = ElfProgram(isIntel ? EM_X86_64 : EM_AARCH64);
    m_folder.Put("Test-2.0-this.zip", MakeArchive(Container::Zip, MakePublishedBundle(text)));
    EXPECT_EQ(m_folder.Generate().status, 0);
}

TEST_F(Accident, ProgramLiesInAFolderOfItsOwn)
{
    BundleText text = Version("2.0");
    text.executable = "bin/x";
    m_folder.PutBundle(text);
    ExpectRefused(Generate(), {"Test-2.0.zip/Resources/Info-gnustep.plist: the bundle's information file names a "
                               "program that does not lie directly in the bundle's folder: \"bin/x\"; write the name"});
}

TEST_F(Accident, ArchiveIsReplacedByOneOfTheSameSize)
{
    m_folder.PutVersion("1.0");
    Publish();
    std::string changed = m_folder.ContentOf("Test-1.0.zip");
    changed[changed.size() / 2] = char(changed[changed.size() / 2] ^ 1);
    m_folder.Put("Test-1.0.zip", changed);
    ExpectRefused(Generate(),
                  {"Test-1.0.zip: does not match the published signature (line ", "; put the published file "
                                                                                  "back"});
}

TEST_F(Accident, ArchiveIsReplacedByOneOfAnotherSize)
{
    m_folder.PutVersion("1.0");
    Publish();
    m_folder.PutVersion("2.0");
    m_folder.Put("Test-1.0.zip", m_folder.ContentOf("Test-1.0.zip") + "x");
    ExpectRefused(Generate(), {"Test-1.0.zip: has ", " bytes, but the feed says ", "; put the published file back"});
}

TEST_F(Accident, ArchiveIsReplacedByTheNextVersionUnderTheSameName)
{
    m_folder.Put("Test.zip", MakeArchive(Container::Zip, MakePublishedBundle(Version("1.0"))));
    Publish();
    m_folder.Put("Test.zip", MakeArchive(Container::Zip, MakePublishedBundle(Version("2.0"))));
    ExpectRefused(Generate(), {"Test.zip: does not match the published signature", "a new version and name"});
}

TEST_F(Accident, LayoutOfMacOSWithAProgramForLinux)
{
    BundleText text = Version("2.0");
    text.program = ElfProgram(EM_X86_64);
    m_folder.Put("Test-2.0.zip", MakeArchive(Container::Zip, MakeMacBundle(text)));
    ExpectRefused(Generate(),
                  {"Test-2.0.zip: the bundle is laid out for macOS (Contents/Info.plist), but its program is "
                   "for Linux: \"Test.app/Contents/MacOS/Test\"; put the information file at"});
}

TEST_F(Accident, NotesLinkToTheDiskOfThePublisher)
{
    for (char const* const link : {"file:///home/me/notes.html", "file://localhost/tmp/x.png"})
    {
        m_folder.PutVersion("2.0");
        m_folder.Put("Test-2.0.html", std::string("<p><a href=\"") + link + "\">news</a></p>");
        ExpectRefused(Generate(), {"appcast.xml:", "local-address: ", link, "; "});
    }
}

TEST_F(Accident, EveryNameThatTheRulesRefuseIsNamed)
{
    std::vector<ForgedEntry> entries = MakePublishedBundle(Version("2.0"));
    entries.push_back({"Test.app/Datei ", 'f', "x"});
    entries.push_back({"Test.app/../../escaped", 'f', "x"});
    entries.push_back({"Test.app/dir./file", 'f', "x"});
    entries.push_back({"Test.app/DATA", 'f', "x"});
    m_folder.Put("Test-2.0.tar.gz", MakeArchive(Container::TarGzip, entries));
    ExpectRefused(Generate(),
                  {"Test-2.0.tar.gz: an entry has a name that clients refuse: \"Test.app/Datei \"",
                   "Test-2.0.tar.gz: an entry would be unpacked outside the target folder: "
                   "\"Test.app/../../escaped\"",
                   "an entry has a name that clients refuse: \"Test.app/dir./file\"",
                   "two entries differ only in case or in how their letters are encoded: \"Test.app/DATA\""});
}

TEST_F(Accident, EveryLinkThatLeadsAstrayIsNamed)
{
    std::vector<ForgedEntry> entries = MakePublishedBundle(Version("2.0"));
    entries.push_back({"Test.app/a", 'l', "absent"});
    entries.push_back({"Test.app/b", 'l', "../../outside"});
    m_folder.Put("Test-2.0.tar.gz", MakeArchive(Container::TarGzip, entries));
    ExpectRefused(Generate(),
                  {"a link leads nowhere: \"Test.app/a\"", "a link leads out of the bundle: \"Test.app/b\""});
    entries.push_back({"Test.app/c", 'l', "/etc/passwd"});
    m_folder.Put("Test-2.0.tar.gz", MakeArchive(Container::TarGzip, entries));
    ExpectRefused(Generate(), {"\"Test.app/c\"", "a link leads out of the bundle: \"Test.app/b\""});
}

TEST_F(Accident, ArchiveUnderGzipWasDamagedBeforeItIsSigned)
{
    std::string const whole = MakeArchive(Container::TarGzip, MakePublishedBundle(Version("2.0")));
    for (std::size_t const fromEnd : {std::size_t{1}, std::size_t{8}, whole.size() / 2})
    {
        std::string damaged = whole;
        damaged[damaged.size() - fromEnd] = static_cast<char>(damaged[damaged.size() - fromEnd] ^ 1);
        m_folder.Put("Test-2.0.tar.gz", damaged);
        ExpectRefused(Generate(), {"Test-2.0.tar.gz: is damaged or ends early; pack it again"});
    }
    m_folder.Put("Test-2.0.tar.gz", whole.substr(0, whole.size() - 4));
    ExpectRefused(Generate(), {"Test-2.0.tar.gz: is damaged or ends early; pack it again"});
    m_folder.Put("Test-2.0.tar.gz", whole + "bytes that gunzip ignores");
    Publish();
}

TEST_F(Accident, EncryptedEntryIsNamed)
{
    std::vector<ForgedEntry> entries = MakePublishedBundle(Version("2.0"));
    entries.back().flags = 1;
    m_folder.Put("Test-2.0.zip", MakeZip(entries));
    ExpectRefused(Generate(), {"Test-2.0.zip: is encrypted: \"Test.app/data\""});
}

TEST_F(Accident, EntryBesideTheBundleIsNamed)
{
    std::vector<ForgedEntry> entries = MakePublishedBundle(Version("2.0"));
    entries.push_back({"README", 'f', "x"});
    m_folder.Put("Test-2.0.zip", MakeZip(entries));
    ExpectRefused(Generate(), {"Test-2.0.zip: does not contain exactly one bundle: \"README\""});
}

TEST_F(Accident, FilesThatMacOSPutsBesideTheBundleAreNamedWithTheirMend)
{
    std::vector<ForgedEntry> entries = MakePublishedBundle(Version("2.0"));
    entries.push_back({"__MACOSX", 'd', {}, 0755});
    entries.push_back({"__MACOSX/._Test.app", 'f', "x"});
    m_folder.Put("Test-2.0.zip", MakeArchive(Container::Zip, entries));
    ExpectRefused(Generate(),
                  {"Test-2.0.zip: does not contain exactly one bundle: \"__MACOSX\"", "COPYFILE_DISABLE=1"});
    m_folder.Remove("Test-2.0.zip");
    entries = MakePublishedBundle(Version("2.0"));
    entries.insert(entries.begin(), {"._Test.app", 'f', "x"});
    m_folder.Put("Test-2.0.tar.xz", MakeArchive(Container::TarXz, entries));
    ExpectRefused(Generate(), {"Test-2.0.tar.xz: does not contain exactly one bundle", "COPYFILE_DISABLE=1"});
}

TEST_F(Accident, WhatIsWrongWithSeveralArchivesIsToldAtOnce)
{
    BundleText first = Version("2.0");
    first.executable = "run";
    BundleText second = Version("3.0");
    second.publicKey = "garbage";
    m_folder.PutBundle(first);
    m_folder.PutBundle(second);
    ExpectRefused(Generate(), {"Test-2.0.zip: the bundle has no program", "Test-3.0.zip: SUPublicEDKey \"garbage\""});
}

TEST_F(Accident, InstallerThatNoInstalledVersionRuns)
{
    m_folder.PutVersion("1.0");
    Publish();
    BundleText text = Version("2.0");
    text.payloadKind = "installer";
    m_folder.Put("Test_2.0.sparkle_guided.zip", MakeArchive(Container::Zip, MakePublishedBundle(text)));
    ExpectRefused(Generate(), {"Test_2.0.sparkle_guided.zip: installed versions do not run installer programs (seen by "
                               "clients of version 1.0); publish a bundle"});
}

} // namespace Pelnar::Testing
