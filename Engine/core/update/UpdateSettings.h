// UpdateSettings.h: what a check and its update must know about the running application.
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

/// The switch that stops the engine from sending anything.
enum class UpdateSwitch
{
    On,
    Off,
};

/// The running bundle, which an update will replace.
struct RunningBundle
{
    QString path; ///< absolute
    QString identifier;
    QString version;
    QString shownName;      ///< for a person
    QString shownVersion;   ///< for a person
    TrustedKeys publicKeys; ///< its own; after a check has found an update, the keys that verified the feed
};

struct UpdateSettings
{
    CheckSettings check;
    RunningBundle bundle;
    AutomaticDownload automaticDownload = AutomaticDownload::Off;
    UpdateSwitch updates = UpdateSwitch::On;
    BackOffState backOff;
    AddressReach feedReach = AddressReach::Network; ///< of the place that the feed came from
    QString downloadFolder;                         ///< absolute; only for this user
    QString stateFolder;                            ///< the same, for files that must outlive a cleared cache
};

} // namespace Pelnar::Engine
