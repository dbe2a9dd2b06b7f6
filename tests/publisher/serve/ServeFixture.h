// ServeFixture.h: the verb "serve" as a program, and a client that talks to it byte by byte.
#pragma once

#include "tests/installer/InstallerFixture.h"
#include "tests/publisher/support/AppcastTool.h"
#include "tests/support/FileServer.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTcpSocket>
#include <QUrl>

#include <sys/stat.h>

namespace Pelnar::Testing
{

constexpr int PATIENCE_MS = 30000;

/// The program. It must end without an error.
class Server : public FileServer
{
public:
    using FileServer::FileServer;
    ~Server() { EXPECT_EQ(End(), 0); }
    std::string Log() { return FileServer::Log().toStdString(); }
};

struct Answer
{
    std::string head;
    std::string body;

    std::string Status() const { return head.substr(0, head.find("\r\n")); }
    bool Has(std::string const& line) const { return head.find("\r\n" + line + "\r\n") != std::string::npos; }
};

inline Answer Divide(std::string const& bytes)
{
    std::size_t const end = bytes.find("\r\n\r\n");
    return end == std::string::npos ? Answer{bytes, {}} : Answer{bytes.substr(0, end + 2), bytes.substr(end + 4)};
}

/// Sends \a request unchanged and reads until the connection ends.
inline Answer Ask(QUrl const& server, QByteArray const& request)
{
    QTcpSocket socket;
    socket.connectToHost(server.host(), quint16(server.port()));
    EXPECT_TRUE(socket.waitForConnected(PATIENCE_MS));
    socket.write(request);
    std::string bytes;
    while (socket.state() == QAbstractSocket::ConnectedState && socket.waitForReadyRead(PATIENCE_MS))
    {
        bytes += socket.readAll().toStdString();
    }
    bytes += socket.readAll().toStdString();
    return Divide(bytes);
}

inline Answer Get(QUrl const& server, QByteArray const& path, QByteArray const& headers = {})
{
    return Ask(server, "GET " + path + " HTTP/1.1\r\nHost: 127.0.0.1:1\r\n" + headers + "\r\n");
}

class Serve : public ::testing::Test
{
protected:
    Serve()
    {
        ::umask(022); // a server does not send files that only their owner may read
        for (std::size_t i = 0; i < m_content.size(); ++i)
        {
            m_content[i] = static_cast<char>(i * 31 >> 4);
        }
        WriteFile(m_folder.Path() + "/app_1.0.zip", m_content);
        WriteFile(m_folder.Path() + "/appcast.xml", "<rss/>");
    }
    QString Folder() const { return QString::fromStdString(m_folder.Path()); }
    QStringList With(char const* fault) const { return {Folder(), QStringLiteral("--fault"), QLatin1String(fault)}; }

    int m_argumentCount = 0;
    QCoreApplication m_application{m_argumentCount, nullptr};
    std::string m_content = std::string(300000, '\0');
    Workspace m_folder;
};

} // namespace Pelnar::Testing
