// Http2Server.h: nghttpd, a server of HTTP/2 and of nothing else, with the files of a folder of its own.
// Thread: main, with Qt's event loop. Ownership: a scope object; the program ends with it.
#pragma once

#include "tests/support/DialogDriver.h"
#include "tests/support/TestCertificates.h"

#include <QDateTime>
#include <QFile>
#include <QHostAddress>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QUrl>

namespace Pelnar::Testing
{

class Http2Server
{
public:
    /// Shows the certificate that \a certificates made last.
    explicit Http2Server(TestCertificates const& certificates)
    {
        QTcpServer chooser;
        if (!chooser.listen(QHostAddress::LocalHost))
        {
            qFatal("no port to be had");
        }
        m_port = chooser.serverPort();
        chooser.close();
        m_process.start(QStringLiteral("nghttpd"),
                        {QStringLiteral("--address=127.0.0.1"), QStringLiteral("--htdocs=") + m_folder.path(),
                         QString::number(m_port), certificates.KeyFile(), certificates.CertificateFile()});
    }

    ~Http2Server()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    Http2Server(Http2Server const&) = delete;
    Http2Server& operator=(Http2Server const&) = delete;

    /// False where the program is missing.
    [[nodiscard]] bool IsThere()
    {
        return m_process.waitForStarted() &&
               WaitFor(
                   [this]
                   {
                       QTcpSocket socket;
                       socket.connectToHost(QHostAddress(QHostAddress::LocalHost), m_port);
                       return socket.waitForConnected(100);
                   });
    }

    /// Serves \a bytes at the address that is returned.
    QUrl Serve(QByteArray const& bytes) const
    {
        QFile file(m_folder.filePath(QStringLiteral("file")));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        {
            qFatal("cannot write %s", qPrintable(file.fileName()));
        }
        return Url(QStringLiteral("/file"));
    }

    /// Says that what is served was changed at \a time.
    void SetTime(QDateTime const& time) const
    {
        QFile file(m_folder.filePath(QStringLiteral("file")));
        if (!file.open(QIODevice::ReadWrite) || !file.setFileTime(time, QFileDevice::FileModificationTime))
        {
            qFatal("cannot change %s", qPrintable(file.fileName()));
        }
    }

    QUrl Url(QString const& path) const
    {
        QUrl url(QStringLiteral("https://127.0.0.1"));
        url.setPort(m_port);
        url.setPath(path);
        return url;
    }

private:
    QTemporaryDir m_folder;
    QProcess m_process;
    quint16 m_port = 0;
};

} // namespace Pelnar::Testing
