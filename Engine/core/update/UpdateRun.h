// UpdateRun.h: one update, from the offered item to the helper that installs it: ask, download, prepare, ask again,
// hand over. An automatic check in an application that downloads automatically skips the first question.
// Thread: the Qt main thread. Ownership: its maker owns it; host, windows and parts outlive it. Destroying it before
// its end removes the prepared files and notifies nobody. A helper that already has the update continues.
#pragma once

#include "Engine/core/update/IUpdateEnvironment.h"
#include "Engine/core/update/IUpdateHost.h"
#include "Engine/core/update/IUserInterface.h"
#include "Engine/core/update/InstallHandover.h"
#include "Engine/core/update/UpdatePreparation.h"
#include "Engine/core/update/UpdateRules.h"
#include "Engine/core/update/UpdateSettings.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Pelnar::Engine
{

/// How an update ended while the application runs.
struct UpdateEnd
{
    std::optional<EngineError> error; ///< empty if a person postponed the update or the application refused it
    PersonAsked asked = PersonAsked::No;
};

class UpdateRun : public QObject
{
    Q_OBJECT

public:
    /// \a candidates are the archives to try, the best first, all of one version. REQUIRES: there is at least one.
    UpdateRun(CheckKind kind, std::vector<UpdateCandidate> candidates, UpdateSettings const& settings,
              IUpdateHost& host, IUserInterface& windows, IUpdateEnvironment& parts,
              std::function<void(UpdateEnd)> ended);
    ~UpdateRun() override;

    /// Everything happens later, from the event loop. \a ended comes once and last, and may delete this object later
    /// (deleteLater).
    void Start();

    /// The desktop session ends: an update that waits for the application's end is not installed.
    void GiveUpInstallation();

private:
    enum class Phase
    {
        Starting,
        Asking,
        Downloading,
        Preparing,
        Ready,       ///< prepared; a person or the application is being asked
        Deciding,    ///< the application decides about an immediate installation
        Armed,       ///< a helper waits for the application's end, to install without a relaunch
        Relaunching, ///< a helper waits for the application's end, to install and restart it
        Ended,
    };

    void Begin();
    void TakeTarget(OpenedTarget target);
    void Ask();
    void TakeChoice(UpdateChoice choice);
    void Download();
    void Prepare(UniqueFd archive);
    void TakePrepared(UpdatePreparation::Outcome outcome);
    void FailCandidate(EngineError const& error);
    void AskToInstall();
    void OfferOnQuit();
    void InstallNow(RelaunchWish wish);
    void DropDeclinedUpdate();
    void DropAttempt();
    void DropPrepared();
    void Arm();
    void AskAtQuit();
    void Relaunch();
    void TellRelaunch();
    void FailHandover(EngineError const& error);
    void Cancel();
    void Finish(std::optional<EngineError> error);

    UpdateCandidate const& Current() const { return m_candidates.front(); }
    InstallJob InstallationJob() const;
    std::optional<EngineError> HandOver(InstallJob job, InstallWish wish, std::function<void()> waiting);
    NamedVersion NamedUpdate() const;
    bool HasWindows() const { return m_mode == UpdateMode::Windows; }
    /// Wraps \a call for a later time; it is dropped if this object is destroyed by then.
    template <typename... Arguments>
    std::function<void(Arguments...)> Guarded(void (UpdateRun::*call)(Arguments...));
    /// Runs \a call, which asks or notifies the application (\a what in the log). Returns false if the update ended
    /// because the call failed, or if this object was destroyed meanwhile.
    [[nodiscard]] bool NotifyHostOrFinish(char const* what, std::function<void()> const& call);

    UpdateMode m_mode;
    CheckOrigin m_origin;
    std::vector<UpdateCandidate> m_candidates;
    UpdateSettings m_settings;
    IUpdateHost& m_host;
    IUserInterface& m_windows;
    IUpdateEnvironment& m_parts;
    std::function<void(UpdateEnd)> m_ended;
    Phase m_phase = Phase::Starting;
    PersonAsked m_asked;
    bool m_isGivenUp = false;
    std::optional<InstallTarget> m_target;
    std::unique_ptr<IDownload> m_download;
    std::unique_ptr<UpdatePreparation> m_preparation;
    std::unique_ptr<PreparedUpdate> m_prepared;
    std::unique_ptr<InstallAttempt> m_attempt; ///< set at the first handover
    std::unique_ptr<InstallHandover> m_handover;
};

} // namespace Pelnar::Engine
