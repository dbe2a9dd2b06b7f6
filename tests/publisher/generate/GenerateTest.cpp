// GenerateTest.cpp: the verb "generate": the feed of a folder; published items stay unchanged.

#include "Engine/core/delta/DeltaContainer.h"
#include "Engine/core/feed/ReleaseRules.h"
#include "tests/publisher/generate/PublisherFolder.h"

#include <gtest/gtest.h>

#include <elf.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

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

TEST(Generate, NameThatLooksLikeAPlaceholderIsSaidAsItIs)
{
    PublisherFolder const folder;
    BundleText text;
    text.version = "1.0";
    folder.Put("Test%2%3.zip", MakeArchive(Container::Zip, MakePublishedBundle(text)));
    ToolRun const run = folder.Generate();
    EXPECT_NE(run.out.find("added Test%2%3.zip, version "), std::string::npos) << run.out << run.err;
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
    EXPECT_NE(run.out.find("ignored, because they are neither archives nor release notes of one: Test-1.1.backup.md\n"),
              std::string::npos)
        << run.out;
    QByteArray const feed = QByteArray::fromStdString(folder.ContentOf("appcast.xml"));
    auto const shown = [&](char const* language)
    {
        return Text(Engine::ParseFeed(feed, QUrl(), FeedPlatform::Linux, {}, {QLatin1String(language)})
                        .value()
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
    EXPECT_NE(run.err.find("Test-1.0.zip: the notes next to it differ from those of version 1.0 in the feed; put them "
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
    EXPECT_NE(folder.Generate().err.find(": contains no archive, only Test-1.1.7z, Test-\xEF\xBF\xBD.zip, old/; "),
              std::string::npos);
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
    EXPECT_NE(run.err.find("Test-1.0.zip: cannot be read by all users"), std::string::npos) << run.err;
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
    // Old versions keep their published addresses.
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
    folder.Remove("Test-1.0.zip"); // the item of a removed archive stays
    std::string const after = folder.GeneratedFeed();
    EXPECT_NE(after.find(item), std::string::npos) << after;
    EXPECT_LT(after.find("Test-2.0.zip"), after.find("Test-1.0.zip"));
    ASSERT_EQ(folder.Items().size(), 2u);
    EXPECT_TRUE(folder.Items()[0].deltas.empty());
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
