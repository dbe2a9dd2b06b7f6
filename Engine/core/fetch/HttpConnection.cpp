#include "Engine/core/fetch/HttpConnection.h"

#include <QSslConfiguration>

#include <algorithm>
#include <array>

namespace Pelnar::Engine
{
namespace
{

constexpr int SAMPLES_IN_WINDOW = 20;
constexpr qint64 READ_BYTES = 64 * 1024;
/// Of a socket that fills a sink: enough to keep the reader busy while the next bytes arrive.
constexpr qint64 SINK_BUFFER_BYTES = 512 * 1024;
/// Read in one go before the event loop has its turn again.
constexpr qint64 PASS_BYTES = 256 * 1024;

struct CertificateRule
{
    QSslError::SslError error;
    ErrorCause cause;
};

// Who signed comes first: of a certificate that anybody could have made, nothing else is worth telling.
constexpr std::array CERTIFICATE_RULES = {
    CertificateRule{QSslError::SelfSignedCertificate, ErrorCause::CertificateSelfSigned},
    CertificateRule{QSslError::SelfSignedCertificateInChain, ErrorCause::CertificateAuthorityUnknown},
    CertificateRule{QSslError::UnableToGetLocalIssuerCertificate, ErrorCause::CertificateAuthorityUnknown},
    CertificateRule{QSslError::UnableToGetIssuerCertificate, ErrorCause::CertificateAuthorityUnknown},
    CertificateRule{QSslError::UnableToVerifyFirstCertificate, ErrorCause::CertificateAuthorityUnknown},
    CertificateRule{QSslError::CertificateUntrusted, ErrorCause::CertificateAuthorityUnknown},
    CertificateRule{QSslError::CertificateNotYetValid, ErrorCause::CertificateNotYetValid},
    CertificateRule{QSslError::CertificateExpired, ErrorCause::CertificateExpired},
    CertificateRule{QSslError::HostNameMismatch, ErrorCause::CertificateWrongName},
};

struct SocketRule
{
    QAbstractSocket::SocketError error;
    ErrorCause cause;
};

constexpr std::array SOCKET_RULES = {
    SocketRule{QAbstractSocket::HostNotFoundError, ErrorCause::HostNotFound},
    SocketRule{QAbstractSocket::ConnectionRefusedError, ErrorCause::ConnectionRefused},
    SocketRule{QAbstractSocket::NetworkError, ErrorCause::NetworkUnreachable},
    SocketRule{QAbstractSocket::SocketTimeoutError, ErrorCause::ConnectTimeout},
    SocketRule{QAbstractSocket::SslHandshakeFailedError, ErrorCause::HandshakeRefused},
    SocketRule{QAbstractSocket::SslInternalError, ErrorCause::HandshakeRefused},
    SocketRule{QAbstractSocket::SslInvalidUserDataError, ErrorCause::HandshakeRefused},
    SocketRule{QAbstractSocket::ProxyAuthenticationRequiredError, ErrorCause::ProxyFailed},
    SocketRule{QAbstractSocket::ProxyConnectionRefusedError, ErrorCause::ProxyFailed},
    SocketRule{QAbstractSocket::ProxyConnectionClosedError, ErrorCause::ProxyFailed},
    SocketRule{QAbstractSocket::ProxyConnectionTimeoutError, ErrorCause::ProxyFailed},
    SocketRule{QAbstractSocket::ProxyNotFoundError, ErrorCause::ProxyFailed},
    SocketRule{QAbstractSocket::ProxyProtocolError, ErrorCause::ProxyFailed},
};

ErrorCause CauseOf(QAbstractSocket::SocketError error)
{
    auto const rule = std::find_if(SOCKET_RULES.begin(), SOCKET_RULES.end(),
                                   [error](SocketRule const& candidate) { return candidate.error == error; });
    return rule == SOCKET_RULES.end() ? ErrorCause::ConnectionFailed : rule->cause;
}

} // namespace

EngineError CertificateError(QList<QSslError> const& errors)
{
    for (CertificateRule const& rule : CERTIFICATE_RULES)
    {
        for (QSslError const& error : errors)
        {
            if (error.error() == rule.error)
            {
                return MakeError(rule.cause, error.errorString());
            }
        }
    }
    return MakeError(ErrorCause::CertificateInvalid, errors.front().errorString());
}

HttpConnection::HttpConnection(FetchRequest const& request, FetchLimits const& limits, IBodySink* sink)
    : m_request(request), m_limits(limits), m_sink(sink), m_reader(limits, sink)
{
    m_socket.setReadBufferSize(sink ? SINK_BUFFER_BYTES : READ_BYTES);
    m_connectTimer.setSingleShot(true);
    connect(&m_connectTimer, &QTimer::timeout, this, [this] { Fail(MakeError(ErrorCause::ConnectTimeout)); });
    connect(&m_rateTimer, &QTimer::timeout, this, &HttpConnection::SampleRate);
    connect(&m_socket, &QSslSocket::readyRead, this, &HttpConnection::ReadAvailable);
    connect(&m_socket, &QSslSocket::errorOccurred, this, &HttpConnection::TakeSocketError);
}

bool HttpConnection::IsSecure() const
{
    return m_request.url.scheme() == QLatin1String("https");
}

void HttpConnection::Open()
{
    m_connectTimer.start(m_limits.connectTimeout);
    QString const host = m_request.url.host();
    if (!IsSecure())
    {
        connect(&m_socket, &QSslSocket::connected, this, &HttpConnection::SendRequest);
        m_socket.connectToHost(host, static_cast<quint16>(m_request.url.port(80)));
        return;
    }
    if (!QSslSocket::supportsSsl())
    {
        Fail(MakeError(ErrorCause::SecureConnectionUnavailable));
        return;
    }
    // The process's default says whom to trust; what is refused does not depend on it.
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setProtocol(QSsl::TlsV1_2OrLater);
    configuration.setPeerVerifyMode(QSslSocket::VerifyPeer);
    m_socket.setSslConfiguration(configuration);
    connect(&m_socket, &QSslSocket::encrypted, this, &HttpConnection::SendRequest);
    m_socket.connectToHostEncrypted(host, static_cast<quint16>(m_request.url.port(443)));
}

void HttpConnection::SendRequest()
{
    m_isConnected = true;
    m_connectTimer.stop();
    m_receivedAtSample = {0};
    m_rateTimer.start(m_limits.rateWindow / SAMPLES_IN_WINDOW);
    m_socket.write(SerializedRequest(m_request));
}

void HttpConnection::ReadAvailable()
{
    qint64 const passEnd = m_received + PASS_BYTES;
    while (!m_isClosed && m_socket.bytesAvailable() > 0)
    {
        if (m_received >= passEnd)
        {
            QMetaObject::invokeMethod(this, &HttpConnection::ReadAvailable, Qt::QueuedConnection);
            return;
        }
        BodyRoom const room = m_sink ? m_sink->Room() : BodyRoom{nullptr, READ_BYTES};
        if (room.size == 0)
        {
            m_isHeld = true;
            return;
        }
        ReadPiece(room);
    }
    if (m_isClosed)
    {
        return;
    }
    if (m_sink)
    {
        m_sink->Rest();
    }
    if (m_end)
    {
        TakeEnd();
    }
}

void HttpConnection::ReadPiece(BodyRoom const& room)
{
    qint64 const direct = std::min(m_reader.DirectBytes(), room.size);
    if (direct == 0)
    {
        QByteArray const bytes = m_socket.read(std::min(room.size, READ_BYTES));
        m_received += bytes.size();
        Take(m_reader.Feed(bytes));
        return;
    }
    qint64 const count = std::max<qint64>(m_socket.read(room.data, direct), 0);
    m_received += count;
    HttpAnswerReader::Progress const progress = m_reader.TookDirectly(count);
    if (progress == HttpAnswerReader::Progress::Complete && m_socket.bytesAvailable() > 0)
    {
        Fail(MakeError(ErrorCause::SurplusBody));
        return;
    }
    Take(progress);
}

void HttpConnection::ReadOn()
{
    if (m_isHeld)
    {
        m_isHeld = false;
        ReadAvailable();
    }
}

void HttpConnection::TakeSocketError(QAbstractSocket::SocketError error)
{
    m_end = error;
    // What arrived before the end counts, and may end the exchange by itself.
    if (m_isConnected)
    {
        ReadAvailable();
    }
    else
    {
        TakeEnd();
    }
}

void HttpConnection::TakeEnd()
{
    QAbstractSocket::SocketError const error = *m_end;
    if (!m_isConnected && !m_socket.sslHandshakeErrors().isEmpty())
    {
        Fail(CertificateError(m_socket.sslHandshakeErrors()));
    }
    else if (error != QAbstractSocket::RemoteHostClosedError)
    {
        Fail(MakeError(CauseOf(error), m_socket.errorString()));
    }
    else if (m_isConnected)
    {
        Take(m_reader.End());
    }
    else
    {
        Fail(MakeError(IsSecure() ? ErrorCause::HandshakeRefused : ErrorCause::ConnectionFailed,
                       m_socket.errorString()));
    }
}

void HttpConnection::SampleRate()
{
    if (m_isHeld)
    {
        m_receivedAtSample = {m_received}; // it is not the server that is slow
        return;
    }
    m_receivedAtSample.push_back(m_received);
    if (m_receivedAtSample.size() <= SAMPLES_IN_WINDOW)
    {
        return;
    }
    qint64 const inWindow = m_received - m_receivedAtSample.front();
    m_receivedAtSample.pop_front();
    if (inWindow * 1000 < m_limits.minBytesPerSecond * m_limits.rateWindow.count())
    {
        Fail(MakeError(ErrorCause::TooSlow));
    }
}

void HttpConnection::Take(HttpAnswerReader::Progress progress)
{
    switch (progress)
    {
    case HttpAnswerReader::Progress::NeedsMore:
        return;
    case HttpAnswerReader::Progress::Complete:
        Close();
        Q_EMIT Completed();
        return;
    case HttpAnswerReader::Progress::Failed:
        Fail(m_reader.Error());
        return;
    }
}

void HttpConnection::Close()
{
    m_isClosed = true;
    m_connectTimer.stop();
    m_rateTimer.stop();
    m_socket.disconnect(this);
    m_socket.abort();
}

void HttpConnection::Fail(EngineError const& error)
{
    Close();
    Q_EMIT Failed(error);
}

} // namespace Pelnar::Engine
