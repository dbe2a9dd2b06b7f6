// ExplainOutputTest.cpp: `pelnar-appcast explain` from the command line: its text and its JSON.

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
  valid: lost to the delta from 5.1: kind, DELTA is preferred to BUNDLE
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

TEST(ExplainOutput, SaysThatNoRuleDefinesTheOrderOfDeltasOfOneStart)
{
    QByteArray const feed = R"(<rss xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel>
<item><enclosure url="https://dl.example.com/5.2.zip" length="2000" sparkle:version="5.2"/>
<sparkle:deltas><enclosure url="https://dl.example.com/b" length="300" sparkle:deltaFrom="5.1.0"/>
<enclosure url="https://dl.example.com/a" length="300" sparkle:deltaFrom="5.1"/></sparkle:deltas></item>
</channel></rss>)";
    ToolRun const run = RunTool(Line({}), feed);
    EXPECT_EQ(run.out, R"(<stdin>: 1 item for macos
item 0: 5.2  BUNDLE  2000 bytes
  valid: lost to the delta from 5.1.0: kind, DELTA is preferred to BUNDLE
  https://dl.example.com/5.2.zip
  delta 0, from 5.1.0: 5.2  DELTA  300 bytes
    valid: may be chosen, or the delta from 5.1: no rule defines the order of these deltas
    https://dl.example.com/b
  delta 1, from 5.1: 5.2  DELTA  300 bytes
    valid: chosen, or the delta from 5.1.0: no rule defines the order of these deltas
    https://dl.example.com/a
5.1 on system 12 is offered: 5.2 as DELTA, the delta from 5.1 or from 5.1.0 of item 0, as their order decides, which no rule defines
)");
    QJsonObject const chosen =
        RunTool(Line({QStringLiteral("--json")}), feed).Json().value(QStringLiteral("chosen")).toObject();
    EXPECT_EQ(chosen.value(QStringLiteral("deltaFrom")).toString(), QStringLiteral("5.1"));
    QJsonArray const rivals = chosen.value(QStringLiteral("rivals")).toArray();
    ASSERT_EQ(rivals.size(), 1);
    EXPECT_EQ(rivals.at(0).toObject().value(QStringLiteral("deltaFrom")).toString(), QStringLiteral("5.1.0"));
    EXPECT_EQ(rivals.at(0).toObject().value(QStringLiteral("url")).toString(),
              QStringLiteral("https://dl.example.com/b"));
}

TEST(ExplainOutput, AsksWhatAClientTakesThatTrustsTheseKeys)
{
    // Points of the curve with a short encoding.
    QString const one = QString::fromLatin1(QByteArray(32, 6).toBase64());
    QString const two = QString::fromLatin1(QByteArray(32, 25).toBase64());
    QStringList const both = Line({QStringLiteral("--public-key"), one, QStringLiteral("--public-key"), two});
    QJsonArray const ids = RunTool(both + QStringList(QStringLiteral("--json")), FEED)
                               .Json()
                               .value(QStringLiteral("trustedKeys"))
                               .toArray();
    ASSERT_EQ(ids.size(), 2);
    QByteArray const keys = "<p:keys xmlns:p='https://pelnar.example/xml-namespaces/appcast' signer='" +
                            ids.at(1).toString().toLatin1() + "'/>";
    QByteArray const feed = QByteArray(FEED)
                                .replace("<title>Pelnar 5.2", keys + "<title>Pelnar 5.2")
                                .replace("<enclosure", "<enclosure sparkle:edSignature='c2ln'");
    EXPECT_NE(RunTool(both, feed).out.find("is offered: 5.2"), std::string::npos);
    ToolRun const other = RunTool(Line({QStringLiteral("--public-key"), one}), feed);
    EXPECT_NE(other.out.find("key-not-trusted: signed by the key " + ids.at(1).toString().toStdString() +
                             ", trusted: " + ids.at(0).toString().toStdString()),
              std::string::npos)
        << other.out;
    EXPECT_NE(other.out.find("is offered: no update"), std::string::npos);
    ToolRun const bad = RunTool(Line({QStringLiteral("--public-key"), QStringLiteral("garbage")}), FEED);
    EXPECT_EQ(bad.status, 2);
    EXPECT_NE(bad.err.find("--public-key: \"garbage\" is not a public key"), std::string::npos) << bad.err;
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
    EXPECT_EQ(object.keys(),
              (QStringList{QStringLiteral("channels"), QStringLiteral("chosen"), QStringLiteral("feed"),
                           QStringLiteral("items"), QStringLiteral("localVersion"), QStringLiteral("machine"),
                           QStringLiteral("platform"), QStringLiteral("rolloutGroup"), QStringLiteral("systemVersion"),
                           QStringLiteral("trustedKeys")}));
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
    EXPECT_EQ(text.err,
              "error: --local-version: \"5.x\" is not a version; give one to four numbers separated by dots, such "
              "as 5.1.2\n");
}

} // namespace Pelnar::Testing
