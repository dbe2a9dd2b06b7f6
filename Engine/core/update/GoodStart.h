// GoodStart.h: what the engine does for a bundle that has just started. It finishes or undoes an interrupted update,
// and records whether a new version starts well. A new version whose information file says PelnarConfirmsGoodStart =
// YES is kept only if it calls ConfirmGoodStart: every start without that call is counted, and the third one restores
// the previous version. Any other new version is kept once it has started.
// Thread: the Qt main thread. Ownership: \a owner owns the running work. If it is destroyed, no callback follows, but
// the work is completed.
#pragma once

#include "Engine/core/helper/HelperReport.h"

#include <QObject>
#include <QString>

#include <functional>

namespace Pelnar::Engine
{

struct StartedApplication
{
    QString helperProgram;       ///< absolute
    QString bundlePath;          ///< absolute
    QString version;             ///< the running version
    QString downloadFolder = {}; ///< absolute
    QString stateFolder = {};    ///< absolute
};

struct StartOutcome
{
    /// RolledBack: the bundle is the previous version from now on, while the asking version still runs.
    RecoveryAction action = RecoveryAction::Nothing;
    QString failedVersion; ///< the version that was rolled back to this one, reported at every start; usually empty
};

/// True if an update has left a file next to the bundle, so that RecoverAtStart has work. Reads the bundle's folder.
[[nodiscard]] bool HasUnfinishedUpdate(QString const& bundlePath);

/// To be called once, early, at every start. \a done comes later, from the event loop, once. A failure is logged and
/// reported as Nothing: the next start tries again.
void RecoverAtStart(StartedApplication const& application, QObject& owner,
                    std::function<void(StartOutcome const&)> done);

/// The application has started well: the previous version is no longer needed. \a done as for RecoverAtStart, with
/// ConfirmedNew if a confirmation was expected.
void ConfirmGoodStart(StartedApplication const& application, QObject& owner,
                      std::function<void(StartOutcome const&)> done);

} // namespace Pelnar::Engine
