// FeedFetcherTest.cpp: fetches over http and from files: redirects, framing, sizes, times, garbage.

#include "tests/engine_core/fetch/FetchHarness.h"
#include "tests/support/LoopbackServer.h"

#include <QElapsedTimer>
#include <QFile>
#include <QHostAddress>
#include <QTemporaryDir>

#include <sys/socket.h>
#include <sys/stat.h>

#include <netinet/in.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;
using std::chrono::milliseconds;

QByteArray const BODY = "<rss version=\"2.0\"><channel/></rss>";

class FeedFetcherTest : public FetchTest
{
};

TEST_F(FeedFetcherTest, BringsTheBodyAndTheAddress)
{
    LoopbackServer server(Answering(OkAnswer(BODY)));
    FetchOutcome const outcome = Fetch(server.Url());
    EXPECT_EQ(CauseOf(outcome), ErrorCause::NoUpdate);
    EXPECT_EQ(outcome.bytes, BODY);
    EXPECT_EQ(outcome.url, server.Url());
}

TEST_F(FeedFetcherTest, AsksForIdentityEncodingOnOneConnection)
{
    LoopbackServer server(Answering(OkAnswer(BODY)));
    QUrl url = server.Url(QStringLiteral("/a feed.xml"));
    url.setQuery(QStringLiteral("channel=beta&x=%0D%0A"));
    ASSERT_EQ(CauseOf(Fetch(url)), ErrorCause::NoUpdate);
    ASSERT_EQ(server.Requests().size(), 1u);
    QByteArray const request = server.Requests().front();
    EXPECT_TRUE(request.startsWith("GET /a%20feed.xml?channel=beta&x=%0D%0A HTTP/1.1\r\n")) << request.toStdString();
    EXPECT_TRUE(request.contains("\r\nAccept-Encoding: identity\r\n"));
    EXPECT_TRUE(request.contains("\r\nHost: 127.0.0.1:"));
    EXPECT_FALSE(request.contains("Cookie"));
    EXPECT_FALSE(request.contains("Authorization"));
}

TEST_F(FeedFetcherTest, DestroyingTheFetcherDropsTheFetch)
{
    LoopbackServer server(Silent());
    bool wasTold = false;
    auto fetcher = std::make_unique<FeedFetcher>(ShortLimits(), InsecureHttp::LoopbackOnly);
    fetcher->Start(server.Url(), [&wasTold](FetchOutcome const&) { wasTold = true; });
    ASSERT_TRUE(WaitFor([&server] { return !server.Requests().empty(); }));
    fetcher.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE(wasTold);
}
TEST_F(FeedFetcherTest, HttpToAnotherComputerIsRefused)
{
    EXPECT_EQ(CauseOf(Fetch(QUrl(QStringLiteral("http://feeds.example.com/feed.xml")))), ErrorCause::InsecureAddress);
}

TEST_F(FeedFetcherTest, InvalidAddressesAreRefused)
{
    EXPECT_EQ(CauseOf(Fetch(QUrl())), ErrorCause::NoFeedAddress);
    EXPECT_EQ(CauseOf(Fetch(QUrl(QStringLiteral("feed.xml")))), ErrorCause::InvalidAddress);
    EXPECT_EQ(CauseOf(Fetch(QUrl(QStringLiteral("ftp://127.0.0.1/feed.xml")))), ErrorCause::SchemeRefused);
    EXPECT_EQ(CauseOf(Fetch(QUrl(QStringLiteral("data:text/xml,<rss/>")))), ErrorCause::SchemeRefused);
    EXPECT_EQ(CauseOf(Fetch(QUrl(QStringLiteral("qrc:/feed.xml")))), ErrorCause::SchemeRefused);
    EXPECT_EQ(CauseOf(Fetch(QUrl(QStringLiteral("https:///feed.xml")))), ErrorCause::InvalidAddress);
}
class RedirectScheme : public FeedFetcherTest, public ::testing::WithParamInterface<char const*>
{
};

INSTANTIATE_TEST_SUITE_P(Row3, RedirectScheme,
                         ::testing::Values("file:///etc/passwd", "data:text/xml,x", "ftp://127.0.0.1/x",
                                           "qrc:/feed.xml", "javascript:alert(1)", "about:blank"));

TEST_P(RedirectScheme, IsRefused)
{
    for (int const status : {301, 302, 303, 307, 308})
    {
        LoopbackServer server(Answering(RedirectAnswer(status, GetParam())));
        EXPECT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::RedirectScheme) << status;
    }
}

TEST_F(FeedFetcherTest, RedirectsAreFollowedAndTheLastAddressCounts)
{
    for (int const status : {301, 302, 303, 307, 308})
    {
        LoopbackServer server(
            [status](QSslSocket& socket, QByteArray const& request, int)
            {
                Answering(request.startsWith("GET /new/feed.xml ")
                              ? OkAnswer(BODY)
                              : RedirectAnswer(status, "/new/feed.xml"))(socket, request, 0);
            });
        FetchOutcome const outcome = Fetch(server.Url());
        EXPECT_EQ(CauseOf(outcome), ErrorCause::NoUpdate) << status;
        EXPECT_EQ(outcome.bytes, BODY);
        EXPECT_EQ(outcome.url, server.Url(QStringLiteral("/new/feed.xml")));
    }
}
TEST_F(FeedFetcherTest, RedirectLoopStopsAfterTenHops)
{
    LoopbackServer server(Answering(RedirectAnswer(302, "/feed.xml")));
    EXPECT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::TooManyRedirects);
    EXPECT_EQ(server.Requests().size(), 11u);
}

TEST_F(FeedFetcherTest, TenHopsAreFollowed)
{
    LoopbackServer server(
        [](QSslSocket& socket, QByteArray const& request, int number)
        {
            Answering(number == 10 ? OkAnswer(BODY)
                                   : RedirectAnswer(302, "/hop" + QByteArray::number(number)))(socket, request, number);
        });
    EXPECT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::NoUpdate);
    EXPECT_EQ(server.Requests().size(), 11u);
}

TEST_F(FeedFetcherTest, RedirectWithoutLocationIsAnErrorOfItsOwn)
{
    LoopbackServer server(Answering("HTTP/1.1 302 Found\r\nContent-Length: 0\r\n\r\n"));
    EXPECT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::RedirectWithoutLocation);
}
TEST_F(FeedFetcherTest, CredentialsStayWithinTheOrigin)
{
    LoopbackServer other(Answering(OkAnswer(BODY)));
    LoopbackServer server(
        [&other](QSslSocket& socket, QByteArray const& request, int number) {
            Answering(RedirectAnswer(302, number == 0 ? QByteArray("/second") : other.Url().toEncoded()))(socket,
                                                                                                          request, 0);
        });
    QUrl url = server.Url();
    url.setUserName(QStringLiteral("user"));
    url.setPassword(QStringLiteral("pass word"));
    FetchOutcome const outcome = Fetch(url);
    ASSERT_EQ(CauseOf(outcome), ErrorCause::NoUpdate);
    EXPECT_EQ(outcome.url, other.Url());
    QByteArray const field = "\r\nAuthorization: Basic " + QByteArray("user:pass word").toBase64() + "\r\n";
    ASSERT_EQ(server.Requests().size(), 2u);
    EXPECT_TRUE(server.Requests()[0].contains(field));
    EXPECT_TRUE(server.Requests()[1].contains(field)) << "same origin";
    ASSERT_EQ(other.Requests().size(), 1u);
    EXPECT_FALSE(other.Requests()[0].contains("Authorization")) << "another port is another origin";
}
TEST_F(FeedFetcherTest, ConnectionRefusedIsAnErrorOfItsOwn)
{
    QUrl url;
    {
        LoopbackServer const closed(Silent());
        url = closed.Url();
    }
    EXPECT_EQ(CauseOf(Fetch(url)), ErrorCause::ConnectionRefused);
}

TEST_F(FeedFetcherTest, NameThatDoesNotExistIsAnErrorOfItsOwn)
{
    FetchOutcome const outcome =
        Fetch(QUrl(QStringLiteral("https://no-such-host.invalid/feed.xml")), ShortLimits(), InsecureHttp::LoopbackOnly);
    EXPECT_EQ(CauseOf(outcome), ErrorCause::HostNotFound);
}

TEST_F(FeedFetcherTest, BlackHoleEndsAtTheConnectDeadline)
{
    // A listener with a full queue does not answer the next client.
    int const listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    ASSERT_EQ(bind(listener, reinterpret_cast<sockaddr*>(&address), length), 0);
    ASSERT_EQ(listen(listener, 0), 0);
    ASSERT_EQ(getsockname(listener, reinterpret_cast<sockaddr*>(&address), &length), 0);
    std::vector<int> waiting;
    for (int count = 0; count < 4; ++count)
    {
        waiting.push_back(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
        (void)connect(waiting.back(), reinterpret_cast<sockaddr*>(&address), length);
    }
    FetchLimits limits = ShortLimits();
    limits.connectTimeout = milliseconds(200);
    QUrl url(QStringLiteral("http://127.0.0.1/feed.xml"));
    url.setPort(ntohs(address.sin_port));
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(CauseOf(Fetch(url, limits)), ErrorCause::ConnectTimeout);
    EXPECT_GE(clock.elapsed(), 150) << "a coarse timer fires at most a twentieth too early";
    EXPECT_LT(clock.elapsed(), 2000) << "at its own deadline, and not at another one";
    for (int const descriptor : waiting)
    {
        close(descriptor);
    }
    close(listener);
}
TEST_F(FeedFetcherTest, ResetAfterEachKibibyteIsIncompleteAndNoPrefixIsGiven)
{
    QByteArray const body(16 * 1024, 'x');
    QByteArray const answer = OkAnswer(body);
    int const headBytes = answer.size() - body.size();
    for (int kept = 0; kept < body.size(); kept += 1024)
    {
        LoopbackServer server(AnsweringThenReset(answer.left(headBytes + kept)));
        ErrorCause const cause = CauseOf(Fetch(server.Url()));
        // A reset may arrive before all that was sent earlier, including the head.
        EXPECT_TRUE(cause == ErrorCause::IncompleteBody || cause == ErrorCause::IncompleteHead) << kept;
    }
}

TEST_F(FeedFetcherTest, CloseAfterEachKibibyteIsIncomplete)
{
    QByteArray const body(16 * 1024, 'x');
    QByteArray const answer = OkAnswer(body);
    int const headBytes = answer.size() - body.size();
    for (int kept = 0; kept < body.size(); kept += 1024)
    {
        LoopbackServer server(Answering(answer.left(headBytes + kept)));
        EXPECT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::IncompleteBody) << kept;
    }
    LoopbackServer server(Answering(answer.left(headBytes - 3)));
    EXPECT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::IncompleteHead);
}

TEST_F(FeedFetcherTest, ChunksThatBreakOffAreIncomplete)
{
    LoopbackServer server(Answering("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\n<rss>\r\n"));
    EXPECT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::IncompleteBody);
}

TEST_F(FeedFetcherTest, ChunksAndBodiesUntilCloseArrive)
{
    LoopbackServer chunks(Answering("HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"
                                    "5;name=value\r\n<rss>\r\n6\r\n</rss>\r\n0\r\nTrailer: x\r\n\r\n"));
    EXPECT_EQ(Fetch(chunks.Url()).bytes, "<rss></rss>");
    LoopbackServer untilClose(Answering("HTTP/1.0 200 OK\r\n\r\n<rss></rss>"));
    EXPECT_EQ(Fetch(untilClose.Url()).bytes, "<rss></rss>");
}
TEST_F(FeedFetcherTest, EndlessBodyIsCutAtTheCap)
{
    LoopbackServer server(AnsweringWithoutEnd("HTTP/1.1 200 OK\r\n\r\n", QByteArray(64 * 1024, 'x')));
    EXPECT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::BodyTooLarge);
    LoopbackServer chunked(AnsweringWithoutEnd("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n",
                                               "10000\r\n" + QByteArray(64 * 1024, 'x') + "\r\n"));
    EXPECT_EQ(CauseOf(Fetch(chunked.Url())), ErrorCause::BodyTooLarge);
}

TEST_F(FeedFetcherTest, BodyOfTheCapArrivesAndOneByteMoreDoesNot)
{
    FetchLimits limits = ShortLimits();
    limits.maxBodyBytes = 1000;
    LoopbackServer fits(Answering(OkAnswer(QByteArray(1000, 'x'))));
    EXPECT_EQ(Fetch(fits.Url(), limits).bytes.size(), 1000);
    LoopbackServer tooLarge(Answering(OkAnswer(QByteArray(1001, 'x'))));
    EXPECT_EQ(CauseOf(Fetch(tooLarge.Url(), limits)), ErrorCause::BodyTooLarge);
}
TEST_F(FeedFetcherTest, EndlessHeadersAreCutAtTheCap)
{
    LoopbackServer server(AnsweringWithoutEnd("HTTP/1.1 200 OK\r\n", "X-Filler: " + QByteArray(1000, 'x') + "\r\n"));
    EXPECT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::HeadTooLarge);
    LoopbackServer oneLine(AnsweringWithoutEnd("HTTP/1.1 200 OK\r\nX-Filler: ", QByteArray(1000, 'x')));
    EXPECT_EQ(CauseOf(Fetch(oneLine.Url())), ErrorCause::HeadTooLarge);
    LoopbackServer informational(AnsweringWithoutEnd("", "HTTP/1.1 103 Early Hints\r\n\r\n"));
    EXPECT_EQ(CauseOf(Fetch(informational.Url())), ErrorCause::HeadTooLarge);
}

TEST_F(FeedFetcherTest, SlowHeadersEndAtTheTotalDeadline)
{
    FetchLimits limits = ShortLimits();
    limits.totalTimeout = milliseconds(300);
    limits.minBytesPerSecond = 0;
    LoopbackServer server(Dripping("HTTP/1.1 200 OK\r\n", QByteArray(100000, 'x'), 10));
    EXPECT_EQ(CauseOf(Fetch(server.Url(), limits)), ErrorCause::TotalTimeout);
}
TEST(FetchLimits, AreThoseThatShip)
{
    FetchLimits const limits;
    EXPECT_EQ(limits.maxBodyBytes, 4 * 1024 * 1024);
    EXPECT_EQ(limits.maxHeadBytes, 64 * 1024);
    EXPECT_EQ(limits.maxRedirects, 10);
    EXPECT_EQ(limits.connectTimeout, std::chrono::seconds(15));
    EXPECT_EQ(limits.totalTimeout, std::chrono::seconds(60));
    EXPECT_LE(limits.rateWindow, std::chrono::seconds(60));
    EXPECT_EQ(limits.minBytesPerSecond, 1024);
}

TEST_F(FeedFetcherTest, DripIsTooSlow)
{
    FetchLimits limits = ShortLimits();
    limits.rateWindow = milliseconds(400);
    LoopbackServer server(Dripping("HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n", QByteArray(100000, 'x'), 10));
    EXPECT_EQ(CauseOf(Fetch(server.Url(), limits)), ErrorCause::TooSlow);
    LoopbackServer silent(Silent());
    EXPECT_EQ(CauseOf(Fetch(silent.Url(), limits)), ErrorCause::TooSlow) << "no answer at all is the slowest";
}

TEST_F(FeedFetcherTest, EndlessLineAtAChunksSizeIsLeftLongBeforeItIsTooSlow)
{
    FetchLimits limits = ShortLimits();
    limits.rateWindow = milliseconds(8000);
    LoopbackServer server(
        AnsweringWithoutEnd("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n1;", QByteArray(1000, 'x')));
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(CauseOf(Fetch(server.Url(), limits)), ErrorCause::MalformedChunk) << "no byte of a body comes";
    EXPECT_LT(clock.elapsed(), 8000);
}

TEST_F(FeedFetcherTest, NoCharacterOfAnAddressEndsALine)
{
    LoopbackServer server(Answering(OkAnswer(BODY)));
    ASSERT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::NoUpdate);
    int const lines = server.Requests()[0].count("\n");
    for (int character = 1; character < 0x100; ++character)
    {
        QUrl address = server.Url();
        address.setPath(QStringLiteral("/x") + QChar(character), QUrl::DecodedMode);
        address.setQuery(QString(QChar(character)), QUrl::DecodedMode);
        address.setUserName(QString(QChar(character)), QUrl::DecodedMode);
        ASSERT_EQ(CauseOf(Fetch(address)), ErrorCause::NoUpdate) << character;
        QByteArray const request = server.Requests().back();
        EXPECT_EQ(request.count("\r\n"), lines + 1) << character << " and the field with the user's name";
        EXPECT_EQ(request.count("\n"), lines + 1) << character;
        EXPECT_EQ(request.count("\r"), lines + 1) << character;
        QByteArray const target = address.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority);
        EXPECT_TRUE(request.startsWith("GET " + target + " HTTP/1.1\r\n")) << request.toStdString();
    }
}

TEST_F(FeedFetcherTest, FetchSendsNothingThatItWasNotAskedFor)
{
    QTemporaryDir home;
    QFile secrets(home.filePath(QStringLiteral(".netrc")));
    ASSERT_TRUE(secrets.open(QIODevice::WriteOnly));
    secrets.write("machine 127.0.0.1 login me password secret\ndefault login me password secret\n");
    secrets.close();
    QByteArray const before = qgetenv("HOME");
    qputenv("HOME", home.path().toLocal8Bit());
    LoopbackServer server(
        [](QSslSocket& socket, QByteArray const& request, int number)
        {
            QByteArray answer = number == 0 ? RedirectAnswer(302, "/next") : OkAnswer(BODY);
            Answering(answer.replace("\r\n\r\n", "\r\nSet-Cookie: a=b\r\n\r\n"))(socket, request, number);
        });
    EXPECT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::NoUpdate);
    qputenv("HOME", before);
    ASSERT_EQ(server.Requests().size(), 2u);
    for (QByteArray const& request : server.Requests())
    {
        EXPECT_FALSE(request.contains("Authorization")) << request.toStdString();
        EXPECT_FALSE(request.contains("Cookie")) << request.toStdString();
        EXPECT_FALSE(request.contains("Referer")) << request.toStdString();
    }
}

TEST_F(FeedFetcherTest, ServerJustFastEnoughIsWaitedFor)
{
    FetchLimits limits = ShortLimits();
    limits.rateWindow = milliseconds(500);
    limits.minBytesPerSecond = 20;
    LoopbackServer server(Dripping("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n", QByteArray(100, 'x'), 10));
    EXPECT_EQ(Fetch(server.Url(), limits).bytes.size(), 100);
}

TEST_F(FeedFetcherTest, EncodedLineEndInALocationIsNeverReEmittedAsOne)
{
    LoopbackServer server(
        [](QSslSocket& socket, QByteArray const& request, int number) {
            Answering(number == 0 ? RedirectAnswer(302, "/a%0d%0aX-Injected:%20y") : OkAnswer(BODY))(socket, request,
                                                                                                     number);
        });
    EXPECT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::NoUpdate);
    ASSERT_EQ(server.Requests().size(), 2u);
    EXPECT_TRUE(server.Requests()[1].toLower().startsWith("get /a%0d%0ax-injected:%20y http/1.1\r\n"));
    EXPECT_FALSE(server.Requests()[1].contains("\nX-Injected"));
}

class FeedFile : public FetchTest
{
protected:
    QUrl Write(QByteArray const& bytes)
    {
        QFile file(folder.filePath(QStringLiteral("a feed.xml")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return QUrl::fromLocalFile(file.fileName());
    }

    QTemporaryDir folder;
};

TEST_F(FeedFile, IsRead)
{
    QUrl const url = Write(BODY);
    FetchOutcome const outcome = Fetch(url);
    EXPECT_EQ(outcome.bytes, BODY);
    EXPECT_EQ(outcome.url, url);
}

TEST_F(FeedFile, CapHoldsForFilesToo)
{
    FetchLimits limits;
    limits.maxBodyBytes = 100;
    EXPECT_EQ(Fetch(Write(QByteArray(100, 'x')), limits).bytes.size(), 100);
    EXPECT_EQ(CauseOf(Fetch(Write(QByteArray(101, 'x')), limits)), ErrorCause::FileTooLarge);
}

TEST_F(FeedFile, WhatIsNotAReadableFileIsRefused)
{
    EXPECT_EQ(CauseOf(Fetch(QUrl::fromLocalFile(folder.filePath(QStringLiteral("absent"))))), ErrorCause::FileNotFound);
    EXPECT_EQ(CauseOf(Fetch(QUrl::fromLocalFile(folder.path()))), ErrorCause::FileNotRegular);
    EXPECT_EQ(CauseOf(Fetch(QUrl(QStringLiteral("file:///dev/zero")))), ErrorCause::FileNotRegular);
    QString const pipe = folder.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(CauseOf(Fetch(QUrl::fromLocalFile(pipe))), ErrorCause::FileNotRegular)
        << "opening it would wait for ever";
    EXPECT_EQ(CauseOf(Fetch(QUrl(QStringLiteral("file://server/share/feed.xml")))), ErrorCause::FileOnOtherHost);
    // A file that can be opened but not read, even by root.
    EXPECT_EQ(CauseOf(Fetch(QUrl(QStringLiteral("file:///proc/self/mem")))), ErrorCause::FileUnreadable);
}

} // namespace
