// AccidentTest.cpp: what a publisher does by accident, and "generate" must not publish: each with the file, the entry
// and the mend in its error, exit status 1, and nothing changed in the folder.

#include "Engine/core/bundle/TrustedKeys.h"
#include "Engine/core/feed/ReleasePolicy.h"
#include "tests/engine/KeyStatementText.h"
#include "tests/publisher/generate/PublisherFolder.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <elf.h>
#include <sys/stat.h>

namespace Pelnar::Testing
{
namespace
{

BundleText Version(std::string const& version)
{
    BundleText text;
    text.version = version;
    return text;
}

/// Feeds are read in an event loop.
class Accident : public ::testing::Test
{
    int m_count = 1;
    char m_name[1] = {};
    char* m_arguments[2] = {m_name, nullptr};
    QCoreApplication const m_application{m_count, m_arguments};

protected:
    /// \a said: parts of the error, in their order.
    void ExpectRefused(ToolRun const& run, std::vector<std::string> const& said)
    {
        EXPECT_EQ(run.status, 1) << run.err;
        EXPECT_EQ(run.out, "");
        std::size_t place = 0;
        for (std::string const& part : said)
        {
            place = run.err.find(part, place);
            ASSERT_NE(place, std::string::npos) << '"' << part << "\" is not in: " << run.err;
        }
        EXPECT_EQ(m_folder.Names(), m_before);
        EXPECT_EQ(m_folder.Names().size() > 1 ? FeedOrNothing() : "", m_feed);
    }

    /// Publishes what is there so far.
    void Publish()
    {
        m_folder.GeneratedFeed();
        Remember();
    }

    ToolRun Generate(QStringList const& more = {})
    {
        Remember();
        return m_folder.Generate(more);
    }

    void Remember()
    {
        m_before = m_folder.Names();
        m_feed = m_before.size() > 1 ? FeedOrNothing() : "";
    }

    std::string FeedOrNothing() const
    {
        for (std::string const& name : m_folder.Names())
        {
            if (name == "appcast.xml")
            {
                return m_folder.ContentOf(name);
            }
        }
        return {};
    }

    QString PutStatement(StatementText const& statement, std::uint8_t rootSeed = ROOT_SEED) const
    {
        WriteFile(m_besides.Path() + "/statement", StatementLineOf(statement, rootSeed).toStdString());
        return QString::fromStdString(m_besides.Path() + "/statement");
    }

    PublisherFolder const m_folder;
    Workspace const m_besides;
    std::vector<std::string> m_before;
    std::string m_feed;
};

} // namespace

TEST_F(Accident, BundleTrustsAnotherKeyThanTheOneThatSigns)
{
    BundleText text = Version("2.0");
    text.publicKey = MakeKeyPair(9).publicKey;
    m_folder.PutBundle(text);
    ExpectRefused(Generate(),
                  {"Test-2.0.zip: version 2.0 is signed by the key ", ", but its bundle trusts another key, ",
                   "; write the entry that \"keys show\" prints", "PelnarNextPublicEDKey"});
}

TEST_F(Accident, KeyOfTheBundleIsGarbage)
{
    BundleText text = Version("2.0");
    text.publicKey = "garbage";
    m_folder.PutBundle(text);
    ExpectRefused(Generate(), {"Test-2.0.zip: SUPublicEDKey \"garbage\" in the bundle's information file is no Ed25519 "
                               "key",
                               "; write the entry"});
}

TEST_F(Accident, SecondKeyOfTheBundleIsGarbage)
{
    BundleText text = Version("2.0");
    text.nextKey = "AAAA";
    m_folder.PutBundle(text);
    ExpectRefused(Generate(), {"Test-2.0.zip: PelnarNextPublicEDKey \"AAAA\""});
}

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
    // Installed, the bundle keeps the folder's name that it has, and its program is looked for under that.
    ExpectRefused(Generate(),
                  {"New.zip: the bundle has no program: \"Other.app/Test\" (seen by clients of version 1.0)"});
}

TEST_F(Accident, ProgramMayNotBeExecuted)
{
    BundleText text = Version("2.0");
    text.programMode = 0644;
    m_folder.PutBundle(text);
    ExpectRefused(Generate(), {"Test-2.0.zip: the bundle's program may not be executed: \"Test.app/Test\"; chmod 755"});
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
                  {"Test-2.0.zip: the bundle's program is not for the machine that the release is for: "
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
    ExpectRefused(Generate(), {"Test-2.0.zip: the bundle's program is not for the machine that the release is for: "
                               "\"Test.app/Test\"",
                               "build it for that machine"});
    // In the company of the same version for this machine it is meant.
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

TEST_F(Accident, NewKeyStrandsVersions)
{
    m_folder.PutVersion("5.9");
    m_folder.PutVersion("5.9.1");
    Publish();
    BundleText text = Version("5.11");
    text.publicKey = MakeKeyPair(9).publicKey;
    m_folder.PutBundle(text);
    Remember();
    ExpectRefused(m_folder.GenerateWithKey(9),
                  {"Test-5.11.zip: version 5.11 is signed by the key ", ", which strands installed versions", "5.9 (",
                   "Test-5.9.zip)", "5.9.1 (", "; publish a version before it, signed by the key that they trust"});
}

TEST_F(Accident, NewKeyThatAVersionBetweenBringsIsNone)
{
    m_folder.PutVersion("5.9");
    Publish();
    BundleText bridge = Version("5.10");
    bridge.nextKey = MakeKeyPair(9).publicKey;
    m_folder.PutBundle(bridge);
    Publish();
    BundleText text = Version("5.11");
    text.publicKey = MakeKeyPair(9).publicKey;
    m_folder.PutBundle(text);
    ToolRun const run = m_folder.GenerateWithKey(9);
    EXPECT_EQ(run.status, 0) << run.err;
    ToolRun const check = RunTool({QStringLiteral("check-release"), QString::fromStdString(m_folder.Path())});
    EXPECT_EQ(check.status, 0) << check.err;
    // The old version's clients take the one between, and its clients the new one.
    auto const explained = [this](char const* version)
    {
        return RunTool({QStringLiteral("explain"), m_folder.PathOf("appcast.xml"), QStringLiteral("--local-version"),
                        QLatin1String(version), QStringLiteral("--system-version"), QStringLiteral("unknown"),
                        QStringLiteral("--platform"), QStringLiteral("linux")})
            .out;
    };
    EXPECT_NE(explained("5.9").find("needs-another-version-first"), std::string::npos) << explained("5.9");
    EXPECT_EQ(explained("5.10").find("needs-another-version-first"), std::string::npos) << explained("5.10");
}

TEST_F(Accident, NewKeyThatSignsBesideTheOldOneIsNone)
{
    m_folder.PutVersion("5.9");
    Publish();
    m_folder.Put("second", Base64(std::string(32, '\x9')) + '\n');
    EXPECT_EQ(::chmod(m_folder.PathOf("second").toStdString().c_str(), 0600), 0);
    BundleText text = Version("5.11");
    text.publicKey = MakeKeyPair(9).publicKey;
    m_folder.PutBundle(text);
    ToolRun const run = m_folder.Generate({QStringLiteral("--second-key"), m_folder.PathOf("second")});
    EXPECT_EQ(run.status, 0) << run.err;
    std::vector<Engine::FeedItem> const items = m_folder.Items();
    ASSERT_EQ(items.size(), 2u);
    ASSERT_EQ(items[0].signatures.size(), 2u);
    EXPECT_EQ(items[0].signatures[0].signature, items[0].edSignature);
    EXPECT_EQ(items[0].signatures[0].keyId, items[0].signerKey);
    EXPECT_EQ(items[0].signatures[1].keyId.toStdString(), Engine::KeyIdOf(MakeKeyPair(9).publicKey));
    EXPECT_EQ(items[0].signatures[1].signature.toStdString(),
              Base64(Sign(m_folder.ContentOf("Test-5.11.zip"), MakeKeyPair(9))));
    ToolRun const check = RunTool({QStringLiteral("check-release"), QString::fromStdString(m_folder.Path())});
    EXPECT_EQ(check.status, 0) << check.err;
}

TEST_F(Accident, FeedSaysTheWrongKey)
{
    m_folder.PutVersion("5.9");
    std::string feed = m_folder.GeneratedFeed();
    std::string const id = Engine::KeyIdOf(MakeKeyPair(7).publicKey);
    std::string const said = "signer=\"" + id;
    ASSERT_NE(feed.find(said), std::string::npos) << feed;
    feed.replace(feed.find(said), said.size(), "signer=\"0123456789abcdef");
    m_folder.Put("appcast.xml", feed);
    ToolRun const run = RunTool({QStringLiteral("check-release"), QString::fromStdString(m_folder.Path())});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("is signed by the key " + id + ", but the feed says 0123456789abcdef"), std::string::npos)
        << run.err;
}

TEST_F(Accident, NewKeyStrandsVersionsWhoseArchivesAreGone)
{
    m_folder.PutVersion("5.9");
    Publish();
    m_folder.Remove("Test-5.9.zip");
    BundleText text = Version("5.11");
    text.publicKey = MakeKeyPair(9).publicKey;
    m_folder.PutBundle(text);
    Remember();
    // The feed has kept whom 5.9 trusts.
    ExpectRefused(m_folder.GenerateWithKey(9),
                  {"Test-5.11.zip: ", "strands installed versions", "5.9 (", "appcast.xml:"});
}

TEST_F(Accident, NewKeyThatEveryVersionTrustsIsNone)
{
    BundleText both = Version("5.10");
    both.nextKey = MakeKeyPair(9).publicKey;
    m_folder.PutBundle(both);
    Publish();
    BundleText text = Version("5.11");
    text.publicKey = MakeKeyPair(9).publicKey;
    m_folder.PutBundle(text);
    ToolRun const run = m_folder.GenerateWithKey(9);
    EXPECT_EQ(run.status, 0) << run.err;
    // What the first key signed is known by the bundle that trusts it.
    ToolRun const again = m_folder.GenerateWithKey(9);
    EXPECT_EQ(again.status, 0) << again.err;
}

TEST_F(Accident, RootKeyWithoutAStatementOrWithOneThatClientsRefuse)
{
    BundleText text = Version("1.0");
    text.rootKey = MakeKeyPair(ROOT_SEED).publicKey;
    m_folder.PutBundle(text);
    std::string const refusal = "Test-1.0.zip: its clients would refuse the feed, whose key statement they ask for: ";
    ExpectRefused(Generate(), {refusal, "--key-statement of generate or sign-feed"});
    StatementText statement;
    statement.bundles = {text.identifier};
    auto const generateWith = [&](StatementText const& given, std::uint8_t rootSeed = ROOT_SEED) {
        return Generate({QStringLiteral("--key-statement"), PutStatement(given, rootSeed)});
    };
    ExpectRefused(generateWith(statement, 9), {refusal});
    StatementText other = statement;
    other.bundles = {"org.pelnar.other"};
    ExpectRefused(generateWith(other), {refusal});
    StatementText expired = statement;
    expired.expires = "2020-01-01T00:00:00Z";
    ExpectRefused(generateWith(expired), {refusal});
    StatementText ofAnotherKey = statement;
    ofAnotherKey.validSeeds = {9};
    EXPECT_EQ(generateWith(ofAnotherKey).status, 2) << "the key that signs is not valid by it";
    ToolRun const run = generateWith(statement);
    EXPECT_EQ(run.status, 0) << run.out << run.err;
    ToolRun const check = RunTool({QStringLiteral("check-release"), QString::fromStdString(m_folder.Path())});
    EXPECT_EQ(check.status, 0) << check.out << check.err;
}

TEST_F(Accident, NewVersionForgetsTheRootKeyOrIsOlder)
{
    BundleText text = Version("1.0");
    text.rootKey = MakeKeyPair(ROOT_SEED).publicKey;
    m_folder.PutBundle(text);
    StatementText statement;
    statement.bundles = {text.identifier};
    EXPECT_EQ(m_folder.Generate({QStringLiteral("--key-statement"), PutStatement(statement)}).status, 0);
    m_folder.PutVersion("2.0");
    ToolRun run = m_folder.Generate();
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.err.find("Test-2.0.zip: names no root key, as version 1.0 does"), std::string::npos) << run.err;
    m_folder.PutVersion("0.9");
    run = m_folder.Generate();
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.err.find("Test-0.9.zip: is of version 0.9, and "), std::string::npos) << run.err;
    EXPECT_EQ(run.err.find("root key"), std::string::npos) << run.err;
}

TEST_F(Accident, RevokedKeySignsANewVersion)
{
    BundleText text = Version("1.0");
    text.rootKey = MakeKeyPair(ROOT_SEED).publicKey;
    m_folder.PutBundle(text);
    StatementText statement;
    statement.bundles = {text.identifier};
    QString const option = QStringLiteral("--key-statement");
    EXPECT_EQ(m_folder.Generate({option, PutStatement(statement)}).status, 0);
    statement.serial = "4";
    statement.validSeeds = {9};
    statement.revoked = {Engine::KeyIdOf(MakeKeyPair(7).publicKey)};
    text.version = "2.0";
    text.publicKey = MakeKeyPair(9).publicKey;
    m_folder.PutBundle(text);
    // The new key signs: older versions hear of it by the statement, and what the old key has signed stays.
    ToolRun const run = m_folder.GenerateWithKey(9, {option, PutStatement(statement)});
    EXPECT_EQ(run.status, 0) << run.out << run.err;
    Remember();
    text.version = "3.0";
    m_folder.PutBundle(text);
    ExpectRefused(Generate(), {"Test-3.0.zip: version 3.0 is signed by the key ",
                               "but by the feed's key statement its clients trust ", "sign it by a valid key"});
}

TEST_F(Accident, ArchiveIsReplacedByOneOfTheSameSize)
{
    m_folder.PutVersion("1.0");
    Publish();
    std::string changed = m_folder.ContentOf("Test-1.0.zip");
    changed[changed.size() / 2] = char(changed[changed.size() / 2] ^ 1);
    m_folder.Put("Test-1.0.zip", changed);
    ExpectRefused(Generate(), {"Test-1.0.zip: does not bear the published signature (line ", "; put the published file "
                                                                                             "back"});
}

TEST_F(Accident, ArchiveIsReplacedByOneOfAnotherSize)
{
    m_folder.PutVersion("1.0");
    Publish();
    m_folder.PutVersion("2.0");
    m_folder.Put("Test-1.0.zip", m_folder.ContentOf("Test-1.0.zip") + "x");
    ExpectRefused(Generate(),
                  {"Test-1.0.zip: is of ", " bytes, but is published with ", "; put the published file back"});
}

TEST_F(Accident, ArchiveIsReplacedByTheNextVersionUnderTheSameName)
{
    m_folder.Put("Test.zip", MakeArchive(Container::Zip, MakePublishedBundle(Version("1.0"))));
    Publish();
    m_folder.Put("Test.zip", MakeArchive(Container::Zip, MakePublishedBundle(Version("2.0"))));
    ExpectRefused(Generate(), {"Test.zip: does not bear the published signature", "a new version and name"});
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
                   "Test-2.0.tar.gz: an entry lies outside the folder that it is unpacked to: "
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
    ExpectRefused(Generate(), {"Test-2.0.zip: does not hold one bundle alone: \"README\""});
}

TEST_F(Accident, FilesThatMacOSPutsBesideTheBundleAreNamedWithTheirMend)
{
    std::vector<ForgedEntry> entries = MakePublishedBundle(Version("2.0"));
    entries.push_back({"__MACOSX", 'd', {}, 0755});
    entries.push_back({"__MACOSX/._Test.app", 'f', "x"});
    m_folder.Put("Test-2.0.zip", MakeArchive(Container::Zip, entries));
    ExpectRefused(Generate(), {"Test-2.0.zip: does not hold one bundle alone: \"__MACOSX\"", "COPYFILE_DISABLE=1"});
    m_folder.Remove("Test-2.0.zip");
    entries = MakePublishedBundle(Version("2.0"));
    entries.insert(entries.begin(), {"._Test.app", 'f', "x"});
    m_folder.Put("Test-2.0.tar.xz", MakeArchive(Container::TarXz, entries));
    ExpectRefused(Generate(), {"Test-2.0.tar.xz: does not hold one bundle alone", "COPYFILE_DISABLE=1"});
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

TEST_F(Accident, FeedKeepsWhomEachVersionTrusts)
{
    BundleText text = Version("2.0");
    text.nextKey = MakeKeyPair(9).publicKey;
    m_folder.PutBundle(text);
    m_folder.GeneratedFeed();
    std::vector<Engine::FeedItem> const items = m_folder.Items();
    ASSERT_EQ(items.size(), 1u);
    ASSERT_EQ(items[0].trustedKeys.size(), 2);
    EXPECT_EQ(items[0].trustedKeys[0], items[0].signerKey);
    EXPECT_EQ(items[0].signerKey.size(), 16);
    EXPECT_NE(items[0].trustedKeys[1], items[0].signerKey);
}

} // namespace Pelnar::Testing
