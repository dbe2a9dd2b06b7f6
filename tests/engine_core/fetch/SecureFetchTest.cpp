// SecureFetchTest.cpp: what the certificate and the handshake of a server must be, and what an https address may lead
// to.
#include "tests/engine_core/fetch/FetchHarness.h"
#include "tests/support/LoopbackServer.h"
#include "tests/support/TestCertificates.h"

#include <QProcess>
#include <QRegularExpression>

#include <optional>

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
    EXPECT_TRUE(outcome.error->sentence.English().contains(QLatin1String("check the clock")));
    EXPECT_TRUE(server.Requests().empty());
}

TEST_F(SecureFetchTest, CertificateNotYetValidIsRefusedAndTheClockIsNamed)
{
    QDateTime const now = QDateTime::currentDateTimeUtc();
    LoopbackServer server(Answering(OkAnswer(BODY)),
                          certificates.Signed("127.0.0.1", now.addDays(10), now.addDays(20)));
    FetchOutcome const outcome = Fetch(server.Url());
    ASSERT_EQ(CauseOf(outcome), ErrorCause::CertificateNotYetValid);
    EXPECT_TRUE(outcome.error->sentence.English().contains(QLatin1String("check the clock")));
}

TEST_F(SecureFetchTest, CertificateOfAnotherNameIsRefused)
{
    LoopbackServer server(Answering(OkAnswer(BODY)), certificates.Signed("feeds.example.com"));
    EXPECT_EQ(CauseOf(Fetch(server.Url())), ErrorCause::CertificateWrongName);
    EXPECT_TRUE(server.Requests().empty());
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
