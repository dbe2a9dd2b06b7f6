// UpdateContractTest.cpp: what the session expects after an update was found: the questions and notifications until the
// application quits, and when the updater is idle. The test plays the server and the helper. The delegate and the
// invocation are real, and the program is the executable of its own bundle.
#include "tests/engine/CheckFixture.h"
#include "tests/engine/StoredDefaults.h"
#include "tests/update/ScriptedUpdate.h"

#include <QDir>
#include <QEventLoop>
#include <QTimer>

#include <optional>

namespace
{

using namespace Pelnar::Testing;
using namespace Pelnar::Engine;

class UpdateContract : public CheckContract
{
protected:
    UpdateContract()
    {
        QByteArray item = ItemOf("5.1");
        item.replace(" length=", QByteArray(" sparkle:edSignature=\"") + GOOD_SIGNATURE + "\" length=");
        server.emplace(Answering(OkAnswer(FeedWith(item))));
        script.choose = &ChooseFirst;
        script.compare = &CompareNumbers;
        QDir(folder.path()).mkdir(bundleName);
    }

    void MakeDriver()
    {
        driver.emplace(script);
        driver->SetUpdate(parts, windows);
        driver->SetFeed(server->Url());
    }

    /// A background check that downloads by itself, up to the moment before the delegate hears of it.
    void RunSilently()
    {
        MakeDriver();
        driver->SetDownloadsAutomatically(true);
        driver->CheckInBackground();
        ASSERT_TRUE(WaitFor([this] { return !parts.requests.empty(); }));
        parts.FinishDownload();
        EXPECT_TRUE(driver->IsInProgress());
        parts.FinishPreparation();
    }

    void RunToWindow(std::string const& window)
    {
        MakeDriver();
        driver->CheckInteractively();
        ASSERT_TRUE(WaitFor([this, &window] { return windows.open == window; })) << windows.open;
    }

    [[nodiscard]] bool HasStaging() const
    {
        auto const kinds = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
        return QDir(folder.path()).entryList(kinds) != QStringList{bundleName};
    }

    InstallJob const& LastInstallation() const { return std::get<InstallJob>(parts.jobs.back()); }

    QString const bundleName = QStringLiteral("UpdateBundle.app");
    Notes notes;
    QTemporaryDir folder; ///< stands for the folder of this program's bundle
    ScriptedWindows windows{notes};
    ScriptedParts parts{notes, folder.path()};
    std::optional<LoopbackServer> server;
    DelegateScript script;
    std::optional<UpdaterDriver> driver;
};

TEST_F(UpdateContract, InvocationIsPresetAndWhenInvokedTheApplicationIsAskedForItsPathAndToldToQuit)
{
    script.relaunchPath = QStringLiteral("/opt/Other.app");
    std::optional<bool> presets[2];
    script.onWillInstall = [&presets](HeldInvocation invocation)
    {
        presets[0] = invocation.Relaunches();
        presets[1] = invocation.ShowsUserInterface();
        invocation.SetShowsUserInterface(true);
        invocation.Invoke();
    };
    RunSilently();
    EXPECT_EQ(presets[0], true);
    EXPECT_EQ(presets[1], false);
    EXPECT_EQ(driver->Events(), (Events{"asked", "found 5.1", "will install 5.1", "should relaunch?", "path?"}));
    parts.Report(ProgressReport{HelperPhase::Waiting, 0, 0});
    EXPECT_EQ(driver->Events().back(), "will relaunch");
    EXPECT_TRUE(driver->IsInProgress());
    EXPECT_EQ(LastInstallation().relaunchPath, "/opt/Other.app");
    EXPECT_TRUE(QByteArray::fromStdString(LastInstallation().targetPath).endsWith("/UpdateBundle.app"));
    EXPECT_EQ(LastInstallation().bundleIdentifier, "example.pelnar.update-test");
    EXPECT_EQ(LastInstallation().installedVersion, "5.0");
}

TEST_F(UpdateContract, RefusedRelaunchDropsTheUpdateAndANewCheckMayStartFromATimer)
{
    script.allowsRelaunch = false;
    script.onWillInstall = [](HeldInvocation invocation)
    {
        invocation.SetRelaunches(false);
        invocation.Invoke();
    };
    QObject context;
    std::optional<bool> wasBusy;
    script.onEvent = [this, &context, &wasBusy](std::string const& event)
    {
        if (event == "cancelled 5.1")
        {
            EXPECT_FALSE(HasStaging());
            QTimer::singleShot(0, &context, [this, &wasBusy] { wasBusy = driver->IsInProgress(); });
        }
    };
    RunSilently();
    EXPECT_EQ(driver->Events(),
              (Events{"asked", "found 5.1", "will install 5.1", "should relaunch?", "cancelled 5.1"}));
    ASSERT_TRUE(WaitFor([&wasBusy] { return wasBusy.has_value(); }));
    EXPECT_EQ(wasBusy, false);
    EXPECT_EQ(parts.jobs.size(), 1u) << "no helper installs";
}

TEST_F(UpdateContract, NestedEventLoopInTheCallbackIsAllowed)
{
    script.onWillInstall = [](HeldInvocation invocation)
    {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, &QEventLoop::quit);
        loop.exec();
        invocation.Invoke();
    };
    RunSilently();
    EXPECT_EQ(driver->Events().back(), "path?");
}

TEST_F(UpdateContract, UninvokedItIsInstalledOnQuitWithoutRelaunch)
{
    RunSilently();
    EXPECT_EQ(driver->Events(), (Events{"asked", "found 5.1", "will install 5.1"}));
    EXPECT_EQ(LastInstallation().targetPath, "");
    EXPECT_TRUE(driver->IsInProgress());
    EXPECT_EQ(notes.back(), "helper install");
    application.reset();
    EXPECT_FALSE(driver->IsInProgress());
    EXPECT_EQ(notes.back(), "helper install") << "the helper lives on, and waits for the process";
    EXPECT_EQ(driver->Events().size(), 3u);
    EXPECT_TRUE(HasStaging());
}

TEST_F(UpdateContract, InvocationMayBeKeptAndInvokedLaterOnce)
{
    std::optional<HeldInvocation> kept;
    script.onWillInstall = [&kept](HeldInvocation invocation) { kept = std::move(invocation); };
    RunSilently();
    kept->Invoke();
    EXPECT_EQ(driver->Events().back(), "path?");
    std::size_t const count = driver->Events().size();
    kept->Invoke();
    EXPECT_EQ(driver->Events().size(), count);
    application.reset();
    kept->Invoke();
    EXPECT_EQ(driver->Events().size(), count) << "its purpose no longer exists";
}

TEST_F(UpdateContract, MethodsOfAnUpdateThatTheDelegateLacksAreNotCalled)
{
    script.hidden = UPDATE_METHODS;
    RunSilently();
    EXPECT_EQ(driver->Events(), (Events{"asked", "found 5.1"}));
    EXPECT_EQ(LastInstallation().targetPath, "") << "and it is installed on quit";
}

TEST_F(UpdateContract, DownloadGoesOnAsItBeganWhenAPersonWantsToBeAskedFromNowOn)
{
    MakeDriver();
    driver->SetDownloadsAutomatically(true);
    driver->CheckInBackground();
    ASSERT_TRUE(WaitFor([this] { return !parts.requests.empty(); }));
    driver->SetDownloadsAutomatically(false);
    parts.FinishDownload();
    parts.FinishPreparation();
    EXPECT_EQ(driver->Events(), (Events{"asked", "found 5.1", "will install 5.1"}));
    EXPECT_EQ(windows.open, "");
    EXPECT_FALSE(driver->DownloadsAutomatically());
}

TEST_F(UpdateContract, OfferStaysOpenWhenAPersonWantsDownloadsFromNowOn)
{
    MakeDriver();
    driver->SetDownloadsAutomatically(false);
    driver->CheckInBackground();
    ASSERT_TRUE(WaitFor([this] { return windows.open == "quiet update"; }));
    driver->SetDownloadsAutomatically(true);
    windows.Choose(UpdateChoice::InstallUpdate);
    parts.FinishDownload();
    parts.FinishPreparation();
    EXPECT_EQ(windows.open, "quiet ready") << "it asks, as it began";
}

TEST_F(UpdateContract, FailureAfterTheDownloadIsTold)
{
    MakeDriver();
    driver->SetDownloadsAutomatically(true);
    driver->CheckInBackground();
    ASSERT_TRUE(WaitFor([this] { return !parts.requests.empty(); }));
    parts.FinishDownload();
    parts.RefusePreparation(UpdateFault::SignatureMismatch);
    EXPECT_FALSE(driver->IsInProgress());
    EXPECT_EQ(driver->Events(), (Events{"asked", "found 5.1", "aborted 3001"}));
    EXPECT_EQ(driver->Errors()[0].underlyingDomain, "PelnarUpdateCheckErrorDomain");
    EXPECT_EQ(driver->Errors()[0].underlyingCode, 1000 + static_cast<int>(UpdateFault::SignatureMismatch));
    EXPECT_EQ(driver->Errors()[0].underlyingText, "SignatureMismatch");
    EXPECT_EQ(windows.open, "") << "nobody asked";
}

TEST_F(UpdateContract, PersonIsLedThroughTheWindowsAndTheApplicationIsAskedAsBefore)
{
    RunToWindow("update");
    EXPECT_EQ(windows.offer->applicationName, QStringLiteral("Update Test"));
    EXPECT_EQ(windows.offer->currentVersion, QStringLiteral("Five"));
    windows.Choose(UpdateChoice::InstallUpdate);
    parts.FinishDownload();
    parts.FinishPreparation();
    windows.Choose(ReadyChoice::InstallAndRelaunch);
    parts.Report(ProgressReport{HelperPhase::Waiting, 0, 0});
    EXPECT_EQ(driver->Events(), (Events{"asked", "found 5.1", "should relaunch?", "path?", "will relaunch"}));
}

TEST_F(UpdateContract, SkippingWritesTheUserDefault)
{
    RunToWindow("update");
    windows.Choose(UpdateChoice::SkipThisVersion);
    EXPECT_FALSE(driver->IsInProgress());
    EXPECT_EQ(TextDefault("SUSkippedVersion"), QStringLiteral("5.1"));
    EXPECT_EQ(driver->Events(), (Events{"asked", "found 5.1"}));
    driver->CheckInBackground();
    ASSERT_TRUE(driver->WaitForEnd());
    EXPECT_EQ(driver->Events().back(), "aborted 1001");
}

TEST_F(UpdateContract, CheckOfAPersonWhileAWindowWaitsBringsItToTheFront)
{
    RunToWindow("update");
    LogCapture log;
    driver->CheckInBackground();
    EXPECT_EQ(notes.back(), "window update");
    driver->CheckInteractively();
    EXPECT_EQ(notes.back(), "bring to front");
    EXPECT_TRUE(HasLog(log, google::GLOG_WARNING, "A check for updates is already running; the new one is ignored"));
    EXPECT_EQ(server->Requests().size(), 1u);
}

TEST_F(UpdateContract, CancelledCheckIsToldAndTheUpdaterIsIdle)
{
    MakeDriver();
    driver->CheckInteractively();
    windows.Cancel();
    EXPECT_EQ(driver->Events(), Events{"aborted 4007"});
    EXPECT_FALSE(driver->IsInProgress());
}

TEST_F(UpdateContract, SwitchedOffNothingIsSent)
{
    SetTextDefault("PelnarUpdatesDisabled", "YES");
    MakeDriver();
    for (auto const start :
         {&UpdaterDriver::Probe, &UpdaterDriver::CheckInBackground, &UpdaterDriver::CheckInteractively})
    {
        ((*driver).*start)();
        EXPECT_TRUE(driver->IsInProgress()) << "it answers from the event loop";
        ASSERT_TRUE(driver->WaitForEnd());
        EXPECT_EQ(driver->Errors().back().underlyingCode, 850);
    }
    EXPECT_EQ(driver->Events(), (Events{"aborted 1002", "aborted 1002", "aborted 1002"}));
    EXPECT_EQ(server->Connections(), 0);
}
TEST_F(UpdateContract, FailedBackgroundCheckHoldsTheNextOneBackAndNoOther)
{
    LoopbackServer broken(Answering("HTTP/1.1 500 Broken\r\n\r\n"));
    MakeDriver();
    driver->SetFeed(broken.Url());
    driver->CheckInBackground();
    ASSERT_TRUE(driver->WaitForEnd());
    EXPECT_EQ(driver->Errors().back().underlyingCode, 500);
    driver->CheckInBackground();
    ASSERT_TRUE(driver->WaitForEnd());
    EXPECT_EQ(driver->Errors().back().underlyingCode, 851);
    EXPECT_EQ(broken.Connections(), 1);
    driver->Probe();
    ASSERT_TRUE(driver->WaitForEnd());
    EXPECT_EQ(broken.Connections(), 2);
    parts.now = parts.now.addSecs(3600);
    driver->CheckInBackground();
    ASSERT_TRUE(driver->WaitForEnd());
    EXPECT_EQ(broken.Connections(), 3);
}

TEST_F(UpdateContract, ApplicationThatEndsInTheMiddleLeavesNothingAndIsToldNothing)
{
    RunToWindow("update");
    windows.Choose(UpdateChoice::InstallUpdate);
    parts.FinishDownload();
    EXPECT_TRUE(HasStaging());
    application.reset();
    EXPECT_FALSE(HasStaging());
    EXPECT_EQ(driver->Events(), (Events{"asked", "found 5.1"}));
}

} // namespace
