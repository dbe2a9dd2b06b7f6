// Release notes open no file and contact no server. The test traces the process from outside.

#include "tests/support/Sanitizers.h"
#include "tests/support/TestApplication.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>

namespace Pelnar::Testing
{
namespace
{

class NotesIsolation : public ::testing::Test
{
protected:
    NotesIsolation()
    {
        EXPECT_TRUE(m_server.listen(QHostAddress::LocalHost));
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] { ++m_connections; });
        QFile canary(CanaryPath());
        EXPECT_TRUE(canary.open(QIODevice::WriteOnly));
    }

    QString CanaryPath() const { return m_folder.filePath(QStringLiteral("canary_of_the_notes.png")); }

    /// Every traced line of a run of the viewer.
    QByteArray Trace(char const* mode)
    {
        QString const trace = m_folder.filePath(QStringLiteral("trace"));
        QProcess viewer;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        // The leak checker needs to trace the process itself.
        environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        viewer.setProcessEnvironment(environment);
        viewer.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        viewer.start(QStringLiteral("strace"),
                     {QStringLiteral("-f"), QStringLiteral("--seccomp-bpf"), QStringLiteral("-qq"),
                      QStringLiteral("-s"), QStringLiteral("4096"), QStringLiteral("-e"),
                      QStringLiteral("trace=%file,%network"), QStringLiteral("-o"), trace,
                      QStringLiteral(PELNAR_NOTES_VIEWER), QString::fromLatin1(mode), CanaryPath(),
                      QStringLiteral("127.0.0.1:%1").arg(m_server.serverPort())});
        EXPECT_TRUE(viewer.waitForFinished(IS_SANITIZED ? 390000 : 110000));
        EXPECT_EQ(viewer.exitCode(), 0);
        QCoreApplication::processEvents();
        QFile file(trace);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        // The command line contains the canary too.
        QByteArray lines;
        for (QByteArray const& line : file.readAll().split('\n'))
        {
            lines += line.contains("execve(") ? QByteArray() : line + '\n';
        }
        return lines;
    }

    TestApplication<> m_application;
    QTemporaryDir m_folder;
    QTcpServer m_server;
    int m_connections = 0;
};

TEST_F(NotesIsolation, NoDocumentOpensAFileOrReachesAServer)
{
    QByteArray const trace = Trace("window");
    EXPECT_TRUE(trace.contains("openat(")) << "nothing was traced";
    EXPECT_FALSE(trace.contains("canary_of_the_notes"));
    EXPECT_FALSE(trace.contains("AF_INET"));
    EXPECT_EQ(m_connections, 0);
}

TEST_F(NotesIsolation, TheSameDocumentsUnfilteredInAnOrdinaryViewDoOpenTheFile)
{
    EXPECT_TRUE(Trace("plain").contains("canary_of_the_notes"));
}

} // namespace
} // namespace Pelnar::Testing
