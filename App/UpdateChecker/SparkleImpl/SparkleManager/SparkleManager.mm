#include "App/UpdateChecker/SparkleImpl/Choice/LogSites.h"
#include "App/UpdateChecker/SparkleImpl/Choice/SessionRecords.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/PelnarSparkleUpdaterDelegate.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/PelnarSparkleVersionComparator.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager_p.h"
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/SparkleUpdateContext.h"
#include "Foundation/FoundationText.h"
#include "Foundation/RaisedException.h"
#include "common/ScopedFunctionCall.h"

namespace Pelnar::App
{

using Session::State;
using Session::UpdateType;
using Session::WriteCurrentState;

// The singleton and its commands.

SparkleManager& SparkleManager::GetInstance()
{
    Core::Write(Session::Sites::GET_INSTANCE);
    static SparkleManager instance;
    return instance;
}

SparkleManager::SparkleManager() : m_impl(details::PropogateConstCreator<std::unique_ptr<Impl>>::Create()) {}

SparkleManager::~SparkleManager() = default;

bool SparkleManager::LockUpdater(SharedNotNullPtr<SparkleUpdateContext> const& context)
{
    WriteCurrentState(Session::Sites::LOCK_UPDATER, m_impl->state);
    if (!m_impl->Lock())
    {
        Core::Write(Session::Sites::LOCK_UPDATER_REFUSED, "Can't lock updater");
        return false;
    }
    std::shared_ptr<SparkleUpdateContext> const previous = m_impl->context;
    bool isLent = false;
    Core::ScopedFunctionCall const giveBackUnlessLent(
        nullptr,
        [this, &previous, &isLent]
        {
            if (!isLent)
            {
                m_impl->context = previous;
                m_impl->Unlock();
            }
        },
        true);
    std::optional<std::string> const reason =
        Foundation::ReasonRaisedBy([this, &context] { m_impl->SetContext(context); });
    if (reason)
    {
        Core::Write(Session::Sites::SET_CONTEXT_RAISED, "Exception while setFeedURL: " + *reason);
        Core::Write(Session::Sites::LOCK_UPDATER_REFUSED, "Can't lock updater");
        return false;
    }
    isLent = true;
    return true;
}

void SparkleManager::UnlockUpdaterWhenPossible()
{
    WriteCurrentState(Session::Sites::UNLOCK_WHEN_POSSIBLE, m_impl->state);
    if (m_impl->state != State::WAITING)
    {
        // The callback that ends the running request unlocks.
        m_impl->unlockRequested = true;
        return;
    }
    m_impl->Unlock();
}

void SparkleManager::CheckForUpdates()
{
    WriteCurrentState(Session::Sites::CHECK, m_impl->state);
    if (!m_impl->EnsureContext() || !m_impl->EnsureCheckFinishedCallback())
    {
        return;
    }
    m_impl->SetState(State::FETCHING_INFO);
    m_impl->updateType = UpdateType::UNKNOWN;
    m_impl->extensions.clear();
    @autoreleasepool
    {
        std::optional<std::string> const reason =
            Foundation::ReasonRaisedBy([this] { [m_impl->updater.Get() checkForUpdateInformation]; });
        if (reason)
        {
            Core::Write(Session::Sites::CHECK_RAISED, "Exception while checkForUpdateInformation: " + *reason);
            m_impl->ReportNoNewerVersion();
        }
    }
}

void SparkleManager::ShowUpdateDialog()
{
    WriteCurrentState(Session::Sites::SHOW_DIALOG, m_impl->state);
    if (!m_impl->EnsureContext() || !m_impl->EnsureLocalVersion() || !m_impl->EnsureRemoteVersion())
    {
        return;
    }
    bool const inBackground = m_impl->context->inBackground;
    // Deliberate: a background check without automatic download counts as a check with windows.
    m_impl->SetState(inBackground && AutomaticallyDownloadsUpdates() ? State::SILENT_DOWNLOADING
                                                                     : State::PREPARING_TO_SHOW_CHANGELOG);
    m_impl->updateType = UpdateType::UNKNOWN;
    m_impl->extensions.clear();
    @autoreleasepool
    {
        SUUpdater* const updater = m_impl->updater.Get();
        std::optional<std::string> const reason = Foundation::ReasonRaisedBy(
            [updater, inBackground]
            {
                if (inBackground)
                {
                    [updater checkForUpdatesInBackground];
                }
                else
                {
                    [updater checkForUpdates:nil];
                }
            });
        if (reason)
        {
            std::string const call = inBackground ? "checkForUpdatesInBackground" : "checkForUpdates";
            Core::Write(Session::Sites::SHOW_DIALOG_RAISED, "Exception while " + call + ": " + *reason);
            m_impl->SwitchToIdle();
        }
    }
}

void SparkleManager::RejectUpdateAndHideDialog()
{
    WriteCurrentState(Session::Sites::REJECT, m_impl->state);
    // A copy: closing may open another dialog, which sets its own function.
    std::function<void()> const closeDialog = m_impl->closeDialog;
    if (closeDialog)
    {
        closeDialog();
    }
}

bool SparkleManager::AutomaticallyDownloadsUpdates() const
{
    return [m_impl->updater.Get() automaticallyDownloadsUpdates];
}

void SparkleManager::SetAutomaticallyDownloadsUpdates(bool enabled)
{
    [m_impl->updater.Get() setAutomaticallyDownloadsUpdates:enabled];
}

// The implementation record: life, lock, context and state.

SparkleManager::Impl::Impl() { CreateUpdater(); }

SparkleManager::Impl::~Impl()
{
    SetState(State::WAITING);
    Unlock();
    DestroyUpdater();
    // The fields are destroyed next, in reverse order of their declaration: closeDialog, extensions, context.
}

void SparkleManager::Impl::CreateUpdater()
{
    Core::Write(Session::Sites::CREATE_UPDATER);
    @autoreleasepool
    {
        using Foundation::Retained;
        updater = Retained<SUUpdater>::Share([SUUpdater sharedUpdater]);
        bool isCreated = false;
        Core::ScopedFunctionCall const detachUnlessCreated(
            nullptr,
            [this, &isCreated]
            {
                if (!isCreated)
                {
                    // The delegate is destroyed with this object; the framework owns the updater, which stays.
                    [updater.Get() setDelegate:nil];
                }
            },
            true);
        // The delegate returns the comparator, and the updater may ask for it as soon as it has a delegate.
        comparator =
            Retained<PelnarSparkleVersionComparator>::Adopt([[PelnarSparkleVersionComparator alloc] initWithImpl:this]);
        delegate =
            Retained<PelnarSparkleUpdaterDelegate>::Adopt([[PelnarSparkleUpdaterDelegate alloc] initWithImpl:this]);
        [updater.Get() setDelegate:delegate.Get()];
        [updater.Get() setAutomaticallyChecksForUpdates:NO];
        [updater.Get() setSendsSystemProfile:NO];
        isCreated = true;
    }
}

void SparkleManager::Impl::DestroyUpdater()
{
    Core::Write(Session::Sites::DESTROY_UPDATER);
    @autoreleasepool
    {
        // Detached first, so that the updater never calls a destroyed delegate.
        [updater.Get() setDelegate:nil];
        updater.Reset();
        delegate.Reset();
        comparator.Reset();
    }
}

bool SparkleManager::Impl::Lock()
{
    WriteCurrentState(Session::Sites::LOCK, state);
    // Deliberate: the state is not checked. An idle updater can be lent with the remains of the last request. A busy
    // one cannot, for example during a download that outlived its holder. An updater that does not answer counts as
    // busy.
    bool isBusy = true;
    std::optional<std::string> const reason =
        Foundation::ReasonRaisedBy([this, &isBusy] { isBusy = [updater.Get() updateInProgress]; });
    if (reason)
    {
        Core::Write(Session::Sites::LOCK_RAISED, "Exception while updateInProgress: " + *reason);
    }
    if (isBusy || locked.exchange(true))
    {
        return false;
    }
    unlockRequested = false;
    return true;
}

void SparkleManager::Impl::SetContext(SharedNotNullPtr<SparkleUpdateContext> const& newContext)
{
    WriteCurrentState(Session::Sites::SET_CONTEXT, state);
    @autoreleasepool
    {
        context = newContext;
        [updater.Get() setFeedURL:Foundation::ToNSURL(context->feedUrl)];
    }
    if (Core::IsEnabled(Session::Sites::SET_CONTEXT_FEED))
    {
        Core::Write(Session::Sites::SET_CONTEXT_FEED, "FeedURL = " + context->feedUrl.toString().toStdString());
    }
}

void SparkleManager::Impl::Unlock()
{
    WriteCurrentState(Session::Sites::UNLOCK, state);
    if (!locked)
    {
        return;
    }
    // Deliberate: the context stays, so that a late callback still finds one.
    unlockRequested = false;
    locked.exchange(false);
}

void SparkleManager::Impl::UnlockIfRequested()
{
    WriteCurrentState(Session::Sites::UNLOCK_IF_REQUESTED, state);
    if (unlockRequested)
    {
        Unlock();
    }
}

void SparkleManager::Impl::SetState(State newState)
{
    if (Core::IsEnabled(Session::Sites::SET_STATE))
    {
        Core::Write(Session::Sites::SET_STATE,
                    std::string("Switch from ") + Session::StateName(state) + " to " + Session::StateName(newState));
    }
    state = newState;
}

void SparkleManager::Impl::NotifyCheckFinished()
{
    WriteCurrentState(Session::Sites::NOTIFY_CHECK_FINISHED, state);
    if (EnsureContext() && EnsureCheckFinishedCallback())
    {
        // A copy: the holder may empty the field while its callback runs.
        std::function<void()> const callback = context->checkFinishedCallback;
        callback();
    }
}

void SparkleManager::Impl::SwitchToIdle()
{
    SetState(State::WAITING);
    UnlockIfRequested();
}

void SparkleManager::Impl::ReportNoNewerVersion()
{
    context->remoteVersion = context->localVersion;
    SetState(State::WAITING);
    NotifyCheckFinished();
    UnlockIfRequested();
}

} // namespace Pelnar::App
