#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/UpdaterSparkle.h"

#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/SessionLibrary/ISession.h"
#include "App/UpdateChecker/SparkleImpl/SessionLibrary/OpenSession.h"
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/CheckOutcome_p.h"
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/RelaunchPath_p.h"
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/RunningBox.h"
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/SparkleUpdateContext.h"
#include "HostFramework/ICustomizationManager.h"
#include "HostFramework/ILinksManager.h"
#include "common/LogSite.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTimer>

#include <exception>
#include <string>

namespace Pelnar::App
{
namespace
{

Core::LogFile const LOG_FILE("App/UpdateChecker/SparkleImpl/UpdaterSparkle");
Core::LogSite const CALLBACK_WITHOUT_UPDATER{Core::LogSeverity::Error, LOG_FILE, 49, ""};
Core::LogSite const CHECK_NOT_STARTED{Core::LogSeverity::Error, LOG_FILE, 58, ""};

QString RunningUpdateText()
{
    return QCoreApplication::translate("SparkleUpdater", "Update is already running. Please try later.");
}

QString MissingSessionText()
{
    return QCoreApplication::translate("SparkleUpdater",
                                       "A part of this application that updates need is missing or damaged. Reinstall "
                                       "the application.");
}

} // namespace

class UpdaterSparkle::Impl
{
public:
    Impl(NotNull<std::shared_ptr<ICustomizationManager>> const& customization,
         NotNull<std::shared_ptr<ILinksManager>> const& links, AbstractUpdaterImpl* owner, bool inBackground);
    ~Impl();
    Impl(Impl const&) = delete;
    Impl& operator=(Impl const&) = delete;

    /// Takes the lock of the session, if there is one.
    void TakeSession(ISession* opened);
    /// Starts the check that has waited for the session. Throws nothing.
    void StartWaitingCheck(ISession* opened, AbstractUpdaterImpl& owner);

    std::shared_ptr<SparkleUpdateContext> context;
    ISession* session = nullptr;      ///< null until it is open, and if it cannot be opened
    bool isOpeningSession = true;     ///< the session is being loaded: its operations must wait
    bool isCheckWaiting = false;      ///< for the session
    bool locked = false;              ///< this updater holds the session, from its opening to the end of the updater
    std::function<void()> hideDialog; ///< set while the alert is open
};

UpdaterSparkle::Impl::Impl(NotNull<std::shared_ptr<ICustomizationManager>> const& customization,
                           NotNull<std::shared_ptr<ILinksManager>> const& links, AbstractUpdaterImpl* owner,
                           bool inBackground)
    : context(std::make_shared<SparkleUpdateContext>())
{
    context->inBackground = inBackground;
    context->applicationName = QString::fromStdString(customization->GetDisplayName());
    context->feedUrl = QUrl(links->GetLink(URLKeys::SPARKLE_APPCAST_URL));
    context->localVersion = customization->GetApplicationVersion();
    context->versionLess = Session::IsOlderVersion;
    context->versionEqual = Session::IsSameVersion;
    context->checkFinishedCallback = [guarded = QPointer<AbstractUpdaterImpl>(owner), this]
    {
        if (!guarded)
        {
            Core::Write(CALLBACK_WITHOUT_UPDATER,
                        "Call SparkleUpdateContext::checkFinishedCallback without live AbstractUpdaterImpl!");
            return;
        }
        // The updater is the timer's context: Qt drops the call if the updater, and this object with it, is destroyed
        // first.
        QTimer::singleShot(0, Qt::PreciseTimer, guarded.data(),
                           [updater = guarded.data(), this]
                           {
                               std::shared_ptr<SparkleUpdateContext> const current = context;
                               UpdateCheckResult const result = OutcomeOf(*current);
                               Q_EMIT updater->NotifyCheckFinished(result);
                           });
    };
    context->relaunchPathGetter = [service = customization.Get()](Core::Version const& version)
    { return RelaunchPathFor(service->GetBundleNameFirstPart(), service->GetBundleNameSecondPart(), version); };
    OpenSession(*owner,
                [this, owner](ISession* opened)
                {
                    if (isCheckWaiting)
                    {
                        StartWaitingCheck(opened, *owner);
                        return;
                    }
                    TakeSession(opened);
                });
}

void UpdaterSparkle::Impl::TakeSession(ISession* opened)
{
    isOpeningSession = false;
    session = opened;
    if (!session)
    {
        // As after every failed check.
        context->remoteVersion = context->localVersion;
        return;
    }
    locked = session->LockUpdater(context);
}

void UpdaterSparkle::Impl::StartWaitingCheck(ISession* opened, AbstractUpdaterImpl& owner)
{
    QPointer<AbstractUpdaterImpl> const self(&owner);
    // The host's call has returned, so nothing may be thrown here. A check that cannot start counts as failed.
    std::string failure;
    try
    {
        TakeSession(opened);
        if (locked)
        {
            session->CheckForUpdates();
            return;
        }
    }
    catch (std::exception const& exception)
    {
        failure = exception.what();
    }
    catch (...) // an exception of the framework
    {
        failure = "an exception of another kind";
    }
    if (!failure.empty())
    {
        Core::Write(CHECK_NOT_STARTED, "Exception while a check was started: " + failure);
    }
    if (self)
    {
        Q_EMIT self->NotifyCheckFinished(UpdateCheckResult::NoUpdate);
    }
}

UpdaterSparkle::Impl::~Impl()
{
    if (locked)
    {
        session->UnlockUpdaterWhenPossible();
    }
    // After the unlocking, and also without the lock: a session that keeps the context must not call this object.
    context->checkFinishedCallback = nullptr;
}

UpdaterSparkle::UpdaterSparkle(std::shared_ptr<ICustomizationManager> const& customization,
                               NotNull<std::shared_ptr<ILinksManager>> const& links, bool inBackground)
    : m_impl(std::make_unique<Impl>(customization, links, this, inBackground))
{
}

UpdaterSparkle::~UpdaterSparkle() = default;

void UpdaterSparkle::CheckForUpdates()
{
    if (m_impl->isOpeningSession)
    {
        m_impl->isCheckWaiting = true;
        return;
    }
    if (!m_impl->locked)
    {
        Q_EMIT NotifyCheckFinished(UpdateCheckResult::NoUpdate);
        return;
    }
    m_impl->session->CheckForUpdates();
}

Core::Version UpdaterSparkle::GetRemoteVersion() const
{
    return m_impl->context->remoteVersion;
}

void UpdaterSparkle::ExecUpdateDialog(std::function<QWidget*()> const& parentGetter)
{
    m_impl->context->parentWidgetGetter = parentGetter;
    if (m_impl->locked)
    {
        m_impl->session->ShowUpdateDialog();
        return;
    }

    // During the getter and the alert's event loop, the Qt parent of the manager may delete this updater.
    QPointer<UpdaterSparkle> const self(this);
    QWidget* const parent = parentGetter ? parentGetter() : nullptr;
    if (!self)
    {
        return;
    }
    bool const isMissing = !m_impl->session && !m_impl->isOpeningSession;
    RunningBox alert(Util::AlertBox::Information, isMissing ? MissingSessionText() : RunningUpdateText(),
                     QMessageBox::Ok, parent,
                     isMissing ? QStringLiteral("SparkleUpdater_updaterIsMissingDialog")
                               : QStringLiteral("SparkleUpdater_updateIsAlreadyRunningDialog"));
    (void)alert.Run(m_impl->hideDialog, this);
}

void UpdaterSparkle::RejectUpdateAndHideDialog()
{
    // A copy: closing may destroy this object.
    std::function<void()> const hideDialog = m_impl->hideDialog;
    if (hideDialog)
    {
        hideDialog();
    }
    if (m_impl->session)
    {
        m_impl->session->RejectUpdateAndHideDialog();
    }
}

} // namespace Pelnar::App
