// UpdateRun.h: one update, from the offered item to the helper that installs it: ask, download, prepare, ask again,
// hand over. PhaseRules.h names the step for each event; this class carries the steps out.
// Thread: the Qt main thread. Ownership: its maker owns it; host, windows and parts outlive it. Destroying it before
// its end removes the prepared files and notifies nobody. A helper that already has the update continues.
#pragma once

#include "Engine/core/update/IUpdateEnvironment.h"
#include "Engine/core/update/IUpdateHost.h"
#include "Engine/core/update/IUserInterface.h"
#include "Engine/core/update/InstallHandover.h"
#include "Engine/core/update/PhaseRules.h"
#include "Engine/core/update/UpdatePreparation.h"
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

class UpdateRun : public QObject, private IUpdateSteps
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
    /// Goes to the next phase and does its step, which may destroy this object.
    void Take(RunEvent event);
    /// The same; \a error is reported if the update ends.
    void Fail(RunEvent event, EngineError error);
    void FailCandidate(EngineError const& error);
    void TakeTarget(OpenedTarget target);
    void TakeChoice(UpdateChoice choice);
    void TakePrepared(UpdatePreparation::Outcome outcome);
    void TakeReadyChoice(ReadyChoice choice);
    void InstallNow(RelaunchWish wish);
    void Cancel();
    /// Ends what the update has begun and removes what it has prepared.
    void Clear();
    void DropPrepared();

    UpdateCandidate const& Current() const { return m_candidates.front(); }
    /// False if the update ended because no helper could take it.
    [[nodiscard]] bool HandOver(InstallJob job, InstallWish wish);
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
    RunPhase m_phase = RunPhase::Starting;
    PersonAsked m_asked;
    bool m_isGivenUp = false;
    std::optional<EngineError> m_error; ///< of the update's end
    std::optional<InstallTarget> m_target;
    std::unique_ptr<IDownload> m_download;
    UniqueFd m_archive; ///< downloaded, not yet prepared
    std::unique_ptr<UpdatePreparation> m_preparation;
    std::unique_ptr<PreparedUpdate> m_prepared;
    std::unique_ptr<InstallAttempt> m_attempt; ///< set at the first handover
    std::unique_ptr<InstallHandover> m_handover;
    RelaunchWish m_wish = RelaunchWish::StayClosed;
    QString m_relaunchPath; ///< the application's answer

#define PELNAR_STEP(name) void name() override;
#include "Engine/core/update/PhaseRules.def"
};

} // namespace Pelnar::Engine
