// LintKeyStatementTest.cpp: the findings about the root key's statement in a feed.

#include "Publisher/lint/KeyStatementRules.h"
#include "tests/engine/KeyStatementText.h"
#include "tests/publisher/support/AppcastTool.h"

#include "Engine/core/bundle/TrustedKeys.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <ostream>

namespace Pelnar::Testing
{
namespace
{

std::string IdOf(std::uint8_t seed)
{
    return Engine::KeyIdOf(MakeKeyPair(seed).publicKey);
}

/// An item of that version in line \a after the feed's first line. The feed names the key with that seed as its signer.
QByteArray Item(char const* version, std::uint8_t signer, QByteArray const& more = {})
{
    QByteArray const id = QByteArray::fromStdString(IdOf(signer));
    return QByteArray("<item>") + more + "<enclosure url='https://dl.example.com/" + version +
           ".zip' sparkle:os='linux' sparkle:version='" + version +
           "' length='1' sparkle:edSignature='x'/><p:keys signer='" + id + "'/></item>\n";
}

QByteArray FeedWith(QByteArray const& items)
{
    return "<rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle' "
           "xmlns:p='https://pelnar.example/xml-namespaces/appcast'><channel>\n" +
           items + "</channel></rss>\n";
}

StatementText Until(char const* expires)
{
    StatementText statement;
    statement.expires = expires;
    return statement;
}

StatementText Valid(std::vector<std::uint8_t> const& seeds, std::vector<std::string> const& revoked = {})
{
    StatementText statement;
    statement.validSeeds = seeds;
    statement.revoked = revoked;
    return statement;
}

struct StatementRow
{
    char const* name;
    QByteArray feed;
    std::string findings;     ///< "RULE LINE:COLUMN", with "; " between them
    int rootSeed = 0;         ///< of the given root key; 0 for none
    QByteArray previous = {}; ///< feed
};

std::ostream& operator<<(std::ostream& out, StatementRow const& row)
{
    return out << row.name;
}

class LintKeyStatement : public ::testing::TestWithParam<StatementRow>
{
};

QByteArray const FEED = FeedWith(Item("1.0", 7));
QByteArray const LINE = StatementLineOf(StatementText());
std::vector<std::string> const REVOKED = {IdOf(7)};

INSTANTIATE_TEST_SUITE_P(
    Rows, LintKeyStatement,
    ::testing::Values(
        StatementRow{"Good", FEED + LINE, "", ROOT_SEED}, StatementRow{"NoneUnasked", FEED, ""},
        StatementRow{"Missing", FEED, "key-statement-missing 1:1", ROOT_SEED},
        StatementRow{"OfAnotherRoot", FEED + LINE, "key-statement-wrong 4:1", 9},
        StatementRow{"Twice", FEED + LINE + LINE, "key-statement-unreadable 4:1"},
        StatementRow{"NotAlone", FEED + "  " + LINE, "key-statement-unreadable 4:3"},
        StatementRow{"BreaksARule", FEED + StatementLineOf(std::string("pelnar-keys 1\n")),
                     "key-statement-unreadable 4:1"},
        StatementRow{"Expired", FEED + StatementLineOf(Until("2026-11-20T09:00:00Z")), "key-statement-expired 4:1"},
        StatementRow{"ExpiresSoon", FEED + StatementLineOf(Until("2026-12-20T08:59:59Z")),
                     "key-statement-expires-soon 4:1"},
        StatementRow{"ExpiresInThirtyDays", FEED + StatementLineOf(Until("2026-12-20T09:00:00Z")), ""},
        StatementRow{"NewestByAnotherKey", FeedWith(Item("2.0", 8) + Item("1.0", 7)) + LINE, "key-not-valid 2:7"},
        StatementRow{"NewestByARevokedKey", FEED + StatementLineOf(Valid({8}, REVOKED)),
                     "key-not-valid 2:7; key-unused 4:1"},
        StatementRow{"OlderByARevokedKey",
                     FeedWith(Item("2.0", 8) + Item("1.0", 7)) + StatementLineOf(Valid({8}, REVOKED)),
                     "key-revoked 3:7"},
        StatementRow{"NewerOnlyInAChannel",
                     FeedWith(Item("2.0", 8, "<sparkle:channel>beta</sparkle:channel>") + Item("1.0", 7)) +
                         StatementLineOf(Valid({8}, REVOKED)),
                     "key-not-valid 3:7"},
        StatementRow{"NewerOneIsWithdrawn",
                     FeedWith(Item("2.0", 8, "<p:withdrawn/>") + Item("1.0", 7)) + StatementLineOf(Valid({8}, REVOKED)),
                     "key-not-valid 3:7"},
        StatementRow{"WithdrawnByARevokedKey",
                     FeedWith(Item("2.0", 7, "<p:withdrawn/>") + Item("1.0", 8)) + StatementLineOf(Valid({8}, REVOKED)),
                     ""},
        StatementRow{"OneInReserve", FEED + StatementLineOf(Valid({7, 8})), "key-unused 4:1"},
        StatementRow{"FeedSignedByAnotherKey", Signed(FeedWith(Item("1.0", 8)) + StatementLineOf(Valid({8}))),
                     "key-not-valid 5:1"},
        StatementRow{"SerialIsLower", FEED + LINE, "serial-lower 4:1", 0,
                     FEED + StatementLineOf(
                                []
                                {
                                    StatementText later;
                                    later.serial = "4";
                                    return later;
                                }())},
        StatementRow{"StatementIsGone", FEED, "serial-lower 1:1", 0, FEED + LINE},
        StatementRow{"SameSerial", FEED + LINE, "", 0, FEED + LINE}),
    [](auto const& row) { return row.param.name; });

TEST_P(LintKeyStatement, FindsThisAndNothingElse)
{
    Publisher::LintResult const lint =
        Publisher::LintFeed(GetParam().feed, QUrl(QStringLiteral("https://feeds.example.com/appcast.xml")));
    ASSERT_TRUE(lint.subject);
    std::vector<std::string> roots;
    if (GetParam().rootSeed != 0)
    {
        roots.push_back(MakeKeyPair(std::uint8_t(GetParam().rootSeed)).publicKey);
    }
    QDateTime const now(QDate(2026, 11, 20), QTime(9, 0), Qt::UTC);
    std::vector<Publisher::LintFinding> findings =
        Publisher::CheckKeyStatement(GetParam().feed, lint.subject.get(), {roots, GetParam().previous, now});
    for (Publisher::LintFinding const& finding : Publisher::CheckKeyUse(GetParam().feed, *lint.subject))
    {
        findings.push_back(finding);
    }
    std::string found;
    for (Publisher::LintFinding const& finding : findings)
    {
        found += std::string(found.empty() ? "" : "; ") + Publisher::EntryOf(finding.rule).name + " " +
                 std::to_string(finding.place.line) + ":" + std::to_string(finding.place.column);
        EXPECT_FALSE(finding.what.isEmpty());
    }
    EXPECT_EQ(found, GetParam().findings) << GetParam().feed.toStdString();
}

TEST(LintKeyStatementOutput, OptionsReachTheRules)
{
    QTemporaryDir folder;
    QString const path = folder.filePath(QStringLiteral("previous.xml"));
    QFile previous(path);
    ASSERT_TRUE(previous.open(QIODevice::WriteOnly));
    previous.write(FEED + LINE);
    previous.close();
    QStringList const lint{QStringLiteral("lint"), QStringLiteral("-")};
    QString const root = QString::fromStdString(MakeKeyPair(ROOT_SEED).publicKey);
    EXPECT_NE(RunAppcastProgram(lint + QStringList{QStringLiteral("--root-public-key"), root}, FEED)
                  .out.find("key-statement-missing"),
              std::string::npos);
    EXPECT_NE(RunAppcastProgram(lint + QStringList{QStringLiteral("--previous"), path}, FEED).out.find("serial-lower"),
              std::string::npos);
    EXPECT_EQ(
        RunAppcastProgram(lint + QStringList{QStringLiteral("--root-public-key"), QStringLiteral("garbage")}, FEED)
            .status,
        2);
    EXPECT_NE(RunAppcastProgram(lint, FEED + StatementLineOf(Valid({8}, REVOKED))).out.find("key-not-valid"),
              std::string::npos);
}

} // namespace
} // namespace Pelnar::Testing
