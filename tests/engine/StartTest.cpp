// StartTest.cpp: the starts after an update. A real host application in a real bundle, which the real helper has
// installed, or during whose installation the helper was killed.
#include "Engine/core/helper/InstallRecord.h"
#include "tests/engine/FeedText.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/LoopbackServer.h"
#include "tests/support/TestApplication.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include <fcntl.h>
#include <stdio.h>
#include <sys/syscall.h>

namespace
{

using namespace Pelnar::Testing;

std::string const ARCHIVE = std::string(64, 'a') + ".archive";
constexpr char STRACE[] = "/usr/bin/strace";

std::string ContentOf(std::string const& path)
{
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

/// A bundle of version 2.0 whose program is the host; \a entries go into its information file.
std::string ArchiveOfHost(std::string const& entries)
{
    std::vector<ForgedEntry> bundle = MakeBundle("2.0");
    bundle[1].content = ContentOf(PELNAR_START_HOST);
    std::string& information = bundle[3].content;
    information.insert(information.find('{') + 1, entries);
    return MakeArchive(Container::Zip, bundle);
}

std::string const WITH_WORD = "PelnarConfirmsGoodStart = YES;";

/// The installed host, version 1.0, with an update to 2.0 on the disk and in the feed.
class Start : public testing::Test
{
protected:
    explicit Start(std::string const& entries = {}) : m_scene(ArchiveOfHost(entries))
    {
        std::filesystem::copy_file(PELNAR_START_HOST, BundlePath() + "/run",
                                   std::filesystem::copy_options::overwrite_existing);
    }

    std::string BundlePath() const { return m_scene.Place().Path() + '/' + APP; }

    /// Installs 2.0 without a relaunch. The prepared update then has no owner.
    HelperOutcome Install(CallVisitor const& visitor = {})
    {
        Pelnar::Engine::InstallJob job = m_scene.PrepareForInstall();
        job.targetPath.clear();
        m_scene.Host().End();
        HelperStart start;
        start.atEveryCall = visitor;
        HelperOutcome const outcome = m_scene.Install(job, start);
        m_scene.ReleaseStaging();
        return outcome;
    }

    QString Cache() const { return QString::fromStdString(m_scene.Downloads().Path() + "/cache"); }
    QString State() const { return QString::fromStdString(m_scene.Downloads().Path() + "/state"); }
    /// The folder for downloads and for the record of installations.
    std::string DownloadFolder() const { return Cache().toStdString() + "/org.pelnar.test/updates"; }
    std::string RecordFolder() const { return State().toStdString() + "/org.pelnar.test/updates"; }
    /// The place in earlier versions.
    std::string EarlierFolder() const { return Cache().toStdString() + "/pelnar-updates/org%2Epelnar%2Etest"; }

    /// A person asks for 2.0, and the injected fault makes the installation fail.
    void FailToInstall(std::string const& fault)
    {
        HelperStart start;
        start.before = {STRACE, "-f", "-qq", "-o", "/dev/null", "-e", "inject=" + fault};
        FailToInstall(start, DownloadFolder(), RecordFolder());
    }

    void FailToInstall(HelperStart const& start, std::string const& downloads, std::string const& records,
                       Pelnar::Engine::InstallWish wish = Pelnar::Engine::InstallWish::Person)
    {
        Pelnar::Engine::InstallJob job = m_scene.PrepareForInstall();
        UpdateScene::KeepRecord(job);
        job.recordName = Pelnar::Engine::InstallRecordName(BundlePath());
        job.record->attempts = 1;
        job.record->wish = wish;
        job.targetPath.clear();
        std::filesystem::create_directories(downloads);
        std::filesystem::create_directories(records);
        std::ofstream(downloads + "/" + ARCHIVE) << "the archive";
        Pelnar::Engine::UniqueFd const opened(::open(records.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        m_scene.Host().End();
        using Numbers = Pelnar::Engine::HelperDescriptors;
        RunHelper("install", Pelnar::Engine::EncodeUpdateJob(job),
                  {{Numbers::PARENT, m_scene.Place().Descriptor()},
                   {Numbers::STAGING, m_scene.StagingDescriptor()},
                   {Numbers::HOST, m_scene.Host().ProcessDescriptor()},
                   {Numbers::RECORDS, opened.Get()}},
                  start);
        m_scene.ReleaseStaging();
    }

    /// Kills the helper of an automatic installation at its first \a call.
    void ExpectToldOnceAfterAKillAt(long call)
    {
        HelperStart start;
        start.atEveryCall = [call](CallStop const& stop)
        { return stop.call == call ? CallVerdict::KillAll() : CallVerdict::GoOn(); };
        FailToInstall(start, DownloadFolder(), RecordFolder(), Pelnar::Engine::InstallWish::Automatic);
        QStringList const listening{QStringLiteral("unchecked"), QStringLiteral("confirm"), QStringLiteral("listen")};
        EXPECT_EQ(Run(listening), "aborted 4005;");
        EXPECT_EQ(RunInBackground().find("4005"), std::string::npos);
        ExpectWhole("1.0");
    }

    /// Starts the installed application and waits for its end. Returns the events of its check.
    std::string Run(QStringList const& arguments, QStringList const& before = {})
    {
        QStringList words = QStringList(before)
                            << QString::fromStdString(BundlePath() + "/run") << m_server.Url().toString() << arguments;
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CACHE_HOME"), Cache());
        environment.insert(QStringLiteral("XDG_STATE_HOME"), State());
        if (!before.isEmpty())
        {
            // The leak checker needs to trace the process itself.
            environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
        }
        process.setProcessEnvironment(environment);
        QString const program = words.takeFirst();
        process.start(program, words);
        EXPECT_TRUE(WaitFor([&process] { return process.state() == QProcess::NotRunning; }));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), EXIT_SUCCESS);
        QByteArray const errors = process.readAllStandardError();
        EXPECT_FALSE(errors.contains("without pool")) << "what is not in a pool is never released";
        std::cerr << errors.toStdString();
        return process.readAllStandardOutput().toStdString();
    }

    std::string RunInBackground() { return Run({QStringLiteral("background")}); }

    /// The number of programs that a start executes, including the host.
    std::ptrdiff_t ProgramsOfAStart()
    {
        std::string const record = m_scene.Downloads().Path() + "/calls";
        Run({QStringLiteral("background")},
            {QString::fromLatin1(STRACE), QStringLiteral("-f"), QStringLiteral("-qq"), QStringLiteral("-e"),
             QStringLiteral("trace=execve,execveat"), QStringLiteral("-e"), QStringLiteral("signal=none"),
             QStringLiteral("-o"), QString::fromStdString(record)});
        std::string const calls = ContentOf(record);
        return std::count(calls.begin(), calls.end(), '\n');
    }

    void ExpectWhole(std::string const& version) const
    {
        EXPECT_EQ(m_scene.Place().Names(APP), (std::vector<std::string>{"Resources", "run"}));
        EXPECT_EQ(m_scene.Place().Names(std::string(APP) + "/Resources"),
                  (std::vector<std::string>{"Info-gnustep.plist", "data", "data-" + version}));
        EXPECT_EQ(ContentOf(BundlePath() + "/Resources/data"), std::string(3000, version[0]));
        EXPECT_EQ(ContentOf(BundlePath() + "/run"), ContentOf(PELNAR_START_HOST));
    }

    [[nodiscard]] bool IsAlone() const { return m_scene.Place().Names() == std::vector<std::string>{APP}; }

    UpdateScene m_scene;

private:
    TestApplication<> m_application;
    LoopbackServer m_server{[](QSslSocket& socket, QByteArray const&, int)
                            {
                                socket.write(OkAnswer(FeedWith(ItemOf("2.0"))));
                                socket.disconnectFromHost();
                            }};
};

/// The same, but 2.0 must confirm a good start.
class StartToConfirm : public Start
{
protected:
    StartToConfirm() : Start(WITH_WORD) {}
};

bool IsExchange(CallStop const& stop)
{
    return stop.call == SYS_renameat2 && stop.arguments[4] == RENAME_EXCHANGE;
}

TEST_F(Start, WithoutAnUpdateStartsNoOtherProgram)
{
    std::filesystem::remove_all(m_scene.StagingPath());
    ASSERT_TRUE(IsAlone());
    EXPECT_EQ(ProgramsOfAStart(), 1);
}

TEST_F(Start, AfterAHelperThatWasKilledBeforeTheSwapClearsUpAndRunsTheOldVersion)
{
    HelperOutcome const killed =
        Install([](CallStop const& stop) { return IsExchange(stop) ? CallVerdict::KillAll() : CallVerdict::GoOn(); });
    ASSERT_EQ(killed.signal, SIGKILL);
    ASSERT_FALSE(IsAlone());
    EXPECT_EQ(RunInBackground().rfind("asked;found 2.0;", 0), 0u);
    EXPECT_TRUE(IsAlone());
    ExpectWhole("1.0");
}

TEST_F(Start, AfterAHelperThatWasKilledBehindTheSwapClearsUpAndRunsTheNewVersion)
{
    bool hasSwapped = false;
    HelperOutcome const killed = Install(
        [&hasSwapped](CallStop const& stop)
        {
            if (hasSwapped)
            {
                return CallVerdict::KillAll();
            }
            hasSwapped = IsExchange(stop);
            return CallVerdict::GoOn();
        });
    ASSERT_EQ(killed.signal, SIGKILL);
    ASSERT_FALSE(IsAlone());
    EXPECT_GT(ProgramsOfAStart(), 1);
    EXPECT_TRUE(IsAlone());
    ExpectWhole("2.0");
    EXPECT_EQ(RunInBackground(), "asked;not found;aborted 1001;");
}

TEST_F(Start, AfterAnInstallationThatFailedTellsThePersonWhoAskedOnceAndWaitsWithTheNext)
{
    FailToInstall("renameat2:error=EPERM");
    QStringList const listening{QStringLiteral("background"), QStringLiteral("listen")};
    EXPECT_EQ(Run(listening), "asked;aborted 1002;aborted 4012;") << "held back, then the failure";
    EXPECT_EQ(RunInBackground(), "asked;aborted 1002;") << "it is told once";
    EXPECT_EQ(Run({QStringLiteral("interactive")}).rfind("asked;found 2.0;", 0), 0u) << "a person may try again";
    ExpectWhole("1.0");
    EXPECT_TRUE(std::filesystem::exists(DownloadFolder() + "/" + ARCHIVE)) << "the next attempt need not download it";
}

TEST_F(Start, AfterAnInstallationThatFailedTellsItWithoutACheckToo)
{
    FailToInstall("renameat2:error=EPERM");
    QStringList const listening{QStringLiteral("unchecked"), QStringLiteral("confirm"), QStringLiteral("listen")};
    EXPECT_EQ(Run(listening), "aborted 4012;");
}

TEST_F(Start, CopiesTheRecordsOfEarlierVersions)
{
    HelperStart start;
    start.before = {STRACE, "-f", "-qq", "-o", "/dev/null", "-e", "inject=renameat2:error=EPERM"};
    FailToInstall(start, EarlierFolder(), EarlierFolder());
    EXPECT_EQ(Run({QStringLiteral("background"), QStringLiteral("listen")}), "asked;aborted 1002;aborted 4012;");
    EXPECT_EQ(RunInBackground(), "asked;aborted 1002;") << "it is told once";
    EXPECT_TRUE(std::filesystem::exists(DownloadFolder() + "/" + ARCHIVE));
    EXPECT_FALSE(std::filesystem::exists(Cache().toStdString() + "/pelnar-updates")) << "nothing stays behind";
}

TEST_F(Start, LeavesALinkInThePlaceOfEarlierDownloadsAlone)
{
    std::string const elsewhere = m_scene.Downloads().Path() + "/elsewhere";
    std::filesystem::create_directories(elsewhere);
    std::filesystem::create_directories(Cache().toStdString() + "/pelnar-updates");
    std::filesystem::create_symlink(elsewhere, EarlierFolder());
    RunInBackground();
    EXPECT_TRUE(std::filesystem::is_symlink(EarlierFolder()));
    EXPECT_TRUE(std::filesystem::is_empty(elsewhere));
}

TEST_F(Start, AfterAHelperThatWasKilledTellsThePersonWhoAsked)
{
    FailToInstall("renameat2:signal=KILL");
    EXPECT_EQ(Run({QStringLiteral("background"), QStringLiteral("listen")}), "asked;aborted 1002;aborted 4005;");
}

TEST_F(Start, AfterAnAutomaticInstallationWhoseHelperDiedTellsTheApplicationOnce)
{
    ExpectToldOnceAfterAKillAt(SYS_renameat2);
}

TEST_F(Start, AfterAHelperThatDiedWhileItWaitedTellsTheApplicationOnce)
{
    ExpectToldOnceAfterAKillAt(SYS_poll);
}

/// While the helper waited, the bundle was renamed, and a link to it took its name.
TEST_F(Start, ThroughALinkInThePlaceOfTheBundleTellsWhyNothingWasInstalled)
{
    std::string const moved = BundlePath() + ".away";
    HelperStart start;
    start.atEveryCall = [&](CallStop const& stop)
    {
        if (stop.call == SYS_poll && !std::filesystem::exists(moved))
        {
            std::filesystem::rename(BundlePath(), moved);
            std::filesystem::create_directory_symlink(moved, BundlePath());
        }
        return CallVerdict::GoOn();
    };
    FailToInstall(start, DownloadFolder(), RecordFolder());
    QStringList const listening{QStringLiteral("unchecked"), QStringLiteral("confirm"), QStringLiteral("listen")};
    EXPECT_EQ(Run(listening), "aborted 4005;");
    EXPECT_EQ(RunInBackground(), "asked;aborted 1002;") << "it is told once, and the next check waits";
}

TEST_F(Start, OfTheNewVersionForgetsTheInstallationAndItsArchive)
{
    FailToInstall("mkdirat:error=EPERM"); // an installation does not make this call
    ExpectWhole("2.0");
    EXPECT_EQ(RunInBackground(), "asked;not found;aborted 1001;");
    EXPECT_TRUE(std::filesystem::is_empty(DownloadFolder()));
    EXPECT_EQ(QDir(QString::fromStdString(RecordFolder())).entryList({QStringLiteral("*.installation")}),
              QStringList());
}

TEST_F(StartToConfirm, KeepsANewVersionThatConfirms)
{
    ASSERT_EQ(Install().exitStatus, 0);
    Run({QStringLiteral("background"), QStringLiteral("confirm")});
    // The helper outlives the application that has confirmed.
    EXPECT_TRUE(WaitFor([this] { return IsAlone(); }));
    for (int start = 0; start < 3; ++start)
    {
        RunInBackground();
    }
    ExpectWhole("2.0");
}

TEST_F(StartToConfirm, RollsBackAVersionThatNeverConfirmsAndOffersItAgainOnlyToAPersonWhoAsks)
{
    ASSERT_EQ(Install().exitStatus, 0);
    for (int start = 0; start < 2; ++start)
    {
        RunInBackground();
        ExpectWhole("2.0");
    }
    RunInBackground();
    ExpectWhole("1.0");
    EXPECT_EQ(Run({QStringLiteral("background"), QStringLiteral("listen")}),
              "asked;not found;aborted 1001;aborted 4005;")
        << "the check, then the rollback";
    EXPECT_EQ(RunInBackground(), "asked;not found;aborted 1001;") << "it is told once";
    EXPECT_EQ(Run({QStringLiteral("interactive")}).rfind("asked;found 2.0;", 0), 0u);
    EXPECT_EQ(RunInBackground(), "asked;not found;aborted 1001;") << "at every start";
    ExpectWhole("1.0");
}

} // namespace
