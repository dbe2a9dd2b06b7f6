// HostilePublicationTest.cpp: whole updates by real processes from a hostile server. It sends an old feed again, or its
// feed and archive try to make the client fetch or run more than the update.
#include "tests/end_to_end/UpdateScenario.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <set>

namespace Pelnar::Testing
{
namespace
{

TEST_F(UpdateScenario, ASignedFeedThatIsPlayedBackIsRefusedAndTheNextOneIsTaken)
{
    PublishedSite const site;
    UpdateServer server(site);
    demo.AddInformation("PelnarRequiresSignedFeed = YES;");
    Engine::ContentHash const installed = demo.Tree();
    site.Run("sign-feed", WHOLE_FEED, {QStringLiteral("--serial"), QStringLiteral("2")});
    QByteArray const replayed = site.Read(WHOLE_FEED);
    site.Run("sign-feed", WHOLE_FEED);
    QByteArray const newest = site.Read(WHOLE_FEED);
    EXPECT_TRUE(Run(server, WHOLE_FEED, Script("user", "answer", {REMIND})).Says(FOUND));

    // Each run is a process of its own.
    site.Write(WHOLE_FEED, replayed);
    site.Write("beta.xml", replayed);
    for (char const* const feed : {WHOLE_FEED, "beta.xml", "appcast.xml#x"})
    {
        DemoOutput const output = Run(server, feed, Script("user", "check"));
        EXPECT_FALSE(output.Says(FOUND)) << output.Text();
        EXPECT_EQ(output.Count("The update feed is older than an earlier one"), 1) << feed << output.Text();
        EXPECT_TRUE(demo.Tree() == installed) << feed;
        EXPECT_EQ(demo.Neighbours(), Names{"PelnarDemo.app"}) << feed;
        EXPECT_FALSE(demo.HasDownloaded()) << feed;
    }
    ExpectStarts("5.9");

    site.Write(WHOLE_FEED, newest);
    EXPECT_TRUE(Run(server, WHOLE_FEED, Script("user", "answer", {REMIND})).Says(FOUND)) << "no lock was left";
}

/// A copy of the published site. Its new version contains many programs that other installers would run.
class SiteWithHooks
{
public:
    explicit SiteWithHooks(PublishedSite const& site)
    {
        QString const app = m_folder.filePath(QStringLiteral("PelnarDemo.app"));
        Execute("cp", {QStringLiteral("-a"), site.Published("new/PelnarDemo.app"), m_folder.path()});
        for (char const* const name : {"preinstall", "postinstall", "preflight", "postflight", "install.sh", "setup",
                                       "autorun.sh", ".hooks/post", "Resources/postinstall", "Scripts/postinstall",
                                       "DEBIAN/postinst", "Resources/launch.desktop"})
        {
            QString const path = app + QLatin1Char('/') + QString::fromLatin1(name);
            EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
            QFile file(path);
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
            file.write("#!/bin/sh\ntouch '" + Marker().toUtf8() + "'\n");
            EXPECT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        }
        QString const archive = site.Path() + QLatin1Char('/') + QString::fromLatin1(WHOLE_ARCHIVE);
        Execute("tar", {QStringLiteral("-C"), m_folder.path(), QStringLiteral("-czf"), archive,
                        QStringLiteral("PelnarDemo.app")});
        QByteArray const attributes = site.Sign(WHOLE_ARCHIVE);
        site.Write(WHOLE_FEED, Feed(attributes));
    }

    [[nodiscard]] bool HasRunAny() const { return QFile::exists(Marker()); }

private:
    static void Execute(char const* program, QStringList const& arguments)
    {
        EXPECT_EQ(QProcess::execute(QString::fromLatin1(program), arguments), 0) << program;
    }

    QString Marker() const { return m_folder.filePath(QStringLiteral("was-run")); }

    static QByteArray Feed(QByteArray const& attributes)
    {
        return "<?xml version='1.0'?><?xml-stylesheet href='style.xsl'?>\n"
               "<rss version='2.0' xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle'><channel>"
               "<title>Pelnar Demo</title><link>home.html</link><image><url>image.png</url></image><item>"
               "<title>Pelnar Demo 5.10</title><link>item.html</link>"
               "<description><![CDATA[<img src='notes.png'><link rel='stylesheet' href='notes.css'>"
               "<script src='notes.js'></script><iframe src='frame.html'></iframe>New]]></description>"
               "<enclosure url='" +
               QByteArray(WHOLE_ARCHIVE) + "' sparkle:version='5.10' " + attributes +
               " type='application/octet-stream' requires='library.zip' script='install.sh'/>"
               "<enclosure url='second.zip' sparkle:version='5.10' " +
               attributes +
               " type='application/octet-stream'/><sparkle:dependency url='library.zip'/>"
               "<media:content xmlns:media='urn:media' url='movie.mp4'/></item><item><title>old</title>"
               "<enclosure url='old.zip' sparkle:version='5.8' " +
               attributes + " type='application/octet-stream'/></item></channel></rss>\n";
    }

    QTemporaryDir m_folder;
};

TEST_F(UpdateScenario, NothingIsFetchedButTheFeedAndOneArchiveAndNothingIsRunButTheApplication)
{
    PublishedSite const site;
    SiteWithHooks const hostile(site);
    UpdateServer server(site);
    DemoOutput const output = Run(server, WHOLE_FEED, Script("user", "update", {INSTALL, RELAUNCH}));
    EXPECT_EQ(output.RunningVersions(), (Names{"5.9", "5.10"})) << output.Text();
    EXPECT_FALSE(hostile.HasRunAny());
    ExpectStarts("5.10");
    EXPECT_FALSE(hostile.HasRunAny());
    Names const answers = server.EndAndListAnswers();
    EXPECT_EQ(std::set<std::string>(answers.begin(), answers.end()),
              (std::set<std::string>{std::string(WHOLE_FEED) + " 200", std::string(WHOLE_FEED) + " 304",
                                     std::string(WHOLE_ARCHIVE) + " 200"}));
    EXPECT_EQ(std::count(answers.begin(), answers.end(), std::string(WHOLE_FEED) + " 200"), 1)
        << "the second fetch of the check asks whether it has changed";
    EXPECT_EQ(std::count(answers.begin(), answers.end(), std::string(WHOLE_ARCHIVE) + " 200"), 1);
}

} // namespace
} // namespace Pelnar::Testing
