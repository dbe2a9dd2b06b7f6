// FeedTrustFlowTest.cpp: signed and unsigned feeds as time passes, and when old feeds are sent again.
#include "Engine/core/update/UpdateFlow.h"
#include "tests/engine/KeyStatementText.h"
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

    /// A probe of \a feed with the stored state of the last probe.
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

TEST_F(FeedTrustFlow, SerialNeverDecreases)
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
                                          FeedValidity{100, parts.now}, parts.now);
    EXPECT_EQ(Check(plain), found);
    QByteArray const block = BlockOf(SignatureOfFeed("something else"));
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

/// The result of each known attack on an update system. The attacks on a download are in its own tests.
TEST_F(FeedTrustFlow, KnownAttacksOnAFeed)
{
    settings.check.feedSigning = FeedSigning::Required;
    QByteArray const good = SignedFeedOf("5.1", "7", "2030-01-01T00:00:00Z");
    ASSERT_EQ(Check(good), found);
    settings.check.feedRecord = *host.feedRecord;
    auto const expect = [this](QByteArray const& feed, int cause)
    {
        EXPECT_EQ(Check(feed).front().substr(0, 7), "aborted") << cause;
        ExpectRefused(cause);
    };
    // Arbitrary software: a feed made by the attacker.
    expect(Signed(FeedWith(TermsOf("8", FAR_AHEAD) + ItemOf("9.9")), 99), 757);
    // Rollback: an older feed of the publisher's.
    expect(SignedFeedOf("5.0", "6", "2030-01-01T00:00:00Z"), 762);
    // Malicious mirror: one byte of the feed is changed.
    QByteArray changed = good;
    changed.replace("5.1", "5.2");
    expect(changed, 757);
    // Mix and match: an item of one feed with the validity of another.
    QByteArray mixed = SignedFeedOf("5.1", "8", "2030-01-01T00:00:00Z");
    mixed.replace(mixed.indexOf("<item>"), 0, ItemOf("5.3"));
    expect(mixed, 757);
    // Endless data: a feed over the limit is not read to its end.
    settings.check.fetchLimits.maxBodyBytes = 1000;
    expect(good + QByteArray(1000, ' '), 602);
    settings.check.fetchLimits.maxBodyBytes = 1 << 20;
    // Rollback in an accepted feed: an older version is not an update.
    EXPECT_EQ(Check(SignedFeedOf("4.0", "8", "2030-01-01T00:00:00Z")).front(), "not found");
    // Indefinite freeze: always the same feed.
    parts.now = QDateTime::fromString(QStringLiteral("2030-01-01T00:00:00Z"), Qt::ISODate);
    expect(SignedFeedOf("5.1", "9", "2030-01-01T00:00:00Z"), 763);
}

TEST_F(FeedTrustFlow, ItemsThatTheBundlesKeysCannotVerifyAreLeftOut)
{
    std::string const ours = KeyIdOf(MakeKeyPair(7).publicKey);
    std::string const other = KeyIdOf(MakeKeyPair(8).publicKey);
    auto const keyed = [](QByteArray item, std::string const& signer, std::string const& trusted)
    {
        item.replace("length=", "sparkle:edSignature=\"x\" length=");
        return item.replace("</item>", QByteArray::fromStdString(
                                           "<keys xmlns='https://pelnar.example/xml-namespaces/appcast' signer='" +
                                           signer + "' trusted='" + trusted + "'/></item>"));
    };
    QByteArray const bridge = keyed(ItemOf("5.1"), ours, ours + ' ' + other);
    QByteArray const next = keyed(ItemOf("5.2"), other, other);
    LogCapture log;
    EXPECT_EQ(Check(FeedWith(next + bridge)), found);
    EXPECT_EQ(host.itemCount, 1u);
    auto const records = log.Of(google::GLOG_INFO);
    EXPECT_TRUE(std::any_of(records.begin(), records.end(),
                            [](LogRecord const& record) {
                                return record.text.find("item 5.2 is left out (needs-another-version-first)") !=
                                       std::string::npos;
                            }));
    settings.check.publicKeys = {MakeKeyPair(7).publicKey, MakeKeyPair(8).publicKey};
    EXPECT_EQ(Check(FeedWith(next + bridge)), found);
    EXPECT_EQ(host.itemCount, 2u);
    settings.check.publicKeys = {};
    EXPECT_EQ(Check(FeedWith(next + bridge)), found);
    EXPECT_EQ(host.itemCount, 2u) << "a bundle without keys is reported later";
}

/// A signed feed with a key statement.
QByteArray FeedUnder(StatementText const& statement, QByteArray const& serial, std::uint8_t signer,
                     std::uint8_t root = ROOT_SEED)
{
    QByteArray const line = StatementLineOf(statement, root);
    return Signed(FeedWith(TermsOf(serial, FAR_AHEAD) + ItemOf("5.1")) + line, signer);
}

std::string IdOf(std::uint8_t seed)
{
    return KeyIdOf(MakeKeyPair(seed).publicKey);
}

/// A bundle with a root key, whose own signing key is that of seed 7.
class RootKeyFlow : public FeedTrustFlow
{
protected:
    RootKeyFlow()
    {
        settings.check.feedSigning = FeedSigning::Required;
        settings.check.rootPublicKey = MakeKeyPair(ROOT_SEED).publicKey;
        settings.check.bundleIdentifier = "com.example.app";
    }
};

TEST_F(RootKeyFlow, StatementCountsInThePlaceOfTheBundlesOwnKeys)
{
    EXPECT_EQ(Check(FeedUnder({"1", FAR_AHEAD}, "10", 7)), found);
    StatementText const next{"2", FAR_AHEAD, {"com.example.app"}, {8}, {IdOf(7)}};
    EXPECT_EQ(Check(FeedUnder(next, "11", 8)), found) << "a key that the bundle has never heard of";
    EXPECT_EQ(host.feedRecord->keySerial, 2);
    EXPECT_EQ(host.feedRecord->serialSigner, IdOf(8));
    settings.check.feedRecord = *host.feedRecord;
    EXPECT_EQ(Check(FeedUnder(next, "12", 7)), (Notes{"aborted 3001", "check ended", "ended"}));
    ExpectRefused(757);
}

TEST_F(RootKeyFlow, DownloadsAreJudgedByTheStatementsKeys)
{
    StatementText const next{"2", FAR_AHEAD, {"com.example.app"}, {8}, {}};
    std::vector<TrustedKeys> judged;
    host.onFound = [&judged](FoundUpdate const& update) { judged.push_back(update.publicKeys); };
    EXPECT_EQ(Check(FeedUnder(next, "11", 8)), found);
    ASSERT_EQ(judged.size(), 1u);
    EXPECT_EQ(judged[0].Texts(), std::vector<std::string>{MakeKeyPair(8).publicKey});
}

TEST_F(RootKeyFlow, StatementIsNeverLeftOutAndNeverOlder)
{
    EXPECT_EQ(Check(FeedUnder({"5", FAR_AHEAD}, "10", 7)), found);
    settings.check.feedRecord = *host.feedRecord;
    EXPECT_EQ(Check(SignedFeedOf("5.1", "11")), refused);
    ExpectRefused(770);
    EXPECT_EQ(Check(FeedUnder({"4", FAR_AHEAD}, "11", 7)), refused);
    ExpectRefused(774);
    EXPECT_EQ(Check(FeedUnder({"6", FAR_AHEAD}, "11", 7, 7)), refused) << "signed by the signing key";
    ExpectRefused(772);
    EXPECT_EQ(Check(FeedUnder({"5", FAR_AHEAD}, "11", 7)), found) << "the same one again";
}

TEST_F(RootKeyFlow, StatementCountsWithoutASignedFeedAsWell)
{
    settings.check.feedSigning = FeedSigning::NotAsked;
    QByteArray const feed = FeedWith(ItemOf("5.1"));
    EXPECT_EQ(Check(feed), refused);
    ExpectRefused(770);
    EXPECT_EQ(Check(feed + StatementLineOf(StatementText{"9", FAR_AHEAD})), found);
    EXPECT_EQ(host.feedRecord->keySerial, 9);
}

TEST_F(RootKeyFlow, SerialThatAThiefHasRaisedCountsNoMoreOnceItsKeyIsRevoked)
{
    EXPECT_EQ(Check(FeedUnder({"1", FAR_AHEAD}, "9223372036854775807", 7)), found);
    settings.check.feedRecord = *host.feedRecord;
    EXPECT_EQ(Check(FeedUnder({"2", FAR_AHEAD, {"com.example.app"}, {8}, {}}, "12", 8)), refused);
    ExpectRefused(762);
    EXPECT_EQ(Check(FeedUnder({"2", FAR_AHEAD, {"com.example.app"}, {8}, {IdOf(7)}}, "12", 8)), found);
    EXPECT_EQ(host.feedRecord->serial, 12);
}

} // namespace
