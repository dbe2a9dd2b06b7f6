// ConnectionTest.cpp: connections that stay open for the next request, die meanwhile, or carry HTTP/2.
#include "tests/engine_core/fetch/FetchHarness.h"
#include "tests/support/FileServer.h"
#include "tests/support/LoopbackServer.h"
#include "tests/support/Relay.h"
#include "tests/support/TestCertificates.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;
using std::chrono::milliseconds;

QByteArray const BODY = "<rss/>";

using KeptConnection = FetchTest;

TEST_F(KeptConnection, IsReplacedIfTheServerEndsItInsteadOfAnswering)
{
    for (LoopbackServer::Script const& end : {Answering(""), AnsweringThenReset("")})
    {
        LoopbackServer server(
            [&end](QSslSocket& socket, QByteArray const& request, int number)
            {
                number == 1 ? end(socket, request, number)
                            : static_cast<void>(socket.write("HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\n" + BODY));
            });
        EXPECT_EQ(Fetch(server.Url()).bytes, BODY);
        EXPECT_EQ(Fetch(server.Url()).bytes, BODY);
        EXPECT_EQ(server.Connections(), 2);
        EXPECT_EQ(server.Requests().size(), 3u);
    }
}

TEST_F(KeptConnection, IsReplacedIfTheNetworkForgetsIt)
{
    LoopbackServer server([](QSslSocket& socket, QByteArray const&, int)
                          { socket.write("HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\n" + BODY); });
    FetchLimits limits = ShortLimits();
    limits.rateWindow = milliseconds(400);
    Relay relay(server.Url());
    EXPECT_EQ(Fetch(relay.Url(), limits).bytes, BODY);
    relay.Forget();
    EXPECT_EQ(Fetch(relay.Url(), limits).bytes, BODY);
    EXPECT_EQ(relay.Connections(), 2);
}

class Http2 : public FetchTest
{
protected:
    void SetUp() override
    {
        if (!server.IsThere())
        {
            GTEST_SKIP() << "there is no nghttpd here";
        }
    }

    /// Serves \a bytes, last changed at \a time. Returns their address.
    QUrl Serve(QByteArray const& bytes, QDateTime const& time = QDateTime::currentDateTime())
    {
        QFile file(served.filePath(QStringLiteral("file")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush());
        EXPECT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
        return server.Url(QStringLiteral("/file"));
    }

    QTemporaryDir served;
    TestCertificates certificates;
    TrustedAuthority trusted{certificates.Authority()};
    ServerIdentity identity = certificates.Signed("127.0.0.1");
    FileServer server{served.path(), {certificates.CertificateFile(), certificates.KeyFile()}};
};

TEST_F(Http2, FeedIsFetched)
{
    QByteArray const body(3 * 1024 * 1024, 'x');
    QUrl const url = Serve(body);
    EXPECT_EQ(Fetch(url).bytes, body);
    EXPECT_EQ(Fetch(url).bytes, body) << "over the same connection";
}

TEST_F(Http2, UnchangedFeedIsNotSentAgain)
{
    QByteArray const body(1000, 'x');
    QUrl const url = Serve(body, QDateTime(QDate(2016, 11, 6), QTime(8, 49, 37), Qt::UTC));
    FetchOutcome const first = Fetch(url);
    ASSERT_TRUE(first.keepable) << "it says when the file was changed";
    FetchOutcome const again = Fetch(url, ShortLimits(), InsecureHttp::LoopbackOnly, first.keepable);
    EXPECT_EQ(CauseOf(again), ErrorCause::NoUpdate);
    EXPECT_TRUE(again.isUnchanged);
    EXPECT_EQ(again.bytes, body);
}

TEST_F(Http2, FeedThatIsTooLargeOrMissingIsRefused)
{
    EXPECT_EQ(CauseOf(Fetch(Serve(QByteArray(5 * 1024 * 1024, 'x')))), ErrorCause::BodyTooLarge);
    FetchOutcome const outcome = Fetch(server.Url(QStringLiteral("/missing")));
    ASSERT_EQ(CauseOf(outcome), ErrorCause::HttpStatus);
    EXPECT_EQ(outcome.error->httpStatus, 404);
}

TEST_F(Http2, ConnectionThatTheNetworkForgetsIsReplaced)
{
    FetchLimits slow = ShortLimits();
    slow.rateWindow = milliseconds(400);
    FetchLimits late = ShortLimits();
    late.totalTimeout = milliseconds(400);
    Relay relay(Serve(BODY));
    ASSERT_EQ(Fetch(relay.Url()).bytes, BODY);
    relay.Forget();
    EXPECT_EQ(Fetch(relay.Url(), slow).bytes, BODY);
    EXPECT_EQ(relay.Connections(), 2);
    relay.Forget();
    EXPECT_EQ(CauseOf(Fetch(relay.Url(), late)), ErrorCause::TotalTimeout);
    EXPECT_EQ(Fetch(relay.Url()).bytes, BODY) << "the person tries again at once";
    EXPECT_EQ(relay.Connections(), 3);
}

} // namespace
