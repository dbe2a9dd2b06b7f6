// BundleKeysTest.cpp: the keys of the information dictionary. The program is the executable of its own bundle: version
// 5.0, platform macos, plain http everywhere, feeds of at most 2,000 bytes.
#include "tests/engine/CheckFixture.h"
#include "tests/engine/StoredDefaults.h"

namespace
{

using namespace Pelnar::Testing;

class BundleKeys : public CheckContract
{
};

TEST_F(BundleKeys, FeedAddressIsReadAndTheUserDefaultWinsWhereTheBundleAllowsIt)
{
    UpdaterDriver driver({});
    EXPECT_EQ(driver.Feed(), QUrl(QStringLiteral("https://bundle.example/feed.xml")));
    SetTextDefault("SUFeedURL", "https://a.example/defaults.xml");
    EXPECT_EQ(driver.Feed(), QUrl(QStringLiteral("https://a.example/defaults.xml")));
    SetListDefault("SUFeedURL");
    LogCapture log;
    EXPECT_TRUE(driver.Feed().isEmpty());
    EXPECT_TRUE(HasLog(log, google::GLOG_WARNING, "The setting SUFeedURL is not text and is ignored"));
}

TEST_F(BundleKeys, AutomaticDownloadIsReadAndTheUserDefaultWins)
{
    UpdaterDriver driver({});
    EXPECT_TRUE(driver.DownloadsAutomatically());
    driver.SetDownloadsAutomatically(false);
    EXPECT_FALSE(driver.DownloadsAutomatically());
}
TEST_F(BundleKeys, WhatIsNotNewerThanTheBundleIsNotOffered)
{
    for (auto const& [version, outcome] :
         {std::pair("4.9", "not found"), std::pair("5.0", "not found"), std::pair("5.1", "found 5.1")})
    {
        LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf(version)))));
        UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
        driver.SetFeed(server.Url());
        driver.Probe();
        ASSERT_TRUE(driver.WaitForEnd());
        EXPECT_EQ(driver.Events(), (Events{"asked", outcome})) << version;
    }
}

TEST_F(BundleKeys, RollbackIsRefusedInACheckOfTheUserToo)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("4.9")))));
    UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
    driver.SetFeed(server.Url());
    driver.CheckInteractively();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), (Events{"asked", "not found", "aborted 1001"}));
}

TEST_F(BundleKeys, DelegatesComparatorDecidesWhatIsNewer)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("4.9")))));
    UpdaterDriver driver({&ChooseFirst, [](QString const&, QString const&) { return -1; }, {}, {}});
    driver.SetFeed(server.Url());
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), (Events{"asked", "found 4.9"}));
}

TEST_F(BundleKeys, WithoutAComparatorOfTheDelegateTheEnginesDecides)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.0b1")))));
    UpdaterDriver driver({&ChooseFirst, {}, {}, {}});
    driver.SetFeed(server.Url());
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), (Events{"asked", "not found"})) << "a pre-release is older";
}

TEST_F(BundleKeys, PlatformDecidesWhoseItemsAreSeen)
{
    QByteArray const items = ItemOf("5.1").replace("<enclosure", "<enclosure sparkle:os=\"linux\"") +
                             ItemOf("5.2").replace("<enclosure", "<enclosure sparkle:os=\"macos\"") + ItemOf("5.3");
    LoopbackServer server(Answering(OkAnswer(FeedWith(items))));
    std::vector<QString> seen;
    DelegateScript script;
    script.choose = [&seen](int, std::vector<QString> const& versions)
    {
        seen = versions;
        return ScriptedChoice();
    };
    UpdaterDriver driver(script);
    driver.SetFeed(server.Url());
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(seen, (std::vector<QString>{QStringLiteral("5.2"), QStringLiteral("5.3")}));
}

TEST_F(BundleKeys, FeedSizeIsTheBundlesOwn)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")) + QByteArray(2000, '\n'))));
    UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
    driver.SetFeed(server.Url());
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), Events{"aborted 1002"});
    EXPECT_EQ(driver.Errors()[0].underlyingCode, 403);
}

TEST_F(BundleKeys, PlainHttpIsTriedWhereTheBundleOptsIn)
{
    UpdaterDriver driver({});
    driver.SetFeed(QUrl(QStringLiteral("http://no-such-host.invalid/feed.xml")));
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Errors()[0].underlyingCode, 200) << "not found, but not refused either";
}

} // namespace
