#include "tests/app/TestHost.h"

#include "HostFramework/SpontaneousDialog.h"
#include "HostFramework/VersionText.h"
#include "tests/app/UpdateManagerTestAccess.h"

namespace Pelnar::Testing
{
namespace
{

void Reach(std::string const& place)
{
    if (TheHostHook())
    {
        // A copy: the hook may remove itself.
        auto const hook = TheHostHook();
        hook(place);
    }
}

} // namespace
} // namespace Pelnar::Testing

namespace Pelnar::Util
{

// Replaces the host framework's own function.
QWidget* SpontaneousDialog::findParent()
{
    ++Testing::TheSpontaneousParent().asked;
    Testing::Reach("spontaneous parent");
    return Testing::TheSpontaneousParent().widget;
}

} // namespace Pelnar::Util

namespace Pelnar::Testing
{

std::string ToText(Core::Version const& version)
{
    QString const text =
        Util::VersionToString(version, Util::VersionToStringDetail::PresentComponents, QStringLiteral("."));
    return text.isEmpty() ? "none" : text.toStdString();
}

std::function<void(std::string const& place)>& TheHostHook()
{
    static std::function<void(std::string const& place)> hook;
    return hook;
}

std::string ScriptedCustomizationManager::GetDisplayName() const
{
    Reach("display name");
    return displayName;
}

Core::Version ScriptedCustomizationManager::GetApplicationVersion() const
{
    Reach("version");
    return version;
}

ScriptedNagScreenManager::ScriptedNagScreenManager(Journal& sharedJournal) : journal(sharedJournal) {}

int ScriptedNagScreenManager::GetContentState(QString const& name) const
{
    journal.push_back("state of " + name.toStdString());
    Reach("nag state");
    return state;
}

void ScriptedNagScreenManager::Show(QString const& name)
{
    journal.push_back("show " + name.toStdString());
    Reach("nag shown");
    if (onShow)
    {
        onShow();
    }
}

QString ScriptedLinksManager::GetLink(URLKeys key) const
{
    askedKeys.push_back(key);
    Reach("link");
    return feedAddress;
}

HostApplication::HostApplication(int& argc, char** argv, Journal& sharedJournal)
    : Application(argc, argv)
    , nagScreenManager(std::make_shared<ScriptedNagScreenManager>(sharedJournal))
    , customizationManager(std::make_shared<ScriptedCustomizationManager>())
    , linksManager(std::make_shared<ScriptedLinksManager>())
{
    setQuitOnLastWindowClosed(false);
}

std::shared_ptr<App::NagScreen::Manager> HostApplication::GetNagScreenManager() const
{
    askedServices.emplace_back("nag");
    Reach("nag service");
    return nagScreenManager;
}

std::shared_ptr<App::ICustomizationManager> HostApplication::GetCustomizationManager() const
{
    askedServices.emplace_back("customization");
    Reach("customization service");
    return customizationManager;
}

std::shared_ptr<App::ILinksManager> HostApplication::GetLinksManager() const
{
    askedServices.emplace_back("links");
    Reach("links service");
    return linksManager;
}

bool HostApplication::TryToQuit()
{
    ADD_FAILURE() << "the front never quits the application";
    return false;
}

SpontaneousParent& TheSpontaneousParent()
{
    static SpontaneousParent parent;
    return parent;
}

RecordingObserver::RecordingObserver(Journal& sharedJournal, std::string prefix)
    : journal(sharedJournal), name(std::move(prefix))
{
}

void RecordingObserver::OnUpdateFound(Core::Version const& current, Core::Version const& remote)
{
    Write("found " + ToText(current) + " " + ToText(remote), onFound);
}

void RecordingObserver::OnUpdateAccepted(Core::Version const& current, Core::Version const& remote)
{
    Write("accepted " + ToText(current) + " " + ToText(remote), onAccepted);
}

void RecordingObserver::OnUpdateDialogOpening()
{
    Write("opening", onOpening);
}

void RecordingObserver::OnUpdateDialogClosed()
{
    Write("closed", onClosed);
}

void RecordingObserver::Write(std::string const& text, std::function<void()> const& hook)
{
    journal.push_back(name + text);
    Reach(text.substr(0, text.find(' ')));
    if (hook)
    {
        hook();
    }
}

void DeferringGateway::ProposeAction(ExternalStimulus::Action const& action)
{
    actions.push_back(action);
}

void DeferringGateway::CancelActions(std::string const& id)
{
    cancelled.push_back(id);
}

void DeferringGateway::RunOne()
{
    ExternalStimulus::Action const action = actions.at(0);
    actions.erase(actions.begin());
    action.callback();
}

HostTest::HostTest() : application(m_argc, m_argv, journal), parent(std::make_unique<QObject>()), observer(journal)
{
    TheSpontaneousParent() = SpontaneousParent();
    TheHostHook() = nullptr;
    session.onShowDialog = [this] { journal.emplace_back("dialog"); };
}

HostTest::~HostTest()
{
    TheHostHook() = nullptr;
    parent.reset();
    EXPECT_EQ(Current() != nullptr, leavesManagerSet) << "a manager outlives its test";
}

void HostTest::Turn()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void HostTest::Start(App::UpdateCheckMode mode)
{
    App::UpdateManager::Initializer initializer(parent.get());
    initializer.checkMode = mode;
    initializer.parentWidgetGetter = parentWidgetGetter;
    initializer.observers = {&observer};
    if (gateway)
    {
        initializer.gateway = gateway;
    }
    App::UpdateManager::CheckForUpdates(initializer);
}

void HostTest::Report(App::UpdateCheckResult result)
{
    session.contexts.back()->remoteVersion = Core::Version(6, 0);
    Q_EMIT App::UpdateManagerTestAccess::Updater().NotifyCheckFinished(result);
}

void HostTest::Check(App::UpdateCheckMode mode, Core::Version const& remote)
{
    Start(mode);
    session.FinishCheck(remote);
    Turn();
}

} // namespace Pelnar::Testing
