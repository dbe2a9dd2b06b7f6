// LintOutputTest.cpp: `pelnar-appcast lint` from the command line: its text, its JSON and its exit status.

#include "tests/installer/Ed25519Vectors.h"
#include "tests/publisher/lint/LintCase.h"
#include "tests/publisher/support/AppcastTool.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>

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

TEST(LintOutput, CleanFeedIsReportedAsClean)
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
    EXPECT_EQ(run.out.find("<stdin>:2:13: error: malformed-xml: Opening and ending tag mismatch; correct the XML"), 0u)
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
    EXPECT_EQ(key.err, "error: --public-key: \"AAAA\" is not a public key as \"keys show --format bare\" prints it: 32 "
                       "bytes in base64; see pelnar-appcast "
                       "lint --help\n");
    ToolRun const root = RunTool(Line({QStringLiteral("--root-public-key"), QStringLiteral("AAAA")}));
    EXPECT_EQ(root.status, 2);
    EXPECT_EQ(root.err.find("error: --root-public-key: \"AAAA\" is not"), 0u) << root.err;
    EXPECT_EQ(RunTool(Line({QStringLiteral("--public-key"), QStringLiteral("AAAA")})).status, 2);
}

TEST(LintOutput, FindingsOfOneRuleAreOneLine)
{
    QByteArray const item =
        "<item>\n<enclosure url='https://a.example/a.zip' sparkle:version='5.1' length='1'/></item>";
    QByteArray const feed = FeedOf(item + QByteArray(item).replace("5.1", "5.2").replace("a.zip", "b.zip"));
    ToolRun const run = RunTool(Line(), feed);
    EXPECT_EQ(run.out.find("<stdin>:3:1: error: signature-missing: item 5.1 has no sparkle:edSignature; "), 0u)
        << run.out;
    EXPECT_NE(run.out.find("\n    and in line 4\n<stdin>: 2 errors\n"), std::string::npos) << run.out;
    ToolRun const each = RunTool(Line({QStringLiteral("--each")}), feed);
    EXPECT_NE(each.out.find("<stdin>:4:1: error: signature-missing: item 5.2"), std::string::npos) << each.out;
}

TEST(LintOutput, SeveralFeedsInOneRun)
{
    QTemporaryDir folder;
    QStringList names;
    for (char const* const row : {"LengthZero", "ADeltaPasses"})
    {
        QFile file(folder.filePath(QLatin1String(row)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(FeedOfCase(row));
        names.append(file.fileName());
    }
    ToolRun const run = RunAppcastProgram(QStringList(QStringLiteral("lint")) + names);
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.out.find("LengthZero: 1 error\n"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("ADeltaPasses: clean\n"), std::string::npos) << run.out;
    ToolRun const json =
        RunAppcastProgram(QStringList(QStringLiteral("lint")) + names + QStringList(QStringLiteral("--json")));
    EXPECT_EQ(json.Json().value(QStringLiteral("feeds")).toArray().size(), 2);
}

TEST(LintOutput, KeyIsNotFollowedByAnother)
{
    QString const key = QString::fromStdString(MakeKeyPair(7).publicKey);
    QString const other = QString::fromStdString(MakeKeyPair(9).publicKey);
    ToolRun const run = RunTool({QStringLiteral("lint"), QStringLiteral("--public-key"), key,
                                 QStringLiteral("--public-key"), other, QStringLiteral("-")},
                                FeedOfCase("ADeltaPasses"));
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "<stdin>: clean\n");
}

TEST(LintOutput, BaselineTakesOutWhatIsKnownAndNoMore)
{
    QTemporaryDir folder;
    QFile baseline(folder.filePath(QStringLiteral("baseline.json")));
    ASSERT_TRUE(baseline.open(QIODevice::WriteOnly));
    baseline.write(QByteArray::fromStdString(RunTool(Line({QStringLiteral("--json")}), FeedOfCase("LengthZero")).out));
    baseline.close();
    QStringList const line = Line({QStringLiteral("--baseline"), baseline.fileName()});
    ToolRun const known = RunTool(line, "\n" + FeedOfCase("LengthZero"));
    EXPECT_EQ(known.status, 0) << "in another line" << known.out;
    EXPECT_EQ(known.out, "<stdin>: clean\n1 finding known from the baseline\n");
    EXPECT_EQ(RunTool(line, FeedOfCase("LengthMissing")).status, 1);
    QFile other(folder.filePath(QStringLiteral("other.json")));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.write("{}");
    other.close();
    EXPECT_EQ(RunTool(Line({QStringLiteral("--baseline"), other.fileName()}), FeedOfCase("LengthZero")).status, 2);
}

TEST(LintOutput, SarifNamesRuleFileAndPlace)
{
    ToolRun const run = RunTool(Line({QStringLiteral("--sarif")}), FeedOfCase("LengthZero"));
    EXPECT_EQ(run.status, 1);
    QJsonObject const log = run.Json();
    EXPECT_EQ(log.value(QStringLiteral("version")).toString().toStdString(), "2.1.0");
    QJsonObject const part = log.value(QStringLiteral("runs")).toArray().at(0).toObject();
    QJsonObject const result = part.value(QStringLiteral("results")).toArray().at(0).toObject();
    EXPECT_EQ(result.value(QStringLiteral("ruleId")).toString().toStdString(), "length-zero");
    EXPECT_EQ(result.value(QStringLiteral("level")).toString().toStdString(), "error");
    QJsonObject const place = result.value(QStringLiteral("locations"))
                                  .toArray()
                                  .at(0)
                                  .toObject()
                                  .value(QStringLiteral("physicalLocation"))
                                  .toObject();
    EXPECT_EQ(place.value(QStringLiteral("region")).toObject().value(QStringLiteral("startLine")).toInt(), 2);
}

TEST(LintOutput, SarifNamesAnyFileByAnAddress)
{
    QTemporaryDir folder;
    QFile feed(folder.filePath(QStringLiteral("my feed#1 100%.xml")));
    ASSERT_TRUE(feed.open(QIODevice::WriteOnly));
    feed.write(FeedOfCase("LengthZero"));
    feed.close();
    ToolRun const run = RunTool({QStringLiteral("lint"), feed.fileName(), QStringLiteral("--sarif")});
    EXPECT_NE(run.out.find("\"uri\": \"" + folder.path().toStdString() + "/my%20feed%231%20100%25.xml\""),
              std::string::npos)
        << run.out;
}

TEST(LintOutput, ListsItsRules)
{
    ToolRun const run = RunAppcastProgram({QStringLiteral("lint"), QStringLiteral("--rules")});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("\n| `length-zero` | error | "), std::string::npos) << run.out;
}

} // namespace Pelnar::Testing
