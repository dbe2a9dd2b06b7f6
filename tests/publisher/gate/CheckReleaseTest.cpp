// CheckReleaseTest.cpp: "check-release" for a folder and for a server: judges what is published as clients will.

#include "Publisher/keys/Signer.h"
#include "tests/engine/KeyStatementText.h"
#include "tests/publisher/generate/PublisherFolder.h"
#include "tests/support/LoopbackServer.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>

#include <map>

#include <elf.h>

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

/// A feed written by a person. It can contain all that "generate" would refuse.
class HandMadeRelease
{
public:
    void Add(BundleText const& text, char signerSeed = 7, std::vector<ForgedEntry> const& entries = {},
             std::string const& elements = {})
    {
        std::string const name = "Test-" + text.version + ".zip";
        std::string const archive = MakeArchive(Container::Zip, entries.empty() ? MakePublishedBundle(text) : entries);
        m_folder.Put(name, archive);
        AddItem(text.version, "https://updates.example.com/" + name, archive, signerSeed, elements);
    }

    void AddItem(std::string const& version, std::string const& url, std::string const& archive, char signerSeed = 7,
                 std::string const& elements = {})
    {
        m_items += "<item>" + elements + "\n<enclosure url=\"" + url + "\" sparkle:version=\"" + version +
                   "\" sparkle:os=\"linux\" length=\"" + std::to_string(archive.size()) + "\" sparkle:edSignature=\"" +
                   Base64(Sign(archive, MakeKeyPair(signerSeed))) + "\"/></item>\n";
    }

    /// After the feed's root element.
    void Append(std::string const& text) { m_end += text; }

    ToolRun Check(QStringList const& more = {}) const
    {
        m_folder.Put("appcast.xml",
                     "<rss xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\"><channel>\n" +
                         m_items + "</channel></rss>\n" + m_end);
        return RunTool(QStringList{QStringLiteral("check-release"), QString::fromStdString(m_folder.Path())} + more);
    }

    PublisherFolder const& Folder() const { return m_folder; }

private:
    PublisherFolder m_folder;
    std::string m_items;
    std::string m_end;
};

/// Feeds are read in an event loop.
class CheckRelease : public ::testing::Test
{
    int m_count = 1;
    char m_name[1] = {};
    char* m_arguments[2] = {m_name, nullptr};
    QCoreApplication const m_application{m_count, m_arguments};
};

void ExpectSaid(ToolRun const& run, std::vector<std::string> const& said)
{
    EXPECT_EQ(run.status, 1) << run.out << run.err;
    for (std::string const& part : said)
    {
        EXPECT_NE((run.out + run.err).find(part), std::string::npos) << part << " is not in: " << run.out << run.err;
    }
}

} // namespace

TEST_F(CheckRelease, WhatGenerateMadePasses)
{
    PublisherFolder const folder;
    for (char const* const version : {"1.0", "1.1", "2.0"})
    {
        folder.PutVersion(version);
    }
    BundleText text = Version("2.0");
    folder.Put("Mac.zip", MakeArchive(Container::Zip, MakeMacBundle(text)));
    folder.GeneratedFeed();
    ToolRun const run = RunTool({QStringLiteral("check-release"), QString::fromStdString(folder.Path())});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.out.find("Test-2.0.zip: version 2.0, signed by the key "), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("Mac.zip: version 2.0"), std::string::npos) << run.out;
}

TEST_F(CheckRelease, EachThingThatAClientRefusesIsNamed)
{
    HandMadeRelease release;
    release.Add(Version("1.0"));
    BundleText other = Version("1.1");
    other.identifier = "org.pelnar.other";
    release.Add(other);
    BundleText program = Version("1.2");
    program.program = ElfProgram(EM_S390);
    release.Add(program);
    BundleText keyless = Version("1.3");
    keyless.publicKey.clear();
    release.Add(keyless);
    release.Add(Version("1.4"), 9);
    ToolRun const run =
        release.Check({QStringLiteral("--public-key"), QString::fromStdString(MakeKeyPair(9).publicKey)});
    ExpectSaid(run,
               {"Test-1.1.zip: the bundle belongs to another product than the installed one: "
                "\"Test.app/Resources/Info-gnustep.plist\" (seen by clients of version 1.0)",
                "Test-1.2.zip: the bundle's program is not built for", "Test-1.3.zip: the bundle has no SUPublicEDKey",
                "Test-1.4.zip: version 1.4 is signed by the key ", "strands these installed versions", "1.0 ("});
}

TEST_F(CheckRelease, VersionInsideMustBeTheFeeds)
{
    HandMadeRelease release;
    std::string const archive = MakeArchive(Container::Zip, MakePublishedBundle(Version("2.0")));
    release.Folder().Put("Test.zip", archive);
    release.AddItem("2.1", "https://updates.example.com/Test.zip", archive);
    ExpectSaid(release.Check(), {"Test.zip: the bundle has another version than the feed says", "CFBundleVersion"});
}

TEST_F(CheckRelease, BundleWithARootKeyAsksForAStatementInTheFeed)
{
    HandMadeRelease release;
    BundleText text = Version("1.0");
    text.rootKey = MakeKeyPair(ROOT_SEED).publicKey;
    release.Add(text, 8);
    ExpectSaid(release.Check(), {"Test-1.0.zip: its clients require a key statement and would refuse the feed"});
    // The statement replaces the bundle's own key.
    StatementText statement;
    statement.bundles = {text.identifier};
    statement.validSeeds = {8};
    release.Append(StatementLineOf(statement).toStdString());
    ToolRun const run = release.Check();
    EXPECT_EQ(run.status, 0) << run.out << run.err;
    text.rootKey = "garbage";
    text.version = "1.1";
    release.Add(text, 8);
    ExpectSaid(release.Check(), {"PelnarRootPublicEDKey \"garbage\""});
}

TEST_F(CheckRelease, ArchiveThatWasReplacedIsNamed)
{
    HandMadeRelease release;
    release.Add(Version("1.0"));
    std::string changed = release.Folder().ContentOf("Test-1.0.zip");
    changed[changed.size() / 2] = char(changed[changed.size() / 2] ^ 1);
    release.Folder().Put("Test-1.0.zip", changed);
    ExpectSaid(release.Check(), {"Test-1.0.zip: "});
    release.Folder().Put("Test-1.0.zip", changed + "x");
    ExpectSaid(release.Check(), {"Test-1.0.zip: has ", " bytes, but the feed says "});
}

TEST_F(CheckRelease, AddressesOfThisDiskAreNamed)
{
    for (char const* const url : {"file:///home/me/Test-1.0.zip", "/home/me/releases/Test-1.0.zip",
                                  "C:\\releases\\Test-1.0.zip", "/Users/me/Test-1.0.zip"})
    {
        HandMadeRelease release;
        std::string const archive = MakeArchive(Container::Zip, MakePublishedBundle(Version("1.0")));
        release.Folder().Put("Test-1.0.zip", archive);
        release.AddItem("1.0", url, archive);
        ExpectSaid(release.Check(), {"local-address: "});
    }
}

TEST_F(CheckRelease, ArchiveOutsideTheFolderIsReportedAsNotJudged)
{
    HandMadeRelease release;
    release.Add(Version("1.0"));
    release.Add(Version("2.0"));
    release.Folder().Remove("Test-1.0.zip");
    ToolRun const run = release.Check();
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.out.find("version 1.0 is not checked: Test-1.0.zip is not in the folder"), std::string::npos)
        << run.out;
}

TEST_F(CheckRelease, NewestArchiveThatIsMissingIsAnError)
{
    HandMadeRelease release;
    release.Add(Version("1.0"));
    release.Add(Version("2.0"));
    release.Folder().Remove("Test-2.0.zip");
    ExpectSaid(release.Check(), {"version 2.0 cannot be checked: Test-2.0.zip is not in the folder"});
}

TEST_F(CheckRelease, ArchiveThatSomeClientsStillTakeMustBeThere)
{
    std::string const own = " xmlns:p=\"https://pelnar.example/xml-namespaces/appcast\"";
    std::string const keys =
        "<p:keys" + own + " signer=\"" + Publisher::KeyIdOf(MakeKeyPair(7).publicKey).toStdString() + "\"/>";
    for (std::string const& elements :
         std::vector<std::string>{"<sparkle:channel>beta</sparkle:channel>",
                                  "<sparkle:minimumSystemVersion>99</sparkle:minimumSystemVersion>",
                                  "<sparkle:maximumSystemVersion>99</sparkle:maximumSystemVersion>",
                                  "<sparkle:minimumUpdateVersion>1.5</sparkle:minimumUpdateVersion>",
                                  "<sparkle:hardwareRequirements>aarch64</sparkle:hardwareRequirements>",
                                  "<pubDate>Mon, 07 Jan 2999 10:00:00 +0000</pubDate>"
                                  "<sparkle:phasedRolloutInterval>86400</sparkle:phasedRolloutInterval>",
                                  "<p:withdrawn" + own + "/>", "<p:keys" + own + " signer=\"0011223344556677\"/>"})
    {
        HandMadeRelease release;
        release.Add(Version("1.0"), 7, {}, keys);
        release.Add(Version("2.0"), 7, {}, elements);
        release.Folder().Remove("Test-1.0.zip");
        ExpectSaid(release.Check(), {"version 1.0 cannot be checked: Test-1.0.zip is not in the folder"});
    }
}

TEST_F(CheckRelease, OtherDownloadsOfTheNewestVersionMustBeThere)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    folder.PutVersion("2.0");
    folder.GeneratedFeed();
    folder.Remove("Test-1.0-2.0.delta");
    ExpectSaid(RunTool({QStringLiteral("check-release"), QString::fromStdString(folder.Path())}),
               {"version 2.0 cannot be checked: Test-1.0-2.0.delta is not in the folder"});
}

TEST_F(CheckRelease, DeltaThatMakesAnotherBundleIsNamed)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    folder.PutVersion("2.0");
    std::string feed = folder.GeneratedFeed();
    std::string const delta = "Test-1.0-2.0.delta";
    std::string const good = folder.ContentOf(delta);
    std::string bad = good;
    bad[bad.size() - 10] = char(bad[bad.size() - 10] ^ 1);
    folder.Put(delta, bad);
    std::string const signature = Base64(Sign(good, folder.Keys()));
    feed.replace(feed.find(signature), signature.size(), Base64(Sign(bad, folder.Keys())));
    folder.Put("appcast.xml", feed);
    ExpectSaid(RunTool({QStringLiteral("check-release"), QString::fromStdString(folder.Path())}),
               {delta + "/", "is a damaged delta"});
}

TEST_F(CheckRelease, PublishedReleaseIsFetchedFromItsServer)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    folder.PutVersion("2.0");
    folder.GeneratedFeed();
    std::map<QByteArray, QByteArray> files;
    LoopbackServer server(
        [&files](QSslSocket& socket, QByteArray const& request, int)
        {
            auto const found = files.find(request.split(' ').value(1));
            socket.write(found == files.end() ? QByteArray("HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n")
                                              : OkAnswer(found->second));
            socket.disconnectFromHost();
        });
    files["/appcast.xml"] =
        QByteArray::fromStdString(folder.ContentOf("appcast.xml"))
            .replace("https://updates.example.com/test/", server.Url(QStringLiteral("/")).toEncoded());
    for (char const* const name : {"Test-1.0.zip", "Test-2.0.zip", "Test-1.0-2.0.delta"})
    {
        files[QByteArray("/") + name] = QByteArray::fromStdString(folder.ContentOf(name));
    }
    QString const address = server.Url(QStringLiteral("/appcast.xml")).toString();
    ToolRun const run = RunTool({QStringLiteral("check-release"), address});
    EXPECT_EQ(run.status, 0) << run.out << run.err;
    QByteArray& changed = files["/Test-2.0.zip"];
    changed[changed.size() / 2] = char(changed[changed.size() / 2] ^ 1);
    ExpectSaid(RunTool({QStringLiteral("check-release"), address}), {"/Test-2.0.zip: "});
}

TEST_F(CheckRelease, ContentThatNoClientNoticesIsNamed)
{
    HandMadeRelease release;
    BundleText text = Version("1.0");
    std::vector<ForgedEntry> entries = MakePublishedBundle(text);
    entries.push_back({"Test.app/key", 'f', Base64(std::string(32, '\7'))});
    release.Add(text, 7, entries);
    text = Version("1.1");
    text.program = "#!/bin/sh\r\n";
    release.Add(text);
    text = Version("1.2");
    text.maximumFeedBytes = "100";
    release.Add(text);
    ExpectSaid(release.Check(),
               {"Test-1.0.zip: contains a private key", "\"Test.app/key\"",
                "Test-1.1.zip: the program's first line ends", "Test-1.2.zip: its clients refuse the feed"});
}

} // namespace Pelnar::Testing
