// ExplainCorpusTest.cpp: published feeds of other people, judged by the built program. Every answer is the expected
// one.
// The environment variable PELNAR_FEED_CORPUS names the folder. It contains the feeds, and expected-choices.tsv with
// the columns file, local, system, outcome, version, delta_from, length, url.

#include "tests/publisher/support/AppcastTool.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonObject>

namespace Pelnar::Testing
{
namespace
{

char const* const FOLDER_VARIABLE = "PELNAR_FEED_CORPUS";

ToolRun Explain(QString const& file, QString const& localVersion, QString const& systemVersion)
{
    return RunTool({QStringLiteral("explain"), QDir(qEnvironmentVariable(FOLDER_VARIABLE)).filePath(file),
                    QStringLiteral("--local-version"), localVersion, QStringLiteral("--system-version"), systemVersion,
                    QStringLiteral("--platform"), QStringLiteral("macos"), QStringLiteral("--published-at"),
                    QStringLiteral("https://feeds.example.com/appcast.xml"), QStringLiteral("--json"),
                    // The table contains the choice among all items of a feed.
                    QStringLiteral("--machine"), QStringLiteral("any"), QStringLiteral("--channels"),
                    QStringLiteral("beta,prerelease")});
}

/// Outcome, version, delta_from, length and url, with tabs between them.
QString AnswerOf(ToolRun const& run)
{
    QJsonValue const chosen = run.Json().value(QStringLiteral("chosen"));
    if (chosen.isNull())
    {
        return QStringLiteral("none\t\t\t\t");
    }
    return QStringList{QStringLiteral("chosen"), chosen[QStringLiteral("version")].toString(),
                       chosen[QStringLiteral("deltaFrom")].toString(),
                       QString::number(quint64(chosen[QStringLiteral("length")].toDouble())),
                       chosen[QStringLiteral("url")].toString()}
        .join(QLatin1Char('\t'));
}

class ExplainCorpus : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (qEnvironmentVariableIsEmpty(FOLDER_VARIABLE))
        {
            GTEST_SKIP() << FOLDER_VARIABLE << " names no folder of feeds";
        }
    }

private:
    int m_argumentCount = 0;
    QCoreApplication m_application{m_argumentCount, nullptr};
};

} // namespace

TEST_F(ExplainCorpus, EveryAnswerIsTheExpectedOne)
{
    QFile table(QDir(qEnvironmentVariable(FOLDER_VARIABLE)).filePath(QStringLiteral("expected-choices.tsv")));
    ASSERT_TRUE(table.open(QIODevice::ReadOnly)) << table.fileName().toStdString();
    ASSERT_EQ(table.readLine().toStdString(), "file\tlocal\tsystem\toutcome\tversion\tdelta_from\tlength\turl\n");
    int choices = 0;
    int malformed = 0;
    while (!table.atEnd())
    {
        QString line = QString::fromUtf8(table.readLine());
        line.chop(line.endsWith(QLatin1Char('\n')) ? 1 : 0);
        QStringList const columns = line.split(QLatin1Char('\t'));
        ASSERT_EQ(columns.size(), 8) << line.toStdString();
        SCOPED_TRACE(line.toStdString());
        if (columns[3] == QLatin1String("malformed"))
        {
            ToolRun const run = Explain(columns[0], QStringLiteral("1"), QStringLiteral("1"));
            EXPECT_EQ(run.status, 2);
            EXPECT_EQ(run.out, "");
            ++malformed;
        }
        else if (columns[3] != QLatin1String("skipped"))
        {
            ToolRun const run = Explain(columns[0], columns[1], columns[2]);
            EXPECT_EQ(run.status, 0) << run.err;
            EXPECT_EQ(AnswerOf(run).toStdString(), columns.mid(3).join(QLatin1Char('\t')).toStdString());
            ++choices;
        }
    }
    EXPECT_GT(choices, 0);
    std::printf("%d choices, %d malformed feeds\n", choices, malformed);
}

} // namespace Pelnar::Testing
