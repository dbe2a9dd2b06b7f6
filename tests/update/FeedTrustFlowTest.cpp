// FeedTrustFlowTest.cpp: what becomes of feeds, signed and not, as the clock goes on and as others are played back.
#include "Engine/core/update/UpdateFlow.h"
#include "tests/engine/SignedFeedText.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/LogCapture.h"
#include "tests/update/ScriptedUpdate.h"

#include <QFile>

namespace
{

using namespace Pelnar::Testing;
using namespace Pelnar::Engine;

class FeedTrustFlow : public UpdateFixture
{
protected:
    FeedTrustFlow() { settings.check.publicKeys = {MakeKeyPair(7).publicKey}; }

    /// A probe of \a feed, with what the last one stored.
    Notes Check(QByteArray const& feed, QString const& fileName = QStringLiteral("feed.xml"),
                QString const& fragment = {})
    {
        QFile file(folder.filePath(fileName));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(feed);
        file.close();
        settings.check.feedUrl = QUrl::fromLocalFile(file.fileName());
        settings.check.feedUrl.setFragment(fragment);
        settings.check.feedRecord = host.feedRecord.value_or(settings.check.feedRecord);
        notes.clear();
        host.error.reset();
        host.feedRecord.reset();
        bool hasEnded = false;
        host.onEnded = [&hasEnded] { hasEnded = true; };
        UpdateFlow flow(CheckKind::Probe, settings, host, windows, parts);
        flow.Start();
        EXPECT_TRUE(WaitFor([&hasEnded] { return hasEnded; }));
        return notes;
    }

    void ExpectRefused(int cause) const
    {
        ASSERT_TRUE(host.error);
        EXPECT_EQ(host.error->UnderlyingCode(), cause);
        EXPECT_FALSE(host.feedRecord) << "nothing is remembered";
    }

    Notes const found{"found", "check ended", "ended"};
    Notes const refused{"aborted 3002", "check ended", "ended"};
};

std::vector<std::string> StaleWarnings(LogCapture const& log)
{
    std::vector<std::string> texts;
    for (LogRecord const& record : log.Of(google::GLOG_WARNING))
    {
        if (record.text.find("has not changed") != std::string::npos)
        {
            texts.push_back(record.text);
        }
    }
    return texts;
}

TEST_F(FeedTrustFlow, UnsignedFeedThatDoesNotChangeIsWarnedOfFromTheHundredAndEightiethDayOn)
{
    QByteArray const feed = FeedWith(ItemOf("5.1"));
    QDateTime const begin = parts.now;
    for (int const days : {0, 1, 179, 180, 400})
    {
        parts.now = begin.addDays(days);
        LogCapture log;
        EXPECT_EQ(Check(feed), found) << days;
        std::vector<std::string> const warnings = StaleWarnings(log);
        EXPECT_EQ(warnings.size(), days >= 180 ? 1u : 0u) << days;
        ASSERT_TRUE(host.feedRecord);
        EXPECT_EQ(UnchangedDays(*host.feedRecord), days);
        if (!warnings.empty())
        {
            EXPECT_NE(warnings.front().find(" " + std::to_string(days) + " days"), std::string::npos);
        }
    }
    LogCapture log;
    EXPECT_EQ(Check(FeedWith(ItemOf("5.2"))), found);
    EXPECT_TRUE(StaleWarnings(log).empty());
}

TEST_F(FeedTrustFlow, FailedChecksDoNotMakeAFeedOlder)
{
    QByteArray const feed = FeedWith(ItemOf("5.1"));
    EXPECT_EQ(Check(feed), found);
    parts.now = parts.now.addDays(400);
    (void)Check("<rss>");
    ExpectRefused(700);
    EXPECT_EQ(UnchangedDays(settings.check.feedRecord), 0);
}

TEST_F(FeedTrustFlow, SignedFeedHoldsUntilItExpires)
{
    settings.check.feedSigning = FeedSigning::Required;
    QByteArray const feed = SignedFeedOf("5.1", "7", "2026-12-20T08:00:00Z");
    parts.now = QDateTime(QDate(2026, 12, 20), QTime(7, 59, 59), Qt::UTC);
    EXPECT_EQ(Check(feed), found);
    parts.now = parts.now.addSecs(1);
    EXPECT_EQ(Check(feed), refused);
    ExpectRefused(763);
    EXPECT_EQ(Check(SignedFeedOf("5.1", "8", "2027-01-20T08:00:00Z")), found) << "signed again in time";
}

TEST_F(FeedTrustFlow, SerialNeverFalls)
{
    settings.check.feedSigning = FeedSigning::Required;
    for (auto const& [serial, cause] : {std::pair("5", 0), {"5", 0}, {"4", 762}, {"90", 0}, {"89", 762}, {"91", 0}})
    {
        EXPECT_EQ(Check(SignedFeedOf("5.1", serial)), cause == 0 ? found : refused) << serial;
        if (cause != 0)
        {
            ExpectRefused(cause);
        }
    }
}

TEST_F(FeedTrustFlow, SerialHoldsAfterADetourThroughAnotherFeedAndWithAFragment)
{
    settings.check.feedSigning = FeedSigning::Required;
    EXPECT_EQ(Check(SignedFeedOf("5.2", "9")), found);
    settings.check.feedSigning = FeedSigning::NotAsked;
    EXPECT_EQ(Check(FeedWith(ItemOf("5.1")), QStringLiteral("other.xml")), found);
    settings.check.feedSigning = FeedSigning::Required;
    for (char const* const fileName : {"feed.xml", "other.xml", "third.xml"})
    {
        EXPECT_EQ(Check(SignedFeedOf("5.1", "8"), QString::fromLatin1(fileName)), refused) << fileName;
        ExpectRefused(762);
        EXPECT_EQ(Check(SignedFeedOf("5.1", "8"), QString::fromLatin1(fileName), QStringLiteral("x")), refused);
        ExpectRefused(762);
    }
    EXPECT_EQ(Check(SignedFeedOf("5.2", "9"), QStringLiteral("third.xml")), found);
}

TEST_F(FeedTrustFlow, WhereNothingIsAskedForTheSignatureAndTheTermsChangeNothing)
{
    QByteArray const plain = FeedWith(ItemOf("5.1"));
    settings.check.feedRecord = AfterFeed({}, QUrl::fromLocalFile(folder.filePath(QStringLiteral("feed.xml"))), "",
                                          FeedTerms{100, parts.now}, parts.now);
    EXPECT_EQ(Check(plain), found);
    QByteArray const block = BlockOf(FeedSignature("something else"));
    for (QByteArray const& feed :
         {SignedFeedOf("5.1", "7"), SignedFeedOf("5.1", "7", "1970-01-02T00:00:00Z"),
          SignedFeedOf("5.1", "none", "never"), Signed(plain, 9), plain + block, plain + block + block,
          plain + block + "\r\n", plain + BlockOf("none"), FeedWith(block + ItemOf("5.1"))})
    {
        EXPECT_EQ(Check(feed), found) << feed.toStdString();
        EXPECT_EQ(host.itemCount, 1u);
        ASSERT_TRUE(host.feedRecord);
        EXPECT_EQ(host.feedRecord->serial, 100) << "as it was";
    }
}

TEST_F(FeedTrustFlow, WithoutAKeyNoFeedIsBelieved)
{
    settings.check.feedSigning = FeedSigning::Required;
    settings.check.publicKeys = {};
    EXPECT_EQ(Check(SignedFeedOf("5.1")), (Notes{"aborted 3001", "check ended", "ended"}));
    ExpectRefused(1000 + static_cast<int>(UpdateFault::KeyMissing));
}

TEST_F(FeedTrustFlow, WhatCannotBeRememberedKeepsNoUpdateAway)
{
    host.throwsIn = "store feed record";
    EXPECT_EQ(Check(FeedWith(ItemOf("5.1"))), found);
}

} // namespace
