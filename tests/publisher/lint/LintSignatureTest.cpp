// LintSignatureTest.cpp: the findings about the signature of a feed.

#include "Publisher/lint/SignatureRules.h"
#include "tests/engine/SignedFeedText.h"
#include "tests/publisher/lint/LintCase.h"
#include "tests/publisher/support/AppcastTool.h"

#include <gtest/gtest.h>

#include <ostream>

namespace Pelnar::Testing
{
namespace
{

using Publisher::FeedSigningWish;

QByteArray Content(QByteArray const& serial = "7", QByteArray const& expires = "2027-01-01T00:00:00Z")
{
    return FeedOf(TermsOf(serial, expires)) + '\n';
}

struct SignatureRow
{
    char const* name;
    QByteArray feed;
    std::string finding; ///< "RULE LINE:COLUMN", the only one; empty for none
    FeedSigningWish wish = FeedSigningWish::None;
    std::uint8_t key = 7; ///< seed byte of the given key
};

std::ostream& operator<<(std::ostream& out, SignatureRow const& row)
{
    return out << row.name;
}

class LintSignature : public ::testing::TestWithParam<SignatureRow>
{
};

INSTANTIATE_TEST_SUITE_P(
    Rows, LintSignature,
    ::testing::Values(
        SignatureRow{"SignedPasses", Signed(Content()), "", FeedSigningWish::Signed},
        SignatureRow{"UnsignedPassesUnasked", Content(), ""},
        SignatureRow{"UnsignedAndExpiredPassesUnasked", Content("x", "2020-01-01T00:00:00Z"), ""},
        SignatureRow{"Unsigned", Content(), "feed-unsigned 1:1", FeedSigningWish::Signed},
        SignatureRow{"AnotherKey", Signed(Content()), "feed-signature-wrong 5:1", FeedSigningWish::None, 9},
        SignatureRow{"Changed", Signed(Content()).replace("<rss", "<rss "), "feed-signature-wrong 5:1"},
        SignatureRow{"Twice", Signed(Signed(Content())), "feed-signature-unreadable 6:1"},
        SignatureRow{"NotAtTheEnd", Signed(Content()) + "<!-- -->", "feed-signature-unreadable 5:1"},
        SignatureRow{"BytesAfter", Signed(Content()) + "\n", "feed-signature-unreadable 5:1"},
        SignatureRow{"LineEnd", Signed(Content()).chopped(1) + "\r\n", "feed-signature-unreadable 5:1"},
        SignatureRow{"OtherAlgorithm", Signed(Content()).replace("ed25519", "dsa"), "feed-signature-unreadable 5:1"},
        SignatureRow{"Damaged", Content() + BlockOf("AAAA"), "feed-signature-unreadable 5:1"},
        SignatureRow{"NotAlone", Content() + "  " + BlockOf(SignatureOfFeed("")), "feed-signature-unreadable 5:3"},
        SignatureRow{"NoSerial", Signed(Content("")), "feed-serial 1:74"},
        SignatureRow{"SerialOfZero", Signed(Content("0")), "feed-serial 2:1"},
        SignatureRow{"NoExpiry", Signed(Content("7", "")), "feed-expires 1:74"},
        SignatureRow{"ExpiryOfAnotherForm", Signed(Content("7", "tomorrow")), "feed-expires 3:1"},
        SignatureRow{"Expired", Signed(Content("7", "2026-11-20T09:00:00Z")), "feed-expired 3:1"},
        SignatureRow{"ExpiresInASecond", Signed(Content("7", "2026-11-20T09:00:01Z")), "feed-expires-soon 3:1"},
        SignatureRow{"ExpiresInAWeek", Signed(Content("7", "2026-11-27T09:00:00Z")), ""}),
    [](auto const& row) { return row.param.name; });

TEST_P(LintSignature, FindsThisAndNothingElse)
{
    Publisher::LintResult const lint =
        Publisher::LintFeed(GetParam().feed, QUrl(QStringLiteral("https://feeds.example.com/appcast.xml")));
    ASSERT_TRUE(lint.subject);
    QDateTime const now(QDate(2026, 11, 20), QTime(9, 0), Qt::UTC);
    std::string found;
    for (Publisher::LintFinding const& finding : Publisher::CheckFeedSignature(
             GetParam().feed, lint.subject.get(), {{MakeKeyPair(GetParam().key).publicKey}, GetParam().wish, now}))
    {
        found += std::string(found.empty() ? "" : "; ") + Publisher::EntryOf(finding.rule).name + " " +
                 std::to_string(finding.place.line) + ":" + std::to_string(finding.place.column);
        EXPECT_FALSE(finding.what.isEmpty());
    }
    EXPECT_EQ(found, GetParam().finding) << GetParam().feed.toStdString();
}

TEST(LintSignatureOutput, OptionsReachTheRules)
{
    QByteArray const feed = Signed(Content("7", FAR_AHEAD).replace("<channel>", "<channel><item/>"));
    QStringList const lint{QStringLiteral("lint"), QStringLiteral("-")};
    QStringList const key{QStringLiteral("--public-key"), QString::fromStdString(MakeKeyPair(7).publicKey)};
    QStringList const otherKey{QStringLiteral("--public-key"), QString::fromStdString(MakeKeyPair(9).publicKey)};
    QStringList const mustBeSigned{QStringLiteral("--signed")};
    auto const says = [&](QByteArray const& bytes, QStringList const& more, char const* rule)
    { return RunTool(lint + more, bytes).out.find(rule) != std::string::npos; };
    EXPECT_FALSE(says(feed, key + mustBeSigned, "feed-"));
    EXPECT_FALSE(says(feed, otherKey + key, "feed-")) << "one of two";
    EXPECT_TRUE(says(feed, otherKey, "feed-signature-wrong"));
    EXPECT_TRUE(says("<rss><channel/></rss>", mustBeSigned, "feed-unsigned"));
    EXPECT_TRUE(says("<rss>", mustBeSigned, "feed-unsigned")) << "also one that cannot be read";
    EXPECT_TRUE(says(Signed(Content("7", "2020-01-01T00:00:00Z")), {}, "feed-expired"));
}

} // namespace
} // namespace Pelnar::Testing
