// LintRuleTest.cpp: each rule finds its fault at the right place, and nothing else. The document lists every rule.

#include "Publisher/lint/LintSubject.h"
#include "tests/publisher/lint/LintCase.h"

#include <gtest/gtest.h>

#include <QFile>

#include <set>

namespace Pelnar::Testing
{
namespace
{

using Publisher::LintFinding;

std::vector<LintFinding> FindingsOf(QByteArray const& feed)
{
    return Publisher::LintFeed(feed, QUrl(QStringLiteral("https://feeds.example.com/appcast.xml"))).findings;
}

std::string TextOf(LintFinding const& finding)
{
    return std::string(Publisher::EntryOf(finding.rule).name) + " " + std::to_string(finding.place.line) + ":" +
           std::to_string(finding.place.column) + " " + finding.what.toStdString();
}

class LintRules : public ::testing::TestWithParam<LintCase>
{
};

} // namespace

TEST_P(LintRules, FindsThisAndNothingElse)
{
    std::vector<LintFinding> const findings = FindingsOf(GetParam().feed);
    std::string found;
    for (LintFinding const& finding : findings)
    {
        found += TextOf(finding) + "\n";
    }
    ASSERT_EQ(findings.size(), GetParam().finding.empty() ? 0u : 1u) << found;
    // The parser or the filter of the notes may add words.
    EXPECT_EQ(found.substr(0, GetParam().finding.size()), GetParam().finding);
}

INSTANTIATE_TEST_SUITE_P(, LintRules, ::testing::ValuesIn(LintCases()), [](auto const& row) { return row.param.name; });

TEST(LintRuleTable, EveryRuleHasATest)
{
    std::set<std::string> tested = {"archive-unreachable",
                                    "archive-length",
                                    "archive-signature", // by the fetch test
                                    "feed-unsigned",
                                    "feed-signature-unreadable",
                                    "feed-signature-wrong",
                                    "feed-serial",
                                    "feed-expires",
                                    "feed-expired",
                                    "feed-expires-soon", // by the signature test
                                    "serial-lower",
                                    "key-statement-missing",
                                    "key-statement-unreadable",
                                    "key-statement-wrong",
                                    "key-statement-expired",
                                    "key-statement-expires-soon",
                                    "key-not-valid",
                                    "key-revoked",
                                    "key-unused", // by the test of key statements
                                    "archive-version",
                                    "notes-unreachable"}; // by the fetch test
    for (LintCase const& row : LintCases())
    {
        tested.insert(row.finding.substr(0, row.finding.find(' ')));
    }
    for (Publisher::LintRuleEntry const& entry : Publisher::LintRules())
    {
        EXPECT_EQ(tested.count(entry.name), 1u) << entry.name;
    }
}

TEST(LintRuleTable, EveryRuleHasANameOfItsOwnASentenceAndAMend)
{
    std::set<std::string> names;
    for (Publisher::LintRuleEntry const& entry : Publisher::LintRules())
    {
        EXPECT_TRUE(names.insert(entry.name).second) << entry.name;
        EXPECT_EQ(std::string(entry.what).back(), '.') << entry.name;
        EXPECT_NE(std::string(entry.mend).back(), '.') << entry.name;
        EXPECT_EQ(&Publisher::EntryOf(entry.rule), &entry);
    }
}

TEST(LintRuleTable, TheDocumentIsMadeFromTheCode)
{
    QFile document(QStringLiteral(PELNAR_LINT_RULES_DOCUMENT));
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    EXPECT_EQ(document.readAll().toStdString(), Publisher::LintRulesAsMarkdown().toStdString())
        << "make it again: pelnar-appcast lint --rules > docs/lint-rules.md";
}

TEST(LintFeed, AFeedAtAnInsecureAddressIsAFinding)
{
    auto const findings =
        Publisher::LintFeed(FeedOf(""), QUrl(QStringLiteral("http://feeds.example.com/appcast.xml"))).findings;
    ASSERT_EQ(findings.size(), 2u);
    EXPECT_EQ(TextOf(findings[1]), "address-insecure 1:1 the feed is at http://feeds.example.com/appcast.xml");
}

TEST(LintFeed, ReadsOtherEncodingsWithTheirPlaces)
{
    QString const text = QString::fromUtf8(FeedOf("<item>\n  <pelnar2_A/></item>"));
    QByteArray utf16("\xFF\xFE", 2);
    utf16.append(reinterpret_cast<char const*>(text.utf16()), text.size() * 2);
    bool isFound = false;
    for (LintFinding const& finding : FindingsOf(utf16))
    {
        isFound = isFound || TextOf(finding) == "extension-prefix 3:3 pelnar2_A does not begin with pelnar1_";
    }
    EXPECT_TRUE(isFound);
}

} // namespace Pelnar::Testing
