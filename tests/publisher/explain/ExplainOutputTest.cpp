// ExplainOutputTest.cpp: `pelnar-appcast explain` as a person types and reads it, and its JSON.

#include "tests/publisher/support/AppcastTool.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>

namespace Pelnar::Testing
{
namespace
{

char const* const FEED = R"(<rss xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel>
<item><title>Pelnar 5.2</title><pelnar1_Channel>stable</pelnar1_Channel>
  <enclosure url="https://dl.example.com/5.2.zip" length="2000" sparkle:version="5.2"/>
  <sparkle:deltas><enclosure url="https://dl.example.com/5.1-5.2.delta" length="300" sparkle:deltaFrom="5.1"/></sparkle:deltas>
</item>
<item><title>Pelnar 5.1</title>
  <enclosure url="https://dl.example.com/5.1.zip" length="1900" sparkle:version="5.1"/></item>
</channel></rss>)";

QStringList Line(QStringList const& more)
{
    return QStringList{QStringLiteral("explain"),          QStringLiteral("-"),
                       QStringLiteral("--local-version"),  QStringLiteral("5.1"),
                       QStringLiteral("--system-version"), QStringLiteral("12"),
                       QStringLiteral("--platform"),       QStringLiteral("macos")} +
           more;
}

} // namespace

TEST(ExplainOutput, ReadsAsOneParagraphAnItemAndTheAnswerAtTheEnd)
{
    ToolRun const run = RunAppcastProgram(Line({}), FEED);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, R"(<stdin>: 2 items for macos
item 0: 5.2  BUNDLE  2000 bytes  Pelnar 5.2
  valid: lost to the delta from 5.1: kind, DELTA is wanted before BUNDLE
  https://dl.example.com/5.2.zip
  PELNAR1_CHANNEL = stable
  delta 0, from 5.1: 5.2  DELTA  300 bytes
    valid: chosen
    https://dl.example.com/5.1-5.2.delta
    PELNAR1_CHANNEL = stable
item 1: 5.1  BUNDLE  1900 bytes  Pelnar 5.1
  version-equal: version 5.1 = installed 5.1
  https://dl.example.com/5.1.zip
5.1 on system 12 is offered: 5.2 as DELTA, the delta from 5.1 of item 0, 300 bytes
)");
}

TEST(ExplainOutput, SaysNoUpdate)
{
    ToolRun const run = RunTool(Line({}), "<rss/>");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "<stdin>: 0 items for macos\n5.1 on system 12 is offered: no update\n");
}

TEST(ExplainOutput, AnswersAfterADelta)
{
    ToolRun const run = RunTool(Line({QStringLiteral("--after-delta")}), FEED);
    EXPECT_NE(run.out.find("5.1 on system 12, after a delta answer, is offered: 5.2 as BUNDLE, item 0, 2000 bytes\n"),
              std::string::npos)
        << run.out;
}

TEST(ExplainOutput, TheJsonHasTheDocumentedMembers)
{
    ToolRun const run = RunTool(Line({QStringLiteral("--json")}), FEED);
    EXPECT_EQ(run.status, 0);
    QJsonObject const object = run.Json();
    EXPECT_EQ(object.keys(), (QStringList{QStringLiteral("channels"), QStringLiteral("chosen"), QStringLiteral("feed"),
                                          QStringLiteral("items"), QStringLiteral("localVersion"),
                                          QStringLiteral("machine"), QStringLiteral("platform"),
                                          QStringLiteral("rolloutGroup"), QStringLiteral("systemVersion")}));
    EXPECT_EQ(object[QStringLiteral("feed")], QStringLiteral("<stdin>"));
    EXPECT_EQ(object[QStringLiteral("localVersion")], QStringLiteral("5.1"));
    EXPECT_EQ(object[QStringLiteral("systemVersion")], QStringLiteral("12"));
    EXPECT_EQ(object[QStringLiteral("platform")], QStringLiteral("macos"));
    EXPECT_EQ(object[QStringLiteral("chosen")].toObject(),
              (QJsonObject{{QStringLiteral("index"), 0},
                           {QStringLiteral("deltaFrom"), QStringLiteral("5.1")},
                           {QStringLiteral("version"), QStringLiteral("5.2")},
                           {QStringLiteral("url"), QStringLiteral("https://dl.example.com/5.1-5.2.delta")},
                           {QStringLiteral("length"), 300},
                           {QStringLiteral("updateType"), QStringLiteral("DELTA")}}));
    QJsonArray const items = object[QStringLiteral("items")].toArray();
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(items[0].toObject()[QStringLiteral("extensions")].toObject(),
              (QJsonObject{{QStringLiteral("PELNAR1_CHANNEL"), QStringLiteral("stable")}}));
    EXPECT_EQ(items[0].toObject()[QStringLiteral("deltas")].toArray()[0].toObject()[QStringLiteral("verdict")],
              QStringLiteral("valid"));
    EXPECT_EQ(items[1].toObject(),
              (QJsonObject{{QStringLiteral("index"), 1},
                           {QStringLiteral("title"), QStringLiteral("Pelnar 5.1")},
                           {QStringLiteral("version"), QStringLiteral("5.1")},
                           {QStringLiteral("url"), QStringLiteral("https://dl.example.com/5.1.zip")},
                           {QStringLiteral("length"), 1900},
                           {QStringLiteral("updateType"), QStringLiteral("BUNDLE")},
                           {QStringLiteral("verdict"), QStringLiteral("version-equal")},
                           {QStringLiteral("detail"), QStringLiteral("version 5.1 = installed 5.1")},
                           {QStringLiteral("extensions"), QJsonObject()},
                           {QStringLiteral("deltas"), QJsonArray()}}));
}

TEST(ExplainOutput, NothingChosenIsNullInJson)
{
    QJsonObject const object = RunTool(Line({QStringLiteral("--json")}), "<rss/>").Json();
    EXPECT_TRUE(object[QStringLiteral("chosen")].isNull());
}

TEST(ExplainOutput, AMalformedFeedIsRefusedWithItsPlace)
{
    ToolRun const run = RunAppcastProgram(Line({}), "<rss>\n<item></rss>");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err.find("error: <stdin>:2:"), 0u) << run.err;
}

TEST(ExplainOutput, BadArgumentsAreRefusedWithTheirMend)
{
    ToolRun const version = RunAppcastProgram(Line({QStringLiteral("--local-version=5.x")}), FEED);
    EXPECT_EQ(version.status, 2);
    ToolRun const missing = RunAppcastProgram({QStringLiteral("explain"), QStringLiteral("-")}, FEED);
    EXPECT_EQ(missing.status, 2);
    EXPECT_EQ(missing.err, "error: --local-version is required; see pelnar-appcast explain --help\n");
    ToolRun const text = RunTool({QStringLiteral("explain"), QStringLiteral("-"), QStringLiteral("--local-version"),
                                  QStringLiteral("5.x"), QStringLiteral("--system-version"), QStringLiteral("1")});
    EXPECT_EQ(text.err, "error: --local-version: \"5.x\" is no version; give one to four numbers with dots between "
                        "them, such as 5.1.2\n");
}

} // namespace Pelnar::Testing
