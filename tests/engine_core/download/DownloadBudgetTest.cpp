// DownloadBudgetTest.cpp: the limits for one archive over all runs: bytes, time, attempts, disk.

#include "Engine/core/download/PartialFile.h"
#include "tests/engine_core/download/ArchiveServer.h"
#include "tests/engine_core/download/DownloadBudgetFixture.h"
#include "tests/engine_core/download/DownloadHarness.h"
#include "tests/support/CauseOf.h"

#include <QElapsedTimer>

#include <functional>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;
using std::chrono::milliseconds;

TEST_F(DownloadBudgetTest, ServerThatBeginsAgainAndAgainSendsTwiceTheArchiveAtMost)
{
    QByteArray const archive = MakeArchive(4 * MEBIBYTE);
    qint64 sent = 0;
    LoopbackServer server(
        [&](QSslSocket& socket, QByteArray const&, int)
        {
            // The server announces the whole archive each time and sends a little more than a mebibyte.
            QByteArray const answer = AnswerFor({archive, {}, {}, MEBIBYTE + 10}, {});
            sent += MEBIBYTE + 10;
            socket.write(answer);
            socket.disconnectFromHost();
        });
    for (int check = 0; check < 3; ++check)
    {
        EXPECT_EQ(Run(RequestFor(server.Url(), archive.size())).cause, ErrorCause::DownloadTooMuch) << check;
        EXPECT_LE(sent, 2 * archive.size()) << check;
    }
}

TEST_F(DownloadBudgetTest, SmallestUselessAnswersEndToo)
{
    QByteArray const archive = MakeArchive(300000);
    LoopbackServer server(Serving({archive, "\"one\"", {}, 10}));
    DownloadRequest const request = RequestFor(server.Url(), archive.size());
    std::size_t const most = BudgetOf(300000).attempts;
    ASSERT_EQ(most, 68u);
    ErrorCause cause = ErrorCause::IncompleteBody;
    for (int check = 0; check < 20 && cause == ErrorCause::IncompleteBody; ++check)
    {
        cause = Run(request).cause;
    }
    EXPECT_EQ(cause, ErrorCause::DownloadTooOften);
    EXPECT_EQ(server.Requests().size(), most);
    EXPECT_EQ(Run(request).cause, ErrorCause::DownloadTooOften);
    EXPECT_EQ(server.Requests().size(), most) << "not one packet more";
    EXPECT_EQ(PartialBytes(), archive.left(680)) << "the received bytes stay";
}

TEST_F(DownloadBudgetTest, AttemptsCountEvenIfMebibytesArrive)
{
    QByteArray const archive = MakeArchive(3 * MEBIBYTE);
    LoopbackServer server(Serving({archive, "\"one\"", {}, MEBIBYTE}));
    DownloadRequest const request = RequestFor(server.Url(), archive.size());
    EXPECT_EQ(Run(request).bytes, archive);
    std::optional<PartialRecord> const record = RecordOf(request);
    ASSERT_TRUE(record);
    EXPECT_EQ(record->spent.attempts, 3u);
    EXPECT_EQ(record->spent.receivedBytes, 3u * MEBIBYTE);
}

TEST_F(DownloadBudgetTest, HonestSlowLineGetsItsArchiveInManyRuns)
{
    QByteArray const archive = MakeArchive(2 * MEBIBYTE);
    LoopbackServer server(Serving({archive, "\"one\"", {}, 64 * 1024}));
    DownloadRequest request = RequestFor(server.Url(), archive.size());
    request.limits.maxResumes = 0;
    int runs = 1;
    while (runs < 100 && Run(request).cause == ErrorCause::IncompleteBody)
    {
        ++runs;
    }
    EXPECT_EQ(runs, 32);
    EXPECT_EQ(PartialBytes(), archive);
}

/// Events that remove an archive. Its spending must not be forgotten.
struct WayOfLosing
{
    char const* name;
    std::function<void(DownloadRequest const& request)> lose;
};

TEST_F(DownloadBudgetTest, CostIsRememberedAfterTheBytesAreRemoved)
{
    QByteArray const archive = MakeArchive(300000);
    auto const other = [this](DownloadRequest request)
    {
        request.signature = QStringLiteral("another");
        PartialFile file(PlaceOf(Folder(), request.url, request.declaredBytes, request.signature));
        EXPECT_TRUE(file.Open());
    };
    WayOfLosing const ways[] = {
        {"discarded", [](DownloadRequest const& request) { EXPECT_TRUE(ArchiveDownload::Discard(request)); }},
        {"another archive", other},
        {"another length",
         [](DownloadRequest const& request)
         {
             PartialFile file(PlaceOf(request.folder, request.url, request.declaredBytes, request.signature));
             EXPECT_TRUE(file.Open());
             EXPECT_TRUE(file.Restart({}));
             EXPECT_TRUE(file.StageRecord() && file.SyncRecord() && file.PublishRecord() && file.SyncFolder());
             file.RemoveArchive();
         }},
    };
    for (WayOfLosing const& way : ways)
    {
        RemoveFolder();
        LoopbackServer server(Serving({archive, "\"one\"", {}, 200000}));
        DownloadRequest const request = LeavePart(server, archive.size());
        way.lose(request);
        EXPECT_FALSE(QFile::exists(RecordPath(request).chopped(7))) << way.name;
        DownloadResult const second = Run(request);
        EXPECT_EQ(second.cause, ErrorCause::IncompleteBody) << way.name << ": 400,000 of 600,000 bytes";
        way.lose(request);
        EXPECT_EQ(Run(request).cause, ErrorCause::DownloadTooMuch) << way.name;
        EXPECT_EQ(server.Requests().size(), 2u) << way.name;
    }
}

TEST_F(DownloadBudgetTest, AnswersOfAnotherLengthAreCounted)
{
    LoopbackServer server(Answering("HTTP/1.0 200 OK\r\n\r\n" + QByteArray(1000, 'x') + "surplus"));
    DownloadRequest const request = RequestFor(server.Url(), 1000);
    EXPECT_EQ(Run(request).cause, ErrorCause::DownloadLengthDiffers);
    EXPECT_EQ(Run(request).cause, ErrorCause::DownloadLengthDiffers);
    EXPECT_EQ(Run(request).cause, ErrorCause::DownloadTooMuch);
    EXPECT_EQ(server.Requests().size(), 2u);
}

/// A server that repeats the piece after the head for as long as the client reads.
struct EndlessServer
{
    EndlessServer(QByteArray const& head, QByteArray const& piece)
        : server(
              [this, head, piece](QSslSocket& socket, QByteArray const& request, int number)
              {
                  QObject::connect(&socket, &QSslSocket::bytesWritten, &socket,
                                   [this](qint64 bytes) { sent += bytes; });
                  QObject::connect(&socket, &QSslSocket::disconnected, &socket, [this] { hasBeenLeft = true; });
                  AnsweringWithoutEnd(head, piece)(socket, request, number);
              })
    {
    }

    qint64 sent = 0;
    bool hasBeenLeft = false;
    LoopbackServer server;
};

TEST_F(DownloadBudgetTest, EndlessArchiveIsLeftAtItsLength)
{
    for (QByteArray const& head :
         {QByteArray("HTTP/1.1 200 OK\r\nETag: \"one\"\r\n\r\n"),
          QByteArray("HTTP/1.1 200 OK\r\nETag: \"one\"\r\nTransfer-Encoding: chunked\r\n\r\n")})
    {
        RemoveFolder();
        bool const isInChunks = head.contains("chunked");
        QByteArray const piece(65536, 'x');
        EndlessServer endless(head, isInChunks ? "10000\r\n" + piece + "\r\n" : piece);
        DownloadRequest const request = RequestFor(endless.server.Url(), 300000);
        DownloadResult const result = Run(request);
        EXPECT_EQ(result.cause, ErrorCause::DownloadLengthDiffers);
        EXPECT_TRUE(WaitFor([&endless] { return endless.hasBeenLeft; }));
        EXPECT_LT(endless.sent, 16 * MEBIBYTE) << "the size of the system's buffers between the two";
        EXPECT_EQ(endless.server.Requests().size(), 1u);
        for (DownloadProgress const& progress : result.progress)
        {
            EXPECT_LE(progress.doneBytes, 300000u);
        }
        EXPECT_EQ(ArchiveBytes(), 0);
        ASSERT_TRUE(RecordOf(request));
        EXPECT_GE(RecordOf(request)->spent.receivedBytes, 300000u);
        EXPECT_LT(RecordOf(request)->spent.receivedBytes, 600000u) << "and the bytes that came with the last part";
    }
}

TEST_F(DownloadBudgetTest, FramesOfChunksCountToo)
{
    // Four kilobytes for each byte of the archive.
    QByteArray const chunk = "1;" + QByteArray(4000, 'x') + "\r\ny\r\n";
    EndlessServer endless("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n", chunk.repeated(16));
    DownloadRequest request = RequestFor(endless.server.Url(), 300000);
    request.limits.rateWindow = milliseconds(1000);
    EXPECT_EQ(Run(request).cause, ErrorCause::MalformedChunk);
    EXPECT_TRUE(WaitFor([&endless] { return endless.hasBeenLeft; }));
    EXPECT_LT(endless.sent, 128 * MEBIBYTE) << "of more than a gigabyte";
}

TEST_F(DownloadBudgetTest, HeadsCountToo)
{
    QByteArray const archive = MakeArchive(300000);
    qint64 sent = 0;
    LoopbackServer server(
        [&](QSslSocket& socket, QByteArray const& request, int number)
        {
            // Nine redirects with heads of the largest allowed size, then a few bytes of the archive.
            QByteArray answer = number % 10 == 9 ? AnswerFor({archive, "\"one\"", {}, 10}, request)
                                                 : RedirectAnswer(302, "/" + QByteArray::number(number));
            answer.replace("\r\n\r\n", "\r\nX-Filler: " + QByteArray(60000, 'x') + "\r\n\r\n");
            sent += answer.size();
            socket.write(answer);
            socket.disconnectFromHost();
        });
    DownloadRequest const request = RequestFor(server.Url(), archive.size());
    ErrorCause cause = ErrorCause::IncompleteBody;
    for (int check = 0; check < 20 && cause == ErrorCause::IncompleteBody; ++check)
    {
        cause = Run(request).cause;
    }
    EXPECT_EQ(cause, ErrorCause::DownloadTooMuch);
    EXPECT_LE(sent, 2 * archive.size() + 128 * 1024) << "twice the archive, and the answer that was one too many";
}

TEST_F(DownloadBudgetTest, TimeIsCountedOverAllRunsAndEndsTheLastOne)
{
    QByteArray const archive = MakeArchive(300000);
    LoopbackServer server(
        [&](QSslSocket& socket, QByteArray const& request, int)
        {
            QByteArray const answer = AnswerFor({archive}, request);
            int const headBytes = answer.indexOf("\r\n\r\n") + 4;
            Dripping(answer.left(headBytes + 2000), answer.mid(headBytes + 2000), 10)(socket, request, 0);
        });
    DownloadRequest request = RequestFor(server.Url(), archive.size());
    request.limits.minBytesPerSecond = 0;
    request.unwatchedTurn = milliseconds(1500);
    EXPECT_EQ(Run(request).cause, ErrorCause::DownloadPaused);
    ASSERT_TRUE(RecordOf(request));
    EXPECT_GE(RecordOf(request)->spent.seconds, 1u);
    std::uint64_t const most = BudgetOf(300000).seconds;
    Spend(request, {5000, 1, most - 1});
    request.unwatchedTurn = std::chrono::minutes(5);
    EXPECT_EQ(Run(request).cause, ErrorCause::DownloadTooLong);
    std::size_t const requests = server.Requests().size();
    EXPECT_EQ(Run(request).cause, ErrorCause::DownloadTooLong);
    EXPECT_EQ(server.Requests().size(), requests) << "not one packet more";
    EXPECT_TRUE(archive.startsWith(PartialBytes()));
    EXPECT_GT(PartialBytes().size(), 2000) << "the received bytes stay";
}

TEST_F(DownloadBudgetTest, UnwatchedDownloadPausesAndTheNextOneContinues)
{
    QByteArray const archive = MakeArchive(300000);
    bool isStuck = true;
    LoopbackServer server(
        [&](QSslSocket& socket, QByteArray const& request, int number)
        {
            isStuck ? static_cast<void>(socket.write(AnswerFor({archive, "\"one\"", {}, 100000}, request)))
                    : Serving({archive})(socket, request, number);
        });
    DownloadRequest request = RequestFor(server.Url(), archive.size());
    request.limits.minBytesPerSecond = 0;
    request.unwatchedTurn = milliseconds(300);
    EXPECT_EQ(Run(request).cause, ErrorCause::DownloadPaused);
    EXPECT_EQ(PartialBytes(), archive.left(100000));
    isStuck = false;
    EXPECT_EQ(Run(request).bytes, archive);
    EXPECT_EQ(RangeStart(server.Requests()[1]), 100000);
}

TEST_F(DownloadBudgetTest, UnwatchedDownloadThatCannotEndInTimeEndsAtOnceAndAPersonsContinues)
{
    // A kilobyte a second: a gibibyte would take twelve days.
    constexpr quint64 HUGE_BYTES = quint64{1} << 30;
    QByteArray const head = "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(HUGE_BYTES) + "\r\n\r\n";
    LoopbackServer server(Dripping(head, QByteArray(100000, 'x'), 1));
    DownloadRequest request = RequestFor(server.Url(), 1);
    request.declaredBytes = HUGE_BYTES;
    request.limits.minBytesPerSecond = 0;
    request.unwatchedTrial = milliseconds(500);
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(Run(request).cause, ErrorCause::TooSlow);
    EXPECT_LT(clock.elapsed(), 20000);
    request.purpose = DownloadFor::Person;
    ArchiveDownload download(request);
    bool hasEnded = false;
    quint64 done = 0;
    download.Start([&done](DownloadProgress const& progress) { done = progress.doneBytes; },
                   [&hasEnded](DownloadOutcome const&) { hasEnded = true; });
    clock.restart();
    EXPECT_TRUE(WaitFor([&] { return clock.elapsed() > 1500; }));
    EXPECT_FALSE(hasEnded);
    EXPECT_GT(done, 0u);
}

TEST_F(DownloadBudgetTest, UnwatchedDownloadThatIsFastEnoughContinues)
{
    QByteArray const archive = MakeArchive(300000);
    LoopbackServer server(Dripping(AnswerFor({archive, "\"one\"", {}, 299000}, {}), archive.mid(299000), 2));
    DownloadRequest request = RequestFor(server.Url(), archive.size());
    request.limits.minBytesPerSecond = 0;
    request.unwatchedTrial = milliseconds(100);
    EXPECT_EQ(Run(request).bytes, archive);
}

TEST_F(DownloadBudgetTest, PersonWaitsAsLongAsTheBudgetLasts)
{
    QByteArray const archive = MakeArchive(300000);
    LoopbackServer server(Dripping(AnswerFor({archive, "\"one\"", {}, 299900}, {}), archive.mid(299900), 10));
    DownloadRequest request = RequestFor(server.Url(), archive.size());
    request.limits.minBytesPerSecond = 0;
    request.unwatchedTurn = milliseconds(100);
    request.purpose = DownloadFor::Person;
    EXPECT_EQ(Run(request).bytes, archive);
}

TEST_F(DownloadBudgetTest, PersonMaySpendAnotherBudgetAndGoesOnWithWhatIsThere)
{
    QByteArray const archive = MakeArchive(300000);
    LoopbackServer server(
        [&](QSslSocket& socket, QByteArray const& request, int number) {
            Serving({archive, "\"one\"", {}, number == 0 ? 100000 : -1})(socket, request, number);
        });
    DownloadRequest request = LeavePart(server, archive.size());
    Spend(request, {600000, 68, 100000});
    EXPECT_EQ(Run(request).cause, ErrorCause::DownloadTooMuch);
    EXPECT_EQ(server.Requests().size(), 1u);
    request.purpose = DownloadFor::Person;
    EXPECT_EQ(Run(request).bytes, archive);
    EXPECT_EQ(RangeStart(server.Requests()[1]), 100000);
    EXPECT_EQ(RecordOf(request)->spent.receivedBytes, 300000u);
    EXPECT_EQ(RecordOf(request)->spent.attempts, 1u);
}

TEST_F(DownloadBudgetTest, PersonMaySpendAnotherBudgetIfTheServerBeginsAgain)
{
    QByteArray const archive = MakeArchive(300000);
    for (QByteArray const& tag : {QByteArray("\"one\""), QByteArray()})
    {
        RemoveFolder();
        LoopbackServer server(
            [&](QSslSocket& socket, QByteArray const& request, int number)
            {
                Serving(number == 0 ? ServedArchive{archive, tag, {}, 200000}
                                    : ServedArchive{archive, "\"two\""})(socket, request, number);
            });
        DownloadRequest request = LeavePart(server, archive.size());
        Spend(request, {400000, 2, 10}); // enough for the rest, but not for the whole
        EXPECT_EQ(Run(request).cause, ErrorCause::DownloadTooMuch);
        request.purpose = DownloadFor::Person;
        EXPECT_EQ(Run(request).bytes, archive) << tag.toStdString();
    }
}

TEST_F(DownloadBudgetTest, WholeArchiveIsHandedOverAlthoughTheBudgetIsSpent)
{
    QByteArray const archive = MakeArchive(300000);
    LoopbackServer server(Serving({archive}));
    DownloadRequest const request = RequestFor(server.Url(), archive.size());
    EXPECT_EQ(Run(request).bytes, archive);
    Spend(request, {600000, 68, 100000});
    EXPECT_EQ(Run(request).bytes, archive);
    EXPECT_EQ(server.Requests().size(), 1u);
}

TEST_F(DownloadBudgetTest, PausesBetweenAttemptsDouble)
{
    QByteArray const archive = MakeArchive(300000);
    std::vector<qint64> times;
    QElapsedTimer clock;
    clock.start();
    LoopbackServer server(
        [&](QSslSocket& socket, QByteArray const& request, int number)
        {
            times.push_back(clock.elapsed());
            Serving({archive, "\"one\"", {}, 10})(socket, request, number);
        });
    DownloadRequest request = RequestFor(server.Url(), archive.size());
    request.limits.maxResumes = 4;
    request.limits.firstResumePause = milliseconds(100);
    EXPECT_EQ(Run(request).cause, ErrorCause::IncompleteBody);
    ASSERT_EQ(times.size(), 5u);
    for (std::size_t number = 1; number < times.size(); ++number)
    {
        // Qt's coarse timers may fire a twentieth too early.
        EXPECT_GE(times[number] - times[number - 1], 95 * (1 << (number - 1))) << number;
    }
}

} // namespace
