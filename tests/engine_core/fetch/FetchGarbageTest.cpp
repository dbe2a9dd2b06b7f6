// FetchGarbageTest.cpp: answers that break the rules of HTTP.

#include "tests/engine_core/fetch/FetchHarness.h"
#include "tests/support/LoopbackServer.h"

#include <QElapsedTimer>
#include <QFile>
#include <QHostAddress>
#include <QTemporaryDir>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;
using std::chrono::milliseconds;

struct GarbageRow
{
    char const* name;
    QByteArray answer;
    ErrorCause cause;
    int status;
};

void PrintTo(GarbageRow const& row, std::ostream* out)
{
    *out << row.name;
}

class Garbage : public FetchTest, public ::testing::WithParamInterface<GarbageRow>
{
};

TEST_P(Garbage, IsRefused)
{
    LoopbackServer server(Answering(GetParam().answer));
    FetchOutcome const outcome = Fetch(server.Url());
    EXPECT_EQ(CauseOf(outcome), GetParam().cause);
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->httpStatus, GetParam().status);
}

auto const NAME_OF_ROW = [](auto const& row) { return std::string(row.param.name); };

INSTANTIATE_TEST_SUITE_P(
    Row14, Garbage,
    ::testing::Values(GarbageRow{"Gzip",
                                 "HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\nContent-Length: 4\r\n\r\n\x1f\x8b\x08",
                                 ErrorCause::ContentEncodingRefused, 0},
                      GarbageRow{"UnknownEncoding",
                                 "HTTP/1.1 200 OK\r\nContent-Encoding: identity, br\r\nContent-Length: 1\r\n\r\nx",
                                 ErrorCause::ContentEncodingRefused, 0},
                      GarbageRow{"TransferGzip", "HTTP/1.1 200 OK\r\nTransfer-Encoding: gzip, chunked\r\n\r\n0\r\n\r\n",
                                 ErrorCause::TransferEncodingRefused, 0}),
    NAME_OF_ROW);

INSTANTIATE_TEST_SUITE_P(
    Row15, Garbage,
    ::testing::Values(
        GarbageRow{"NoContent", "HTTP/1.1 204 No Content\r\n\r\n", ErrorCause::HttpStatus, 204},
        GarbageRow{"PartialUnasked",
                   "HTTP/1.1 206 Partial\r\nContent-Range: bytes 0-3/9\r\nContent-Length: 4\r\n\r\n<rss",
                   ErrorCause::HttpStatus, 206},
        GarbageRow{"NotModifiedUnasked", "HTTP/1.1 304 Not Modified\r\n\r\n", ErrorCause::HttpStatus, 304},
        GarbageRow{"Choices", "HTTP/1.1 300 Choices\r\nLocation: /x\r\n\r\n", ErrorCause::HttpStatus, 300},
        GarbageRow{"Unauthorized", "HTTP/1.1 401 No\r\nWWW-Authenticate: Basic\r\n\r\n", ErrorCause::HttpStatus, 401},
        GarbageRow{"NotFound", "HTTP/1.1 404 Not Found\r\n\r\n", ErrorCause::HttpStatus, 404},
        GarbageRow{"ServerError", "HTTP/1.1 500 Broken\r\n\r\n", ErrorCause::HttpStatus, 500},
        GarbageRow{"Unavailable", "HTTP/1.1 503 Later\r\nRetry-After: 120\r\n\r\n", ErrorCause::HttpStatus, 503}),
    NAME_OF_ROW);

INSTANTIATE_TEST_SUITE_P(
    Row16, Garbage,
    ::testing::Values(
        GarbageRow{"LengthLongerThanBody", "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\n<rss",
                   ErrorCause::IncompleteBody, 0},
        GarbageRow{"LengthShorterThanBody", "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\n<rss>",
                   ErrorCause::SurplusBody, 0},
        GarbageRow{"TwoLengths", "HTTP/1.1 200 OK\r\nContent-Length: 4\r\nContent-Length: 5\r\n\r\n<rss>",
                   ErrorCause::ContradictoryLength, 0},
        GarbageRow{"LengthList", "HTTP/1.1 200 OK\r\nContent-Length: 4, 4\r\n\r\n<rss", ErrorCause::ContradictoryLength,
                   0},
        GarbageRow{"NegativeLength", "HTTP/1.1 200 OK\r\nContent-Length: -1\r\n\r\n<rss", ErrorCause::MalformedHead, 0},
        GarbageRow{"OverflowingLength", "HTTP/1.1 200 OK\r\nContent-Length: 9223372036854775808\r\n\r\n<rss",
                   ErrorCause::ContradictoryLength, 0},
        GarbageRow{"LengthAndChunks",
                   "HTTP/1.1 200 OK\r\nContent-Length: 4\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\n",
                   ErrorCause::ContradictoryLength, 0},
        GarbageRow{"ChunkSizeGarbage", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nzz\r\n",
                   ErrorCause::MalformedChunk, 0},
        GarbageRow{"ChunkSizeOverflow", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nffffffffffffffff\r\n",
                   ErrorCause::MalformedChunk, 0},
        GarbageRow{"ChunkWithoutEnd", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n2\r\n<rss>\r\n",
                   ErrorCause::MalformedChunk, 0},
        GarbageRow{"ChunkSizeLineWithoutEnd",
                   "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n1;" + QByteArray(300, 'x'),
                   ErrorCause::IncompleteBody, 0},
        GarbageRow{"BytesAfterLastChunk", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\nmore",
                   ErrorCause::SurplusBody, 0},
        GarbageRow{"EndlessTrailer",
                   "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n" +
                       QByteArray("X: y\r\n").repeated(20000),
                   ErrorCause::HeadTooLarge, 0},
        GarbageRow{"LocationWithBlank", "HTTP/1.1 302 Found\r\nLocation: /a b\r\n\r\n", ErrorCause::RedirectInvalid, 0},
        GarbageRow{"LocationWithBareReturn", "HTTP/1.1 302 Found\r\nLocation: /a\rX: y\r\n\r\n",
                   ErrorCause::MalformedHead, 0},
        GarbageRow{"TwoLocations", "HTTP/1.1 302 Found\r\nLocation: /a\r\nLocation: /b\r\n\r\n",
                   ErrorCause::RedirectInvalid, 0},
        GarbageRow{"LocationTooLong", "HTTP/1.1 302 Found\r\nLocation: /" + QByteArray(9000, 'a') + "\r\n\r\n",
                   ErrorCause::RedirectInvalid, 0},
        GarbageRow{"BareLineEnd", "HTTP/1.1 200 OK\nContent-Length: 4\n\n<rss", ErrorCause::MalformedHead, 0},
        GarbageRow{"BareLineEndAmongOthers", "HTTP/1.1 200 OK\r\nX: y\nContent-Length: 4\r\n\r\n<rss",
                   ErrorCause::MalformedHead, 0},
        GarbageRow{"BareLineEndOfTheHead", "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\n<rss", ErrorCause::MalformedHead,
                   0},
        GarbageRow{"BareLineEndOfAnInformationalHead",
                   "HTTP/1.1 103 Hint\n\nHTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\n<rss", ErrorCause::MalformedHead,
                   0},
        GarbageRow{"BareReturnAlone", "HTTP/1.1 200 OK\r\nX: y\rContent-Length: 4\r\n\r\n<rss",
                   ErrorCause::MalformedHead, 0},
        GarbageRow{"SameLengthTwice", "HTTP/1.1 200 OK\r\nContent-Length: 4\r\nContent-Length: 4\r\n\r\n<rss",
                   ErrorCause::ContradictoryLength, 0},
        GarbageRow{"ChunksTwice",
                   "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\n",
                   ErrorCause::TransferEncodingRefused, 0},
        GarbageRow{"ManyTransferEncodings",
                   "HTTP/1.1 200 OK\r\nTransfer-Encoding: gzip, gzip, gzip, gzip, gzip, gzip, gzip\r\n\r\n",
                   ErrorCause::TransferEncodingRefused, 0},
        GarbageRow{"FoldedLine", "HTTP/1.1 200 OK\r\nX: a\r\n b\r\n\r\n", ErrorCause::MalformedHead, 0},
        GarbageRow{"NameWithBlank", "HTTP/1.1 200 OK\r\nContent-Length : 4\r\n\r\n<rss", ErrorCause::MalformedHead, 0},
        GarbageRow{"NulInHead", QByteArray("HTTP/1.1 200 OK\r\nX: a\0b\r\n\r\n", 27), ErrorCause::MalformedHead, 0},
        GarbageRow{"NotHttp", "SSH-2.0-server\r\n\r\n", ErrorCause::MalformedHead, 0},
        GarbageRow{"StatusOfTwoDigits", "HTTP/1.1 20 OK\r\n\r\n", ErrorCause::MalformedHead, 0},
        GarbageRow{"StatusOutOfRange", "HTTP/1.1 999 OK\r\n\r\n", ErrorCause::MalformedHead, 0},
        GarbageRow{"EmptyHead", "\r\n\r\n", ErrorCause::MalformedHead, 0},
        GarbageRow{"SwitchingProtocols", "HTTP/1.1 101 Switching\r\n\r\n", ErrorCause::MalformedHead, 0},
        GarbageRow{"Nothing", "", ErrorCause::IncompleteHead, 0}),
    NAME_OF_ROW);

} // namespace
