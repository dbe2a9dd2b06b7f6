// DiffTest.cpp: `pelnar-appcast diff`: the different effects of two feeds.

#include "Engine/core/feed/FeedParser.h"
#include "Publisher/diff/FeedDiff.h"
#include "tests/publisher/support/AppcastTool.h"
#include "tests/support/Sanitizers.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>

#include <ctime>
#include <random>

namespace Pelnar::Testing
{
namespace
{

QByteArray Item(QByteArray const& version, QByteArray const& more = {}, QByteArray const& host = "a.example")
{
    return "<item>" + more + "<enclosure url='https://" + host + "/" + version + ".zip' length='9' sparkle:version='" +
           version + "'/></item>";
}

QByteArray Minimum(QByteArray const& version)
{
    return "<sparkle:minimumSystemVersion>" + version + "</sparkle:minimumSystemVersion>";
}

QByteArray Maximum(QByteArray const& version)
{
    return "<sparkle:maximumSystemVersion>" + version + "</sparkle:maximumSystemVersion>";
}

QByteArray FeedOf(QByteArray const& items)
{
    return "<rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle' "
           "xmlns:p='https://pelnar.example/xml-namespaces/appcast'><channel>" +
           items + "</channel></rss>";
}

std::vector<Engine::FeedItem> ItemsOf(QByteArray const& items)
{
    return Engine::ParseFeed(FeedOf(items), QUrl(QStringLiteral("https://a.example/appcast.xml")),
                             Engine::FeedPlatform::Linux)
        .value()
        .items;
}

class Diff : public ::testing::Test
{
protected:
    ToolRun Run(QByteArray const& oldItems, QByteArray const& newItems, QStringList const& more = {})
    {
        QString const path = m_folder.filePath(QStringLiteral("old.xml"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(FeedOf(oldItems));
        file.close();
        return RunTool(QStringList{QStringLiteral("diff"), path, QStringLiteral("-")} + more, FeedOf(newItems));
    }

private:
    int m_argumentCount = 0;
    QCoreApplication m_application{m_argumentCount, nullptr};
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(Diff, VersionKeepsItsKeysWhenItsItemGoes)
{
    auto const keyed = [](QByteArray const& version, QByteArray const& signer, QByteArray const& trusted)
    {
        return Item(version, "<p:keys signer='" + signer + "' trusted='" + trusted + "'/>")
            .replace("<enclosure ", "<enclosure sparkle:edSignature='x' ");
    };
    QByteArray const oldKey = "0123456789abcdef";
    QByteArray const newKey = "fedcba9876543210";
    QByteArray const kept = keyed("5.2", newKey, newKey) + keyed("5.1", oldKey, oldKey + ' ' + newKey);
    ToolRun const run = Run(kept + keyed("5.0", oldKey, oldKey), kept);
    EXPECT_EQ(run.out, "every client gets the same as before\n");
}

TEST_F(Diff, ClientsBetweenTheBoundsOfItemsAreCompared)
{
    auto const bounded = [](QByteArray const& version, QByteArray const& minimum)
    { return Item(version, "<sparkle:minimumUpdateVersion>" + minimum + "</sparkle:minimumUpdateVersion>"); };
    ToolRun const run = Run(bounded("5.2", "4.5") + bounded("5.1", "4.0"), bounded("5.2", "4.5"));
    EXPECT_EQ(run.out, "4.0 on all systems: 5.1 BUNDLE -> none\n");
}

TEST_F(Diff, FeedsWithTheSameEffectAreEqualHoweverTheyAreWritten)
{
    ToolRun const run = Run(Item("5.1") + Item("5.0"), Item("5.0", "<title>Other words</title>") + Item("5.1"));
    EXPECT_EQ(run.out, "every client gets the same as before\n");
    EXPECT_EQ(run.status, 0);
}

TEST_F(Diff, ANewVersionReachesAllThatAreOlder)
{
    ToolRun const run = Run(Item("5.1"), Item("5.2") + Item("5.1"));
    EXPECT_EQ(run.out, "0 on all systems: 5.1 BUNDLE -> 5.2 BUNDLE\n5.1 on all systems: none -> 5.2 BUNDLE\n");
    EXPECT_EQ(run.status, 1);
}

TEST_F(Diff, NamesTheSystemsByTheBoundsOfBothFeeds)
{
    ToolRun const run = Run(Item("5.1", Maximum("12")), Item("5.1", Minimum("11")));
    EXPECT_EQ(run.out, "item 5.1: minimumSystemVersion none -> 11\nitem 5.1: maximumSystemVersion 12 -> none\n"
                       "0 on systems below 11: 5.1 BUNDLE -> none\n0 on systems above 12: none -> 5.1 BUNDLE\n");
}

TEST_F(Diff, JoinsRangesWithTheSameChange)
{
    ToolRun const run = Run(Item("5.1") + Item("4.0", Minimum("11")) + Item("3.0", Maximum("12")), "");
    EXPECT_EQ(run.out, "0 to 4.0 on all systems: 5.1 BUNDLE -> none\n");
}

TEST_F(Diff, AnotherDownloadOfTheSameVersionIsAChange)
{
    ToolRun const run = Run(Item("5.1"), Item("5.1", {}, "b.example"));
    EXPECT_EQ(run.out, "0 on all systems: 5.1 BUNDLE (9 bytes, https://a.example/5.1.zip) -> 5.1 BUNDLE (9 bytes, "
                       "https://b.example/5.1.zip)\n");
}

TEST_F(Diff, LooksAtTheGivenVersionsOnly)
{
    ToolRun const run = Run(Item("5.1"), Item("5.2"), {QStringLiteral("--versions"), QStringLiteral("5.1")});
    EXPECT_EQ(run.out, "5.1 on all systems: none -> 5.2 BUNDLE\n");
}

TEST_F(Diff, TheJsonHasAnObjectForEveryChange)
{
    QJsonObject const object = Run("", Item("5.1"), {QStringLiteral("--json")}).Json();
    QJsonArray const changes = object[QStringLiteral("changes")].toArray();
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0].toObject()[QStringLiteral("localVersion")], QStringLiteral("0"));
    EXPECT_EQ(changes[0].toObject()[QStringLiteral("systems")], QStringLiteral("all systems"));
    EXPECT_TRUE(changes[0].toObject()[QStringLiteral("before")].isNull());
    EXPECT_EQ(changes[0].toObject()[QStringLiteral("after")].toObject()[QStringLiteral("version")],
              QStringLiteral("5.1"));
}

TEST_F(Diff, FeedsThatCannotBeReadAreRefused)
{
    EXPECT_EQ(Run(Item("5.1"), "<item>").status, 2);
    EXPECT_EQ(RunAppcastProgram({QStringLiteral("diff"), QStringLiteral("/nowhere.xml"), QStringLiteral("-")}).status,
              2);
}

TEST_F(Diff, TellsOfItemsThatAreMeantForOthersNow)
{
    struct Row
    {
        char const* before;
        char const* after;
        char const* line;
    };
    Row const rows[] = {
        {"", "<sparkle:channel>beta</sparkle:channel>", "item 5.1: channel none -> beta\n"},
        {"", "<p:withdrawn/>", "item 5.1: withdrawn none -> yes\n"},
        {"", "<sparkle:criticalUpdate/>", "item 5.1: critical none -> yes\n"},
        {"<sparkle:criticalUpdate/>", "<sparkle:criticalUpdate sparkle:version='5.0'/>",
         "item 5.1: critical yes -> below 5.0\n"},
        {"", "<sparkle:informationalUpdate/>", "item 5.1: informational none -> yes\n"},
        {"<sparkle:informationalUpdate/>",
         "<sparkle:informationalUpdate><sparkle:version>4</sparkle:version><sparkle:belowVersion>3"
         "</sparkle:belowVersion></sparkle:informationalUpdate>",
         "item 5.1: informational yes -> 4, below 3\n"},
        {"<sparkle:phasedRolloutInterval>3600</sparkle:phasedRolloutInterval>", "",
         "item 5.1: phasedRolloutInterval 3600 -> none\n"},
        {"", "<sparkle:minimumUpdateVersion>4</sparkle:minimumUpdateVersion>",
         "item 5.1: minimumUpdateVersion none -> 4\n"},
        {"", "<sparkle:minimumAutoupdateVersion>4</sparkle:minimumAutoupdateVersion>",
         "item 5.1: minimumAutoupdateVersion none -> 4\n"},
        {"", "<sparkle:minimumSystemVersion>12</sparkle:minimumSystemVersion>",
         "item 5.1: minimumSystemVersion none -> 12\n"},
        {"<sparkle:maximumSystemVersion>12</sparkle:maximumSystemVersion>", "",
         "item 5.1: maximumSystemVersion 12 -> none\n"},
    };
    for (Row const& row : rows)
    {
        QByteArray const other = Item("5.0");
        ToolRun const run = Run(other + Item("5.1", row.before), Item("5.1", row.after) + other);
        EXPECT_EQ(run.out.substr(0, run.out.find('\n') + 1), row.line);
        EXPECT_EQ(run.status, 1);
    }
    QJsonArray const items = Run(Item("5.1"), Item("5.1", "<p:withdrawn/>"), {QStringLiteral("--json")})
                                 .Json()
                                 .value(QStringLiteral("items"))
                                 .toArray();
    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items.at(0).toObject(), (QJsonObject{{QStringLiteral("version"), QStringLiteral("5.1")},
                                                   {QStringLiteral("what"), QStringLiteral("withdrawn")},
                                                   {QStringLiteral("before"), QStringLiteral("none")},
                                                   {QStringLiteral("after"), QStringLiteral("yes")}}));
}

TEST_F(Diff, SaysNothingOfDeltasWhoseOrderChangesNothing)
{
    QByteArray const a = "<enclosure url='https://a.example/a' length='3' sparkle:deltaFrom='5'/>";
    QByteArray const b = "<enclosure url='https://a.example/b' length='3' sparkle:deltaFrom='5.0'/>";
    auto const with = [](QByteArray const& deltas)
    { return Item("5.1", "<sparkle:deltas>" + deltas + "</sparkle:deltas>"); };
    EXPECT_EQ(Run(with(a + b), with(b + a)).status, 0);
    ToolRun const run = Run(with(a), with(a + b));
    EXPECT_EQ(run.out, "5 on all systems: 5.1 DELTA from 5 -> 5.1 DELTA from 5 or from 5.0\n");
}

TEST(FeedDiff, ComparesTheLargestFeedsQuickly)
{
    std::vector<Engine::FeedItem> oldItems;
    for (int i = 1; i <= 2000; ++i)
    {
        Engine::FeedItem item;
        item.versionString = QStringLiteral("5.%1").arg(i);
        item.fileUrl = QUrl(QStringLiteral("https://a.example/%1.zip").arg(i));
        item.contentLength = 9;
        item.policy.minimumUpdateVersion = QStringLiteral("5.%1").arg(2000 - i);
        item.minimumSystemVersion = QString::number(i % 50);
        oldItems.push_back(item);
    }
    std::vector<Engine::FeedItem> newItems = oldItems;
    newItems.back().contentLength = 10;
    std::clock_t const start = std::clock();
    EXPECT_FALSE(Publisher::DiffFeeds(oldItems, newItems, Publisher::VersionsOfFeed(oldItems)).empty());
    double const seconds = double(std::clock() - start) / CLOCKS_PER_SEC;
    EXPECT_LT(seconds, IS_SANITIZED ? 200 : 20) << "a release build takes a tenth";
}

TEST(SystemRanges, LeaveNoSystemOut)
{
    auto const ranges =
        Publisher::SystemRanges(ItemsOf(Item("5", Minimum("0") + Maximum("12.2147483647"))),
                                ItemsOf(Item("5", Maximum("2147483647.2147483647.2147483647.2147483647"))));
    ASSERT_EQ(ranges.size(), 2u);
    EXPECT_EQ(Publisher::TextOf(ranges[0]).toStdString(), "systems up to 12.2147483647");
    EXPECT_EQ(Publisher::TextOf(ranges[1]).toStdString(), "systems above 12.2147483647");
}

TEST(SystemRanges, WithinARangeEverySystemHasTheSameOutcome)
{
    std::mt19937 engine(7);
    auto const number = [&](int below) { return std::uniform_int_distribution<int>(0, below - 1)(engine); };
    auto const bound = [&] { return QByteArray::number(number(6)) + "." + QByteArray::number(number(3)); };
    for (int round = 0; round < 200; ++round)
    {
        QByteArray items;
        for (int i = 0; i < 4; ++i)
        {
            items += Item(QByteArray::number(5 + i), (number(2) ? Minimum(bound()) : QByteArray()) +
                                                         (number(2) ? Maximum(bound()) : QByteArray()));
        }
        std::vector<Engine::FeedItem> const feed = ItemsOf(items);
        Publisher::FeedChooser chooser(feed);
        std::vector<Publisher::SystemRange> const ranges = Publisher::SystemRanges(feed, {});
        for (int probe = 0; probe < 40; ++probe)
        {
            Core::Version const system(number(7), number(4), number(2));
            // The last range that begins at or below the system contains it.
            Publisher::SystemRange const* holder = nullptr;
            for (Publisher::SystemRange const& range : ranges)
            {
                bool const isBelow = Core::Util::ShrinkVersion(system, 4) < Core::Util::ShrinkVersion(range.first, 4);
                holder = isBelow ? holder : &range;
            }
            ASSERT_NE(holder, nullptr);
            EXPECT_EQ(Publisher::TextOf(Publisher::OutcomeOf(chooser.Answer({Core::Version(1), system}))),
                      Publisher::TextOf(Publisher::OutcomeOf(chooser.Answer({Core::Version(1), holder->first}))))
                << items.toStdString();
        }
    }
}

} // namespace Pelnar::Testing
