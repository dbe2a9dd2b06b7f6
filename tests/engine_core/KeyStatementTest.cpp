// KeyStatementTest.cpp: the root key's statement about the signing keys: its text, its line in a feed, and the verdict.
#include "Engine/core/check/KeyStatement.h"
#include "Engine/core/check/FeedRecord.h"
#include "tests/engine/KeyStatementText.h"

#include <gtest/gtest.h>

#include <functional>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

std::string KeyOf(std::uint8_t seed)
{
    return MakeKeyPair(seed).publicKey;
}

QDateTime Moment(char const* text)
{
    return QDateTime::fromString(QString::fromLatin1(text), Qt::ISODate);
}

KeyTrust Trust()
{
    return {{KeyOf(7)}, KeyOf(ROOT_SEED), "com.example.app", 3};
}

/// The number of the error; 0 if the statement is accepted.
int CauseOf(QByteArray const& feed, KeyTrust const& trust = Trust())
{
    auto const believed = BelieveKeys(feed, trust, Moment("2026-11-22T12:00:00Z"));
    return believed ? 0 : believed.error().UnderlyingCode();
}

QByteArray FeedOf(QByteArray const& line)
{
    return FeedWith(ItemOf("5.1")) + line;
}

} // namespace

TEST(KeyStatement, IsReadAsItWasWritten)
{
    std::string const revoked = KeyIdOf(KeyOf(9));
    std::string const text = Pelnar::Testing::TextOf(
        StatementText{"12", "2027-01-31T12:00:00Z", {"com.example.app", "com.example.app.beta"}, {7, 8}, {revoked}});
    std::optional<KeyStatement> const statement = ParseKeyStatement(text);
    ASSERT_TRUE(statement);
    EXPECT_EQ(statement->serial, 12);
    EXPECT_EQ(statement->expires, Moment("2027-01-31T12:00:00Z"));
    EXPECT_EQ(statement->bundles, (std::vector<std::string>{"com.example.app", "com.example.app.beta"}));
    EXPECT_EQ(statement->validKeys.Texts(), (std::vector<std::string>{KeyOf(7), KeyOf(8)}));
    EXPECT_EQ(statement->revoked, std::vector<std::string>{revoked});
    EXPECT_EQ(Pelnar::Engine::TextOf(*statement), text);
}

TEST(KeyStatement, HasOneSpellingOnly)
{
    std::string const good = TextOf(StatementText());
    ASSERT_TRUE(ParseKeyStatement(good));
    auto const with = [&good](std::string const& from, std::string const& to)
    {
        std::string text = good;
        text.replace(text.find(from), from.size(), to);
        return text;
    };
    std::string const key = "valid " + KeyOf(7) + '\n';
    std::vector<std::string> const bad{
        "",
        "\n",
        good + '\n',
        good + "valid " + KeyOf(8),
        good.substr(0, good.size() - 1),
        with("pelnar-keys 1", "pelnar-keys 2"),
        with("pelnar-keys 1\n", ""),
        with("serial 3", "serial 03"),
        with("serial 3", "serial 0"),
        with("serial 3", "serial -3"),
        with("serial 3", "serial  3"),
        with("serial 3", "serial 3 "),
        with("serial 3", "serial 9223372036854775808"),
        with("serial 3", std::string("serial 3\0", 9)),
        with("serial 3\n", ""),
        with("9999-12-31T23:59:59Z", "9999-12-31"),
        with("9999-12-31T23:59:59Z", "2027-02-30T00:00:00Z"),
        with("bundle com.example.app\n", ""),
        with("bundle com.example.app", "bundle com.example app"),
        with("bundle com.example.app", "bundle com.example.app\nbundle com.example.app"),
        with("bundle com.example.app", "bundle " + std::string(256, 'a')),
        with(key, ""),
        with(key, key + key),
        with(key, "valid AAAA\n"),
        with(key, key + "valid " + KeyOf(8) + "\nvalid " + KeyOf(9) + '\n'),
        good + "revoked " + KeyIdOf(KeyOf(7)) + '\n',
        good + "revoked 21FE31DFA154A261\n",
        good + "revoked 21fe31dfa154a26\n",
        good + "revoked 21fe31dfa154a261\nrevoked 21fe31dfa154a261\n",
        good + "later 1\n",
        std::string(9000, 'a'),
    };
    for (std::string const& text : bad)
    {
        EXPECT_FALSE(ParseKeyStatement(text)) << text;
    }
}

TEST(KeyStatement, ListsAreBounded)
{
    StatementText statement;
    for (int i = 0; i < 64; ++i)
    {
        char id[17];
        std::snprintf(id, sizeof id, "%016x", i);
        statement.revoked.push_back(id);
    }
    EXPECT_TRUE(ParseKeyStatement(TextOf(statement)));
    statement.revoked.push_back("00000000000000ff");
    EXPECT_FALSE(ParseKeyStatement(TextOf(statement)));
    statement.revoked.clear();
    for (int i = 0; i < 8; ++i)
    {
        statement.bundles.push_back("b" + std::to_string(i));
    }
    EXPECT_FALSE(ParseKeyStatement(TextOf(statement))) << "nine bundles";
    statement.bundles.pop_back();
    EXPECT_TRUE(ParseKeyStatement(TextOf(statement)));
}

TEST(KeyStatement, StandsInAFeedOnceAndAloneOnItsLine)
{
    QByteArray const line = StatementLineOf(StatementText());
    QByteArray const feed = FeedOf(line);
    auto const statement = FindKeyStatement(feed);
    ASSERT_TRUE(statement);
    EXPECT_EQ(statement->text, TextOf(StatementText()));
    EXPECT_EQ(feed.mid(statement->offset, statement->size), line);
    EXPECT_EQ(KeyStatementLine(statement->text, statement->signature), line);
    EXPECT_TRUE(FindKeyStatement(Signed(feed)));

    EXPECT_EQ(FindKeyStatement(FeedOf("")).error().cause, ErrorCause::KeyStatementMissing);
    QByteArray crossed = line;
    crossed.replace(" -->\n", " -->\r\n");
    QByteArray unknown = line;
    unknown.replace("ed25519", "ed448");
    QByteArray const longest = StatementLineOf(std::string(8192, 'a'));
    EXPECT_TRUE(FindKeyStatement(FeedOf(longest)));
    for (QByteArray const& bad :
         {line + line, ' ' + line, line.chopped(1), crossed, unknown, StatementLineOf(std::string(8193, 'a')),
          StatementLineOf(std::string(100000, 'a')), QByteArray("<!-- pelnar-keys: ed25519 -->\n"),
          QByteArray("<!-- pelnar-keys:  -->\n"), QByteArray("<!-- pelnar-keys: ")})
    {
        auto const refused = FindKeyStatement(FeedOf(bad));
        ASSERT_FALSE(refused) << bad.left(200).toStdString();
        EXPECT_EQ(refused.error().cause, ErrorCause::KeyStatementMalformed);
    }
}

TEST(KeyStatement, WithoutARootKeyTheBundlesOwnKeysCount)
{
    KeyTrust trust = Trust();
    trust.rootKey.clear();
    auto const believed = BelieveKeys(FeedOf("<!-- pelnar-keys: nonsense"), trust, Moment("2026-11-22T12:00:00Z"));
    ASSERT_TRUE(believed);
    EXPECT_EQ(believed->keys.Texts(), std::vector<std::string>{KeyOf(7)});
    EXPECT_EQ(believed->serial, 0);
}

TEST(KeyStatement, WithARootKeyItCountsInThePlaceOfTheBundlesOwnKeys)
{
    StatementText statement;
    statement.validSeeds = {8};
    statement.revoked = {KeyIdOf(KeyOf(7))};
    auto const believed = BelieveKeys(FeedOf(StatementLineOf(statement)), Trust(), Moment("2026-11-22T12:00:00Z"));
    ASSERT_TRUE(believed);
    EXPECT_EQ(believed->keys.Texts(), std::vector<std::string>{KeyOf(8)});
    EXPECT_EQ(believed->serial, 3);
    EXPECT_EQ(believed->revoked, statement.revoked);
}

TEST(KeyStatement, EachRefusalHasANumberOfItsOwn)
{
    StatementText const good;
    EXPECT_EQ(CauseOf(FeedOf(StatementLineOf(good))), 0);
    EXPECT_EQ(CauseOf(FeedOf("")), 770);
    EXPECT_EQ(CauseOf(FeedOf(StatementLineOf(good) + StatementLineOf(good))), 771);
    EXPECT_EQ(CauseOf(FeedOf(StatementLineOf("pelnar-keys 2\n"))), 771);
    EXPECT_EQ(CauseOf(FeedOf(StatementLineOf(good, 7))), 772) << "a signing key is no root key";
    StatementText other = good;
    other.bundles = {"com.example.other"};
    EXPECT_EQ(CauseOf(FeedOf(StatementLineOf(other))), 773);
    StatementText older = good;
    older.serial = "2";
    EXPECT_EQ(CauseOf(FeedOf(StatementLineOf(older))), 774);
    StatementText old = good;
    old.expires = "2026-11-22T12:00:00Z";
    EXPECT_EQ(CauseOf(FeedOf(StatementLineOf(old))), 775);
    KeyTrust garbage = Trust();
    garbage.rootKey = "garbage";
    EXPECT_EQ(CauseOf(FeedOf(StatementLineOf(good)), garbage), 776);
}

TEST(FeedRecordUnderKeys, ASerialThatARevokedKeySignedCountsNoMore)
{
    FeedRecord record;
    record.serial = 900;
    record.serialSigner = "21fe31dfa154a261";
    record.keySerial = 2;
    FeedRecord const kept = UnderKeys(record, {{}, 5, {"0000000000000000"}});
    EXPECT_EQ(kept.serial, 900);
    EXPECT_EQ(kept.keySerial, 5);
    FeedRecord const dropped = UnderKeys(record, {{}, 5, {"21fe31dfa154a261"}});
    EXPECT_EQ(dropped.serial, 0);
    EXPECT_EQ(dropped.serialSigner, "");
    EXPECT_EQ(FeedRecordToKeep(record, dropped).serial, 0) << "stored before the key was revoked";
    EXPECT_EQ(FeedRecordToKeep(dropped, record).serial, 0) << "another process that still believes the key";
}
