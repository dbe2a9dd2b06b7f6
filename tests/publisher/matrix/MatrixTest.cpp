// MatrixTest.cpp: `pelnar-appcast matrix`: which client gets which version, which clients get no update, and the exit
// status for a publisher's CI.

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

/// 5.2 for systems from 12, with a delta from 5.1; 5.1 for systems up to 11.
char const* const FEED = R"(<rss xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel>
<item><sparkle:minimumSystemVersion>12</sparkle:minimumSystemVersion>
  <enclosure url="https://dl.example.com/5.2.zip" length="20" sparkle:version="5.2"/>
  <sparkle:deltas><enclosure url="https://dl.example.com/d" length="3" sparkle:deltaFrom="5.1"/></sparkle:deltas></item>
<item><sparkle:maximumSystemVersion>11</sparkle:maximumSystemVersion>
  <enclosure url="https://dl.example.com/5.1.zip" length="19" sparkle:version="5.1"/></item>
</channel></rss>)";

QStringList Line(QStringList const& more)
{
    return QStringList{QStringLiteral("matrix"), QStringLiteral("-")} + more;
}

QStringList Of(char const* versions, char const* systems)
{
    return Line(
        {QStringLiteral("--versions"), QLatin1String(versions), QStringLiteral("--systems"), QLatin1String(systems)});
}

class MatrixGate : public ::testing::Test
{
protected:
    /// Saves the current output of the tool.
    QString Expectation(QByteArray const& feed)
    {
        ToolRun const run = RunTool(Of("5.0,5.1", "11,12") + QStringList(QStringLiteral("--json")), feed);
        QFile file(m_folder.filePath(QStringLiteral("expected.json")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(run.out));
        return file.fileName();
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST(Matrix, IsATableOfVersionsAndSystems)
{
    ToolRun const run = RunAppcastProgram(Of("5.0,5.1,5.2", "11, 11.5, 12, unknown"), FEED);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, "installed  on 11       on 11.5  on 12               on unknown\n"
                       "5.0        5.1 BUNDLE  none     5.2 BUNDLE          5.2 BUNDLE\n"
                       "5.1        none        none     5.2 DELTA from 5.1  5.2 DELTA from 5.1\n"
                       "5.2        none        none     none                none\n"
                       "stranded on 11.5: 5.0\n"
                       "stranded on 11, 11.5: 5.1\n");
}

TEST(Matrix, TakesTheVersionsOfTheFeedOldestFirst)
{
    QByteArray feed = FEED;
    feed.replace("\"5.1\"/></item>", "\"5.1.0\"/></item>");
    ToolRun const run = RunTool(Of("from-feed", "12"), feed);
    EXPECT_EQ(run.out, "installed  on 12\n5.1        5.2 DELTA from 5.1\n5.2        none\n");
}

TEST(Matrix, NamesVersionsThatNobodyCanLeave)
{
    ToolRun const run = RunTool(Of("5.1,5.2", "10,11"), FEED);
    EXPECT_NE(run.out.find("stranded on every system: 5.1\n"), std::string::npos) << run.out;
    // The newest version has no update.
    EXPECT_EQ(run.out.find("5.2\n"), std::string::npos) << run.out;
}

TEST(Matrix, WithdrawnVersionSaysWhereItsPeopleGo)
{
    QByteArray const feed =
        "<rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle' "
        "xmlns:p='https://pelnar.example/xml-namespaces/appcast'>"
        "<item><enclosure url='https://a.example/3.zip' length='3' sparkle:version='5.3'/>"
        "<sparkle:minimumSystemVersion>12</sparkle:minimumSystemVersion></item>"
        "<item><p:withdrawn/><enclosure url='https://a.example/2.zip' length='3' sparkle:version='5.2'/></item>"
        "<item><enclosure url='https://a.example/1.zip' length='3' sparkle:version='5.1'/></item></rss>";
    ToolRun const run = RunTool(Of("from-feed", "11,12"), feed);
    EXPECT_NE(run.out.find("withdrawn 5.2: clients that have it get none, 5.3 BUNDLE\n"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("5.1        none   5.3 BUNDLE"), std::string::npos) << run.out;
    QJsonArray const withdrawn = RunTool(Of("from-feed", "11,12") + QStringList(QStringLiteral("--json")), feed)
                                     .Json()[QStringLiteral("withdrawn")]
                                     .toArray();
    EXPECT_EQ(withdrawn, (QJsonArray{QJsonObject{{QStringLiteral("version"), QStringLiteral("5.2")},
                                                 {QStringLiteral("next"),
                                                  QJsonArray{QStringLiteral("none"), QStringLiteral("5.3 BUNDLE")}}}}));
}

TEST(Matrix, TheJsonHasTheDocumentedMembers)
{
    QJsonObject const object =
        RunTool(Of("5.1", "11,12") + QStringList{QStringLiteral("--json"), QStringLiteral("--machine"),
                                                 QStringLiteral("aarch64"), QStringLiteral("--channels"),
                                                 QStringLiteral("beta, rc"), QStringLiteral("--rollout-group"),
                                                 QStringLiteral("7")},
                FEED)
            .Json();
    EXPECT_EQ(
        object,
        (QJsonObject{
            {QStringLiteral("feed"), QStringLiteral("<stdin>")},
            {QStringLiteral("platform"), QStringLiteral("linux")},
            {QStringLiteral("machine"), QStringLiteral("aarch64")},
            {QStringLiteral("channels"), QJsonArray{QStringLiteral("beta"), QStringLiteral("rc")}},
            {QStringLiteral("rolloutGroup"), 7},
            {QStringLiteral("withdrawn"), QJsonArray()},
            {QStringLiteral("versions"), QJsonArray{QStringLiteral("5.1")}},
            {QStringLiteral("systems"), QJsonArray{QStringLiteral("11"), QStringLiteral("12")}},
            {QStringLiteral("cells"),
             QJsonArray{QJsonObject{{QStringLiteral("localVersion"), QStringLiteral("5.1")},
                                    {QStringLiteral("systemVersion"), QStringLiteral("11")},
                                    {QStringLiteral("offered"), QJsonValue()}},
                        QJsonObject{{QStringLiteral("localVersion"), QStringLiteral("5.1")},
                                    {QStringLiteral("systemVersion"), QStringLiteral("12")},
                                    {QStringLiteral("offered"),
                                     QJsonObject{{QStringLiteral("version"), QStringLiteral("5.2")},
                                                 {QStringLiteral("updateType"), QStringLiteral("DELTA")},
                                                 {QStringLiteral("deltaFrom"), QStringLiteral("5.1")},
                                                 {QStringLiteral("url"), QStringLiteral("https://dl.example.com/d")},
                                                 {QStringLiteral("length"), 3}}}}}},
            {QStringLiteral("stranded"),
             QJsonArray{QJsonObject{{QStringLiteral("version"), QStringLiteral("5.1")},
                                    {QStringLiteral("systems"), QJsonArray{QStringLiteral("11")}},
                                    {QStringLiteral("everywhere"), false}}}},
        }));
}

TEST_F(MatrixGate, PassesTheExpectedMatrixForAnyAddress)
{
    QString const expectation = Expectation(FEED);
    QByteArray moved = FEED;
    moved.replace("dl.example.com", "cdn.example.com").replace("length=\"20\"", "length=\"21\"");
    ToolRun const run = RunAppcastProgram(Line({QStringLiteral("--expect"), expectation}), moved);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_NE(run.out.find("5.1        none        5.2 DELTA from 5.1\n"), std::string::npos) << run.out;
}

TEST_F(MatrixGate, FailsWhereAnOutcomeDiffers)
{
    QString const expectation = Expectation(FEED);
    QByteArray changed = FEED;
    changed.replace("deltaFrom=\"5.1\"", "deltaFrom=\"4.9\"");
    ToolRun const run = RunTool(Line({QStringLiteral("--expect"), expectation}), changed);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "not as expected: 5.1 on 12: 5.2 BUNDLE, expected 5.2 DELTA from 5.1\n");
}

/// The clients of a version that is gone from the feed still exist.
TEST_F(MatrixGate, ExpectedVersionsThatTheFeedNoLongerNamesAreCompared)
{
    QString const expectation = Expectation(FEED);
    QByteArray changed = FEED;
    changed.replace("<sparkle:maximumSystemVersion>11", "<sparkle:maximumSystemVersion>10");
    ToolRun const run =
        RunTool(Of("from-feed", "11,12") + QStringList{QStringLiteral("--expect"), expectation}, changed);
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("5.0 on 11: none, expected 5.1 BUNDLE\n"), std::string::npos) << run.err;
}

TEST_F(MatrixGate, FailsWhereNothingWasExpected)
{
    ToolRun const run = RunTool(Of("5.0", "10") + QStringList{QStringLiteral("--expect"), Expectation(FEED)}, FEED);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "not as expected: 5.0 on 10: 5.1 BUNDLE, but the expectation has no such cell\n");
}

TEST_F(MatrixGate, RefusesAFileOfAnotherKind)
{
    QTemporaryDir folder;
    QString const path = folder.filePath(QStringLiteral("other.json"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{\"cells\": [{\"localVersion\": \"5.x\"}]}");
    file.close();
    for (QString const& name : {path, QStringLiteral("/nowhere/expected.json")})
    {
        ToolRun const run = RunTool(Line({QStringLiteral("--expect"), name}), FEED);
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.err.find("error: " + name.toStdString() + ": "), 0u) << run.err;
    }
}

TEST_F(MatrixGate, ThatComparesNothingIsRefused)
{
    QByteArray const empty = "<rss><channel></channel></rss>";
    ToolRun const ofNothing =
        RunTool(Of("from-feed", "11,12") + QStringList{QStringLiteral("--expect"), Expectation(FEED)}, empty);
    EXPECT_EQ(ofNothing.status, 2);
    EXPECT_NE(ofNothing.err.find("names no version"), std::string::npos) << ofNothing.err;

    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("expected.json")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{\"cells\": []}");
    file.close();
    ToolRun const byNothing = RunTool(Line({QStringLiteral("--expect"), file.fileName()}), FEED);
    EXPECT_EQ(byNothing.status, 2);
    EXPECT_EQ(byNothing.err.find("error: " + file.fileName().toStdString() + ": "), 0u) << byNothing.err;
}

TEST(Matrix, BadArgumentsAreRefused)
{
    EXPECT_EQ(RunTool(Line({}), FEED).err,
              "error: --versions and --systems are required without --expect; see pelnar-appcast matrix --help\n");
    EXPECT_EQ(RunTool(Of("5.0,,5.1", "12"), FEED).status, 2);
    EXPECT_EQ(RunTool(Of("5.0", "twelve"), FEED).err,
              "error: --systems: \"twelve\" is not a version; give one to four numbers separated by dots, such as "
              "5.1.2\n");
}

TEST_F(MatrixGate, NamesEveryDeltaThatMayBeTaken)
{
    QByteArray const two = QByteArray(FEED).replace(
        "</sparkle:deltas>",
        "<enclosure url='https://dl.example.com/e' length='3' sparkle:deltaFrom='5.1.0'/></sparkle:deltas>");
    ToolRun const run = RunTool(Of("5.1", "12"), two);
    EXPECT_NE(run.out.find("5.2 DELTA from 5.1 or from 5.1.0"), std::string::npos) << run.out;
    QString const expectation = Expectation(two);
    EXPECT_EQ(RunTool(Line({QStringLiteral("--expect"), expectation}), two).status, 0);
    ToolRun const other = RunTool(Line({QStringLiteral("--expect"), expectation}), FEED);
    EXPECT_EQ(other.status, 1);
    EXPECT_NE(other.err.find("5.1 on 12: 5.2 DELTA from 5.1, expected 5.2 DELTA from 5.1 or from 5.1.0"),
              std::string::npos)
        << other.err;
}

TEST(Matrix, ExpectationThatIsNoPlainFileIsRefused)
{
    for (char const* const name : {"/dev/zero", "/proc/version", "/"})
    {
        ToolRun const run = RunTool(Line({QStringLiteral("--expect"), QString::fromLatin1(name)}), FEED);
        EXPECT_EQ(run.status, 2) << name;
        EXPECT_NE(run.err.find(std::string("error: ") + name + ": "), std::string::npos) << run.err;
    }
}

} // namespace Pelnar::Testing
