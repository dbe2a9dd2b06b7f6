// TransferTest.cpp: one transfer and a sink with little space, or none for some time; and libcurl's errors as ours.
#include "Engine/core/fetch/HttpTransfer.h"
#include "tests/engine_core/fetch/FetchHarness.h"
#include "tests/support/LoopbackServer.h"
#include "tests/support/TestCertificates.h"

#include <QPointer>

#include <array>
#include <cerrno>
#include <new>
#include <string>

#include <openssl/x509_vfy.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

/// Takes a few bytes at a time, and none while it is closed.
class NarrowSink : public IBodySink
{
public:
    std::optional<qint64> BeginBody(HttpHead const&) override
    {
        ThrowIn("BeginBody");
        return qint64{1} << 40;
    }
    BodyBuffer Buffer() override
    {
        ThrowIn("Buffer");
        return isOpen ? BodyBuffer{m_room.data(), qint64(m_room.size())} : BodyBuffer();
    }
    void Commit(qint64 bytes) override
    {
        ThrowIn("Commit");
        taken.append(m_room.data(), static_cast<int>(bytes));
        isOpen = taken.size() < closesAt || closesAt == 0;
    }
    void Idle() override { ++rests; }

    QByteArray taken;
    bool isOpen = true;
    int closesAt = 0; ///< after so many bytes; 0 for never
    int rests = 0;
    std::string throwsIn; ///< the name of the function that finds no memory

private:
    void ThrowIn(char const* place) const
    {
        if (throwsIn == place)
        {
            throw std::bad_alloc();
        }
    }

    std::array<char, 777> m_room{};
};

class TransferTest : public FetchTest
{
protected:
    void Open(QUrl const& url, FetchLimits const& limits = ShortLimits())
    {
        transfer = std::make_unique<HttpTransfer>(RequestFor(url), limits, &sink);
        QObject::connect(transfer.get(), &HttpTransfer::Failed,
                         [this](EngineError const& error) { cause = error.cause; });
        QObject::connect(transfer.get(), &HttpTransfer::Completed, [this] { cause = ErrorCause::NoUpdate; });
        transfer->Open();
    }

    /// Lets the sink take all bytes.
    void OpenSink()
    {
        sink.closesAt = 0;
        sink.isOpen = true;
        transfer->ReadOn();
    }

    NarrowSink sink;
    std::unique_ptr<HttpTransfer> transfer;
    std::optional<ErrorCause> cause;
};

QByteArray Numbers(int size)
{
    QByteArray bytes;
    for (int number = 0; bytes.size() < size; ++number)
    {
        bytes += QByteArray::number(number) + ' ';
    }
    return bytes.left(size);
}

TEST_F(TransferTest, ExceptionInACallbackEndsItWithAnError)
{
    LoopbackServer server(Answering(OkAnswer(Numbers(2000))));
    for (char const* const place : {"BeginBody", "Buffer", "Commit"})
    {
        SCOPED_TRACE(place);
        sink.throwsIn = place;
        cause.reset();
        Open(server.Url());
        ASSERT_TRUE(WaitFor([this] { return cause.has_value(); }));
        EXPECT_EQ(cause, ErrorCause::DownloadSystemBusy);
    }
}

TEST_F(TransferTest, SinkThatClosesNowAndThenGetsEveryByteInOrder)
{
    TestCertificates certificates;
    TrustedAuthority const trusted(certificates.Authority());
    QByteArray const body = Numbers(2000000);
    for (bool const isSecure : {false, true})
    {
        LoopbackServer server(Answering(OkAnswer(body)),
                              isSecure ? std::optional(certificates.Signed("127.0.0.1")) : std::nullopt);
        sink.taken.clear();
        cause.reset();
        sink.isOpen = true;
        sink.closesAt = 1000;
        Open(server.Url());
        while (!cause)
        {
            ASSERT_TRUE(WaitFor([this] { return !sink.isOpen || cause.has_value(); }));
            if (!cause)
            {
                sink.closesAt = sink.taken.size() + 50000;
                sink.isOpen = true;
                transfer->ReadOn();
            }
        }
        EXPECT_EQ(*cause, ErrorCause::NoUpdate);
        EXPECT_TRUE(sink.taken == body) << sink.taken.size();
        EXPECT_GT(sink.rests, 0);
    }
}

TEST_F(TransferTest, WhatHasComeGoesToTheSinkBeforeTheFailureIsTold)
{
    QByteArray const part = Numbers(20000);
    LoopbackServer server(Answering("HTTP/1.1 200 OK\r\nContent-Length: 300000\r\n\r\n" + part));
    sink.closesAt = 100;
    Open(server.Url());
    ASSERT_TRUE(WaitFor([this] { return !sink.isOpen; }));
    EXPECT_FALSE(WaitFor([this] { return cause.has_value(); }, 300)) << "an action is waiting";
    OpenSink();
    EXPECT_TRUE(WaitFor([this] { return cause.has_value(); }));
    EXPECT_EQ(cause, ErrorCause::IncompleteBody);
    EXPECT_EQ(sink.taken, part);
}

TEST_F(TransferTest, SinkThatOpensBeforeTheConnectionBreaksIsNotWaitedForOnceMore)
{
    QByteArray const part = Numbers(2000); // few enough to arrive together
    QPointer<QSslSocket> connection;
    LoopbackServer server(
        [&](QSslSocket& socket, QByteArray const&, int)
        {
            connection = &socket;
            socket.write("HTTP/1.1 200 OK\r\nContent-Length: 300000\r\n\r\n" + part);
        });
    sink.closesAt = 100;
    Open(server.Url());
    ASSERT_TRUE(WaitFor([this] { return !sink.isOpen; }));
    OpenSink();
    EXPECT_TRUE(WaitFor([&] { return sink.taken == part; })) << "waiting data goes on when there is space";
    ASSERT_TRUE(connection);
    connection->disconnectFromHost();
    EXPECT_TRUE(WaitFor([this] { return cause.has_value(); }));
    EXPECT_EQ(cause, ErrorCause::IncompleteBody);
}

TEST_F(TransferTest, SinkThatIsClosedIsNoSlowServer)
{
    LoopbackServer server(Answering(OkAnswer(Numbers(3000000))));
    FetchLimits limits = ShortLimits();
    limits.rateWindow = std::chrono::milliseconds(100);
    sink.closesAt = 1000;
    Open(server.Url(), limits);
    EXPECT_FALSE(WaitFor([this] { return cause.has_value(); }, 500));
    OpenSink();
    EXPECT_TRUE(WaitFor([this] { return cause.has_value(); }));
    EXPECT_EQ(cause, ErrorCause::NoUpdate);
}

TEST_F(TransferTest, MayBeDestroyedAtAnyMoment)
{
    LoopbackServer server(AnsweringWithoutEnd("HTTP/1.1 200 OK\r\n\r\n", QByteArray(65536, 'x')));
    for (int const bytes : {0, 1, 1000, 500000})
    {
        sink = NarrowSink();
        cause.reset();
        Open(server.Url());
        ASSERT_TRUE(WaitFor([&] { return sink.taken.size() >= bytes; }));
        transfer.reset();
        int const taken = sink.taken.size();
        EXPECT_FALSE(WaitFor([&] { return cause.has_value() || sink.taken.size() != taken; }, 50)) << bytes;
    }
}

struct EndRow
{
    char const* name;
    TransferEnd end;
    ErrorCause cause;
};

void PrintTo(EndRow const& row, std::ostream* out)
{
    *out << row.name;
}

TransferEnd End(CURLcode code, TransferStage stage, int systemError = 0)
{
    TransferEnd end;
    end.code = code;
    end.stage = stage;
    end.systemError = systemError;
    return end;
}

TransferEnd Certificate(long error)
{
    TransferEnd end = End(CURLE_PEER_FAILED_VERIFICATION, TransferStage::Connecting);
    end.certificateError = error;
    return end;
}

TransferEnd Handshake(char const* text)
{
    TransferEnd end = End(CURLE_SSL_CONNECT_ERROR, TransferStage::Connecting);
    end.text = QString::fromLatin1(text);
    return end;
}

TransferEnd Proxy(CURLcode code, long error, long status)
{
    TransferEnd end = End(code, TransferStage::Connecting, ECONNREFUSED);
    end.hasProxy = true;
    end.proxyError = error;
    end.proxyStatus = status;
    return end;
}

class TransferEnds : public ::testing::TestWithParam<EndRow>
{
};

TEST_P(TransferEnds, HaveOurOwnCauses)
{
    EngineError const error = ErrorOf(GetParam().end);
    EXPECT_EQ(error.cause, GetParam().cause);
}

constexpr auto CONNECTING = TransferStage::Connecting;
constexpr auto WAITING = TransferStage::Waiting;
constexpr auto BODY = TransferStage::Body;

INSTANTIATE_TEST_SUITE_P(
    Rows, TransferEnds,
    ::testing::Values(
        EndRow{"Name", End(CURLE_COULDNT_RESOLVE_HOST, CONNECTING), ErrorCause::HostNotFound},
        EndRow{"Refused", End(CURLE_COULDNT_CONNECT, CONNECTING, ECONNREFUSED), ErrorCause::ConnectionRefused},
        EndRow{"Network", End(CURLE_COULDNT_CONNECT, CONNECTING, ENETUNREACH), ErrorCause::NetworkUnreachable},
        EndRow{"Host", End(CURLE_COULDNT_CONNECT, CONNECTING, EHOSTUNREACH), ErrorCause::NetworkUnreachable},
        EndRow{"SystemsTime", End(CURLE_COULDNT_CONNECT, CONNECTING, ETIMEDOUT), ErrorCause::ConnectTimeout},
        EndRow{"OtherConnect", End(CURLE_COULDNT_CONNECT, CONNECTING, EPERM), ErrorCause::ConnectionFailed},
        EndRow{"Time", End(CURLE_OPERATION_TIMEDOUT, CONNECTING), ErrorCause::ConnectTimeout},
        EndRow{"Handshake", End(CURLE_SSL_CONNECT_ERROR, CONNECTING), ErrorCause::HandshakeRefused},
        EndRow{"HandshakeAlert", Handshake("OpenSSL/3.0.19: error:0A00042E:SSL routines::tlsv1 alert protocol version"),
               ErrorCause::HandshakeRefused},
        EndRow{"HandshakeClosed",
               Handshake("OpenSSL SSL_connect: SSL_ERROR_SYSCALL in connection to updates.example.com:443"),
               ErrorCause::IncompleteHead},
        EndRow{"HandshakeEnded", Handshake("OpenSSL/3.0.19: error:0A000126:SSL routines::unexpected eof while reading"),
               ErrorCause::IncompleteHead},
        EndRow{"HandshakeReset", Handshake("Recv failure: Connection reset by peer"), ErrorCause::IncompleteHead},
        EndRow{"HandshakeUnsent", Handshake("Send failure: Broken pipe"), ErrorCause::IncompleteHead},
        EndRow{"HandshakeWithoutTls", Handshake("OpenSSL/3.0.19: error:0A00010B:SSL routines::wrong version number"),
               ErrorCause::MalformedHead},
        EndRow{"Expired", Certificate(X509_V_ERR_CERT_HAS_EXPIRED), ErrorCause::CertificateExpired},
        EndRow{"Untrusted", Certificate(X509_V_ERR_CERT_UNTRUSTED), ErrorCause::CertificateAuthorityUnknown},
        EndRow{"Name60", Certificate(X509_V_ERR_UNSPECIFIED), ErrorCause::CertificateWrongName},
        EndRow{"Purpose", Certificate(X509_V_ERR_INVALID_PURPOSE), ErrorCause::CertificateInvalid},
        EndRow{"WeakKey", Certificate(X509_V_ERR_EE_KEY_TOO_SMALL), ErrorCause::CertificateInvalid},
        EndRow{"ResetWhileWaiting", End(CURLE_RECV_ERROR, WAITING, ECONNRESET), ErrorCause::IncompleteHead},
        EndRow{"ResetInTheBody", End(CURLE_RECV_ERROR, BODY, ECONNRESET), ErrorCause::IncompleteBody},
        EndRow{"StreamInTheBody", End(CURLE_HTTP2_STREAM, BODY), ErrorCause::IncompleteBody},
        EndRow{"Nothing", End(CURLE_GOT_NOTHING, WAITING), ErrorCause::IncompleteHead},
        EndRow{"Unknown", End(CURLE_FTP_WEIRD_PASV_REPLY, WAITING), ErrorCause::ConnectionFailed},
        EndRow{"NoProxy", Proxy(CURLE_COULDNT_CONNECT, 0, 0), ErrorCause::ProxyFailed},
        EndRow{"ProxysName", Proxy(CURLE_COULDNT_RESOLVE_PROXY, 0, 0), ErrorCause::ProxyFailed},
        EndRow{"ProxysTime", Proxy(CURLE_OPERATION_TIMEDOUT, 0, 0), ErrorCause::ProxyFailed},
        EndRow{"TimeBehindATunnel", Proxy(CURLE_OPERATION_TIMEDOUT, 0, 200), ErrorCause::ConnectTimeout},
        EndRow{"ProxyAsks", Proxy(CURLE_RECV_ERROR, 0, 407), ErrorCause::ProxyAsksForPassword},
        EndRow{"ProxyForbids", Proxy(CURLE_RECV_ERROR, 0, 403), ErrorCause::ProxyRefused},
        EndRow{"ProxyAsksToSignIn", Proxy(CURLE_RECV_ERROR, 0, 511), ErrorCause::NetworkSignIn},
        EndRow{"SocksPassword", Proxy(CURLE_PROXY, CURLPX_USER_REJECTED, 0), ErrorCause::ProxyAsksForPassword},
        EndRow{"SocksMethod", Proxy(CURLE_PROXY, CURLPX_NO_AUTH, 0), ErrorCause::ProxyAsksForPassword},
        EndRow{"SocksForbids", Proxy(CURLE_PROXY, CURLPX_REPLY_NOT_ALLOWED, 0), ErrorCause::ProxyRefused},
        EndRow{"SocksClosed", Proxy(CURLE_PROXY, CURLPX_CLOSED, 0), ErrorCause::ProxyFailed}),
    [](auto const& row) { return std::string(row.param.name); });

} // namespace
