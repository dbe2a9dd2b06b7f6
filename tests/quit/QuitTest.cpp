// QuitTest.cpp: a silently prepared update at the end of its host application. A real host in a real bundle, the real
// helper and, for the end of the desktop session, a display and a session manager.
#include "tests/engine/FeedText.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/LoopbackServer.h"
#include "tests/support/TestApplication.h"

#include <gtest/gtest.h>

#include <QProcess>

#include <filesystem>

#include <signal.h>

namespace Pelnar::Testing
{
namespace
{

constexpr int PATIENCE_MS = 60000;
constexpr int DISPLAY_PATIENCE_MS = 15000;
constexpr int DISPLAY_TRIES = 3;
std::string const RESOURCES = std::string(APP) + "/Resources";
constexpr char PREPARED[] = "is installed when the application ends";

/// A process whose output is recorded. The test waits for it in the event loop.
class Program
{
public:
    Program()
    {
        QObject::connect(&m_process, &QProcess::readyReadStandardOutput,
                         [this] { m_output += m_process.readAllStandardOutput(); });
        QObject::connect(&m_process, &QProcess::readyReadStandardError,
                         [this] { m_errors += m_process.readAllStandardError(); });
    }

    ~Program() { Stop(); }

    void Start(QString const& path, QStringList const& arguments, QMap<QString, QString> const& variables = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (auto variable = variables.begin(); variable != variables.end(); ++variable)
        {
            environment.insert(variable.key(), variable.value());
        }
        m_process.setProcessEnvironment(environment);
        m_process.start(path, arguments);
    }

    [[nodiscard]] bool Says(QByteArray const& what, int times = 1) const
    {
        return WaitFor([this, what, times] { return m_output.count(what) + m_errors.count(what) >= times; },
                       PATIENCE_MS);
    }
    /// Its output so far.
    QByteArray const& Output() const { return m_output; }
    QByteArray const& Errors() const { return m_errors; }

    QString FirstLine() const
    {
        EXPECT_TRUE(WaitFor([this] { return m_output.contains('\n'); }, PATIENCE_MS)) << m_errors.constData();
        return QString::fromLocal8Bit(m_output.left(m_output.indexOf('\n')));
    }

    void Tell(QByteArray const& line) { m_process.write(line + '\n'); }
    void EndInput() { m_process.closeWriteChannel(); }
    void Kill() { m_process.kill(); }
    /// A display server removes its socket only if it is asked to end.
    void Stop()
    {
        m_process.terminate();
        if (!m_process.waitForFinished(DISPLAY_PATIENCE_MS))
        {
            m_process.kill();
            m_process.waitForFinished();
        }
    }
    [[nodiscard]] bool HasEnded() const
    {
        return WaitFor([this] { return m_process.state() == QProcess::NotRunning; }, PATIENCE_MS);
    }
    [[nodiscard]] bool HasSucceeded() const
    {
        return HasEnded() && m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    }

private:
    QProcess m_process;
    QByteArray m_output;
    QByteArray m_errors;
};

/// The host as version 1.0 in a bundle; 2.0 is in the feed.
class Quit : public testing::Test
{
protected:
    Quit()
    {
        m_place.Put(MakeBundle("1.0"));
        std::filesystem::copy_file(PELNAR_QUIT_HOST, m_place.Path() + '/' + APP + "/run",
                                   std::filesystem::copy_options::overwrite_existing);
    }

    /// Runs the host until its update is prepared.
    void Prepare(QMap<QString, QString> const& variables = {})
    {
        StartHost({}, variables);
        ASSERT_TRUE(m_host.Says(PREPARED)) << m_host.Output().constData() << m_host.Errors().constData();
        ASSERT_TRUE(m_host.Output().contains("will install 2.0\n"));
    }

    void StartHost(QStringList const& arguments, QMap<QString, QString> variables = {})
    {
        QString const home = QString::fromStdString(m_home.Path());
        variables.insert(QStringLiteral("HOME"), home);
        variables.insert(QStringLiteral("XDG_CACHE_HOME"), home);
        variables.insert(QStringLiteral("XDG_STATE_HOME"), home + QStringLiteral("/state"));
        if (!variables.contains(QStringLiteral("QT_QPA_PLATFORM")))
        {
            variables.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        }
        m_host.Start(QString::fromStdString(m_place.Path() + '/' + APP + "/run"),
                     QStringList{m_server.Url().toString()} + arguments, variables);
    }

    /// The helper continues after its host. The next start of a host removes the old version's files.
    void ExpectBecomesTheNewVersion() const
    {
        std::vector<std::string> const whole{"Info-gnustep.plist", "data", "data-2.0"};
        EXPECT_TRUE(WaitFor([&] { return m_place.Names(RESOURCES) == whole; }, PATIENCE_MS));
        EXPECT_EQ(m_place.StartedVersion(), "2.0");
    }

    /// The update is removed, and no process works on it any more.
    void ExpectStaysTheOldVersion() const
    {
        EXPECT_TRUE(WaitFor([this] { return IsAlone(); }, PATIENCE_MS));
        EXPECT_EQ(m_place.Names(RESOURCES), (std::vector<std::string>{"Info-gnustep.plist", "data", "data-1.0"}));
    }

    /// A killed host may not have removed the prepared files.
    void RecoverAsTheNextStartDoes() const
    {
        HelperOutcome const outcome = RunHelper("recover", Engine::EncodeUpdateJob(Engine::RecoverJob{APP, "1.0"}),
                                                {{Engine::HelperDescriptors::PARENT, m_place.Descriptor()}});
        EXPECT_EQ(outcome.exitStatus, 0);
    }

    [[nodiscard]] bool IsAlone() const { return m_place.Names() == std::vector<std::string>{APP}; }

    Program m_host;

private:
    TestApplication<> m_application;
    Workspace m_place;
    Workspace m_home;
    std::string const m_archive = MakeArchive(Container::Zip, MakeBundle("2.0"));
    LoopbackServer m_server{
        [this](QSslSocket& socket, QByteArray const& request, int)
        {
            socket.write(OkAnswer(request.startsWith("GET /feed.xml") ? Feed() : QByteArray::fromStdString(m_archive)));
            socket.disconnectFromHost();
        }};

    QByteArray Feed() const
    {
        std::string const signature = Base64(Sign(m_archive, MakeKeyPair(7)));
        return FeedWith("<item><title>2.0</title><enclosure url=\"update.zip\" sparkle:version=\"2.0\" length=\"" +
                        QByteArray::number(static_cast<qulonglong>(m_archive.size())) + "\" sparkle:edSignature=\"" +
                        QByteArray::fromStdString(signature) + "\" type=\"application/octet-stream\"/></item>\n");
    }
};

TEST_F(Quit, InstallsWhatWasPrepared)
{
    ASSERT_NO_FATAL_FAILURE(Prepare());
    m_host.EndInput();
    EXPECT_TRUE(m_host.HasSucceeded());
    EXPECT_TRUE(m_host.Output().endsWith("should relaunch?\n")) << m_host.Output().constData();
    ExpectBecomesTheNewVersion();
}

TEST_F(Quit, OfAHostThatIsKilledInstallsWhatWasPrepared)
{
    ASSERT_NO_FATAL_FAILURE(Prepare());
    m_host.Kill();
    EXPECT_TRUE(m_host.HasEnded());
    ExpectBecomesTheNewVersion();
}

TEST_F(Quit, OfAHostThatIsKilledAfterAPersonsYesInstallsWhatWasPrepared)
{
    StartHost({QStringLiteral("approve")});
    ASSERT_TRUE(m_host.Says("will relaunch\n")) << m_host.Output().constData() << m_host.Errors().constData();
    m_host.Kill();
    EXPECT_TRUE(m_host.HasEnded());
    ExpectBecomesTheNewVersion();
}

/// The same with a display, in a desktop session.
class SessionEnd : public Quit
{
protected:
    SessionEnd()
    {
        StartDisplay();
        m_manager.Start(QStringLiteral(PELNAR_SESSION_MANAGER), {});
    }

    /// Servers that start at the same time look for the same free number, and one of them may never find its own.
    void StartDisplay()
    {
        for (int tries = 0; tries < DISPLAY_TRIES && !m_display.Output().contains('\n'); ++tries)
        {
            m_display.Stop();
            m_display.Start(QStringLiteral("/usr/bin/Xvfb"),
                            {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-nolisten"),
                             QStringLiteral("tcp"), QStringLiteral("-screen"), QStringLiteral("0"),
                             QStringLiteral("640x480x24")});
            (void)WaitFor([this] { return m_display.Output().contains('\n'); }, DISPLAY_PATIENCE_MS);
        }
    }

    void PrepareInSession()
    {
        Prepare({{QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb")},
                 {QStringLiteral("DISPLAY"), QLatin1Char(':') + m_display.FirstLine()},
                 {QStringLiteral("SESSION_MANAGER"), m_manager.FirstLine()},
                 {QStringLiteral("ICEAUTHORITY"), QStringLiteral("/nonexistent")}});
        ASSERT_TRUE(m_manager.Says("saved\n")) << "it has not joined the session: " << m_host.Errors().constData();
    }

    Program m_display;
    Program m_manager;
};

TEST_F(SessionEnd, InstallsNothing)
{
    ASSERT_NO_FATAL_FAILURE(PrepareInSession());
    m_manager.Tell("end");
    EXPECT_TRUE(m_manager.Says("saved\n", 2));
    EXPECT_TRUE(m_host.Says("cancelled 2.0\n"));
    m_manager.Tell("die");
    EXPECT_TRUE(m_host.HasSucceeded());
    EXPECT_FALSE(m_host.Output().contains("should relaunch?")) << m_host.Output().constData();
    ExpectStaysTheOldVersion();
}

TEST_F(SessionEnd, ThatIsCutShortInstallsNothing)
{
    ASSERT_NO_FATAL_FAILURE(PrepareInSession());
    m_manager.Tell("end");
    EXPECT_TRUE(m_manager.Says("saved\n", 2));
    m_host.Kill();
    EXPECT_TRUE(m_host.HasEnded());
    RecoverAsTheNextStartDoes();
    ExpectStaysTheOldVersion();
}

TEST_F(SessionEnd, ThatIsCalledOffBringsNothingBack)
{
    ASSERT_NO_FATAL_FAILURE(PrepareInSession());
    m_manager.Tell("end");
    EXPECT_TRUE(m_manager.Says("saved\n", 2));
    m_manager.Tell("cancel");
    m_host.EndInput();
    EXPECT_TRUE(m_host.HasSucceeded());
    ExpectStaysTheOldVersion();
}

TEST_F(SessionEnd, IsNotWhatAQuitOfTheApplicationIs)
{
    ASSERT_NO_FATAL_FAILURE(PrepareInSession());
    m_host.EndInput();
    EXPECT_TRUE(m_host.HasSucceeded());
    EXPECT_TRUE(m_manager.Says("closed\n"));
    ExpectBecomesTheNewVersion();
}

} // namespace
} // namespace Pelnar::Testing
