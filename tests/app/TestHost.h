// TestHost.h: a host application whose services give scripted answers, and fixtures that use it.
// Thread: the Qt main thread. Ownership: the fixture owns the application; each service is shared with the checks.
#pragma once

#include "App/UpdateChecker/IUpdateManagerObserver.h"
#include "App/UpdateChecker/UpdateCheckResult.h"
#include "App/UpdateChecker/UpdateManager.h"
#include "HostFramework/Application.h"
#include "HostFramework/ICustomizationManager.h"
#include "HostFramework/ILinksManager.h"
#include "HostFramework/NagScreenManager.h"
#include "common/IGateway.h"
#include "tests/app/ScriptedSparkleManager.h"

#include <gtest/gtest.h>

#include <QWidget>

#include <memory>
#include <string>
#include <vector>

namespace Pelnar::Testing
{

/// All events in order, as short texts. Everything in a test writes into one list.
using Journal = std::vector<std::string>;

std::string ToText(Core::Version const& version);

/// The test's action at each place where the host is called, by the name of the place. May be empty.
std::function<void(std::string const& place)>& TheHostHook();

class ScriptedNagScreenManager : public App::NagScreen::Manager
{
public:
    explicit ScriptedNagScreenManager(Journal& sharedJournal);
    int GetContentState(QString const& name) const override;
    void Show(QString const& name) override;

    int state = App::NagScreen::CONTENT_UNAVAILABLE;
    std::function<void()> onShow;

private:
    Journal& journal;
};

class ScriptedCustomizationManager : public App::ICustomizationManager
{
public:
    std::string GetDisplayName() const override;
    Core::Version GetApplicationVersion() const override;
    std::string GetBundleNameFirstPart() const override { return firstPart; }
    std::string GetBundleNameSecondPart() const override { return secondPart; }

    std::string displayName = "Shown Name";
    Core::Version version{5, 9};
    std::string firstPart = "First";
    std::string secondPart = "Second";
};

class ScriptedLinksManager : public App::ILinksManager
{
public:
    QString GetLink(URLKeys key) const override;

    QString feedAddress = QStringLiteral("https://feeds.test/appcast.xml");
    mutable std::vector<URLKeys> askedKeys;
};

class HostApplication : public App::Application
{
public:
    HostApplication(int& argc, char** argv, Journal& sharedJournal);
    std::shared_ptr<App::NagScreen::Manager> GetNagScreenManager() const override;
    std::shared_ptr<App::ICustomizationManager> GetCustomizationManager() const override;
    std::shared_ptr<App::ILinksManager> GetLinksManager() const override;
    bool TryToQuit() override;

    std::shared_ptr<ScriptedNagScreenManager> nagScreenManager;
    std::shared_ptr<ScriptedCustomizationManager> customizationManager;
    std::shared_ptr<ScriptedLinksManager> linksManager;
    mutable Journal askedServices;
};

/// What Util::SpontaneousDialog::findParent answers in this program, and how often it was asked.
struct SpontaneousParent
{
    QWidget* widget = nullptr;
    int asked = 0;
};
SpontaneousParent& TheSpontaneousParent();

/// Writes "name.found 5.9 6.0" and the like.
class RecordingObserver : public App::IUpdateManagerObserver
{
public:
    explicit RecordingObserver(Journal& sharedJournal, std::string prefix = {});
    void OnUpdateFound(Core::Version const& current, Core::Version const& remote) override;
    void OnUpdateAccepted(Core::Version const& current, Core::Version const& remote) override;
    void OnUpdateDialogOpening() override;
    void OnUpdateDialogClosed() override;

    std::function<void()> onFound;
    std::function<void()> onAccepted;
    std::function<void()> onOpening;
    std::function<void()> onClosed;

private:
    void Write(std::string const& text, std::function<void()> const& hook);

    Journal& journal;
    std::string name;
};

/// Keeps the proposed actions. The test runs them when it wants.
class DeferringGateway : public ExternalStimulus::IGateway
{
public:
    void ProposeAction(ExternalStimulus::Action const& action) override;
    void CancelActions(std::string const& id) override;
    /// Runs the oldest kept action.
    void RunOne();

    std::vector<ExternalStimulus::Action> actions;
    std::vector<std::string> cancelled;
};

/// A process with one application and one scripted session.
class HostTest : public ::testing::Test
{
protected:
    HostTest();
    ~HostTest() override;

    static App::IUpdateManager* Current() { return App::UpdateManager::GetCurrentUpdateManager(); }
    /// One turn of the event loop: posted events, zero timers, deferred deletions.
    static void Turn();

    /// Starts a check in \a mode with `observer` (and the gateway, when it is set).
    void Start(App::UpdateCheckMode mode);
    /// The back end of the running check reports \a result, with 6.0 as the version that it offers.
    void Report(App::UpdateCheckResult result);
    /// Starts a check, ends it with \a remote and lets the result arrive.
    void Check(App::UpdateCheckMode mode, Core::Version const& remote);

    Journal journal;
    ScriptedSession session;

private:
    int m_argc = 1;
    char m_name[5] = "test";
    char* m_argv[2] = {m_name, nullptr};

protected:
    HostApplication application;
    std::unique_ptr<QObject> parent; ///< of every manager; deleting it deletes the manager
    RecordingObserver observer;
    std::shared_ptr<ExternalStimulus::IGateway> gateway; ///< null: the default one
    std::function<QWidget*()> parentWidgetGetter;
    bool leavesManagerSet = false; ///< the construction of a manager has thrown
};

} // namespace Pelnar::Testing
