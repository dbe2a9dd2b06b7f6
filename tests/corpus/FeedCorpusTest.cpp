// FeedCorpusTest.cpp: published feeds of other people, and the choice that the shipped updater must make in each.
// The environment variable PELNAR_FEED_CORPUS names the folder. It contains the feeds, and expected-choices.tsv with
// the columns file, local, system, outcome, version, delta_from, length, url.
// The updater asks for the system's version once in a process, so one child process makes all choices for one system
// version.

#include "Engine/core/feed/FeedParser.h"
#include "HostFramework/Reference/ReferenceOSVersion.h"
#include "HostFramework/VersionText.h"
#include "tests/corpus/ShippedChoice.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSet>

namespace Pelnar::Testing
{
namespace
{

char const* const FOLDER_VARIABLE = "PELNAR_FEED_CORPUS";
char const* const SYSTEM_VARIABLE = "PELNAR_FEED_CORPUS_SYSTEM";

char const* const CHOICES_ON_SYSTEM = " choices on system "; ///< in the last line of the child, after their number

struct Row
{
    QString file;
    QString localVersion;
    QString systemVersion;
    QString outcome;
    QString answer; ///< version, delta_from, length and url, with tabs between them
};

QByteArray ContentOf(QString const& name)
{
    QFile file(QDir(qEnvironmentVariable(FOLDER_VARIABLE)).filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    return file.readAll();
}

std::vector<Row> ReadRows()
{
    std::vector<Row> rows;
    QStringList lines = QString::fromUtf8(ContentOf(QStringLiteral("expected-choices.tsv"))).split(QLatin1Char('\n'));
    EXPECT_EQ(lines.takeFirst().toStdString(), "file\tlocal\tsystem\toutcome\tversion\tdelta_from\tlength\turl");
    for (QString const& line : lines)
    {
        QStringList const columns = line.split(QLatin1Char('\t'));
        if (columns.size() == 8)
        {
            rows.push_back({columns[0], columns[1], columns[2], columns[3], columns.mid(4).join(QLatin1Char('\t'))});
        }
        else
        {
            EXPECT_TRUE(line.isEmpty()) << line.toStdString();
        }
    }
    return rows;
}

Engine::FeedParseResult ParseFile(QString const& name)
{
    return Engine::ParseFeed(ContentOf(name), QUrl(QStringLiteral("https://feeds.example.com/appcast.xml")),
                             Engine::FeedPlatform::MacOS);
}

void ExpectChoice(Row const& row, Engine::FeedParseResult const& feed)
{
    SCOPED_TRACE(row.file.toStdString() + ", local " + row.localVersion.toStdString());
    EXPECT_TRUE(feed.has_value()) << feed.error().sentence.English().toStdString();
    Core::Version const localVersion = Util::VersionFromString(row.localVersion, QStringLiteral("."));
    std::optional<ShippedChoice> const choice = ChooseFromFeed(feed.value().items, localVersion);
    QStringList const answer =
        choice ? QStringList{choice->version, choice->deltaFrom, QString::number(choice->length), choice->url}
               : QStringList{QString(), QString(), QString(), QString()};
    EXPECT_EQ(choice ? "chosen" : "none", row.outcome.toStdString());
    EXPECT_EQ(answer.join(QLatin1Char('\t')).toStdString(), row.answer.toStdString());
}

bool IsChoice(Row const& row)
{
    return row.outcome == QLatin1String("chosen") || row.outcome == QLatin1String("none");
}

class FeedCorpus : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (qEnvironmentVariableIsEmpty(FOLDER_VARIABLE))
        {
            GTEST_SKIP() << FOLDER_VARIABLE << " names no folder of feeds";
        }
    }
};

using FeedCorpusOfOneSystem = FeedCorpus; ///< run by FeedCorpus, in a process of its own

} // namespace

TEST_F(FeedCorpusOfOneSystem, TheShippedUpdaterMakesEveryChoice)
{
    QString const system = qEnvironmentVariable(SYSTEM_VARIABLE);
    Util::SetOSVersion(system);
    QString parsedFile;
    Engine::FeedParseResult feed;
    int choices = 0;
    for (Row const& row : ReadRows())
    {
        if (!IsChoice(row) || row.systemVersion != system)
        {
            continue;
        }
        if (row.file != parsedFile)
        {
            feed = ParseFile(row.file);
            parsedFile = row.file;
        }
        ExpectChoice(row, feed);
        ++choices;
    }
    EXPECT_GT(choices, 0);
    std::printf("%d%s%s\n", choices, CHOICES_ON_SYSTEM, system.toStdString().c_str());
}

TEST_F(FeedCorpus, EveryChoiceOnEverySystemAgrees)
{
    QSet<QString> systems;
    for (Row const& row : ReadRows())
    {
        EXPECT_TRUE(IsChoice(row) || row.outcome == QLatin1String("malformed") ||
                    row.outcome == QLatin1String("skipped"))
            << row.outcome.toStdString();
        if (IsChoice(row))
        {
            systems.insert(row.systemVersion);
        }
    }
    EXPECT_FALSE(systems.isEmpty());
    for (QString const& system : systems)
    {
        QProcess child;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QLatin1String(SYSTEM_VARIABLE), system);
        child.setProcessEnvironment(environment);
        child.setProcessChannelMode(QProcess::MergedChannels);
        child.start(QFile::symLinkTarget(QStringLiteral("/proc/self/exe")),
                    {QStringLiteral("--gtest_filter=FeedCorpusOfOneSystem.*")});
        ASSERT_TRUE(child.waitForFinished(-1));
        QByteArray const output = child.readAll();
        EXPECT_TRUE(child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0) << output.toStdString();
        int const summary = output.indexOf(CHOICES_ON_SYSTEM + system.toUtf8());
        EXPECT_GE(summary, 0) << output.toStdString();
        int const line = output.lastIndexOf('\n', summary) + 1;
        std::printf("%s\n", output.mid(line, output.indexOf('\n', line) - line).constData());
    }
}

TEST_F(FeedCorpus, MalformedFeedsAreErrorsAndTheOthersAreNot)
{
    int malformed = 0;
    QSet<QString> files;
    for (Row const& row : ReadRows())
    {
        if (files.contains(row.file))
        {
            continue;
        }
        files.insert(row.file);
        Engine::FeedParseResult const feed = ParseFile(row.file);
        bool const isMalformed = row.outcome == QLatin1String("malformed");
        malformed += isMalformed ? 1 : 0;
        EXPECT_EQ(feed ? Engine::ErrorCause::NoUpdate : feed.error().cause,
                  isMalformed ? Engine::ErrorCause::FeedMalformed : Engine::ErrorCause::NoUpdate)
            << row.file.toStdString();
    }
    std::printf("%d feeds, %d of them malformed\n", int(files.size()), malformed);
}

} // namespace Pelnar::Testing
