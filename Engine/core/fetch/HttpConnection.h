// HttpConnection.h: one connection to a server for one request and its answer, with the deadlines of a connection.
// Thread: the one that made it, with Qt's event loop. Ownership: owned by its maker, which may delete it later
// (deleteLater) from a slot; exactly one of its two signals is emitted, once. The sink must live until then.
#pragma once

#include "Engine/core/fetch/FetchPolicy.h"
#include "Engine/core/fetch/HttpAnswer.h"

#include <QAbstractSocket>
#include <QObject>
#include <QSslError>
#include <QSslSocket>
#include <QTimer>

#include <deque>

namespace Pelnar::Engine
{

class HttpConnection : public QObject
{
    Q_OBJECT
public:
    /// The body goes to \a sink, or is collected when there is none.
    HttpConnection(FetchRequest const& request, FetchLimits const& limits, IBodySink* sink = nullptr);

    void Open();
    /// The sink has room again after it had none.
    void ReadOn();
    /// Ends the connection; neither signal is emitted after it, and the sink is left alone.
    void Abort() { Close(); }

    HttpAnswerReader const& Answer() const { return m_reader; }

Q_SIGNALS:
    void Completed();
    void Failed(Pelnar::Engine::EngineError const& error);

private:
    void SendRequest();
    void ReadAvailable();
    /// One piece, of at most the room's size when there is a sink.
    void ReadPiece(BodyRoom const& room);
    void TakeSocketError(QAbstractSocket::SocketError error);
    /// The connection has ended and everything that arrived has been read.
    void TakeEnd();
    void SampleRate();
    void Take(HttpAnswerReader::Progress progress);
    /// Ends the connection; nothing of the socket is heard after it.
    void Close();
    void Fail(EngineError const& error);
    [[nodiscard]] bool IsSecure() const;

    FetchRequest m_request;
    FetchLimits m_limits;
    IBodySink* m_sink;
    HttpAnswerReader m_reader;
    QSslSocket m_socket;
    QTimer m_connectTimer;
    QTimer m_rateTimer;
    std::deque<qint64> m_receivedAtSample; ///< of the samples of one window, the oldest first
    qint64 m_received = 0;
    std::optional<QAbstractSocket::SocketError> m_end;
    bool m_isConnected = false;
    bool m_isHeld = false; ///< by a sink without room
    bool m_isClosed = false;
};

/// The error that stands for what is wrong with a certificate, the most telling first. REQUIRES: \a errors not empty.
EngineError CertificateError(QList<QSslError> const& errors);

} // namespace Pelnar::Engine
