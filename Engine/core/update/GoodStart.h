// GoodStart.h: what the engine does for the bundle that has just been started: finish or undo an update that was
// interrupted, and note whether a new version starts well.
// A new version whose information file says PelnarConfirmsGoodStart = YES is kept only if it calls ConfirmGoodStart:
// every start without that call is counted, and the third one puts the previous version back. Any other new version is
// kept once it has started.
// Thread: the Qt main thread. Ownership: what runs belongs to \a owner; when that goes, nothing is called any more, but
// the work is done.
#pragma once

#include "Engine/core/payload/HelperReport.h"

#include <QObject>
#include <QString>

#include <functional>

namespace Pelnar::Engine
{

struct StartedApplication
{
    QString helperProgram;       ///< absolute
    QString bundlePath;          ///< absolute
    QString version;             ///< the running one
    QString downloadFolder = {}; ///< absolute
    QString stateFolder = {};    ///< absolute
};

struct StartOutcome
{
    /// RolledBack: the previous version stands in the bundle's place from now on, while the asking one still runs.
    RecoveryAction action = RecoveryAction::Nothing;
    QString failedVersion; ///< the version that was taken back for this one, told at every start; mostly empty
};

/// Whether an update has left something beside the bundle, so that RecoverAtStart has work. A look into its folder.
[[nodiscard]] bool HasUnfinishedUpdate(QString const& bundlePath);

/// To be called once, early, at every start. \a done comes later, from the event loop, once. A failure is logged and
/// answered as Nothing: the next start tries again.
void RecoverAtStart(StartedApplication const& application, QObject& owner,
                    std::function<void(StartOutcome const&)> done);

/// The application has started well: the previous version is not needed any more. \a done as for RecoverAtStart, with
/// ConfirmedNew when this was the word that was waited for.
void ConfirmGoodStart(StartedApplication const& application, QObject& owner,
                      std::function<void(StartOutcome const&)> done);

} // namespace Pelnar::Engine
