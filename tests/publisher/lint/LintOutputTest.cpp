// LintOutputTest.cpp: `pelnar-appcast lint` as a person types and reads it, its JSON and its exit status.

#include "tests/publisher/lint/LintCase.h"
#include "tests/publisher/support/AppcastTool.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>

namespace Pelnar::Testing
{
namespace
{

QStringList Line(QStringList const& more = {})
{
    return QStringList{QStringLiteral("lint"), QStringLiteral("-")} + more;
}

QByteArray FeedOfCase(char const* name)
{
    for (LintCase const& row : LintCases())
    {
        if (row.name == name)
        {
            return row.feed;
        }
    }
    ADD_FAILURE() << name;
    return {};
}

} // namespace

TEST(LintOutput, AFindingIsOneLineWithPlaceRuleAndMend)
{
    ToolRun const run = RunAppcastProgram(Line(), FeedOfCase("LengthZero"));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out,
              "<stdin>:2:7: error: length-zero: the length of item 5.1 is \"0\"; give the file's size in bytes "
              "as length\n<stdin>: 1 error\n");
}

TEST(LintOutput, ACleanFeedIsSaidToBe)
{
    ToolRun const run = RunAppcastProgram(Line(), FeedOfCase("ADeltaPasses"));
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "<stdin>: clean\n");
}

TEST(LintOutput, NotesCountWhenStrict)
{
    EXPECT_EQ(RunTool(Line(), FeedOfCase("ExtensionPrefix")).status, 0);
    EXPECT_EQ(RunTool(Line({QStringLiteral("--strict")}), FeedOfCase("ExtensionPrefix")).status, 1);
    EXPECT_EQ(RunTool(Line(), FeedOfCase("VersionMixed")).status, 1);
}

TEST(LintOutput, AMalformedFeedIsAFindingWithItsPlace)
{
    ToolRun const run = RunTool(Line(), "<rss>\n<item></rss>");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out.find("<stdin>:2:13: error: malformed-xml: Opening and ending tag mismatch; mend the XML"), 0u)
        << run.out;
}

TEST(LintOutput, TheJsonHasTheDocumentedMembers)
{
    ToolRun const run = RunTool(Line({QStringLiteral("--json")}), FeedOfCase("LengthZero"));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.Json(), (QJsonObject{
                              {QStringLiteral("feed"), QStringLiteral("<stdin>")},
                              {QStringLiteral("errors"), 1},
                              {QStringLiteral("warnings"), 0},
                              {QStringLiteral("notes"), 0},
                              {QStringLiteral("findings"),
                               QJsonArray{QJsonObject{
                                   {QStringLiteral("rule"), QStringLiteral("length-zero")},
                                   {QStringLiteral("severity"), QStringLiteral("error")},
                                   {QStringLiteral("line"), 2},
                                   {QStringLiteral("column"), 7},
                                   {QStringLiteral("what"), QStringLiteral("the length of item 5.1 is \"0\"")},
                                   {QStringLiteral("mend"), QStringLiteral("give the file's size in bytes as length")},
                               }}},
                          }));
}

TEST(LintOutput, WhatCannotBeReadIsNoFinding)
{
    ToolRun const run = RunAppcastProgram({QStringLiteral("lint"), QStringLiteral("/nowhere/appcast.xml")});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err.find("error: /nowhere/appcast.xml: "), 0u) << run.err;
}

TEST(LintOutput, BadArgumentsAreRefused)
{
    EXPECT_EQ(RunTool({QStringLiteral("lint")}).err, "error: FEED is required; see pelnar-appcast lint --help\n");
    ToolRun const key =
        RunTool(Line({QStringLiteral("--fetch"), QStringLiteral("--public-key"), QStringLiteral("AAAA")}));
    EXPECT_EQ(key.status, 2);
    EXPECT_EQ(key.err,
              "error: --public-key: \"AAAA\" is no Ed25519 key; give the 32 bytes in base64 that pelnar-appcast "
              "keys show prints\n");
    EXPECT_EQ(RunTool(Line({QStringLiteral("--public-key"), QStringLiteral("AAAA")})).status, 2);
}

TEST(LintOutput, ListsItsRules)
{
    ToolRun const run = RunAppcastProgram({QStringLiteral("lint"), QStringLiteral("--rules")});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("\n| `length-zero` | error | "), std::string::npos) << run.out;
}

} // namespace Pelnar::Testing
