// SecureFetchTest.cpp: the requirements for a server's certificate and handshake, and the redirects from an https
// address.
#include "tests/engine_core/fetch/FetchHarness.h"
#include "tests/support/LoopbackServer.h"
#include "tests/support/TestCertificates.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>

#include <optional>

#include <sys/socket.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

QByteArray const BODY = "<rss version=\"2.0\"><channel/></rss>";

class SecureFetchTest : public FetchTest
{
protected:
    TestCertificates certificates;
    TrustedAuthority trusted{certificates.Authority()};
};

TEST_F(SecureFetchTest, TrustedServerIsRead)
{
    LoopbackServer server(Answering(OkAnswer(BODY)), certificates.Signed("127.0.0.1"));
    EXPECT_EQ(Fetch(server.Url()).bytes, BODY);
}

TEST_F(SecureFetchTest, BodyOfManyRecordsArrivesWhole)
{
    QByteArray const body(3 * 1024 * 1024, 'x');
    LoopbackServer server(Answering(OkAnswer(body)), certificates.Signed("127.0.0.1"));
    EXPECT_EQ(Fetch(server.Url()).bytes, body);
}
TEST_F(SecureFetchTest, RedirectToHttpIsADowngrade)
{
    LoopbackServer plain(Answering(OkAnswer(BODY)));
    for (int const status : {301, 302, 303, 307, 308})
    {
        LoopbackServer server(Answering(RedirectAnswer(status, plain.Url().toEncoded())),
                              certificates.Signed("127.0.0.1"));
        EXPECT_EQ(CauseOf(Fetch(server.Url(), ShortLimits(), InsecureHttp::Anywhere)), ErrorCause::RedirectDowngrade)
            << status;
    }
    EXPECT_EQ(plain.Connections(), 0);
}

TEST_F(SecureFetchTest, RedirectFromHttpToHttpsIsFollowed)
{
    LoopbackServer secure(Answering(OkAnswer(BODY)), certificates.Signed("127.0.0.1"));
    LoopbackServer plain(Answering(RedirectAnswer(301, secure.Url().toEncoded())));
    EXPECT_EQ(Fetch(plain.Url()).bytes, BODY);
}
TEST_F(SecureFetchTest, SelfSignedCertificateIsRefused)
{
    LoopbackServer server(Answering(OkAnswer(BODY)), certificates.SelfSigned("127.0.0.1"));
    EXPECT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::CertificateSelfSigned);
    EXPECT_TRUE(server.Requests().empty());
}

TEST_F(SecureFetchTest, ExpiredCertificateIsRefusedAndTheClockIsNamed)
{
    QDateTime const now = QDateTime::currentDateTimeUtc();
    LoopbackServer server(Answering(OkAnswer(BODY)),
                          certificates.Signed("127.0.0.1", now.addDays(-20), now.addDays(-10)));
    FetchOutcome const outcome = Fetch(server.Url());
    ASSERT_EQ(CauseOf(outcome), ErrorCause::CertificateExpired);
    EXPECT_TRUE(outcome.error->sentence.English().contains(QLatin1String("the clock of this computer")));
    EXPECT_TRUE(server.Requests().empty());
}

TEST_F(SecureFetchTest, CertificateNotYetValidIsRefusedAndTheClockIsNamed)
{
    QDateTime const now = QDateTime::currentDateTimeUtc();
    LoopbackServer server(Answering(OkAnswer(BODY)),
                          certificates.Signed("127.0.0.1", now.addDays(10), now.addDays(20)));
    FetchOutcome const outcome = Fetch(server.Url());
    ASSERT_EQ(CauseOf(outcome), ErrorCause::CertificateNotYetValid);
    EXPECT_TRUE(outcome.error->sentence.English().contains(QLatin1String("the clock of this computer")));
}

TEST_F(SecureFetchTest, CertificateOfAnotherNameIsRefused)
{
    LoopbackServer server(Answering(OkAnswer(BODY)), certificates.Signed("feeds.example.com"));
    EXPECT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::CertificateWrongName);
    EXPECT_TRUE(server.Requests().empty());
}

struct NamesRow
{
    char const* name;
    char const* subject;
    char const* alternatives;
    bool isRight;
};

void PrintTo(NamesRow const& row, std::ostream* out)
{
    *out << row.name;
}

class CertificateNames : public SecureFetchTest, public ::testing::WithParamInterface<NamesRow>
{
};

INSTANTIATE_TEST_SUITE_P(
    Rows, CertificateNames,
    ::testing::Values(NamesRow{"ListNamesTheServer", "other.example", "DNS:other.example,IP:127.0.0.1", true},
                      NamesRow{"SubjectBesideAListOfOthers", "127.0.0.1", "DNS:other.example,IP:192.0.2.1", false},
                      NamesRow{"SubjectBesideAListOfOtherKinds", "127.0.0.1", "email:someone@example.com", false},
                      NamesRow{"SubjectAlone", "127.0.0.1", "", false},
                      NamesRow{"AddressAsAName", "other.example", "DNS:127.0.0.1", false}),
    [](auto const& row) { return std::string(row.param.name); });

TEST_P(CertificateNames, CountFromTheListAlone)
{
    NamesRow const& row = GetParam();
    LoopbackServer server(Answering(OkAnswer(BODY)), certificates.SignedWithNames(row.subject, row.alternatives));
    EXPECT_EQ(CauseOf(Fetch(server.Url())), row.isRight ? ErrorCause::NoUpdate : ErrorCause::CertificateWrongName);
    EXPECT_EQ(server.Requests().size(), row.isRight ? 1u : 0u);
}

class HostNames : public SecureFetchTest, public ::testing::WithParamInterface<NamesRow>
{
};

INSTANTIATE_TEST_SUITE_P(
    Rows, HostNames,
    ::testing::Values(NamesRow{"ListNamesTheServer", "other.example", "DNS:localhost", true},
                      NamesRow{"SubjectBesideAListOfOthers", "localhost", "DNS:other.example", false},
                      NamesRow{"SubjectBesideAListOfAddresses", "localhost", "IP:127.0.0.1", false},
                      NamesRow{"SubjectAlone", "localhost", "", false}),
    [](auto const& row) { return std::string(row.param.name); });

TEST_P(HostNames, CountFromTheListAlone)
{
    NamesRow const& row = GetParam();
    LoopbackServer server(Answering(OkAnswer(BODY)), certificates.SignedWithNames(row.subject, row.alternatives));
    QUrl const url = server.Url(QStringLiteral("/feed.xml"), QStringLiteral("localhost"));
    EXPECT_EQ(CauseOf(Fetch(url)), row.isRight ? ErrorCause::NoUpdate : ErrorCause::CertificateWrongName);
    EXPECT_EQ(server.Requests().size(), row.isRight ? 1u : 0u);
}

/// Answers and closes the connection without the closing message of TLS.
LoopbackServer::Script AnsweringWithoutGoodbye(QByteArray const& bytes)
{
    return [bytes](QSslSocket& socket, QByteArray const&, int)
    {
        socket.write(bytes);
        socket.flush();
        while (socket.encryptedBytesToWrite() > 0 && socket.waitForBytesWritten(1000))
        {
        }
        shutdown(static_cast<int>(socket.socketDescriptor()), SHUT_WR);
    };
}

TEST_F(SecureFetchTest, BodyWithoutLengthThatEndsWithoutGoodbyeIsIncomplete)
{
    QByteArray const answer = "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n" + BODY;
    LoopbackServer cut(AnsweringWithoutGoodbye(answer), certificates.Signed("127.0.0.1"));
    EXPECT_EQ(CauseOf(Fetch(cut.Url())), ErrorCause::IncompleteBody);
    LoopbackServer whole(Answering(answer), certificates.Signed("127.0.0.1"));
    EXPECT_EQ(Fetch(whole.Url()).bytes, BODY);
    LoopbackServer chunks(
        AnsweringWithoutGoodbye("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\n<rss>\r\n"),
        certificates.Signed("127.0.0.1"));
    EXPECT_EQ(CauseOf(Fetch(chunks.Url())), ErrorCause::IncompleteBody);
}

TEST_F(SecureFetchTest, BodyThatIsWholeByItsLengthNeedsNoGoodbye)
{
    LoopbackServer server(AnsweringWithoutGoodbye(OkAnswer(BODY)), certificates.Signed("127.0.0.1"));
    EXPECT_EQ(Fetch(server.Url()).bytes, BODY);
}

TEST_F(SecureFetchTest, ResetInTheMiddleIsIncompleteAndEndsNoProcess)
{
    QByteArray const body(1024 * 1024, 'x');
    for (int const kept : {0, 100, 70000, 500000})
    {
        LoopbackServer server(AnsweringThenReset(OkAnswer(body).left(OkAnswer(body).size() - body.size() + kept)),
                              certificates.Signed("127.0.0.1"));
        ErrorCause const cause = CauseOf(Fetch(server.Url()));
        EXPECT_TRUE(cause == ErrorCause::IncompleteBody || cause == ErrorCause::IncompleteHead) << kept;
    }
}

TEST_F(SecureFetchTest, AuthoritiesOfTheHostCountFromTheNextFetchOn)
{
    TestCertificates stranger;
    LoopbackServer server(Answering(OkAnswer(BODY)), stranger.Signed("127.0.0.1"));
    EXPECT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::CertificateAuthorityUnknown);
    {
        TrustedAuthority const both(stranger.Authority());
        EXPECT_EQ(Fetch(server.Url()).bytes, BODY);
    }
    EXPECT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::CertificateAuthorityUnknown);
}

/// Answers and keeps the connection open for the next request.
LoopbackServer::Script AnsweringAndWaiting(QByteArray const& body)
{
    return [body](QSslSocket& socket, QByteArray const&, int)
    { socket.write("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body); };
}

TEST_F(SecureFetchTest, SecondFetchNeedsNoConnectionOfItsOwn)
{
    LoopbackServer server(AnsweringAndWaiting(BODY), certificates.Signed("127.0.0.1"));
    EXPECT_EQ(Fetch(server.Url()).bytes, BODY);
    EXPECT_EQ(Fetch(server.Url(QStringLiteral("/other.xml"))).bytes, BODY);
    EXPECT_EQ(server.Requests().size(), 2u);
    EXPECT_EQ(server.Connections(), 1);
}

TEST_F(SecureFetchTest, ConnectionIsNotUsedOnceMoreWhenItsAuthorityIsTrustedNoLonger)
{
    LoopbackServer server(AnsweringAndWaiting(BODY), certificates.Signed("127.0.0.1"));
    EXPECT_EQ(Fetch(server.Url()).bytes, BODY);
    TestCertificates other;
    TrustedAuthority const others(other.Authority());
    EXPECT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::CertificateAuthorityUnknown);
    EXPECT_EQ(server.Requests().size(), 1u);
}

TEST_F(SecureFetchTest, UnknownAuthorityIsRefused)
{
    TestCertificates stranger;
    ServerIdentity identity = stranger.Signed("127.0.0.1");
    LoopbackServer alone(Answering(OkAnswer(BODY)), identity);
    EXPECT_EQ(CauseOf(Fetch(alone.Url())), ErrorCause::CertificateAuthorityUnknown);
    identity.chain.append(stranger.Authority());
    LoopbackServer withAuthority(Answering(OkAnswer(BODY)), identity);
    EXPECT_EQ(CauseOf(Fetch(withAuthority.Url())), ErrorCause::CertificateAuthorityUnknown);
}

TEST_F(SecureFetchTest, CertificateOfARedirectTargetIsCheckedToo)
{
    LoopbackServer target(Answering(OkAnswer(BODY)), certificates.Signed("feeds.example.com"));
    LoopbackServer server(Answering(RedirectAnswer(302, target.Url().toEncoded())), certificates.Signed("127.0.0.1"));
    EXPECT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::CertificateWrongName);
}

TEST_F(SecureFetchTest, ServerThatSpeaksNoTlsIsRefused)
{
    LoopbackServer plain(Answering(OkAnswer(BODY)));
    QUrl url = plain.Url();
    url.setScheme(QStringLiteral("https"));
    FetchLimits limits = ShortLimits();
    limits.connectTimeout = std::chrono::milliseconds(500);
    ErrorCause const cause = CauseOf(Fetch(url, limits));
    // The plain server waits for the end of a request that never comes.
    EXPECT_EQ(cause, ErrorCause::ConnectTimeout);
}

TEST_F(SecureFetchTest, HandshakeThatBreaksSaysNothingOfTheServersTls)
{
    for (bool const isReset : {false, true})
    {
        QTcpServer server;
        QObject::connect(&server, &QTcpServer::newConnection,
                         [&server, isReset]
                         {
                             QTcpSocket* const client = server.nextPendingConnection();
                             QObject::connect(client, &QTcpSocket::readyRead,
                                              [client, isReset]
                                              { isReset ? client->abort() : client->disconnectFromHost(); });
                         });
        ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
        QUrl url(QStringLiteral("https://127.0.0.1/"));
        url.setPort(server.serverPort());
        EXPECT_EQ(CauseOf(Fetch(url)), ErrorCause::IncompleteHead) << isReset;
    }
}

class WeakHandshake : public SecureFetchTest, public ::testing::WithParamInterface<char const*>
{
};

INSTANTIATE_TEST_SUITE_P(Row7, WeakHandshake,
                         ::testing::Values("-tls1 -cipher ALL:@SECLEVEL=0", "-tls1_1 -cipher ALL:@SECLEVEL=0",
                                           "-tls1_2 -cipher eNULL:@SECLEVEL=0"));

TEST_P(WeakHandshake, IsRefused)
{
    (void)certificates.Signed("127.0.0.1");
    QProcess server;
    QStringList arguments{QStringLiteral("s_server"), QStringLiteral("-accept"), QStringLiteral("127.0.0.1:0"),
                          QStringLiteral("-www"),     QStringLiteral("-cert"),   certificates.CertificateFile(),
                          QStringLiteral("-key"),     certificates.KeyFile()};
    arguments += QString::fromLatin1(GetParam()).split(QLatin1Char(' '));
    server.setProcessChannelMode(QProcess::MergedChannels);
    server.start(QStringLiteral("openssl"), arguments);
    QByteArray said;
    QRegularExpressionMatch port;
    ASSERT_TRUE(WaitFor(
        [&]
        {
            said += server.readAll();
            port = QRegularExpression(QStringLiteral("ACCEPT 127\\.0\\.0\\.1:(\\d+)")).match(QString::fromLatin1(said));
            return port.hasMatch();
        }))
        << said.toStdString();
    QUrl url(QStringLiteral("https://127.0.0.1/"));
    url.setPort(port.captured(1).toInt());
    EXPECT_EQ(CauseOf(Fetch(url)), ErrorCause::HandshakeRefused);
    server.kill();
    server.waitForFinished();
}

} // namespace
