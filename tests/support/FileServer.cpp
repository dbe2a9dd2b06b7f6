#include "tests/support/FileServer.h"

#include <QDeadlineTimer>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>

namespace Pelnar::Testing
{
namespace
{

constexpr int PATIENCE_MS = 30000;

} // namespace

FileServer::FileServer(QStringList const& arguments)
{
    m_process.start(QStringLiteral(PELNAR_APPCAST_PROGRAM),
                    QStringList{QStringLiteral("serve"), QStringLiteral("--end-with-input")} + arguments);
    while (!m_process.canReadLine() && m_process.waitForReadyRead(PATIENCE_MS))
    {
    }
    m_address = QUrl(QString::fromUtf8(m_process.readLine().trimmed()));
}

FileServer::FileServer(QString const& folder, Identity const& identity)
{
    QTcpServer chooser;
    if (!chooser.listen(QHostAddress::LocalHost))
    {
        qFatal("no port to be had");
    }
    quint16 const port = chooser.serverPort();
    chooser.close();
    m_process.start(QStringLiteral("nghttpd"),
                    {QStringLiteral("--address=127.0.0.1"), QStringLiteral("--htdocs=") + folder, QString::number(port),
                     identity.keyFile, identity.certificateFile});
    QDeadlineTimer const patience(PATIENCE_MS);
    QTcpSocket socket;
    while (m_process.waitForStarted() && !patience.hasExpired() && !IsThere())
    {
        socket.connectToHost(QHostAddress(QHostAddress::LocalHost), port);
        m_address = socket.waitForConnected(100) ? QUrl(QStringLiteral("https://127.0.0.1:%1").arg(port)) : QUrl();
    }
}

FileServer::~FileServer()
{
    End();
}

QUrl FileServer::Url(QString const& path) const
{
    QUrl url = m_address;
    url.setPath(path);
    return url;
}

int FileServer::End()
{
    m_process.closeWriteChannel();
    if (m_process.program() == QLatin1String("nghttpd"))
    {
        m_process.kill();
    }
    m_process.waitForFinished(PATIENCE_MS);
    return m_process.exitCode();
}

QByteArray FileServer::Log()
{
    End();
    return m_process.readAllStandardError();
}

} // namespace Pelnar::Testing
