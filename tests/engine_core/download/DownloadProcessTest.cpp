// DownloadProcessTest.cpp: downloads in processes of their own that are killed, find the disk full, or run at the same
// time.
#include "Engine/core/download/PartialRecord.h"
#include "tests/engine_core/download/ArchiveServer.h"
#include "tests/engine_core/download/DownloadHarness.h"
#include "tests/support/ProgramOutput.h"
#include "tests/support/Sanitizers.h"

#include <QProcess>
#include <QRegularExpression>

#include <cstdlib>
#include <utility>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr int KIBIBYTE = 1024;
constexpr int STEP = 64 * KIBIBYTE;

struct Report
{
    int cause = -1;
    long grownKibibytes = -1;
    QString all;
};

class DownloadProcessTest : public DownloadTest
{
protected:
    QStringList Arguments(QUrl const& url, quint64 declaredBytes) const
    {
        return {url.toString(), QString::number(declaredBytes), Folder()};
    }

    /// Runs \a wrapper (may be empty) with the probe, and reads the output of the probe.
    static Report Probe(QStringList const& wrapper, QStringList const& arguments)
    {
        Report report;
        report.all = OutputOf(wrapper + QStringList{QStringLiteral(PELNAR_DOWNLOAD_PROBE)} + arguments);
        QRegularExpressionMatch const match =
            QRegularExpression(QStringLiteral("cause=(\\d+) grown=(\\d+)")).match(report.all);
        if (match.hasMatch())
        {
            report.cause = match.captured(1).toInt();
            report.grownKibibytes = match.captured(2).toLong();
        }
        return report;
    }

    qint64 PartialSize() const
    {
        return Files(QStringLiteral(".archive")).isEmpty() ? 0 : QFileInfo(PartialPath()).size();
    }
};

TEST_F(DownloadProcessTest, KilledAgainAndAgainItLosesNothingThatArrived)
{
    int const points = std::getenv("PELNAR_EVERY_PLACE") ? 200 : 25;
    QByteArray const archive = MakeArchive(points * STEP + 1000);
    int given = 0;
    LoopbackServer server(
        [&](QSslSocket& socket, QByteArray const& request, int number)
        {
            QByteArray const answer = AnswerFor({archive}, request);
            int const headBytes = answer.indexOf("\r\n\r\n") + 4;
            int const start = RangeStart(request).value_or(0);
            EXPECT_EQ(start, given) << "a byte that had arrived is asked for again";
            given = number < points ? start + STEP : archive.size();
            // The connection stays open: only the kill ends the process.
            socket.write(answer.left(headBytes + given - start));
        });
    for (int point = 1; point <= points; ++point)
    {
        QProcess process;
        process.start(QStringLiteral(PELNAR_DOWNLOAD_PROBE),
                      Arguments(server.Url(), static_cast<quint64>(archive.size())));
        ASSERT_TRUE(WaitFor([&] { return PartialSize() == point * STEP; }, 30000)) << point;
        process.kill();
        ASSERT_TRUE(WaitFor([&process] { return process.state() == QProcess::NotRunning; }));
    }
    EXPECT_EQ(Probe({}, Arguments(server.Url(), static_cast<quint64>(archive.size()))).cause, 0);
    EXPECT_EQ(PartialBytes(), archive);
    QFile file(PartialPath() + QStringLiteral(".record"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    std::optional<PartialRecord> const record = DecodePartialRecord(file.readAll().toStdString());
    ASSERT_TRUE(record);
    EXPECT_EQ(record->spent.attempts, static_cast<std::uint64_t>(points) + 1) << "a kill does not lose the count";
    EXPECT_EQ(record->spent.receivedBytes, static_cast<std::uint64_t>(archive.size()));
}

TEST_F(DownloadProcessTest, KilledInFullFlightItGoesOnFromTheEndOfTheFile)
{
    QByteArray const archive = MakeArchive(8 * KIBIBYTE * KIBIBYTE);
    std::vector<std::optional<int>> starts;
    LoopbackServer server(
        [&](QSslSocket& socket, QByteArray const& request, int number)
        {
            starts.push_back(RangeStart(request));
            Serving({archive})(socket, request, number);
        });
    QStringList const arguments = Arguments(server.Url(), static_cast<quint64>(archive.size()));
    for (int point = 1; point <= 6; ++point)
    {
        QProcess process;
        process.start(QStringLiteral(PELNAR_DOWNLOAD_PROBE), arguments);
        ASSERT_TRUE(WaitFor([&] { return PartialSize() >= point * KIBIBYTE * KIBIBYTE; }, 30000));
        process.kill();
        ASSERT_TRUE(WaitFor([&process] { return process.state() == QProcess::NotRunning; }));
        if (PartialSize() == archive.size())
        {
            break; // the process ended before the kill
        }
        std::size_t const asked = starts.size();
        QByteArray const part = PartialBytes();
        EXPECT_TRUE(archive.startsWith(part));
        QProcess next;
        next.start(QStringLiteral(PELNAR_DOWNLOAD_PROBE), arguments);
        ASSERT_TRUE(WaitFor([&] { return starts.size() > asked; }, 30000));
        EXPECT_EQ(starts.back(), part.size());
        next.kill();
        ASSERT_TRUE(WaitFor([&next] { return next.state() == QProcess::NotRunning; }));
    }
    EXPECT_EQ(Probe({}, arguments).cause, 0);
    EXPECT_EQ(PartialBytes(), archive);
}

TEST_F(DownloadProcessTest, SecondProcessIsToldOfTheFirstAndLeavesItAlone)
{
    QByteArray const archive = MakeArchive(1000);
    bool isHeld = true;
    LoopbackServer server(
        [&](QSslSocket& socket, QByteArray const& request, int number)
        {
            isHeld ? static_cast<void>(socket.write(AnswerFor({archive, "\"one\"", {}, 500}, request)))
                   : Serving({archive})(socket, request, number);
        });
    QProcess first;
    first.start(QStringLiteral(PELNAR_DOWNLOAD_PROBE), Arguments(server.Url(), 1000));
    ASSERT_TRUE(WaitFor([&] { return PartialSize() == 500; }));
    Report const report = Probe({}, Arguments(server.Url(), 1000));
    EXPECT_EQ(report.cause, static_cast<int>(ErrorCause::DownloadBusy)) << report.all.toStdString();
    EXPECT_TRUE(report.all.contains(QLatin1String("Another copy of the application is downloading")));
    EXPECT_EQ(server.Requests().size(), 1u);
    EXPECT_EQ(PartialBytes(), archive.left(500));
    first.kill();
    ASSERT_TRUE(WaitFor([&first] { return first.state() == QProcess::NotRunning; }));
    isHeld = false;
    EXPECT_EQ(Probe({}, Arguments(server.Url(), 1000)).cause, 0) << "a killed process holds no lock";
}

TEST_F(DownloadProcessTest, MemoryDoesNotGrowWithTheArchive)
{
    if (IS_SANITIZED)
    {
        GTEST_SKIP() << "a sanitizer keeps freed blocks";
    }
    long grown[2] = {};
    int row = 0;
    for (quint64 const mebibytes : {quint64{1}, quint64{128}})
    {
        quint64 const bytes = mebibytes << 20;
        LoopbackServer server(AnsweringWithoutEnd(
            "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(bytes) + "\r\n\r\n", QByteArray(1 << 20, 'x')));
        Report const report = Probe({}, Arguments(server.Url(), bytes));
        // The server sends more than the length. The client may see this or not, depending on the timing.
        EXPECT_TRUE(report.cause == 0 || report.cause == static_cast<int>(ErrorCause::SurplusBody))
            << report.all.toStdString();
        grown[row++] = report.grownKibibytes;
    }
    EXPECT_GE(grown[0], 0);
    EXPECT_LE(grown[1], grown[0] + 1 * KIBIBYTE) << "of an archive of 1 MiB and one of 128 MiB";
}

class FullDisk : public DownloadProcessTest
{
protected:
    QByteArray const archive = MakeArchive(3 * KIBIBYTE * KIBIBYTE);
    LoopbackServer server{Serving({archive})};
};

/// The words that run a program with a disk of \a mebibytes at \a disk and then list its folder. The program is
/// appended.
QStringList OnSmallDisk(int mebibytes, QString const& disk)
{
    QString const script = QStringLiteral("mount -t tmpfs -o size=%1M none \"$0\" && { \"$@\"; "
                                          "echo left=$(find \"$0\" -type f | wc -l); }")
                               .arg(mebibytes);
    return {QStringLiteral("unshare"),
            QStringLiteral("--map-root-user"),
            QStringLiteral("--mount"),
            QStringLiteral("sh"),
            QStringLiteral("-c"),
            script,
            disk};
}

TEST_F(FullDisk, OfAnySizeIsToldInNumbersAndLeftAsItWas)
{
    QString const disk = place.filePath(QStringLiteral("disk"));
    ASSERT_TRUE(QDir().mkpath(disk));
    QStringList const trial = OnSmallDisk(1, disk) << QStringLiteral("true");
    if (QProcess::execute(trial.front(), trial.mid(1)) != 0)
    {
        GTEST_SKIP() << "no disk of one's own can be mounted here";
    }
    QStringList arguments = Arguments(server.Url(), static_cast<quint64>(archive.size()));
    arguments[2] = disk + QStringLiteral("/updates");
    bool hasFitted = false;
    for (int mebibytes = 1; mebibytes <= 8; ++mebibytes)
    {
        std::size_t const requests = server.Requests().size();
        Report const report = Probe(OnSmallDisk(mebibytes, disk), arguments);
        hasFitted = report.cause == 0;
        // A quarter of such a small disk stays free.
        EXPECT_EQ(hasFitted, mebibytes >= 5 || (mebibytes == 4 && hasFitted)) << report.all.toStdString();
        if (hasFitted)
        {
            continue;
        }
        EXPECT_EQ(report.cause, static_cast<int>(ErrorCause::DownloadNoRoom)) << report.all.toStdString();
        EXPECT_TRUE(report.all.contains(QLatin1String("The download needs "))) << report.all.toStdString();
        EXPECT_TRUE(report.all.contains(QLatin1String(" are free"))) << report.all.toStdString();
        EXPECT_FALSE(report.all.contains(QLatin1Char('%'))) << report.all.toStdString();
        if (mebibytes < 4)
        {
            EXPECT_EQ(server.Requests().size(), requests) << "nothing is asked for";
        }
        else
        {
            EXPECT_TRUE(report.all.contains(QLatin1String("left=0"))) << report.all.toStdString();
        }
        if (mebibytes == 2)
        {
            EXPECT_TRUE(report.all.contains(QLatin1String("needs 3.7 MB more"))) << report.all.toStdString();
            EXPECT_TRUE(report.all.contains(QLatin1String("2.1 MB are free"))) << report.all.toStdString();
        }
    }
    EXPECT_TRUE(hasFitted);
}

TEST_F(FullDisk, FileThatGrowsTooLargeForTheSystemIsRemoved)
{
    Report const report = Probe({QStringLiteral("prlimit"), QStringLiteral("--fsize=1000000")},
                                Arguments(server.Url(), static_cast<quint64>(archive.size())));
    EXPECT_EQ(report.cause, static_cast<int>(ErrorCause::DownloadFileTooLarge)) << report.all.toStdString();
    EXPECT_TRUE(Files().isEmpty());
}

} // namespace
