// SimulateTest.cpp: how many clients have which version at which time.

#include "tests/publisher/support/AppcastTool.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>

#include <algorithm>

namespace Pelnar::Testing
{
namespace
{

QByteArray Item(QByteArray const& version, QByteArray const& inside = {})
{
    return "<item><pubDate>Mon, 07 Jan 2030 00:00:00 +0000</pubDate>" + inside + "<enclosure url='https://a.example/" +
           version + ".zip' length='1' sparkle:version='" + version + "'/></item>";
}

QByteArray FeedWith(QByteArray const& items)
{
    return "<rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle' "
           "xmlns:p='https://pelnar.example/xml-namespaces/appcast'><channel>" +
           items + "</channel></rss>";
}

QByteArray const STAGED = "<sparkle:phasedRolloutInterval>86400</sparkle:phasedRolloutInterval>";

/// The counts for each day of 7000 clients that start with 5.0.
QJsonObject Counts(QByteArray const& feed, int days, QStringList const& more = {})
{
    return RunTool(QStringList{QStringLiteral("simulate"), QStringLiteral("-"), QStringLiteral("--clients"),
                               QStringLiteral("7000"), QStringLiteral("--days"), QString::number(days),
                               QStringLiteral("--versions"), QStringLiteral("5.0"), QStringLiteral("--json")} +
                       more,
                   feed)
        .Json();
}

int CountOn(QJsonObject const& simulation, int day, int version)
{
    return simulation[QStringLiteral("counts")].toArray().at(day).toArray().at(version).toInt();
}

} // namespace

TEST(Simulate, UnstagedVersionIsEverybodysOnTheFirstDay)
{
    QJsonObject const simulation = Counts(FeedWith(Item("5.1") + Item("5.0")), 1);
    EXPECT_EQ(simulation[QStringLiteral("versions")].toArray(),
              (QJsonArray{QStringLiteral("5.0"), QStringLiteral("5.1")}));
    EXPECT_EQ(simulation[QStringLiteral("start")].toString(), QStringLiteral("2030-01-07T00:00:00Z"));
    EXPECT_EQ(CountOn(simulation, 0, 0), 7000);
    EXPECT_EQ(CountOn(simulation, 1, 0), 0);
    EXPECT_EQ(CountOn(simulation, 1, 1), 7000);
}

TEST(Simulate, StagedVersionReachesAGroupADay)
{
    QJsonObject const simulation = Counts(FeedWith(Item("5.1", STAGED) + Item("5.0")), 8);
    for (int day = 0; day <= 8; ++day)
    {
        // Six standard deviations.
        EXPECT_NEAR(CountOn(simulation, day, 1), 1000 * std::min(day, 7), 250) << day;
    }
    EXPECT_EQ(CountOn(simulation, 7, 1), 7000);
}

TEST(Simulate, CriticalVersionDoesNotWaitAndWithdrawnOneReachesNobody)
{
    QJsonObject const critical = Counts(FeedWith(Item("5.1", STAGED + "<sparkle:criticalUpdate/>") + Item("5.0")), 1);
    EXPECT_EQ(CountOn(critical, 1, 1), 7000);
    QJsonObject const withdrawn = Counts(FeedWith(Item("5.1", "<p:withdrawn/>") + Item("5.0")), 3);
    EXPECT_EQ(withdrawn[QStringLiteral("versions")].toArray(), (QJsonArray{QStringLiteral("5.0")}));
    QJsonObject const page = Counts(FeedWith(Item("5.1", "<sparkle:informationalUpdate/>") + Item("5.0")), 3);
    EXPECT_EQ(page[QStringLiteral("versions")].toArray(), (QJsonArray{QStringLiteral("5.0")}));
}

TEST(Simulate, StepsOverAVersionThatMustComeFirst)
{
    QJsonObject const simulation =
        Counts(FeedWith(Item("5.2", "<sparkle:minimumUpdateVersion>5.1</sparkle:minimumUpdateVersion>") + Item("5.1") +
                        Item("5.0")),
               2);
    EXPECT_EQ(CountOn(simulation, 1, 1), 7000);
    EXPECT_EQ(CountOn(simulation, 2, 2), 7000);
}

TEST(Simulate, WhoHasAStagedVersionEarlyTrustsItsKeys)
{
    auto const keyed = [](QByteArray const& version, QByteArray const& key, QByteArray const& more)
    {
        return Item(version, "<p:keys signer='" + key + "' trusted='" + key + "'/>" + more)
            .replace("<enclosure ", "<enclosure sparkle:edSignature='x' ");
    };
    QByteArray const items = keyed("6.0", "fedcba9876543210", {}) + keyed("5.0", "0123456789abcdef", STAGED);
    EXPECT_EQ(CountOn(Counts(FeedWith(items), 1), 1, 0), 7000);
}

TEST(Simulate, ChannelIsForThoseWhoListIt)
{
    QByteArray const feed = FeedWith(Item("5.1", "<sparkle:channel>beta</sparkle:channel>") + Item("5.0"));
    EXPECT_EQ(Counts(feed, 1)[QStringLiteral("versions")].toArray().size(), 1);
    EXPECT_EQ(CountOn(Counts(feed, 1, {QStringLiteral("--channels"), QStringLiteral("beta")}), 1, 1), 7000);
}

TEST(Simulate, TheSameSeedIsTheSameDraw)
{
    QByteArray const feed = FeedWith(Item("5.1", STAGED) + Item("5.0"));
    EXPECT_EQ(Counts(feed, 4), Counts(feed, 4));
    EXPECT_NE(Counts(feed, 4), Counts(feed, 4, {QStringLiteral("--seed"), QStringLiteral("2")}));
}

TEST(Simulate, TableAndPictureShowEveryDay)
{
    int argumentCount = 0;
    QCoreApplication const application(argumentCount, nullptr);
    QTemporaryDir folder;
    QString const path = folder.filePath(QStringLiteral("a.svg"));
    ToolRun const run = RunTool({QStringLiteral("simulate"), QStringLiteral("-"), QStringLiteral("--clients"),
                                 QStringLiteral("10"), QStringLiteral("--days"), QStringLiteral("1"),
                                 QStringLiteral("--versions"), QStringLiteral("5.0"), QStringLiteral("--svg"), path},
                                FeedWith(Item("5.1") + Item("5.0")));
    EXPECT_EQ(run.out, "day                5.0       5.1\n"
                       "2030-01-07          10         0\n"
                       "2030-01-08           0        10\n")
        << run.err;
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray const picture = file.readAll();
    EXPECT_EQ(picture.count("<polygon"), 2) << picture.toStdString();
    EXPECT_TRUE(picture.startsWith("<svg ") && picture.endsWith("</svg>\n"));
    EXPECT_NE(picture.indexOf(">5.1</text>"), -1);
}

TEST(Simulate, FeedWithoutAVersionIsRefused)
{
    EXPECT_EQ(RunTool({QStringLiteral("simulate"), QStringLiteral("-")}, "<rss/>").status, 2);
}

} // namespace Pelnar::Testing
