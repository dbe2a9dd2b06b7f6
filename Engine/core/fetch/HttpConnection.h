// HttpConnection.h: one connection to a server for one request and its answer, with the deadlines of a connection.
// Thread: the one that made it, with Qt's event loop. Ownership: owned by its maker, which may delete it later
// (deleteLater) from a slot; exactly one of its two signals is emitted, once.
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
    HttpConnection(FetchRequest const& request, FetchLimits const& limits);

    void Open();

    HttpAnswerReader const& Answer() const { return m_reader; }

Q_SIGNALS:
    void Completed();
    void Failed(Pelnar::Engine::EngineError const& error);

private:
    void SendRequest();
    void ReadAvailable();
    void TakeSocketError(QAbstractSocket::SocketError error);
    void SampleRate();
    void Take(HttpAnswerReader::Progress progress);
    /// Ends the connection; nothing of the socket is heard after it.
    void Close();
    void Fail(EngineError const& error);
    [[nodiscard]] bool IsSecure() const;

    FetchRequest m_request;
    FetchLimits m_limits;
    HttpAnswerReader m_reader;
    QSslSocket m_socket;
    QTimer m_connectTimer;
    QTimer m_rateTimer;
    std::deque<qint64> m_receivedAtSample; ///< of the samples of one window, the oldest first
    qint64 m_received = 0;
    bool m_isConnected = false;
    bool m_isClosed = false;
};

/// The error that stands for what is wrong with a certificate, the most telling first. REQUIRES: \a errors not empty.
EngineError CertificateError(QList<QSslError> const& errors);

} // namespace Pelnar::Engine
