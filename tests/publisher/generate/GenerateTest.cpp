// GenerateTest.cpp: the verb "generate": what a feed says of a folder, and that what is published stays.

#include "Engine/core/delta/DeltaContainer.h"
#include "Engine/core/feed/ReleasePolicy.h"
#include "tests/publisher/generate/PublisherFolder.h"

#include <gtest/gtest.h>

#include <elf.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <set>

#include <sys/stat.h>

namespace Pelnar::Testing
{
namespace
{

using Engine::FeedPlatform;

std::string Text(QString const& text)
{
    return text.toStdString();
}

/// A delta of the person's own between two archives of the folder.
ToolRun MakeGivenDelta(PublisherFolder const& folder, char const* from, char const* to)
{
    return RunTool({QStringLiteral("delta"), QStringLiteral("create"), folder.PathOf(from), folder.PathOf(to),
                    QStringLiteral("-o"), folder.PathOf("given.delta")});
}

TEST(Generate, ItemSaysWhatTheBundleSays)
{
    PublisherFolder const folder;
    BundleText text;
    text.version = "5.1.2";
    text.displayVersion = "5.1 <beta> & more";
    text.minimumSystem = "11.0";
    std::string const archive = MakeArchive(Container::TarXz, MakePublishedBundle(text, "My Test.app"));
    folder.Put("My Test & 5.1.2.tar.xz", archive, 2);
    std::string const feed = folder.GeneratedFeed();
    std::vector<Engine::FeedItem> const items = folder.Items();
    ASSERT_EQ(items.size(), 1u) << feed;
    Engine::FeedItem const& item = items[0];
    EXPECT_EQ(Text(item.title), "My Test 5.1 <beta> & more");
    EXPECT_EQ(Text(item.dateString), "Fri, 02 Jan 2026 12:00:00 +0000");
    EXPECT_EQ(Text(item.versionString), "5.1.2");
    EXPECT_EQ(Text(item.displayVersionString), "5.1 <beta> & more");
    EXPECT_EQ(Text(item.minimumSystemVersion), "11.0");
    EXPECT_EQ(Text(item.fileUrl.toString(QUrl::FullyEncoded)),
              "https://updates.example.com/test/My%20Test%20%26%205.1.2.tar.xz");
    EXPECT_EQ(item.contentLength, archive.size());
    EXPECT_EQ(Text(item.edSignature), Base64(Sign(archive, folder.Keys())));
    EXPECT_TRUE(folder.Items(FeedPlatform::MacOS).empty());
    EXPECT_NE(feed.find("<title>My Test</title>"), std::string::npos) << feed;
}

TEST(Generate, ItemSaysTheMachineOfItsProgramAndTwoMachinesShareAFeed)
{
    PublisherFolder const first;
    PublisherFolder const second;
    BundleText text;
    text.version = "2.0";
    text.program = ElfProgram(EM_X86_64);
    first.PutBundle(text);
    EXPECT_EQ(first.Generate({QStringLiteral("--machine"), QStringLiteral("x86_64")}).status, 0);
    text.program = ElfProgram(EM_AARCH64);
    second.Put("Test-2.0-aarch64.zip", MakeArchive(Container::Zip, MakePublishedBundle(text)));
    ToolRun const run = second.Generate({QStringLiteral("--machine"), QStringLiteral("aarch64"),
                                         QStringLiteral("--output"), first.PathOf("appcast.xml")});
    EXPECT_EQ(run.status, 0) << run.out << run.err;
    std::vector<Engine::FeedItem> const items = first.Items();
    ASSERT_EQ(items.size(), 2u) << first.ContentOf("appcast.xml");
    QStringList const machines = items[0].policy.machines + items[1].policy.machines;
    EXPECT_TRUE(machines.contains(QStringLiteral("x86_64"))) << machines.join(QLatin1Char(' ')).toStdString();
    EXPECT_TRUE(machines.contains(QStringLiteral("aarch64"))) << machines.join(QLatin1Char(' ')).toStdString();
    EXPECT_EQ(machines.size(), 2);
    std::string const feed = first.ContentOf("appcast.xml");
    EXPECT_EQ(first.Generate({QStringLiteral("--machine"), QStringLiteral("x86_64")}).status, 0);
    EXPECT_EQ(first.ContentOf("appcast.xml"), feed) << "running it again changes nothing";
}

/// A bundle of that version with a program for \a machine, in an archive of its own.
void PutFor(PublisherFolder const& folder, std::string const& version, std::uint16_t machine)
{
    BundleText text;
    text.version = version;
    text.program = ElfProgram(machine);
    folder.Put("Test-" + version + (machine == EM_X86_64 ? "-x86_64.zip" : "-aarch64.zip"),
               MakeArchive(Container::Zip, MakePublishedBundle(text)));
}

TEST(Generate, TwoMachinesShareAFolder)
{
    PublisherFolder const folder;
    for (char const* const version : {"1.0", "2.0"})
    {
        PutFor(folder, version, EM_X86_64);
        PutFor(folder, version, EM_AARCH64);
    }
    std::string const feed = folder.GeneratedFeed();
    std::vector<Engine::FeedItem> items = folder.Items();
    ASSERT_EQ(items.size(), 4u) << feed;
    std::set<std::string> found;
    for (Engine::FeedItem const& item : items)
    {
        found.insert(Text(item.versionString) + ' ' + Text(item.policy.machines.join(QLatin1Char('+'))) + ' ' +
                     Text(item.fileUrl.fileName()));
        for (Engine::FeedItem const& delta : item.deltas)
        {
            found.insert("from " + Text(delta.deltaFrom) + ' ' + Text(delta.fileUrl.fileName()));
        }
    }
    EXPECT_EQ(found,
              (std::set<std::string>{"1.0 x86_64 Test-1.0-x86_64.zip", "1.0 aarch64 Test-1.0-aarch64.zip",
                                     "2.0 x86_64 Test-2.0-x86_64.zip", "2.0 aarch64 Test-2.0-aarch64.zip",
                                     "from 1.0 Test-1.0-2.0-x86_64.delta", "from 1.0 Test-1.0-2.0-aarch64.delta"}));
    EXPECT_EQ(folder.GeneratedFeed(), feed) << "running it again changes nothing";
    ToolRun const check = RunAppcastProgram({QStringLiteral("check-release"), QString::fromStdString(folder.Path())});
    EXPECT_EQ(check.status, 0) << check.err;
    EXPECT_NE(check.out.find("Test-2.0-aarch64.zip: version 2.0"), std::string::npos) << check.out;
    EXPECT_NE(check.out.find("Test-2.0-x86_64.zip: version 2.0"), std::string::npos) << check.out;
}

TEST(Generate, SecondMachineMayComeLaterAndTwiceOneMachineIsRefused)
{
    PublisherFolder const folder;
    bool const isThis = Engine::OwnMachineName() == QLatin1String("x86_64");
    PutFor(folder, "1.0", isThis ? EM_X86_64 : EM_AARCH64);
    folder.GeneratedFeed();
    PutFor(folder, "1.0", isThis ? EM_AARCH64 : EM_X86_64);
    folder.GeneratedFeed();
    EXPECT_EQ(folder.Items().size(), 2u);
    BundleText text;
    text.version = "1.0";
    text.program = ElfProgram(EM_AARCH64) + "another";
    folder.Put("again.zip", MakeArchive(Container::Zip, MakePublishedBundle(text)));
    ToolRun const run = folder.Generate();
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("again.zip: is of version 1.0, which is published already as "), std::string::npos)
        << run.err;
}

TEST(Generate, GivenDeltaIsOfTheMachineThatItMakes)
{
    PublisherFolder const folder;
    for (char const* const version : {"1.0", "2.0"})
    {
        PutFor(folder, version, EM_X86_64);
        PutFor(folder, version, EM_AARCH64);
    }
    ASSERT_EQ(MakeGivenDelta(folder, "Test-1.0-x86_64.zip", "Test-2.0-x86_64.zip").status, 0);
    folder.GeneratedFeed({QStringLiteral("--deltas"), QStringLiteral("0")});
    for (Engine::FeedItem const& item : folder.Items())
    {
        bool const isOf =
            item.versionString == QLatin1String("2.0") && item.policy.machines.contains(QStringLiteral("x86_64"));
        EXPECT_EQ(item.deltas.size(), isOf ? 1u : 0u) << item.fileUrl.toString().toStdString();
    }
}

TEST(Generate, ScriptIsForEveryMachine)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    EXPECT_EQ(folder.GeneratedFeed().find("machine"), std::string::npos);
}

TEST(Generate, WithdrawnVersionIsNotPublishedAgain)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    folder.PutVersion("1.1");
    (void)folder.GeneratedFeed();
    ASSERT_EQ(RunTool({QStringLiteral("withdraw"), folder.PathOf("appcast.xml"), QStringLiteral("1.1")}).status, 0);
    std::string const feed = folder.ContentOf("appcast.xml");
    EXPECT_EQ(folder.Generate().status, 0);
    EXPECT_EQ(folder.ContentOf("appcast.xml"), feed);
    folder.PutVersion("1.2");
    EXPECT_EQ(folder.Generate().status, 0);
    std::vector<Engine::FeedItem> const items = folder.Items();
    ASSERT_EQ(items.size(), 3u);
    EXPECT_FALSE(items[0].policy.isWithdrawn);
    EXPECT_TRUE(items[1].policy.isWithdrawn);
}

TEST(Generate, EveryContainerOfABundleIsRead)
{
    struct Row
    {
        char const* ending;
        Container container;
    };
    Row const rows[] = {{".zip", Container::Zip},      {".tar.gz", Container::TarGzip},
                        {".tgz", Container::TarGzip},  {".tar.bz2", Container::TarBzip2},
                        {".tar.xz", Container::TarXz}, {".tar.zst", Container::TarZstandard},
                        {".ZIP", Container::Zip},      {".tzst", Container::TarZstandard}};
    PublisherFolder const folder;
    int minor = 0;
    for (Row const& row : rows)
    {
        BundleText text;
        text.version = "1." + std::to_string(++minor);
        folder.Put("Test-" + text.version + row.ending, MakeArchive(row.container, MakePublishedBundle(text)));
    }
    folder.GeneratedFeed({QStringLiteral("--deltas"), QStringLiteral("0")});
    std::vector<Engine::FeedItem> const items = folder.Items();
    ASSERT_EQ(items.size(), std::size(rows));
    for (Engine::FeedItem const& item : items)
    {
        EXPECT_EQ(Text(item.versionString), "1." + std::to_string(minor--)); // newest first
    }
}

TEST(Generate, BundlesOfBothSystemsGetItemsOfTheirOwn)
{
    PublisherFolder const folder;
    BundleText text;
    text.version = "2.0";
    folder.Put("linux.zip", MakeArchive(Container::Zip, MakePublishedBundle(text)));
    folder.Put("mac.zip", MakeArchive(Container::Zip, MakeMacBundle(text)));
    folder.GeneratedFeed();
    ASSERT_EQ(folder.Items(FeedPlatform::Linux).size(), 1u);
    ASSERT_EQ(folder.Items(FeedPlatform::MacOS).size(), 1u);
    EXPECT_EQ(Text(folder.Items(FeedPlatform::Linux)[0].fileUrl.fileName()), "linux.zip");
    EXPECT_EQ(Text(folder.Items(FeedPlatform::MacOS)[0].fileUrl.fileName()), "mac.zip");
}

/// A bundle for Linux whose program installs that version.
std::string InstallerOf(std::string const& version)
{
    BundleText text;
    text.version = version;
    text.payloadKind = "installer";
    text.publicKey.clear();
    return MakeArchive(Container::TarXz, MakePublishedBundle(text, "Setup.app"));
}

TEST(Generate, InstallersAreNamedAfterTheirVersionAndStandBesideBundles)
{
    PublisherFolder const folder;
    BundleText bundle;
    bundle.version = "6.0";
    bundle.allowsInstallers = "YES";
    folder.PutBundle(bundle);
    folder.Put("Test_6.0.sparkle_guided.pkg", "xar!guided");
    folder.Put("Test_6.0.1.sparkle_interactive.tar.xz", InstallerOf("6.0.1"));
    folder.GeneratedFeed();
    std::vector<Engine::FeedItem> const forMac = folder.Items(FeedPlatform::MacOS);
    ASSERT_EQ(forMac.size(), 1u);
    EXPECT_EQ(Text(forMac[0].versionString), "6.0");
    EXPECT_EQ(Text(forMac[0].installationType), "package");
    EXPECT_EQ(Text(forMac[0].edSignature), Base64(Sign("xar!guided", folder.Keys())));
    std::vector<Engine::FeedItem> const forLinux = folder.Items(FeedPlatform::Linux);
    ASSERT_EQ(forLinux.size(), 2u);
    EXPECT_EQ(Text(forLinux[0].versionString), "6.0.1");
    EXPECT_EQ(Text(forLinux[0].title), "Test 6.0.1");
    EXPECT_EQ(Text(forLinux[0].installationType), "interactive-package");
    EXPECT_EQ(Text(forLinux[1].installationType), "");
}

TEST(Generate, NotesBesideAnArchiveBecomeItsDescription)
{
    struct Row
    {
        char const* ending;
        char const* notes;
        char const* description;
    };
    Row const rows[] = {
        {".html", "<h1>New</h1><p>a ]]&gt; b &amp; ]]> c</p>", "<h1>New</h1><p>a ]]&gt; b &amp; ]]> c</p>"},
        {".md", "**bold**", "<p><b>bold</b></p>"},
        {".txt", "1 < 2", "1 &lt; 2"},
        {".html", "\xEF\xBB\xBF<p>mark</p>", "<p>mark</p>"},
    };
    for (Row const& row : rows)
    {
        PublisherFolder const folder;
        folder.PutVersion("1.0");
        folder.Put(std::string("Test-1.0") + row.ending, row.notes);
        folder.GeneratedFeed();
        ASSERT_EQ(folder.Items().size(), 1u);
        EXPECT_NE(Text(folder.Items()[0].description).find(row.description), std::string::npos)
            << Text(folder.Items()[0].description);
    }
}

TEST(Generate, NotesInALanguageBecomeADescriptionInIt)
{
    PublisherFolder const folder;
    folder.PutVersion("1.1");
    folder.Put("Test-1.1.md", "for all");
    folder.Put("Test-1.1.de.md", "auf Deutsch");
    folder.Put("Test-1.1.pt_BR.txt", "em portugues");
    folder.Put("Test-1.1.backup.md", "no language");
    ToolRun const run = folder.Generate();
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.out.find("ignored, as neither archives nor notes of one: Test-1.1.backup.md\n"), std::string::npos)
        << run.out;
    QByteArray const feed = QByteArray::fromStdString(folder.ContentOf("appcast.xml"));
    auto const shown = [&](char const* language)
    {
        return Text(Engine::ParseFeed(feed, QUrl(), FeedPlatform::Linux, {}, {QLatin1String(language)})
                        .items.at(0)
                        .description);
    };
    EXPECT_NE(shown("de-AT").find("auf Deutsch"), std::string::npos);
    EXPECT_NE(shown("pt-BR").find("em portugues"), std::string::npos);
    EXPECT_NE(shown("fr").find("for all"), std::string::npos);
}

TEST(Generate, NotesThatChangedSinceAreToldAndNotTaken)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    folder.Put("Test-1.0.txt", "x <&> ]]>\r\n\ty\r\n");
    folder.Put("Test-1.0.de.txt", "deutsch");
    std::string const feed = folder.GeneratedFeed();
    EXPECT_EQ(folder.Generate().err, "");
    folder.Put("Test-1.0.txt", "other");
    ToolRun const run = folder.Generate();
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.err.find("Test-1.0.zip: the notes beside it are not those that version 1.0 has in the feed; put them "
                           "into the feed with \"edit-notes\""),
              std::string::npos)
        << run.err;
    EXPECT_EQ(folder.ContentOf("appcast.xml"), feed);
}

TEST(Generate, EverythingThatIsIgnoredIsListed)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    folder.Put("Test-1.1.7z", "x");
    folder.Put("Test-\xff.zip", "x");
    ASSERT_TRUE(QDir(QString::fromStdString(folder.Path())).mkdir(QStringLiteral("old")));
    ToolRun const run = folder.Generate();
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.out.find("Test-1.1.7z"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("Test-\xEF\xBF\xBD.zip"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("old/"), std::string::npos) << run.out;
    folder.Remove("Test-1.0.zip");
    folder.Remove("appcast.xml");
    EXPECT_NE(folder.Generate().err.find(": holds no archive, only Test-1.1.7z"), std::string::npos);
}

TEST(Generate, FilesThatAWebServerMayNotReadAreTold)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    folder.PutVersion("2.0");
    EXPECT_EQ(folder.Generate().err, "");
    ASSERT_EQ(::chmod(folder.PathOf("Test-1.0.zip").toStdString().c_str(), 0640), 0);
    ToolRun const run = folder.Generate();
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.err.find("Test-1.0.zip: may not be read by every user"), std::string::npos) << run.err;
    EXPECT_EQ(run.err.find("Test-2.0.zip"), std::string::npos) << run.err;
}

TEST(Generate, DateIsNeverAFilesTime)
{
    PublisherFolder const folder;
    qunsetenv("SOURCE_DATE_EPOCH");
    folder.PutVersion("1.0", 3);
    qint64 const before = QDateTime::currentSecsSinceEpoch();
    std::string const feed = folder.GeneratedFeed();
    QString date = folder.Items()[0].dateString;
    qint64 const said = QDateTime::fromString(date, Qt::RFC2822Date).toSecsSinceEpoch();
    EXPECT_GE(said, before);
    EXPECT_LE(said, QDateTime::currentSecsSinceEpoch());
    for (char const* const bad : {"yesterday", "-1", "253402300800"})
    {
        qputenv("SOURCE_DATE_EPOCH", bad);
        EXPECT_EQ(folder.Generate().status, 2) << bad;
    }
}

TEST(Generate, TemplateGivesEachReleaseAPlaceOfItsOwn)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    std::string const first = folder.GeneratedFeed();
    folder.PutVersion("2.0");
    QStringList const arguments{
        QStringLiteral("generate"),       QString::fromStdString(folder.Path()),
        QStringLiteral("--key"),          folder.KeyFile(),
        QStringLiteral("--url-template"), QStringLiteral("https://cdn.example.com/v{version}/{file}")};
    // Old versions stay where they were published.
    ToolRun const run = RunTool(arguments);
    EXPECT_EQ(run.status, 0) << run.err;
    std::vector<Engine::FeedItem> const items = folder.Items();
    ASSERT_EQ(items.size(), 2u);
    EXPECT_EQ(Text(items[0].fileUrl.toString()), "https://cdn.example.com/v2.0/Test-2.0.zip");
    EXPECT_EQ(Text(items[0].deltas.at(0).fileUrl.toString()), "https://cdn.example.com/v2.0/Test-1.0-2.0.delta");
    EXPECT_EQ(Text(items[1].fileUrl.toString()), "https://updates.example.com/test/Test-1.0.zip");
    std::string const feed = folder.ContentOf("appcast.xml");
    EXPECT_EQ(RunTool(arguments).status, 0);
    EXPECT_EQ(folder.ContentOf("appcast.xml"), feed);
}

TEST(Generate, TemplateThatNamesNoFileIsRefused)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    for (char const* const pattern :
         {"https://cdn.example.com/", "https://cdn.example.com/{version}", "https://cdn.example.com/{file}/x",
          "https://cdn.example.com/{name}/{file}", "http://cdn.example.com/{file}", "{file}"})
    {
        ToolRun const run =
            RunTool({QStringLiteral("generate"), QString::fromStdString(folder.Path()), QStringLiteral("--key"),
                     folder.KeyFile(), QStringLiteral("--url-template"), QLatin1String(pattern)});
        EXPECT_EQ(run.status, 2) << pattern;
        EXPECT_NE(run.err.find("--url-template"), std::string::npos) << run.err;
    }
}

TEST(Generate, DeltasLeadFromTheVersionsThatMostClientsRun)
{
    PublisherFolder const folder;
    for (char const* const version : {"1.0", "1.9", "1.10", "2.0"})
    {
        folder.PutVersion(version);
    }
    QTemporaryDir const place;
    QString const clients = place.filePath(QStringLiteral("clients"));
    QFile file(clients);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("# of last week\n1.10 3\n\n0.9  70\n1.0\t25.5\n2.0 90\n1.9 20\n");
    file.close();
    folder.GeneratedFeed({QStringLiteral("--deltas"), QStringLiteral("2"), QStringLiteral("--clients"), clients});
    std::vector<Engine::FeedItem> const items = folder.Items();
    ASSERT_EQ(items.size(), 4u);
    ASSERT_EQ(items[0].deltas.size(), 2u) << "0.9 is not in the folder, and 2.0 is the newest";
    EXPECT_EQ(Text(items[0].deltas[0].deltaFrom), "1.9");
    EXPECT_EQ(Text(items[0].deltas[1].deltaFrom), "1.0");
}

TEST(Generate, AListOfClientsThatSaysNothingIsRefused)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    QTemporaryDir const place;
    for (char const* const text :
         {"1.0\n", "1.0 many\n", "1.0 0\n", "1.0 -1\n", "one 5\n", "1.0 5 7\n", "1.0 inf\n", "1.0 5\n1.0.0 6\n"})
    {
        SCOPED_TRACE(text);
        QString const clients = place.filePath(QStringLiteral("clients"));
        QFile file(clients);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        ToolRun const run = folder.Generate({QStringLiteral("--clients"), clients});
        EXPECT_NE(run.status, 0);
        EXPECT_NE(run.err.find("clients:"), std::string::npos) << run.err;
        EXPECT_NE(run.err.find("a version and its share"), std::string::npos) << run.err;
    }
}

TEST(Generate, DeltasLeadFromTheVersionsBeforeToTheNewest)
{
    PublisherFolder const folder;
    for (char const* const version : {"1.0", "1.9", "1.10", "2.0"})
    {
        folder.PutVersion(version);
    }
    folder.GeneratedFeed({QStringLiteral("--deltas"), QStringLiteral("2")});
    std::vector<Engine::FeedItem> const items = folder.Items();
    ASSERT_EQ(items.size(), 4u);
    ASSERT_EQ(items[0].deltas.size(), 2u);
    EXPECT_EQ(Text(items[0].deltas[0].deltaFrom), "1.10");
    EXPECT_EQ(Text(items[0].deltas[1].deltaFrom), "1.9");
    EXPECT_TRUE(items[1].deltas.empty());
    for (Engine::FeedItem const& delta : items[0].deltas)
    {
        std::string const bytes = folder.ContentOf(Text(delta.fileUrl.fileName()));
        EXPECT_EQ(Text(delta.versionString), "2.0");
        EXPECT_EQ(delta.contentLength, bytes.size());
        EXPECT_LT(delta.contentLength, items[0].contentLength);
        EXPECT_EQ(Text(delta.edSignature), Base64(Sign(bytes, folder.Keys())));
    }
}

TEST(Generate, RunningAgainChangesNothing)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    folder.PutVersion("2.0");
    folder.Put("Test-2.0.md", "notes");
    std::string const first = folder.GeneratedFeed();
    std::vector<std::string> const names = folder.Names();
    ToolRun const again = folder.Generate();
    EXPECT_EQ(again.status, 0) << again.err;
    EXPECT_EQ(again.err, "");
    EXPECT_NE(again.out.find("0 items added, 2 kept"), std::string::npos) << again.out;
    EXPECT_EQ(folder.ContentOf("appcast.xml"), first);
    EXPECT_EQ(folder.Names(), names);
}

TEST(Generate, RunWithNothingNewLeavesTheFeedsFileAlone)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    folder.GeneratedFeed();
    QByteArray const feed = QFile::encodeName(folder.PathOf("appcast.xml"));
    struct stat before;
    ASSERT_EQ(::stat(feed.constData(), &before), 0);
    EXPECT_EQ(folder.Generate().status, 0);
    struct stat after;
    ASSERT_EQ(::stat(feed.constData(), &after), 0);
    EXPECT_EQ(after.st_ino, before.st_ino) << "a new file would be sent to every mirror";
    EXPECT_EQ(after.st_mtim.tv_sec, before.st_mtim.tv_sec);
    EXPECT_EQ(after.st_mtim.tv_nsec, before.st_mtim.tv_nsec);
}

TEST(Generate, TheSameFolderMakesTheSameFeed)
{
    std::string feeds[2];
    for (std::string& feed : feeds)
    {
        PublisherFolder const folder;
        folder.PutVersion("1.0", 3);
        folder.PutVersion("2.0", 5);
        feed = folder.GeneratedFeed();
    }
    EXPECT_EQ(feeds[0], feeds[1]);
}

TEST(Generate, PublishedItemsStayToTheByteWhenNewOnesCome)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    std::string const before = folder.GeneratedFeed();
    std::string const item = before.substr(before.find("<item>"), before.find("</item>") - before.find("<item>"));
    folder.PutVersion("2.0");
    folder.Remove("Test-1.0.zip"); // an archive that has gone keeps its item
    std::string const after = folder.GeneratedFeed();
    EXPECT_NE(after.find(item), std::string::npos) << after;
    EXPECT_LT(after.find("Test-2.0.zip"), after.find("Test-1.0.zip"));
    ASSERT_EQ(folder.Items().size(), 2u);
    EXPECT_TRUE(folder.Items()[0].deltas.empty());
}

TEST(Generate, ArchivesOfPublishedVersionsServeAsBases)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    folder.GeneratedFeed();
    folder.PutVersion("2.0");
    folder.GeneratedFeed();
    ASSERT_EQ(folder.Items()[0].deltas.size(), 1u);
    EXPECT_EQ(Text(folder.Items()[0].deltas[0].deltaFrom), "1.0");
}

TEST(Generate, AnOlderVersionThatComesLateGetsNoDeltas)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    folder.PutVersion("3.0");
    folder.GeneratedFeed();
    folder.PutVersion("2.0");
    folder.GeneratedFeed();
    std::vector<Engine::FeedItem> const items = folder.Items();
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(Text(items[1].versionString), "2.0");
    EXPECT_TRUE(items[1].deltas.empty());
}

TEST(Generate, GivenDeltaIsProvedAndTaken)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    folder.PutVersion("2.0");
    ASSERT_EQ(MakeGivenDelta(folder, "Test-1.0.zip", "Test-2.0.zip").status, 0);
    folder.GeneratedFeed();
    ASSERT_EQ(folder.Items()[0].deltas.size(), 1u);
    EXPECT_EQ(Text(folder.Items()[0].deltas[0].fileUrl.fileName()), "given.delta");
}

TEST(Generate, GivenDeltaIsOneOfTheNumberThatIsAskedFor)
{
    PublisherFolder const folder;
    for (char const* const version : {"1.0", "1.1", "2.0"})
    {
        folder.PutVersion(version);
    }
    ASSERT_EQ(MakeGivenDelta(folder, "Test-1.1.zip", "Test-2.0.zip").status, 0);
    folder.GeneratedFeed({QStringLiteral("--deltas"), QStringLiteral("1")});
    ASSERT_EQ(folder.Items()[0].deltas.size(), 1u) << "the given one; none from 1.0";
    EXPECT_EQ(Text(folder.Items()[0].deltas[0].fileUrl.fileName()), "given.delta");
    std::vector<std::string> const names = folder.Names();
    EXPECT_EQ(std::count_if(names.begin(), names.end(),
                            [](std::string const& name) { return name.find(".delta") != std::string::npos; }),
              1);
}

std::string Noise(std::size_t size, unsigned seed)
{
    std::string bytes(size, '\0');
    for (char& byte : bytes)
    {
        seed = seed * 1103515245u + 12345u;
        byte = static_cast<char>(seed >> 16);
    }
    return bytes;
}

/// \a archive with a comment in its gzip header that makes it \a size bytes long; it must be shorter yet.
std::string PaddedTo(std::size_t size, std::string const& archive)
{
    constexpr std::size_t HEADER_BYTES = 10;
    constexpr char HAS_COMMENT = 0x10;
    EXPECT_LT(archive.size(), size);
    std::string header = archive.substr(0, HEADER_BYTES);
    header[3] |= HAS_COMMENT;
    return header + std::string(size - archive.size() - 1, ' ') + '\0' + archive.substr(HEADER_BYTES);
}

/// Puts two versions there that share nothing, and a delta between them. The archive of the second is \a larger bytes
/// longer than one of which the delta saves a tenth.
void PutVersionsThatShareNothing(PublisherFolder const& folder, int larger)
{
    std::string archive;
    for (unsigned version : {1u, 2u})
    {
        BundleText text;
        text.version = std::to_string(version) + ".0";
        std::vector<ForgedEntry> bundle = MakePublishedBundle(text);
        bundle.back().content = Noise(20000, version);
        archive = MakeArchive(Container::TarGzip, bundle);
        folder.Put("Test-" + text.version + ".tar.gz", archive);
    }
    EXPECT_EQ(MakeGivenDelta(folder, "Test-1.0.tar.gz", "Test-2.0.tar.gz").status, 0);
    int const leastBytes = (int(folder.ContentOf("given.delta").size()) * 10 + 8) / 9;
    folder.Put("Test-2.0.tar.gz", PaddedTo(std::size_t(leastBytes + larger), archive));
}

struct SizeRow
{
    char const* name;
    int archiveIsLargerBy;
    std::size_t deltas;
};

std::ostream& operator<<(std::ostream& out, SizeRow const& row)
{
    return out << row.name;
}

class DeltaSize : public ::testing::TestWithParam<SizeRow>
{
};

TEST_P(DeltaSize, GivenDeltaIsPublishedOnlyWhenItSavesATenth)
{
    PublisherFolder const folder;
    PutVersionsThatShareNothing(folder, GetParam().archiveIsLargerBy);
    ToolRun const run = folder.Generate({QStringLiteral("--deltas"), QStringLiteral("0")});
    EXPECT_EQ(folder.Items()[0].deltas.size(), GetParam().deltas) << run.err;
    EXPECT_EQ(run.err.find("given.delta: left out: saves less than a tenth of the whole archive") != std::string::npos,
              GetParam().deltas == 0)
        << run.err;
}

TEST_P(DeltaSize, MadeDeltaIsPublishedOnlyWhenItSavesATenth)
{
    PublisherFolder const folder;
    PutVersionsThatShareNothing(folder, GetParam().archiveIsLargerBy);
    folder.Remove("given.delta");
    ToolRun const run = folder.Generate({});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(folder.Items()[0].deltas.size(), GetParam().deltas);
    EXPECT_EQ(run.err.find("not published: saves less than a tenth of the whole archive") != std::string::npos,
              GetParam().deltas == 0)
        << run.err;
    EXPECT_EQ(QFile::exists(folder.PathOf("Test-1.0-2.0.delta")), GetParam().deltas == 1);
}

INSTANTIATE_TEST_SUITE_P(Rows, DeltaSize,
                         ::testing::Values(SizeRow{"SavesLess", -1, 0}, SizeRow{"SavesATenth", 0, 1},
                                           SizeRow{"SavesMore", 500, 1}),
                         [](auto const& row) { return std::string(row.param.name); });

TEST(Generate, DeltaThatMakesAnotherBundleIsRefused)
{
    PublisherFolder const folder;
    BundleText other;
    other.version = "2.0";
    other.displayVersion = "another build";
    folder.PutVersion("1.0");
    folder.Put("other.zip", MakeArchive(Container::Zip, MakePublishedBundle(other)));
    ASSERT_EQ(MakeGivenDelta(folder, "Test-1.0.zip", "other.zip").status, 0);
    folder.Remove("other.zip");
    folder.PutVersion("2.0");
    ToolRun const run = folder.Generate();
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("given.delta: makes another bundle than the archive of that version holds"),
              std::string::npos)
        << run.err;
    EXPECT_FALSE(QFile::exists(folder.PathOf("appcast.xml")));
}

TEST(Generate, DeltaWithoutItsBaseOrItemIsLeftOutWithAWord)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    folder.PutVersion("2.0");
    ASSERT_EQ(MakeGivenDelta(folder, "Test-1.0.zip", "Test-2.0.zip").status, 0);
    folder.Remove("Test-1.0.zip");
    ToolRun const withoutBase = folder.Generate();
    EXPECT_EQ(withoutBase.status, 0) << withoutBase.err;
    EXPECT_NE(withoutBase.err.find("given.delta: left out: starts from version 1.0"), std::string::npos)
        << withoutBase.err;
    EXPECT_TRUE(folder.Items()[0].deltas.empty());
    EXPECT_NE(folder.Generate().err.find("given.delta: left out: makes version 2.0"), std::string::npos);
}

TEST(Generate, OptionsNameFeedTitleAndLink)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    ToolRun const run = folder.Generate({QStringLiteral("--output"), folder.PathOf("other.xml"),
                                         QStringLiteral("--title"), QStringLiteral("A & B"), QStringLiteral("--link"),
                                         QStringLiteral("https://example.com/?a&b")});
    ASSERT_EQ(run.status, 0) << run.err;
    std::string const feed = folder.ContentOf("other.xml");
    EXPECT_NE(feed.find("<title>A &amp; B</title>"), std::string::npos) << feed;
    EXPECT_NE(feed.find("<link>https://example.com/?a&amp;b</link>"), std::string::npos) << feed;
    EXPECT_FALSE(QFile::exists(folder.PathOf("appcast.xml")));
}

TEST(Generate, FeedOfEverythingPassesTheStrictLint)
{
    PublisherFolder const folder;
    for (char const* const version : {"1.0", "1.1", "2.0"})
    {
        BundleText text;
        text.version = version;
        text.minimumSystem = "11.0";
        text.allowsInstallers = "YES";
        folder.PutBundle(text);
        folder.Put(std::string("Mac-") + version + ".tar.gz", MakeArchive(Container::TarGzip, MakeMacBundle(text)));
        folder.Put(std::string("Test-") + version + ".md", "# New\n\n* one\n* two <b>&</b>");
    }
    folder.Put("Test_2.0.sparkle_guided.pkg", "xar!guided");
    folder.Put("Test_2.0.sparkle_interactive.tar.xz", InstallerOf("2.0"));
    ToolRun const run = folder.Generate();
    EXPECT_EQ(run.status, 0) << run.out;
    ToolRun const lint =
        RunTool({QStringLiteral("lint"), QStringLiteral("-"), QStringLiteral("--strict"),
                 QStringLiteral("--published-at"), QStringLiteral("https://updates.example.com/test/appcast.xml")},
                QByteArray::fromStdString(folder.ContentOf("appcast.xml")));
    EXPECT_EQ(lint.status, 0) << lint.out;
}

TEST(Generate, WhatLintFindsInThePublishedFeedIsShownAndKept)
{
    PublisherFolder const folder;
    std::string const published = "<item><enclosure url=\"http://updates.example.com/old.zip\" length=\"0\"/></item>";
    folder.Put("appcast.xml", "<rss><channel>\n" + published + "\n</channel></rss>");
    folder.PutVersion("2.0");
    ToolRun const run = folder.Generate();
    EXPECT_EQ(run.status, 1) << run.err;
    EXPECT_NE(run.out.find("added Test-2.0.zip"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("length-zero: "), std::string::npos) << run.out;
    EXPECT_NE(folder.ContentOf("appcast.xml").find(published), std::string::npos);
    EXPECT_EQ(folder.Items().size(), 2u);
}

} // namespace
} // namespace Pelnar::Testing
