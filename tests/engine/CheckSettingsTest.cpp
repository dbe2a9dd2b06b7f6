// CheckSettingsTest.cpp: the effect of the user defaults on a check, valid or not.

#include "tests/engine/CheckFixture.h"
#include "tests/engine/StoredDefaults.h"
#include "tests/support/ProcessFootprint.h"

#include <QDir>
#include <QFile>

namespace
{

using namespace Pelnar::Testing;

struct Skipping
{
    char const* name;
    void (UpdaterDriver::*start)();
    char const* skipped;
    Events expected;
};

void PrintTo(Skipping const& row, std::ostream* out)
{
    *out << row.name;
}

class SkippedVersion : public CheckContract, public ::testing::WithParamInterface<Skipping>
{
};

INSTANTIATE_TEST_SUITE_P(
    Kinds, SkippedVersion,
    ::testing::Values(
        Skipping{"ProbeSame", &UpdaterDriver::Probe, "5.1", {"asked", "not found"}},
        Skipping{"BackgroundSame", &UpdaterDriver::CheckInBackground, "5.1", {"asked", "not found", "aborted 1001"}},
        Skipping{"InteractiveSame", &UpdaterDriver::CheckInteractively, "5.1", {"asked", "found 5.1", "aborted 3001"}},
        Skipping{"ProbeNewer", &UpdaterDriver::Probe, "5.2", {"asked", "not found"}},
        Skipping{"ProbeOlder", &UpdaterDriver::Probe, "5.0", {"asked", "found 5.1"}}),
    [](auto const& row) { return row.param.name; });

TEST_P(SkippedVersion, IsNotOfferedUnlessTheUserAsks)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    SetTextDefault("SUSkippedVersion", GetParam().skipped);
    UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
    driver.SetFeed(server.Url());
    (driver.*GetParam().start)();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), GetParam().expected);
}
TEST_F(CheckContract, NoByteOfTheServerReachesTheSentence)
{
    QByteArray const hostile = "<img src='file:///etc/passwd'>" + QByteArray(30000, '&');
    for (QByteArray const& answer :
         {"HTTP/1.1 500 " + hostile + "\r\n\r\n", "HTTP/1.1 200 OK\r\n\r\n" + hostile,
          QByteArray("HTTP/1.1 302 Found\r\nLocation: ") + hostile + "\r\n\r\n", hostile + "\r\n\r\n",
          OkAnswer("<rss><" + hostile + "></rss>"), OkAnswer("<html><body>" + hostile + "</body></html>")})
    {
        LoopbackServer server(Answering(answer));
        UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
        driver.SetFeed(server.Url());
        driver.Probe();
        ASSERT_TRUE(driver.WaitForEnd());
        ASSERT_EQ(driver.Errors().size(), 1u);
        ToldError const& error = driver.Errors()[0];
        EXPECT_EQ(error.sentence.find_first_of("<>&"), std::string::npos) << error.sentence;
        EXPECT_LE(error.sentence.size(), 250u);
        EXPECT_EQ(error.underlyingText.find('<'), std::string::npos);
        EXPECT_LE(error.underlyingText.size(), 200u);
    }
}

TEST_F(CheckContract, SkippedVersionOfTheWrongTypeIsIgnoredWithAWarning)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
    driver.SetFeed(server.Url());
    SetListDefault("SUSkippedVersion");
    {
        LogCapture log;
        driver.Probe();
        ASSERT_TRUE(driver.WaitForEnd());
        EXPECT_TRUE(HasLog(log, google::GLOG_WARNING, "The setting SUSkippedVersion is not text and is ignored"));
    }
    SetTextDefault("SUSkippedVersion", "none");
    {
        LogCapture log;
        driver.Probe();
        ASSERT_TRUE(driver.WaitForEnd());
        EXPECT_TRUE(HasLog(log, google::GLOG_WARNING, "The setting SUSkippedVersion is not a version and is ignored"));
    }
    EXPECT_EQ(driver.Events(), (Events{"asked", "found 5.1", "asked", "found 5.1"}));
}

TEST_F(CheckContract, DefaultsThatCannotBeSavedAreAWarning)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
    driver.SetFeed(server.Url());
    QString const defaults = DefaultsFolder();
    ASSERT_FALSE(defaults.isEmpty());
    // A file in the place of the folder stops root as well.
    ASSERT_TRUE(QDir().mkpath(QFileInfo(defaults).path()));
    QFile inTheWay(defaults);
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    LogCapture log;
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), (Events{"asked", "found 5.1"}));
    EXPECT_TRUE(WaitFor(
        [&log] { return HasLog(log, google::GLOG_WARNING, "settings of the update checker could not be saved"); }));
}

TEST_F(CheckContract, UnreadableDefaultsCountAsEmpty)
{
    int const threadsBefore = MeasureFootprint().threads;
    for (QByteArray const& bytes :
         {QByteArray("{ SUSkippedVersion = 5.1"), QByteArray("\0\xff\xfe<plist>\0", 12), QByteArray(40, '(')})
    {
        LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
        UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
        driver.SetFeed(server.Url());
        SetTextDefault("SUSkippedVersion", "5.1");
        SpoilDefaults(bytes);
        EXPECT_EQ(TextDefault("SUSkippedVersion"), QString()) << "the spoiled file was not read";
        driver.Probe();
        ASSERT_TRUE(driver.WaitForEnd());
        EXPECT_EQ(driver.Events(), (Events{"asked", "found 5.1"})) << bytes.left(40).toStdString();
        // The check saves its state later. This must not undo the damage that the next round makes.
        EXPECT_TRUE(WaitFor([threadsBefore] { return MeasureFootprint().threads <= threadsBefore; }));
    }
}

TEST_F(CheckContract, AutomaticDownloadIsAUserDefault)
{
    UpdaterDriver driver({});
    EXPECT_FALSE(driver.DownloadsAutomatically());
    driver.SetDownloadsAutomatically(true);
    EXPECT_TRUE(driver.DownloadsAutomatically());
    SetTextDefault("SUAutomaticallyUpdate", "NO");
    EXPECT_FALSE(driver.DownloadsAutomatically());
    SetListDefault("SUAutomaticallyUpdate");
    LogCapture log;
    EXPECT_FALSE(driver.DownloadsAutomatically());
    EXPECT_TRUE(HasLog(log, google::GLOG_WARNING, "The setting SUAutomaticallyUpdate is not a boolean and is ignored"));
}

TEST_F(CheckContract, FeedAddressOfTheUserDefaultsCountsOnlyWhereTheBundleSaysSo)
{
    UpdaterDriver driver({});
    EXPECT_TRUE(driver.Feed().isEmpty());
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Errors()[0].underlyingCode, 100);
    SetTextDefault("SUFeedURL", "https://a.example/defaults.xml");
    EXPECT_TRUE(driver.Feed().isEmpty()) << "this bundle allows no user default to name its feed";
    driver.SetFeed(QUrl(QStringLiteral("https://a.example/set.xml")));
    EXPECT_EQ(driver.Feed(), QUrl(QStringLiteral("https://a.example/set.xml")));
    driver.SetFeed(QUrl());
    EXPECT_TRUE(driver.Feed().isEmpty());
}

TEST_F(CheckContract, FeedOfAFileIsChecked)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("feed.xml")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(FeedWith(ItemOf("5.1")));
    file.close();
    UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
    driver.SetFeed(QUrl::fromLocalFile(file.fileName()));
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), (Events{"asked", "found 5.1"}));
    EXPECT_EQ(driver.Found()->file, QUrl::fromLocalFile(folder.filePath(QStringLiteral("Pelnar-5.1.zip"))));
}

TEST_F(CheckContract, LimitsHoldForTheUpdatersChecks)
{
    Pelnar::Engine::FetchLimits limits;
    limits.rateWindow = std::chrono::milliseconds(200);
    LoopbackServer server(Silent());
    UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
    driver.SetLimits(limits);
    driver.SetFeed(server.Url());
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Errors()[0].underlyingCode, 207);
}

} // namespace
