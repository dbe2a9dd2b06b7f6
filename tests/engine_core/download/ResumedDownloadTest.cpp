// ResumedDownloadTest.cpp: interrupted downloads that resume, and archives that changed meanwhile.

#include "tests/engine_core/download/ArchiveDownloadFixture.h"
#include "tests/engine_core/download/ArchiveServer.h"
#include "tests/engine_core/download/DownloadHarness.h"
#include "tests/support/FileServer.h"
#include "tests/support/Relay.h"
#include "tests/support/TestCertificates.h"

#include <fcntl.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;
using std::chrono::milliseconds;

TEST_F(ArchiveDownloadTest, WholeAnswerToARangeRequestStartsTheDownloadAgain)
{
    LoopbackServer server(Scripted());
    script = Serving({ARCHIVE, "\"one\"", {}, 100000});
    EXPECT_EQ(Run(OnceOnly(server.Url())).cause, ErrorCause::IncompleteBody);
    EXPECT_EQ(PartialBytes(), ARCHIVE.left(100000));
    QByteArray const other = MakeArchive(SIZE + 5).right(SIZE);
    script = Answering(OkAnswer(other));
    EXPECT_EQ(Run(OnceOnly(server.Url())).bytes, other);
    ASSERT_EQ(server.Requests().size(), 2u);
    EXPECT_EQ(RangeStart(server.Requests()[1]), 100000);
    EXPECT_EQ(FieldOf(server.Requests()[1], "If-Range"), "\"one\"");
}

class WrongRange : public ArchiveDownloadTest, public ::testing::WithParamInterface<char const*>
{
};

INSTANTIATE_TEST_SUITE_P(Answers, WrongRange,
                         ::testing::Values("Content-Range: bytes 99999-299999/300000\r\n",
                                           "Content-Range: bytes 100000-299999/300001\r\n",
                                           "Content-Range: bytes 100000-299998/300000\r\n",
                                           "Content-Range: bytes 100000-299999/*\r\n", "",
                                           "Content-Type: multipart/byteranges; boundary=x\r\n"));

TEST_P(WrongRange, IsNotAppendedTheWholeIsAskedForOnceAndThenRefused)
{
    LoopbackServer server(Scripted());
    script = Serving({ARCHIVE, "\"one\"", {}, 100000});
    ASSERT_EQ(Run(OnceOnly(server.Url())).cause, ErrorCause::IncompleteBody);
    QByteArray const wrong =
        QByteArray("HTTP/1.1 206 Partial\r\nETag: \"one\"\r\n") + GetParam() + "\r\n" + QByteArray(200000, 'x');
    script = [wrong](QSslSocket& socket, QByteArray const& request, int)
    { Answering(RangeStart(request) ? wrong : AnswerFor({ARCHIVE}, request))(socket, request, 0); };
    EXPECT_EQ(Run(OnceOnly(server.Url())).bytes, ARCHIVE);
    ASSERT_EQ(server.Requests().size(), 3u);
    EXPECT_EQ(RangeStart(server.Requests()[1]), 100000);
    EXPECT_EQ(RangeStart(server.Requests()[2]), std::nullopt);
}

TEST_P(WrongRange, LosesNothingWhereTheWholeIsRefused)
{
    LoopbackServer server(Scripted());
    script = Serving({ARCHIVE, "\"one\"", {}, 100000});
    ASSERT_EQ(Run(OnceOnly(server.Url())).cause, ErrorCause::IncompleteBody);
    QByteArray const wrong = QByteArray("HTTP/1.1 206 Partial\r\nETag: \"one\"\r\n") + GetParam() + "\r\n";
    script = [wrong](QSslSocket& socket, QByteArray const& request, int)
    { Answering(RangeStart(request) ? wrong : "HTTP/1.1 503 Later\r\n\r\n")(socket, request, 0); };
    EXPECT_EQ(Run(OnceOnly(server.Url())).cause, ErrorCause::HttpStatus);
    EXPECT_EQ(PartialBytes(), ARCHIVE.left(100000));
}

TEST_P(WrongRange, ToARequestForTheWholeIsAnError)
{
    LoopbackServer server(Answering(QByteArray("HTTP/1.1 206 Partial\r\nETag: \"one\"\r\n") + GetParam() + "\r\n"));
    EXPECT_EQ(Run(RequestFor(server.Url(), SIZE)).cause, ErrorCause::DownloadRangeWrong);
    EXPECT_EQ(server.Requests().size(), 1u);
}

class RefusedRange : public ArchiveDownloadTest, public ::testing::WithParamInterface<char const*>
{
protected:
    QByteArray const refusal = "HTTP/1.1 " + QByteArray(GetParam()) + "\r\nContent-Length: 0\r\n\r\n";
};

INSTANTIATE_TEST_SUITE_P(Answers, RefusedRange,
                         ::testing::Values("403 Forbidden", "400 Bad", "501 Not", "500 Error", "304 Same", "204 None",
                                           "302 Found", "302 Found\r\nLocation: ",
                                           "302 Found\r\nLocation: ftp://a.example/", "302 Found\r\nLocation: http://[",
                                           "200 OK\r\nContent-Encoding: gzip", "200\r\nno field"));

TEST_P(RefusedRange, IsForgottenAndTheWholeIsAskedForOnce)
{
    LoopbackServer server(Scripted());
    script = Serving({ARCHIVE, "\"one\"", {}, 100000});
    ASSERT_EQ(Run(OnceOnly(server.Url())).cause, ErrorCause::IncompleteBody);
    script = [this](QSslSocket& socket, QByteArray const& request, int)
    { Answering(RangeStart(request) ? refusal : AnswerFor({ARCHIVE}, request))(socket, request, 0); };
    EXPECT_EQ(Run(OnceOnly(server.Url())).bytes, ARCHIVE);
    EXPECT_EQ(server.Requests().size(), 3u);
}

TEST_P(RefusedRange, LosesNothingWhereTheWholeIsRefusedToo)
{
    LoopbackServer server(Scripted());
    script = Serving({ARCHIVE, "\"one\"", {}, 100000});
    ASSERT_EQ(Run(OnceOnly(server.Url())).cause, ErrorCause::IncompleteBody);
    script = Answering(refusal);
    EXPECT_NE(Run(OnceOnly(server.Url())).cause, ErrorCause::NoUpdate);
    EXPECT_EQ(server.Requests().size(), 3u);
    EXPECT_EQ(PartialBytes(), ARCHIVE.left(100000));
}

TEST_F(ArchiveDownloadTest, RangeThatIsRedirectedInACircleIsForgotten)
{
    LoopbackServer server(Scripted());
    script = Serving({ARCHIVE, "\"one\"", {}, 100000});
    ASSERT_EQ(Run(OnceOnly(server.Url())).cause, ErrorCause::IncompleteBody);
    script = [](QSslSocket& socket, QByteArray const& request, int)
    {
        QByteArray const circle = "HTTP/1.1 302 Found\r\nLocation: /\r\nContent-Length: 0\r\n\r\n";
        Answering(RangeStart(request) ? circle : AnswerFor({ARCHIVE}, request))(socket, request, 0);
    };
    EXPECT_EQ(Run(OnceOnly(server.Url())).bytes, ARCHIVE);
}

TEST_F(ArchiveDownloadTest, RangeWhoseChunksBreakIsForgotten)
{
    LoopbackServer server(Scripted());
    script = Serving({ARCHIVE, "\"one\"", {}, 100000});
    ASSERT_EQ(Run(OnceOnly(server.Url())).cause, ErrorCause::IncompleteBody);
    script = [](QSslSocket& socket, QByteArray const& request, int)
    {
        QByteArray const broken = "HTTP/1.1 206 Part\r\nETag: \"one\"\r\nContent-Range: bytes 100000-299999/300000\r\n"
                                  "Transfer-Encoding: chunked\r\n\r\n3\r\nabc\r\nno chunk\r\n";
        Answering(RangeStart(request) ? broken : AnswerFor({ARCHIVE}, request))(socket, request, 0);
    };
    EXPECT_EQ(Run(OnceOnly(server.Url())).bytes, ARCHIVE);
}

TEST_F(ArchiveDownloadTest, WrongRangesAgainAndAgainEndInAnError)
{
    LoopbackServer server(
        [](QSslSocket& socket, QByteArray const& request, int)
        {
            bool const isRest = RangeStart(request).has_value();
            Answering(isRest ? QByteArray("HTTP/1.1 206 Partial\r\nContent-Range: bytes 0-1/2\r\n\r\n")
                             : AnswerFor({ARCHIVE, "\"one\"", {}, 1000}, request))(socket, request, 0);
        });
    EXPECT_EQ(Run(RequestFor(server.Url(), SIZE)).cause, ErrorCause::DownloadRangeWrong);
    EXPECT_EQ(server.Requests().size(), 4u) << "whole, wrong, whole, wrong";
}

TEST_F(ArchiveDownloadTest, RequestForTheWholeThatBringsNothingIsRepeated)
{
    LoopbackServer server(
        [](QSslSocket& socket, QByteArray const& request, int number)
        {
            QByteArray const wrong = "HTTP/1.1 206 Partial\r\nContent-Range: bytes 0-1/2\r\n\r\n";
            Answering(RangeStart(request) ? wrong
                      : number == 2       ? QByteArray()
                                          : AnswerFor({ARCHIVE, "\"one\"", {}, number == 0 ? 1000 : -1}, request))(
                socket, request, number);
        });
    EXPECT_EQ(Run(RequestFor(server.Url(), SIZE)).bytes, ARCHIVE);
    EXPECT_EQ(server.Requests().size(), 4u);
}

TEST_F(ArchiveDownloadTest, ArchiveThatChangedBetweenItsPartsIsFetchedWhole)
{
    QByteArray const other = MakeArchive(SIZE + 5).right(SIZE);
    LoopbackServer server(Scripted());
    script = Serving({ARCHIVE, "\"one\"", {}, 100000});
    ASSERT_EQ(Run(OnceOnly(server.Url())).cause, ErrorCause::IncompleteBody);
    script = Serving({other, "\"two\""});
    EXPECT_EQ(Run(OnceOnly(server.Url())).bytes, other);
    EXPECT_EQ(server.Requests().size(), 2u);
}

TEST_F(ArchiveDownloadTest, ChangeIsSeenThoughTheServerIgnoresTheCondition)
{
    QByteArray const other = MakeArchive(SIZE + 5).right(SIZE);
    LoopbackServer server(Scripted());
    script = Serving({ARCHIVE, "\"one\"", {}, 100000});
    ASSERT_EQ(Run(OnceOnly(server.Url())).cause, ErrorCause::IncompleteBody);
    script = [other](QSslSocket& socket, QByteArray request, int)
    {
        request.replace("If-Range", "X-Ignored");
        Serving({other, "\"two\""})(socket, request, 0);
    };
    EXPECT_EQ(Run(OnceOnly(server.Url())).bytes, other);
    EXPECT_EQ(server.Requests().size(), 3u);
}

TEST_F(ArchiveDownloadTest, SizeThatChangedIsRefused)
{
    LoopbackServer server(Scripted());
    script = Serving({ARCHIVE, "\"one\"", {}, 100000});
    ASSERT_EQ(Run(OnceOnly(server.Url())).cause, ErrorCause::IncompleteBody);
    script = Serving({ARCHIVE + "more", "\"one\""});
    EXPECT_EQ(Run(OnceOnly(server.Url())).cause, ErrorCause::DownloadLengthDiffers);
}

TEST_F(ArchiveDownloadTest, PageInTheArchivesPlaceCostsNoByte)
{
    LoopbackServer server(Scripted());
    script = Serving({ARCHIVE, "\"one\"", {}, 100000});
    ASSERT_EQ(Run(OnceOnly(server.Url())).cause, ErrorCause::IncompleteBody);
    script = Answering(OkAnswer("<html>We are back soon.</html>"));
    EXPECT_EQ(Run(OnceOnly(server.Url())).cause, ErrorCause::DownloadLengthDiffers);
    EXPECT_EQ(PartialBytes(), ARCHIVE.left(100000));
    script = Serving({ARCHIVE, "\"one\""});
    EXPECT_EQ(Run(OnceOnly(server.Url())).bytes, ARCHIVE);
    EXPECT_EQ(RangeStart(server.Requests().back()), 100000);
}

TEST_F(ArchiveDownloadTest, PartOfAnUnnamedVersionIsNotResumed)
{
    LoopbackServer server(Scripted());
    script = Serving({ARCHIVE, {}, {}, 100000});
    ASSERT_EQ(Run(OnceOnly(server.Url())).cause, ErrorCause::IncompleteBody);
    script = Serving({ARCHIVE, {}});
    EXPECT_EQ(Run(OnceOnly(server.Url())).bytes, ARCHIVE);
    EXPECT_EQ(RangeStart(server.Requests()[1]), std::nullopt);
}

TEST_F(ArchiveDownloadTest, DateOfModificationNamesAVersionToo)
{
    LoopbackServer server(Scripted());
    script = Serving({ARCHIVE, {}, "Fri, 20 Nov 2026 05:00:00 GMT", 100000});
    ASSERT_EQ(Run(OnceOnly(server.Url())).cause, ErrorCause::IncompleteBody);
    script = Serving({ARCHIVE, {}, "Fri, 20 Nov 2026 05:00:00 GMT"});
    EXPECT_EQ(Run(OnceOnly(server.Url())).bytes, ARCHIVE);
    EXPECT_EQ(RangeStart(server.Requests()[1]), 100000);
}

TEST_F(ArchiveDownloadTest, WholeFileIsHandedOverWithoutAsking)
{
    LoopbackServer server(Serving({ARCHIVE}));
    DownloadRequest const request = RequestFor(server.Url(), SIZE);
    ASSERT_EQ(Run(request).bytes, ARCHIVE);
    DownloadResult const again = Run(request);
    EXPECT_EQ(again.bytes, ARCHIVE);
    EXPECT_EQ(server.Requests().size(), 1u);
    EXPECT_EQ(fcntl(again.archive.Get(), F_SETLEASE, F_RDLCK), 0);
}

TEST_F(ArchiveDownloadTest, MissingRangeStartsTheDownloadAgain)
{
    LoopbackServer server(Scripted());
    script = Serving({ARCHIVE, "\"one\"", {}, 100000});
    ASSERT_EQ(Run(OnceOnly(server.Url())).cause, ErrorCause::IncompleteBody);
    script = [](QSslSocket& socket, QByteArray const& request, int)
    {
        Answering(RangeStart(request) ? QByteArray("HTTP/1.1 416 No\r\nContent-Range: bytes */9\r\n\r\n")
                                      : AnswerFor({ARCHIVE}, request))(socket, request, 0);
    };
    EXPECT_EQ(Run(OnceOnly(server.Url())).bytes, ARCHIVE);
}

TEST_F(ArchiveDownloadTest, BrokenConnectionsLoseNoByteAndItGoesOnByItself)
{
    for (int const cut : {1, 999, 65536, 100000})
    {
        RemoveFolder();
        LoopbackServer server(
            [cut](QSslSocket& socket, QByteArray const& request, int number) {
                Serving({ARCHIVE, "\"one\"", {}, number < 4 ? cut : -1})(socket, request, number);
            });
        EXPECT_EQ(Run(RequestFor(server.Url(), SIZE)).bytes, ARCHIVE) << cut;
        int const requests = static_cast<int>(server.Requests().size());
        EXPECT_EQ(requests, std::min(5, (SIZE + cut - 1) / cut));
        for (int number = 1; number < requests; ++number)
        {
            EXPECT_EQ(RangeStart(server.Requests()[static_cast<size_t>(number)]), number * cut);
        }
    }
}

TEST_F(ArchiveDownloadTest, ItGivesUpAfterAFewAttemptsThatBroughtLittle)
{
    LoopbackServer server(Serving({ARCHIVE, "\"one\"", {}, 10}));
    DownloadRequest const request = RequestFor(server.Url(), SIZE);
    EXPECT_EQ(Run(request).cause, ErrorCause::IncompleteBody);
    EXPECT_EQ(server.Requests().size(), 6u) << "once and five times more";
    EXPECT_EQ(PartialBytes(), ARCHIVE.left(60));
}

TEST_F(ArchiveDownloadTest, AttemptsThatBringMuchDoNotCount)
{
    int const mebibytes = 8;
    QByteArray const large = MakeArchive(mebibytes * 1024 * 1024 + 1);
    LoopbackServer server(Serving({large, "\"one\"", {}, 1024 * 1024}));
    DownloadRequest request = RequestFor(server.Url(), large.size());
    request.limits.maxResumes = 1;
    EXPECT_EQ(Run(request).bytes, large);
    EXPECT_EQ(server.Requests().size(), static_cast<size_t>(mebibytes + 1));
}

TEST_F(ArchiveDownloadTest, ResetConnectionIsGoneOnWith)
{
    LoopbackServer server(
        [](QSslSocket& socket, QByteArray const& request, int number)
        {
            number < 3 ? AnsweringThenReset(AnswerFor({ARCHIVE, "\"one\"", {}, 50000}, request))(socket, request, 0)
                       : Serving({ARCHIVE})(socket, request, 0);
        });
    DownloadResult const result = Run(RequestFor(server.Url(), SIZE));
    // A reset may arrive before all that was sent earlier, including the head. Then nothing was received.
    EXPECT_TRUE(result.bytes == ARCHIVE || result.cause == ErrorCause::IncompleteHead);
}

TEST_F(ArchiveDownloadTest, ConnectionThatTheNetworkForgetsIsGoneOnWithOverAnother)
{
    LoopbackServer server(Serving({ARCHIVE, "\"one\""}));
    Relay relay(server.Url());
    relay.ForgetAfter(100000);
    DownloadRequest request = RequestFor(relay.Url(), SIZE);
    request.limits.rateWindow = milliseconds(1000);
    EXPECT_EQ(Run(request).bytes, ARCHIVE);
    ASSERT_EQ(server.Requests().size(), 2u);
    EXPECT_GT(RangeStart(server.Requests()[1]).value_or(0), 90000);
}

TEST_F(ArchiveDownloadTest, ConnectionOfHttp2ThatTheNetworkForgetsIsReplaced)
{
    TestCertificates certificates;
    TrustedAuthority const trusted(certificates.Authority());
    (void)certificates.Signed("127.0.0.1");
    QTemporaryDir served;
    QFile file(served.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(ARCHIVE) == SIZE && file.flush());
    FileServer const server(served.path(), {certificates.CertificateFile(), certificates.KeyFile()});
    if (!server.IsThere())
    {
        GTEST_SKIP() << "there is no nghttpd here";
    }
    Relay relay(server.Url(QStringLiteral("/file")));
    relay.ForgetAfter(100000);
    DownloadRequest request = RequestFor(relay.Url(), SIZE);
    request.limits.rateWindow = milliseconds(1000);
    EXPECT_EQ(Run(request).bytes, ARCHIVE);
    EXPECT_EQ(relay.Connections(), 2);
}

} // namespace
