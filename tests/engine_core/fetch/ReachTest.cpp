// ReachTest.cpp: data from another computer must not lead to a connection to this computer or its link: not by an
// address, a name, a redirect or an open connection.
#include "Engine/core/fetch/HttpTransfer.h"
#include "tests/engine_core/fetch/FetchHarness.h"
#include "tests/support/LoopbackServer.h"
#include "tests/support/TestCertificates.h"
#include "tests/support/TestProxy.h"

#include <QHostInfo>
#include <QNetworkProxy>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

QByteArray const BODY = "<rss/>";

class ReachTest : public FetchTest
{
protected:
    /// The result of a request for \a url that may lead to \a nearest; NoUpdate for an answer.
    static ErrorCause Transfer(QUrl const& url, AddressReach nearest)
    {
        FetchRequest request = RequestFor(url);
        request.nearest = nearest;
        HttpTransfer transfer(request, ShortLimits());
        std::optional<ErrorCause> cause;
        QObject::connect(&transfer, &HttpTransfer::Failed, [&](EngineError const& error) { cause = error.cause; });
        QObject::connect(&transfer, &HttpTransfer::Completed, [&] { cause = ErrorCause::NoUpdate; });
        transfer.Open();
        EXPECT_TRUE(WaitFor([&] { return cause.has_value(); }, 30000)) << url.toString().toStdString();
        return cause.value_or(ErrorCause::TotalTimeout);
    }

    LoopbackServer server{Answering(OkAnswer(BODY))};
};

TEST_F(ReachTest, ConnectionIsJudgedByItsAddressBeforeItIsMade)
{
    EXPECT_EQ(Transfer(server.Url(), AddressReach::Network), ErrorCause::AddressNotPublic);
    EXPECT_EQ(Transfer(server.Url(), AddressReach::Link), ErrorCause::AddressNotPublic);
    EXPECT_EQ(server.Connections(), 0);
    EXPECT_EQ(Transfer(server.Url(), AddressReach::ThisComputer), ErrorCause::NoUpdate);
    EXPECT_EQ(server.Connections(), 1);
}

TEST_F(ReachTest, EveryNotationIsJudged)
{
    for (char const* const host :
         {"localhost", "0.0.0.0", "0", "127.1", "2130706433", "0x7f.1", "0177.0.0.1", "[::]", "[::1]",
          "[::ffff:127.0.0.1]", "[::ffff:0:127.0.0.1]", "169.254.7.7", "[fe80::1]", "[64:ff9b::127.0.0.1]"})
    {
        QUrl url(QStringLiteral("http://%1/").arg(QString::fromLatin1(host)));
        url.setPort(server.Url().port());
        if (url.isValid())
        {
            EXPECT_EQ(Transfer(url, AddressReach::Network), ErrorCause::AddressNotPublic) << host;
        }
    }
    EXPECT_EQ(server.Connections(), 0);
}

TEST_F(ReachTest, NameThatStandsForThisComputerIsJudgedByWhatItStandsFor)
{
    QString const name = QHostInfo::localHostName();
    QHostInfo const info = QHostInfo::fromName(name);
    if (info.addresses().isEmpty() ||
        ReachOf(NumericAddressOf(info.addresses().first().toString()).value()) != AddressReach::ThisComputer)
    {
        GTEST_SKIP() << "the name of this computer, " << name.toStdString() << ", does not stand for it here";
    }
    QUrl const url = server.Url(QStringLiteral("/feed.xml"), name);
    ASSERT_EQ(ReachOf(url), AddressReach::Network) << "the name does not show it";
    EXPECT_EQ(Transfer(url, AddressReach::Network), ErrorCause::AddressNotPublic);
    EXPECT_EQ(server.Connections(), 0);
}

TEST_F(ReachTest, ConnectionOfAnotherRequestIsJudgedAsWell)
{
    LoopbackServer waiting([](QSslSocket& socket, QByteArray const&, int)
                           { socket.write("HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\n<rss/>"); });
    EXPECT_EQ(Transfer(waiting.Url(), AddressReach::ThisComputer), ErrorCause::NoUpdate);
    EXPECT_EQ(Transfer(waiting.Url(), AddressReach::ThisComputer), ErrorCause::NoUpdate);
    ASSERT_EQ(waiting.Connections(), 1) << "it is used once more";
    EXPECT_EQ(Transfer(waiting.Url(), AddressReach::Network), ErrorCause::AddressNotPublic);
    EXPECT_EQ(waiting.Requests().size(), 2u);
}

TEST_F(ReachTest, FeedFromHereMayLeadHere)
{
    LoopbackServer leading(Answering(RedirectAnswer(302, server.Url().toEncoded())));
    FetchOutcome const outcome = Fetch(leading.Url());
    EXPECT_EQ(outcome.bytes, BODY);
    EXPECT_EQ(outcome.reach, AddressReach::ThisComputer);
}

/// A server whose name only a proxy knows. For the engine the server is far away.
class FarServer
{
public:
    FarServer(LoopbackServer::Script script, ServerIdentity identity)
        : m_server(std::move(script), std::move(identity))
        , m_proxy(TestProxy::Kind::Http, static_cast<quint16>(m_server.Url().port()))
    {
        QNetworkProxy::setApplicationProxy(
            QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), m_proxy.Port()));
    }
    ~FarServer() { QNetworkProxy::setApplicationProxy(QNetworkProxy(QNetworkProxy::NoProxy)); }

    QUrl Url() const { return m_server.Url(QStringLiteral("/feed.xml"), QStringLiteral("far.example.com")); }
    LoopbackServer const& Server() const { return m_server; }

private:
    LoopbackServer m_server;
    TestProxy m_proxy;
};

TEST_F(ReachTest, FeedFromElsewhereIsNotFollowedHere)
{
    TestCertificates certificates;
    TrustedAuthority const trusted(certificates.Authority());
    ServerIdentity const identity = certificates.Signed("far.example.com");
    LoopbackServer secure(Answering(OkAnswer(BODY)), certificates.Signed("127.0.0.1"));
    QByteArray const port = QByteArray::number(secure.Url().port());
    for (QByteArray const& host : {QByteArray("127.0.0.1"), QByteArray("localhost"), QByteArray("[::1]"),
                                   QByteArray("2130706433"), QByteArray("[::ffff:127.0.0.1]"), QByteArray("0.0.0.0"),
                                   QByteArray("169.254.169.254"), QByteArray("user@127.0.0.1")})
    {
        FarServer far(Answering(RedirectAnswer(302, "https://" + host + ':' + port + "/feed.xml")), identity);
        ErrorCause const cause = CauseOf(Fetch(far.Url()));
        EXPECT_EQ(cause, ErrorCause::AddressNotPublic) << host.toStdString();
        EXPECT_EQ(far.Server().Requests().size(), 1u) << host.toStdString();
    }
    EXPECT_EQ(secure.Connections(), 0);
}

TEST_F(ReachTest, RedirectsOnTheWayCountEachByItself)
{
    TestCertificates certificates;
    TrustedAuthority const trusted(certificates.Authority());
    int hops = 0;
    FarServer far(
        [&](QSslSocket& socket, QByteArray const& request, int number)
        {
            ++hops;
            Answering(number == 0 ? RedirectAnswer(302, "/next")
                                  : RedirectAnswer(302, "https://127.0.0.1:1/"))(socket, request, number);
        },
        certificates.Signed("far.example.com"));
    EXPECT_EQ(CauseOf(Fetch(far.Url())), ErrorCause::AddressNotPublic);
    EXPECT_EQ(hops, 2);
}

} // namespace
