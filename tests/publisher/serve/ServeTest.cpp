// ServeTest.cpp: the answers of the verb "serve".

#include "tests/publisher/serve/ServeFixture.h"
#include "tests/support/TestCertificates.h"

#include <QElapsedTimer>
#include <QSslSocket>

#include <array>
#include <cerrno>

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace Pelnar::Testing
{
namespace
{

/// True if the connection breaks instead of ending.
bool IsReset(QUrl const& server, QByteArray const& path)
{
    QTcpSocket socket;
    socket.connectToHost(server.host(), quint16(server.port()));
    EXPECT_TRUE(socket.waitForConnected(PATIENCE_MS));
    QByteArray const request = "GET " + path + " HTTP/1.1\r\nHost: localhost\r\n\r\n";
    EXPECT_EQ(::send(int(socket.socketDescriptor()), request.constData(), std::size_t(request.size()), 0),
              request.size());
    std::array<char, 65536> bytes;
    ssize_t count = 0;
    do
    {
        pollfd readable{int(socket.socketDescriptor()), POLLIN, 0};
        EXPECT_EQ(::poll(&readable, 1, PATIENCE_MS), 1);
        count = ::recv(int(socket.socketDescriptor()), bytes.data(), bytes.size(), 0);
    } while (count > 0);
    return count < 0 && errno == ECONNRESET;
}

TEST_F(Serve, WholeFileHeadAndPart)
{
    Server server({Folder()});
    EXPECT_EQ(server.Address().host(), QStringLiteral("127.0.0.1"));
    Answer const whole = Get(server.Address(), "/app_1.0.zip");
    EXPECT_EQ(whole.Status(), "HTTP/1.1 200 OK");
    EXPECT_TRUE(whole.Has("Content-Length: 300000")) << whole.head;
    EXPECT_TRUE(whole.body == m_content);
    Answer const head = Ask(server.Address(), "HEAD /appcast.xml HTTP/1.1\r\nHost: localhost\r\n\r\n");
    EXPECT_TRUE(head.Has("Content-Length: 6")) << head.head;
    EXPECT_TRUE(head.Has("Content-Type: application/xml")) << head.head;
    EXPECT_EQ(head.body, "");
    Answer const part = Get(server.Address(), "/app_1.0.zip", "Range: bytes=100000-199999\r\n");
    EXPECT_EQ(part.Status(), "HTTP/1.1 206 Partial Content");
    EXPECT_TRUE(part.Has("Content-Range: bytes 100000-199999/300000")) << part.head;
    EXPECT_TRUE(part.body == m_content.substr(100000, 100000));
    Answer const beyond = Get(server.Address(), "/app_1.0.zip", "Range: bytes=300000-\r\n");
    EXPECT_EQ(beyond.Status(), "HTTP/1.1 416 Range Not Satisfiable");
    EXPECT_TRUE(beyond.Has("Content-Range: bytes */300000")) << beyond.head;
    EXPECT_EQ(server.Log(), "GET /app_1.0.zip 200 300000 bytes\nHEAD /appcast.xml 200 6 bytes\n"
                            "GET /app_1.0.zip 206 100000 bytes\nGET /app_1.0.zip 416\n");
}

TEST_F(Serve, PartOfAFileThatChangedIsTheWholeFile)
{
    Server server({Folder()});
    std::string const head = Get(server.Address(), "/appcast.xml").head;
    std::size_t const start = head.find("ETag: ") + 6;
    QByteArray const tag = QByteArray::fromStdString(head.substr(start, head.find("\r\n", start) - start));
    QByteArray const condition = "Range: bytes=1-2\r\nIf-Range: " + tag + "\r\n";
    EXPECT_EQ(Get(server.Address(), "/appcast.xml", condition).body, "rs");
    WriteFile(m_folder.Path() + "/appcast.xml", "<rss />");
    EXPECT_EQ(Get(server.Address(), "/appcast.xml", condition).body, "<rss />");
}

TEST_F(Serve, FileThatTheClientHasIsNotSentAgain)
{
    Server server({Folder(), QStringLiteral("--fault"), QStringLiteral("truncate:app_1.0.zip:10")});
    Answer const whole = Get(server.Address(), "/appcast.xml");
    auto const value = [&whole](std::string const& name)
    {
        std::size_t const start = whole.head.find(name + ": ") + name.size() + 2;
        return QByteArray::fromStdString(whole.head.substr(start, whole.head.find("\r\n", start) - start));
    };
    QByteArray const tag = value("ETag");
    QByteArray const date = value("Last-Modified");
    for (QByteArray const& condition :
         {"If-None-Match: " + tag, "If-None-Match: \"x\", W/" + tag, QByteArray("If-None-Match: *"),
          "If-Modified-Since: " + date, "If-None-Match: " + tag + "\r\nIf-Modified-Since: x",
          "If-None-Match: " + tag + "\r\nRange: bytes=0-1"})
    {
        Answer const unchanged = Get(server.Address(), "/appcast.xml", condition + "\r\n");
        EXPECT_EQ(unchanged.Status(), "HTTP/1.1 304 Not Modified") << condition.toStdString();
        EXPECT_EQ(unchanged.body, "");
        EXPECT_TRUE(unchanged.Has("ETag: " + tag.toStdString())) << unchanged.head;
        EXPECT_TRUE(unchanged.Has("Content-Length: 6")) << "the file's own length: " << unchanged.head;
    }
    for (QByteArray const& condition :
         {QByteArray("If-None-Match: \"x\""), "If-None-Match: \"x\"\r\nIf-Modified-Since: " + date,
          QByteArray("If-Modified-Since: Sun, 06 Nov 1994 08:49:37 GMT"), QByteArray("If-Modified-Since: today")})
    {
        EXPECT_EQ(Get(server.Address(), "/appcast.xml", condition + "\r\n").body, "<rss/>") << condition.toStdString();
    }
    EXPECT_EQ(Get(server.Address(), "/app_1.0.zip", "If-None-Match: *\r\n").body.size(), 10u) << "a fault shows";
    WriteFile(m_folder.Path() + "/appcast.xml", "<rss ></rss>");
    EXPECT_EQ(Get(server.Address(), "/appcast.xml", "If-None-Match: " + tag + "\r\n").body, "<rss ></rss>");
    EXPECT_NE(server.Log().find("GET /appcast.xml 304\n"), std::string::npos);
}

TEST_F(Serve, PathIsDecodedAndWithoutQuery)
{
    WriteFile(m_folder.Path() + "/My App_1.0+2.zip", "app");
    WriteFile(m_folder.Path() + "/a", "a");
    Server server({Folder()});
    EXPECT_EQ(Get(server.Address(), "/My%20App_1.0+2.zip?a=b%20c").body, "app");
    EXPECT_EQ(Get(server.Address(), "/a").body, "a");
    for (char const* const path : {"/a%00b", "/a%00", "a"})
    {
        EXPECT_NE(Get(server.Address(), path).Status(), "HTTP/1.1 200 OK") << path;
    }
    for (char const* const head : {"GET\r\n\r\n", "GET /a\r\n\r\n", "GET /a SPDY/1\r\nHost: localhost\r\n\r\n",
                                   "GET /a HTTP/1.1\r\n folded\r\n\r\n"})
    {
        EXPECT_NE(Ask(server.Address(), head).Status(), "HTTP/1.1 200 OK") << head;
    }
}

TEST_F(Serve, NothingButPlainFilesOfTheFolderIsServed)
{
    WriteFile(m_folder.Path() + "/../pelnar-serve-secret", "secret");
    m_folder.Put({{"inner", 'd', {}, 0755}, {"inner/x", 'f', "inside"}});
    ASSERT_EQ(::symlink("/etc/hostname", (m_folder.Path() + "/link").c_str()), 0);
    Server server({Folder()});
    EXPECT_EQ(Get(server.Address(), "/inner/x").body, "inside");
    for (char const* const path : {"/", "/inner", "/absent", "/link", "/../pelnar-serve-secret",
                                   "/%2e%2e/pelnar-serve-secret", "/inner/../../pelnar-serve-secret", "//etc/hostname"})
    {
        EXPECT_EQ(Get(server.Address(), path).Status(), "HTTP/1.1 404 Not Found") << path;
    }
    EXPECT_EQ(Ask(server.Address(), "DELETE /inner/x HTTP/1.1\r\nHost: localhost\r\n\r\n").Status(),
              "HTTP/1.1 405 Method Not Allowed");
    EXPECT_EQ(Ask(server.Address(), "nonsense\r\n\r\n").Status(), "") << "the connection just ends";
    EXPECT_EQ(Ask(server.Address(), QByteArray(70000, 'x')).Status(), "HTTP/1.1 414 URI Too Long");
    ::unlink((m_folder.Path() + "/../pelnar-serve-secret").c_str());
}

TEST_F(Serve, ForeignHostIsRefused)
{
    Server server({Folder()});
    for (char const* const host :
         {"127.0.0.1", "127.0.0.1:8080", "localhost", "LocalHost:1", "localhost.", "[::1]", "[::1]:8080"})
    {
        EXPECT_EQ(Ask(server.Address(), "GET /appcast.xml HTTP/1.1\r\nHost: " + QByteArray(host) + "\r\n\r\n").body,
                  "<rss/>")
            << host;
    }
    EXPECT_EQ(Ask(server.Address(), "GET /appcast.xml HTTP/1.0\r\n\r\n").body, "<rss/>") << "no name is given";
    for (char const* const host :
         {"evil.example", "evil.example:80", "localhost.evil.example", "127.0.0.1.evil.example", "evil-localhost",
          "10.0.0.1", "0.0.0.0", "[::2]", "localhost evil.example", "localhost@evil.example", "localhost,evil.example",
          "127.0.0.1:80:80"})
    {
        Answer const answer =
            Ask(server.Address(), "GET /appcast.xml HTTP/1.1\r\nHost: " + QByteArray(host) + "\r\n\r\n");
        EXPECT_EQ(answer.Status(), "HTTP/1.1 421 Misdirected Request") << host;
        EXPECT_EQ(answer.body, "") << host;
    }
    for (char const* const headers :
         {"", "Host:\r\n", "Host: localhost\r\nHost: evil.example\r\n", "Host: localhost\r\nhost: localhost\r\n"})
    {
        Answer const answer = Ask(server.Address(), "GET /appcast.xml HTTP/1.1\r\n" + QByteArray(headers) + "\r\n");
        EXPECT_NE(answer.Status(), "HTTP/1.1 200 OK") << headers;
        EXPECT_EQ(answer.body, "") << headers;
    }
    EXPECT_NE(server.Log().find("GET /appcast.xml 421 for \"evil.example\", which no --host names\n"),
              std::string::npos);
}

TEST_F(Serve, HostThatIsNamedIsServed)
{
    Server server({Folder(), QStringLiteral("--host"), QStringLiteral("updates.example.com"), QStringLiteral("--host"),
                   QStringLiteral("Other.example.com")});
    auto const bodyFor = [&server](char const* host)
    { return Ask(server.Address(), "GET /appcast.xml HTTP/1.1\r\nHost: " + QByteArray(host) + "\r\n\r\n").body; };
    EXPECT_EQ(bodyFor("updates.example.com"), "<rss/>");
    EXPECT_EQ(bodyFor("other.example.com:8443"), "<rss/>");
    EXPECT_EQ(bodyFor("localhost"), "<rss/>");
    EXPECT_EQ(bodyFor("evil.example.com"), "");
}

TEST_F(Serve, FaultsOnDemandHitTheirFileOnly)
{
    Server truncated(With("truncate:app_1.0.zip:100000"));
    Answer const cut = Get(truncated.Address(), "/app_1.0.zip");
    EXPECT_TRUE(cut.Has("Content-Length: 300000")) << cut.head;
    EXPECT_TRUE(cut.body == m_content.substr(0, 100000)) << cut.body.size();
    EXPECT_TRUE(Get(truncated.Address(), "/app_1.0.zip", "Range: bytes=100000-\r\n").body ==
                m_content.substr(100000, 100000));
    EXPECT_EQ(Get(truncated.Address(), "/appcast.xml").body, "<rss/>");

    Server status(With("status:appcast.xml:503"));
    EXPECT_EQ(Get(status.Address(), "/appcast.xml").Status().substr(0, 12), "HTTP/1.1 503");
    EXPECT_TRUE(Get(status.Address(), "/app_1.0.zip").body == m_content);

    Server dropped(With("drop:appcast.xml:0"));
    EXPECT_EQ(Get(dropped.Address(), "/appcast.xml").head, "");
    EXPECT_TRUE(IsReset(dropped.Address(), "/appcast.xml"));
    Server reset(With("drop:app_1.0.zip:1000"));
    Answer const lost = Get(reset.Address(), "/app_1.0.zip");
    EXPECT_LE(lost.body.size(), 1000u);
    EXPECT_TRUE(IsReset(reset.Address(), "/app_1.0.zip"));
    EXPECT_FALSE(IsReset(truncated.Address(), "/app_1.0.zip"));
}

TEST_F(Serve, SlowFileComesInPieces)
{
    Server server(With("slow:app_1.0.zip:1000"));
    QTcpSocket socket;
    socket.connectToHost(server.Address().host(), quint16(server.Address().port()));
    ASSERT_TRUE(socket.waitForConnected(PATIENCE_MS));
    socket.write("GET /app_1.0.zip HTTP/1.1\r\nHost: localhost\r\n\r\n");
    std::string bytes;
    while (Divide(bytes).body.empty() && socket.waitForReadyRead(PATIENCE_MS))
    {
        bytes += socket.readAll().toStdString();
    }
    EXPECT_FALSE(Divide(bytes).body.empty());
    EXPECT_LT(Divide(bytes).body.size(), m_content.size());
    EXPECT_EQ(socket.state(), QAbstractSocket::ConnectedState);
}

TEST_F(Serve, SecureRequestOfAPlainPortFailsAtOnce)
{
    Server server({Folder()});
    QSslSocket socket;
    QElapsedTimer waiting;
    waiting.start();
    socket.connectToHostEncrypted(server.Address().host(), quint16(server.Address().port()));
    EXPECT_FALSE(socket.waitForEncrypted(PATIENCE_MS));
    EXPECT_LT(waiting.elapsed(), PATIENCE_MS / 2);
    EXPECT_NE(Get(server.Address(), "/app_1.0.zip").head, "") << "others are served";
    EXPECT_NE(server.Log().find("https needs --tls"), std::string::npos);
}

TEST_F(Serve, OptionsThatCanDoNothingAreRefused)
{
    for (QStringList const& more : {QStringList{QStringLiteral("--fault"), QStringLiteral("truncate:absent.zip:1")},
                                    QStringList{QStringLiteral("--fault"), QStringLiteral("slow:absent.zip:1")},
                                    QStringList{QStringLiteral("--host"), QStringLiteral("a,b")},
                                    QStringList{QStringLiteral("--host"), QStringLiteral("a/b")},
                                    QStringList{QStringLiteral("--port"), QStringLiteral("70000")}})
    {
        ToolRun const run = RunAppcastProgram(QStringList{QStringLiteral("serve"), Folder()} + more +
                                              QStringList(QStringLiteral("--end-with-input")));
        EXPECT_EQ(run.status, 2) << more.join(QLatin1Char(' ')).toStdString();
        EXPECT_NE(run.err.find(more.first().toStdString()), std::string::npos) << run.err;
    }
}

TEST_F(Serve, HttpsWithACertificate)
{
    TestCertificates certificates;
    certificates.Signed("127.0.0.1");
    TrustedAuthority const trusted(certificates.Authority());
    Server server({Folder(), QStringLiteral("--tls"), certificates.CertificateFile(), certificates.KeyFile()});
    EXPECT_EQ(server.Address().scheme(), QStringLiteral("https"));
    QSslSocket socket;
    socket.connectToHostEncrypted(server.Address().host(), quint16(server.Address().port()));
    ASSERT_TRUE(socket.waitForEncrypted(PATIENCE_MS)) << socket.errorString().toStdString();
    socket.write("GET /app_1.0.zip HTTP/1.1\r\nHost: localhost\r\n\r\n");
    std::string bytes;
    while (Divide(bytes).body.size() < m_content.size() && socket.waitForReadyRead(PATIENCE_MS))
    {
        bytes += socket.readAll().toStdString();
    }
    EXPECT_TRUE(Divide(bytes).body == m_content);
}

TEST_F(Serve, PortThatIsTakenAndKeyOfAnotherCertificateAreRefused)
{
    TestCertificates mine;
    TestCertificates others;
    mine.Signed("127.0.0.1");
    others.Signed("127.0.0.1");
    Server server({Folder()});
    QString const port = QString::number(server.Address().port());
    ToolRun const taken = RunTool({QStringLiteral("serve"), Folder(), QStringLiteral("--port"), port});
    EXPECT_EQ(taken.status, 2);
    EXPECT_NE(taken.err.find("cannot listen on port " + port.toStdString() + "; leave --port out"), std::string::npos)
        << taken.err;
    ToolRun const mixed =
        RunTool({QStringLiteral("serve"), Folder(), QStringLiteral("--tls"), mine.CertificateFile(), others.KeyFile()});
    EXPECT_EQ(mixed.status, 2);
    EXPECT_NE(mixed.err.find("give the key of the certificate"), std::string::npos) << mixed.err;
}

TEST_F(Serve, WhatCannotBeServedIsRefused)
{
    WriteFile(m_folder.Path() + "/text", "no certificate");
    QString const text = Folder() + QStringLiteral("/text");
    struct Row
    {
        QStringList arguments;
        char const* said;
    };
    Row const rows[] = {
        {{Folder() + QStringLiteral("/absent")}, "cannot be served: No such file"},
        {{text}, "cannot be served: Not a directory"},
        {With("burn:x:1"), "--fault: \"burn:x:1\" is not a fault"},
        {{Folder(), QStringLiteral("--tls"), text, text}, "contains no certificate"},
        {{Folder(), QStringLiteral("--port"), QStringLiteral("70000")}, "--port"},
        {{Folder(), QStringLiteral("--host"), QStringLiteral("")}, "--host"},
        {{Folder(), QStringLiteral("--host"), QStringLiteral("a:b")}, "--host: \"a:b\" is not a host name"},
    };
    for (Row const& row : rows)
    {
        ToolRun const run = RunTool(QStringList(QStringLiteral("serve")) + row.arguments);
        EXPECT_EQ(run.status, 2);
        EXPECT_NE(run.err.find(row.said), std::string::npos) << run.err;
    }
}

} // namespace
} // namespace Pelnar::Testing
