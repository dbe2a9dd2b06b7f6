// UpdateSettings.h: what a check and the update that it leads to must know of the running application.
// Thread: plain values. Ownership: their own data.
#pragma once

#include "Engine/core/check/BackOff.h"
#include "Engine/core/check/CheckRun.h"

#include <QString>

namespace Pelnar::Engine
{

enum class AutomaticDownload
{
    Off,
    On,
};

/// The one switch that keeps the engine from sending anything.
enum class UpdateSwitch
{
    On,
    Off,
};

/// The bundle that runs, and that an update is to replace.
struct RunningBundle
{
    QString path; ///< absolute
    QString identifier;
    QString version;
    QString shownName;      ///< for a person
    QString shownVersion;   ///< for a person
    TrustedKeys publicKeys; ///< its own, and once a check has found something those by which that was judged
};

struct UpdateSettings
{
    CheckSettings check;
    RunningBundle bundle;
    AutomaticDownload automaticDownload = AutomaticDownload::Off;
    UpdateSwitch updates = UpdateSwitch::On;
    BackOffState backOff;
    AddressReach feedReach = AddressReach::Network; ///< of the place where the feed came from
    QString downloadFolder;                         ///< absolute; this user's alone
    QString stateFolder;                            ///< the same, for what must outlive a cleared cache
};

} // namespace Pelnar::Engine
