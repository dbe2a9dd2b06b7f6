// ServerConnection.h: one connection of the test server: one request, its response, and the requested fault. Ownership:
// deletes itself when the connection ends. The folder outlives it.
#pragma once

#include "Engine/core/base/Descriptor.h"
#include "Publisher/serve/FileServer.h"
#include "Publisher/serve/HttpRequest.h"

#include <QSslSocket>
#include <QTimer>

namespace Pelnar::Publisher
{

class ServerConnection : public QObject
{
    Q_OBJECT

public:
    ServerConnection(int folderFd, ServerManners const& manners, ServerLog const& log, QObject* parent);

    /// Takes ownership of the connection \a descriptor; uses TLS if there is a certificate.
    void Start(qintptr descriptor, std::optional<ServerCertificate> const& certificate);

private:
    void Read();
    void Answer(HttpRequest const& request);
    void AnswerFile(HttpRequest const& request, Engine::UniqueFd file);
    /// \a remark appears only in the log.
    void AnswerStatus(HttpRequest const& request, int status, QByteArray const& extraHeaders = {},
                      QString const& remark = {});
    [[nodiscard]] bool IsAskedByItsName(HttpRequest const& request) const;
    void SendBody();
    void SendBytes(qint64 most);
    void End();
    void Reset();
    ServerFault const* FaultFor(QString const& path) const;

    int m_folderFd;
    ServerManners const& m_manners;
    ServerLog const& m_log;
    QSslSocket m_socket;
    QTimer m_pace;
    QByteArray m_head;
    Engine::UniqueFd m_file;
    ByteRange m_rest;
    ServerFault const* m_fault = nullptr;
    qint64 m_untilFault = -1; ///< bytes of the body before the connection ends; -1 without such a fault
};

} // namespace Pelnar::Publisher
