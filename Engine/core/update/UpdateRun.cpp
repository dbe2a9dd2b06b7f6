#include "Engine/core/update/UpdateRun.h"

#include "Engine/core/base/PathText.h"
#include "Engine/core/check/DelegateCall.h"
#include "Engine/core/faults/EngineError.h"
#include "Engine/core/update/KeptArguments.h"
#include "Engine/core/update/ProcessSurroundings.h"

#include <QCoreApplication>
#include <QPointer>

#include <glog/logging.h>

#include <algorithm>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

/// A person may have answered "stay open" to a question about unsaved work. Hours later a restart would be a surprise.
constexpr std::uint64_t RELAUNCH_WAIT_SECONDS = 600;

} // namespace

template <typename... Arguments>
std::function<void(Arguments...)> UpdateRun::Guarded(void (UpdateRun::*call)(Arguments...))
{
    return [self = QPointer<UpdateRun>(this), call](Arguments... arguments)
    {
        if (self)
        {
            (self.data()->*call)(std::move(arguments)...);
        }
    };
}

UpdateRun::UpdateRun(CheckKind kind, std::vector<UpdateCandidate> candidates, UpdateSettings const& settings,
                     IUpdateHost& host, IUserInterface& windows, IUpdateEnvironment& parts,
                     std::function<void(UpdateEnd)> ended)
    : m_mode(ModeOf(kind, settings.automaticDownload, candidates.front().item))
    , m_origin(OriginOf(kind))
    , m_candidates(std::move(candidates))
    , m_settings(settings)
    , m_host(host)
    , m_windows(windows)
    , m_parts(parts)
    , m_ended(std::move(ended))
    , m_asked(kind == CheckKind::Interactive ? PersonAsked::Yes : PersonAsked::No)
{
}

UpdateRun::~UpdateRun()
{
    DropPrepared();
}

void UpdateRun::Start()
{
    QMetaObject::invokeMethod(
        this, [this] { Take(RunEvent::Started); }, Qt::QueuedConnection);
}

void UpdateRun::Take(RunEvent event)
{
    if (auto const transition = TransitionAt(m_phase, event, m_mode))
    {
        m_phase = transition->next;
        (static_cast<IUpdateSteps*>(this)->*transition->step)();
    }
}

void UpdateRun::Fail(RunEvent event, EngineError error)
{
    m_error = std::move(error);
    Take(event);
}

void UpdateRun::OpenTarget()
{
    if (Current().item.policy.isInformational)
    {
        Take(RunEvent::PageOffered);
        return;
    }
    // Every possible refusal comes before a person is asked and a byte is fetched.
    if (Result<void> const verdict = JudgeBundle(m_settings.bundle); !verdict)
    {
        Fail(RunEvent::Refused, verdict.error());
        return;
    }
    auto const isUseless = [](UpdateCandidate const& candidate) { return !JudgeItem(candidate.item); };
    Result<void> const verdict = JudgeItem(m_candidates.back().item);
    m_candidates.erase(std::remove_if(m_candidates.begin(), m_candidates.end(), isUseless), m_candidates.end());
    if (m_candidates.empty())
    {
        Fail(RunEvent::Refused, verdict.error());
        return;
    }
    m_parts.OpenTarget(m_settings.bundle.path, NeededBytes(m_candidates), Guarded(&UpdateRun::TakeTarget));
}

void UpdateRun::TakeTarget(OpenedTarget target)
{
    if (!target)
    {
        Fail(RunEvent::Refused, target.error());
        return;
    }
    m_target = *std::move(target);
    // Without a record the helper installs nothing. The reason is told before the download.
    if (auto const attempt = InstallAttempt::Make(m_settings.stateFolder, m_target->path); !attempt)
    {
        Fail(RunEvent::Refused, attempt.error());
        return;
    }
    Take(RunEvent::TargetOpened);
}

void UpdateRun::Ask()
{
    m_windows.ShowUpdate(OfferOf(Current().item, m_settings.bundle), m_origin, Guarded(&UpdateRun::TakeChoice));
}

void UpdateRun::TakeChoice(UpdateChoice choice)
{
    switch (choice)
    {
    case UpdateChoice::SkipThisVersion:
        Take(RunEvent::Skipped);
        return;
    case UpdateChoice::RemindMeLater:
        Take(RunEvent::PutOff);
        return;
    case UpdateChoice::InstallUpdate:
        // From now on a person waits, even if the check was automatic.
        m_asked = PersonAsked::Yes;
        Take(RunEvent::Agreed);
        return;
    }
}

void UpdateRun::Skip()
{
    if (NotifyHostOrFinish("skipping a version", [this] { m_host.SkipVersion(Current().item.versionString); }))
    {
        Take(RunEvent::PutOff);
    }
}

void UpdateRun::Download()
{
    if (HasWindows())
    {
        m_windows.ShowDownload(NamedUpdate(), Guarded(&UpdateRun::Cancel));
    }
    DownloadRequest request = DownloadOf(Current().item, m_settings);
    request.purpose = m_asked == PersonAsked::Yes ? DownloadFor::Person : DownloadFor::Nobody;
    m_download = m_parts.MakeDownload(request);
    m_download->Start(
        [this](DownloadProgress const& progress)
        {
            if (HasWindows())
            {
                m_windows.SetProgress(
                    {UpdatePhase::Downloading, progress.doneBytes, progress.totalBytes, progress.bytesPerSecond});
            }
        },
        [this](DownloadOutcome outcome)
        {
            m_download.reset();
            if (!outcome)
            {
                FailCandidate(outcome.error());
            }
            else
            {
                m_archive = *std::move(outcome);
                Take(RunEvent::Downloaded);
            }
        });
}

void UpdateRun::Prepare()
{
    m_preparation = std::make_unique<UpdatePreparation>(m_parts);
    Result<void> const started = m_preparation->Start(
        *m_target, PreparationOf(Current(), m_settings.bundle, m_target->name), std::move(m_archive),
        [this](ProgressReport const& progress)
        {
            if (HasWindows())
            {
                m_windows.SetProgress({UpdatePhase::Preparing, progress.doneBytes, progress.totalBytes, 0});
            }
        },
        [this](UpdatePreparation::Outcome outcome) { TakePrepared(std::move(outcome)); });
    if (!started)
    {
        m_preparation.reset();
        FailCandidate(started.error());
    }
}

void UpdateRun::TakePrepared(UpdatePreparation::Outcome outcome)
{
    if (!outcome)
    {
        // Before the partial files are removed, so that the numbers show the full disk.
        EngineError const told = WithRoom(outcome.error(), *m_target, NeededBytes(m_candidates));
        m_preparation.reset();
        FailCandidate(told);
        return;
    }
    m_preparation.reset();
    m_prepared = *std::move(outcome);
    Take(RunEvent::Prepared);
}

void UpdateRun::FailCandidate(EngineError const& error)
{
    if (BlameOf(error) == Blame::Archive)
    {
        m_parts.DiscardDownload(DownloadOf(Current().item, m_settings));
    }
    Fail(m_candidates.size() < 2 ? RunEvent::LastCandidateFailed : RunEvent::CandidateFailed, error);
}

void UpdateRun::DownloadNext()
{
    EngineError const error = *std::exchange(m_error, std::nullopt);
    LOG(WARNING) << "The delta failed; the whole update is fetched: " << error.sentence.English().toStdString() << " "
                 << error.detail.toStdString();
    m_candidates.erase(m_candidates.begin());
    Download();
}

void UpdateRun::AskToInstall()
{
    m_windows.ShowReadyToInstall(NamedUpdate(), m_origin, Guarded(&UpdateRun::TakeReadyChoice));
}

void UpdateRun::TakeReadyChoice(ReadyChoice choice)
{
    switch (choice)
    {
    case ReadyChoice::Later:
        Cancel();
        return;
    case ReadyChoice::InstallAndRelaunch:
        InstallNow(RelaunchWish::Relaunch);
        return;
    }
}

void UpdateRun::OfferOnQuit()
{
    ItemIndex const place = Current().place;
    auto const installNow = Guarded(&UpdateRun::InstallNow);
    if (NotifyHostOrFinish("updater:willInstallUpdateOnQuit:immediateInstallationInvocation:",
                           [this, place, &installNow] { m_host.TellWillInstallOnQuit(place, installNow); }))
    {
        Take(m_isGivenUp ? RunEvent::Declined : RunEvent::Offered);
    }
}

void UpdateRun::InstallNow(RelaunchWish wish)
{
    if (!TransitionAt(m_phase, RunEvent::InstallNow, m_mode))
    {
        LOG(WARNING) << "The update is already being installed or has ended; the immediate installation is ignored";
        return;
    }
    m_wish = wish;
    Take(RunEvent::InstallNow);
}

void UpdateRun::AskHost()
{
    RelaunchAnswer answer = RelaunchAnswer::Refused;
    if (NotifyHostOrFinish("updaterShouldRelaunchApplication:", [this, &answer] { answer = m_host.ShouldRelaunch(); }))
    {
        bool const isDeclined = answer == RelaunchAnswer::Refused || m_isGivenUp;
        Take(isDeclined                         ? RunEvent::Declined
             : m_wish == RelaunchWish::Relaunch ? RunEvent::RelaunchAllowed
                                                : RunEvent::InstallAllowed);
    }
}

void UpdateRun::AskForPath()
{
    QString path;
    if (NotifyHostOrFinish("pathToRelaunchForUpdater:", [this, &path] { path = m_host.PathToRelaunch(); }))
    {
        m_relaunchPath = path;
        Take(m_isGivenUp ? RunEvent::Declined : RunEvent::PathGiven);
    }
}

void UpdateRun::Drop()
{
    Clear();
    if (NotifyHostOrFinish("updater:didCancelInstallUpdateOnQuit:",
                           [this, place = Current().place] { m_host.TellCancelledInstallOnQuit(place); }))
    {
        Take(RunEvent::Dropped);
    }
}

void UpdateRun::Clear()
{
    m_download.reset();
    m_preparation.reset();
    if (m_handover)
    {
        m_handover->Cancel();
        m_handover.reset();
    }
    if (m_attempt)
    {
        m_parts.DiscardAttempt(std::move(m_attempt));
    }
    DropPrepared();
}

void UpdateRun::DropPrepared()
{
    if (m_prepared)
    {
        m_parts.DiscardUpdate(std::move(m_prepared));
    }
}

bool UpdateRun::HandOver(InstallJob job, InstallWish wish)
{
    if (!m_attempt)
    {
        auto attempt = InstallAttempt::Make(m_settings.stateFolder, m_target->path);
        if (!attempt)
        {
            Fail(RunEvent::HelperFailed, attempt.error());
            return false;
        }
        m_attempt = *std::move(attempt);
    }
    Result<void> started = m_attempt->Begin(job, wish);
    if (started)
    {
        m_handover = std::make_unique<InstallHandover>(m_parts);
        started = m_handover->Start(
            *m_target, *m_prepared, m_attempt->Folder(), std::move(job), [this] { Take(RunEvent::HelperWaits); },
            [this](EngineError const& failure) { Fail(RunEvent::HelperFailed, failure); });
    }
    if (!started)
    {
        Fail(RunEvent::HelperFailed, started.error());
    }
    return started.has_value();
}

void UpdateRun::Arm()
{
    if (m_handover)
    {
        return;
    }
    if (HandOver(InstallationOf(Current(), m_settings.bundle, m_target->name),
                 m_asked == PersonAsked::Yes ? InstallWish::Person : InstallWish::Automatic))
    {
        LOG(INFO) << "Update " << EscapedRemoteText(Current().item.versionString).toStdString()
                  << " is installed when the application ends";
        connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this,
                [this] { Take(RunEvent::ApplicationQuits); });
    }
}

void UpdateRun::Relaunch()
{
    if (m_handover)
    {
        m_handover->Cancel();
    }
    InstallJob job = InstallationOf(Current(), m_settings.bundle, m_target->name);
    job.waitSeconds = RELAUNCH_WAIT_SECONDS;
    job.targetPath = PathBytes(m_target->path);
    job.relaunchPath = m_relaunchPath == m_settings.bundle.path ? std::string() : RelaunchPathOf(m_relaunchPath);
    job.environment = EnvironmentOf(environ);
    job.workingFolder = WorkingFolder();
    job.creationMask = CreationMask();
    // A person who wants the new version to start waits for it.
    (void)HandOver(std::move(job), InstallWish::Person);
}

void UpdateRun::TellRelaunch()
{
    // An exception changes nothing: the helper waits, and gives up after its time limit if the application stays.
    (void)CallDelegate("updaterWillRelaunchApplication:", [this] { m_host.TellWillRelaunch(); });
}

void UpdateRun::GiveUpInstallation()
{
    m_isGivenUp = true;
    Take(RunEvent::SessionEnds);
}

void UpdateRun::Cancel()
{
    Fail(RunEvent::Cancelled, MakeError(ErrorCause::Cancelled));
}

NamedVersion UpdateRun::NamedUpdate() const
{
    return {m_settings.bundle.shownName, ShownVersionOf(Current().item)};
}

bool UpdateRun::NotifyHostOrFinish(char const* what, std::function<void()> const& call)
{
    QPointer<UpdateRun> const self(this);
    Result<void> const called = CallDelegate(what, call);
    if (!self || m_phase == RunPhase::Ended)
    {
        return false;
    }
    if (!called)
    {
        Fail(RunEvent::HostRaised, called.error());
        return false;
    }
    return true;
}

void UpdateRun::Finish()
{
    Clear();
    if (HasWindows())
    {
        m_windows.Close();
    }
    End();
}

void UpdateRun::End()
{
    KeptArguments::OfProcess().Forget();
    auto const ended = std::move(m_ended);
    ended({std::move(m_error), m_asked});
}

} // namespace Pelnar::Engine
