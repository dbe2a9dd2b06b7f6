// SignedFeedTest.cpp: which bytes are a signed feed, and which statements such a feed needs.
#include "Engine/core/feed/SignedFeed.h"
#include "Engine/core/check/FeedTrust.h"
#include "tests/engine/SignedFeedText.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

std::string KeyText(std::uint8_t seedByte = 7)
{
    return MakeKeyPair(seedByte).publicKey;
}

/// The number of the error; 0 if the feed is accepted.
int CauseOf(QByteArray const& feed, TrustedKeys const& keys = {KeyText()})
{
    auto const verified = VerifyFeed(feed, keys);
    return verified ? 0 : verified.error().UnderlyingCode();
}

class SpoiltFeedTest : public ::testing::TestWithParam<SpoiltFeed>
{
};

INSTANTIATE_TEST_SUITE_P(Table, SpoiltFeedTest, ::testing::ValuesIn(SpoiltFeeds()),
                         [](auto const& row) { return row.param.name; });

TEST_P(SpoiltFeedTest, IsRefusedForAReasonOfItsOwn)
{
    EXPECT_EQ(CauseOf(GetParam().feed), GetParam().cause);
}

TEST(SignedFeed, ContentIsWhatStandsBeforeTheBlock)
{
    QByteArray const content = FeedWith(ItemOf("5.1"));
    for (QByteArray const& text :
         {content, QByteArray("\n"), QByteArray(content).replace("\n", "\r\n"), QByteArray("\xEF\xBB\xBF") + content})
    {
        auto const verified = VerifyFeed(Signed(text), {KeyText()});
        ASSERT_TRUE(verified);
        EXPECT_EQ(*verified, text);
    }
}

TEST(SignedFeed, EitherKeyOfTheBundleMayHaveSigned)
{
    QByteArray const feed = SignedFeedOf("5.1");
    EXPECT_EQ(CauseOf(feed, {KeyText(9), KeyText(7)}), 0);
    EXPECT_EQ(CauseOf(feed, {KeyText(9), KeyText(8)}), 757);
}

TEST(SignedFeed, SignerIsTheKeyThatSigned)
{
    QByteArray const feed = SignedFeedOf("5.1");
    EXPECT_EQ(FeedSigner(feed, {KeyText(9), KeyText(7)}), KeyIdOf(KeyText(7)));
    EXPECT_EQ(FeedSigner(feed, {KeyText(9), KeyText(8)}), "");
    EXPECT_EQ(FeedSigner(feed, {}), "");
}

TEST(SignedFeed, WithoutAUsableKeyNothingIsBelieved)
{
    QByteArray const feed = SignedFeedOf("5.1");
    int const keyMissing = 1000 + static_cast<int>(UpdateFault::KeyMissing);
    int const keyMalformed = 1000 + static_cast<int>(UpdateFault::KeyMalformed);
    EXPECT_EQ(CauseOf(feed, {}), keyMissing);
    EXPECT_EQ(CauseOf(feed, {"AAAA"}), keyMalformed);
    EXPECT_EQ(CauseOf(feed, {KeyText(), "AAAA"}), keyMalformed) << "every key must be usable";
    for (Bytes32 const& point : PointsOfSmallOrder())
    {
        EXPECT_EQ(CauseOf(feed, {Base64(point)}), keyMalformed);
    }
    for (Bytes32 const& point : NonCanonicalEncodings())
    {
        EXPECT_EQ(CauseOf(feed, {Base64(point)}), keyMalformed);
    }
}

TEST(SignedFeed, NoPartOfOneIsOne)
{
    QByteArray const feed = SignedFeedOf("5.1");
    for (int size = 0; size < feed.size(); ++size)
    {
        EXPECT_NE(CauseOf(feed.left(size)), 0) << size;
    }
}

TEST(SignedFeed, EveryBitCounts)
{
    QByteArray const feed = SignedFeedOf("5.1");
    for (int bit = 0; bit < feed.size() * 8; ++bit)
    {
        QByteArray changed = feed;
        changed[bit / 8] = static_cast<char>(changed.at(bit / 8) ^ (1 << (bit % 8)));
        EXPECT_NE(CauseOf(changed), 0) << "bit " << bit;
    }
}

TEST(SignedFeed, BlockIsWrittenAsItIsRead)
{
    QByteArray const content = FeedWith(ItemOf("5.1"));
    QByteArray const feed = Signed(content);
    SignedFeed const split = SplitSignedFeed(feed);
    EXPECT_EQ(split.fault, SignedFeedFault::None);
    EXPECT_EQ(split.blockOffset, content.size());
    EXPECT_EQ(content + SignatureBlock(split.signature), feed);
}

FeedChannel ChannelOf(QByteArray const& inChannel)
{
    FeedParseResult const result =
        ParseFeed(FeedWith(inChannel), QUrl(QStringLiteral("https://feeds.example.com/a")), FeedPlatform::Linux);
    EXPECT_TRUE(result.has_value());
    return result.value_or(FeedContent()).channel;
}

int CauseOfTerms(QByteArray const& inChannel)
{
    auto const said = ReadFeedValidity(ChannelOf(inChannel));
    return said ? 0 : said.error().UnderlyingCode();
}

TEST(FeedValidityTest, AreReadFromTheChannel)
{
    auto const said = ReadFeedValidity(ChannelOf(TermsOf(" 9223372036854775807\n", "\n2027-02-28T23:59:58Z ")));
    ASSERT_TRUE(said);
    EXPECT_EQ(said->serial, std::numeric_limits<qint64>::max());
    EXPECT_EQ(said->expires, QDateTime(QDate(2027, 2, 28), QTime(23, 59, 58), Qt::UTC));
}

TEST(FeedValidityTest, MayStandBehindTheItemsAndInPieces)
{
    auto const said = ReadFeedValidity(ChannelOf(ItemOf("5.1") + TermsOf("1<!-- -->2<?x?>", FAR_AHEAD)));
    ASSERT_TRUE(said);
    EXPECT_EQ(said->serial, 12);
}

TEST(FeedValidityTest, SerialIsOnePositiveDecimalNumber)
{
    for (char const* const serial : {"0", "-1", "+1", "01", "1.0", "1e3", "0x10", "1 2", "", "seven",
                                     "9223372036854775808", "99999999999999999999999", "\xD9\xA1", "<a>1</a>2x",
                                     "1</p:serial><p:serial xmlns:p='urn:other'/>x<p:serial"
                                     " xmlns:p='https://pelnar.example/xml-namespaces/appcast'>1"})
    {
        EXPECT_EQ(CauseOfTerms(TermsOf(serial, FAR_AHEAD)), 760) << serial;
    }
    EXPECT_EQ(CauseOfTerms(TermsOf("1", FAR_AHEAD) + TermsOf("1", "")), 760) << "twice";
}

TEST(FeedValidityTest, ExpiryIsOneMomentOfUniversalTime)
{
    for (char const* const expires :
         {"", "2027-02-30T00:00:00Z", "2027-13-01T00:00:00Z", "2027-01-01", "2027-01-01T00:00:00",
          "2027-01-01T00:00:00+01:00", "2027-01-01T00:00:00z", "2027-01-01 00:00:00Z", "2027-01-01T00:00:00.5Z",
          "2027-01-01T25:00:00Z", "99999-01-01T00:00:00Z", "Fri, 01 Jan 2027 00:00:00 +0000", "never"})
    {
        EXPECT_EQ(CauseOfTerms(TermsOf("1", expires)), 761) << expires;
    }
    EXPECT_EQ(CauseOfTerms(TermsOf("1", FAR_AHEAD) + TermsOf("", FAR_AHEAD)), 761) << "twice";
}

TEST(FeedValidityTest, CountInTheChannelAndInTheirNamespaceOnly)
{
    QByteArray const terms = TermsOf("1", FAR_AHEAD);
    EXPECT_EQ(CauseOfTerms(terms), 0);
    EXPECT_EQ(CauseOfTerms("<item>" + terms + "</item>"), 760);
    EXPECT_EQ(CauseOfTerms("<image>" + terms + "</image>"), 760);
    EXPECT_EQ(CauseOfTerms(QByteArray(terms).replace("appcast", "other")), 760);
    EXPECT_EQ(CauseOfTerms("<serial>1</serial><expires>" + QByteArray(FAR_AHEAD) + "</expires>"), 760);
    EXPECT_EQ(CauseOfTerms("</channel>" + terms + "<channel>"), 760);
    EXPECT_EQ(CauseOfTerms("</channel><other>" + terms + "</other><channel>"), 760);
}

TEST(FeedValidityTest, ItemsAreReadAsIfTheTermsWereNotThere)
{
    QByteArray const hidden = TermsOf("1", "").replace(">1<", ">" + ItemOf("5.3") + "<");
    FeedParseResult const result = ParseFeed(FeedWith(ItemOf("5.1") + hidden + ItemOf("5.2")),
                                             QUrl(QStringLiteral("https://feeds.example.com/a")), FeedPlatform::Linux);
    ASSERT_EQ(result.value().items.size(), 3u);
    EXPECT_EQ(result.value().items[1].versionString, QStringLiteral("5.3"));
}

QDateTime At(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}

TEST(FeedValidityTest, SerialMayStayOrGrowButNotDecrease)
{
    FeedValidity const terms{7, At(1000)};
    for (auto const& [floor, cause] : {std::pair<qint64, int>(0, 0), {6, 0}, {7, 0}, {8, 762}})
    {
        auto const verdict = JudgeFeedValidity(terms, floor, At(999));
        EXPECT_EQ(verdict ? 0 : verdict.error().UnderlyingCode(), cause) << floor;
    }
}

TEST(FeedValidityTest, ExpiryIsTheFirstMomentThatIsTooLate)
{
    FeedValidity const terms{7, At(1000)};
    EXPECT_TRUE(JudgeFeedValidity(terms, 0, At(999)));
    EXPECT_EQ(JudgeFeedValidity(terms, 0, At(1000)).error().UnderlyingCode(), 763);
    EXPECT_EQ(JudgeFeedValidity(terms, 8, At(1000)).error().UnderlyingCode(), 762) << "older counts first";
}

} // namespace
