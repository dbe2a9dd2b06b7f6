// SettingValues_p.h: the values of the settings, from the bundle's information dictionary and from the user defaults; a
// value of the wrong type counts as absent, with a warning. Objective-C++.
// Thread: main. Ownership: what is returned to Foundation is autoreleased, so the caller needs a pool.
#pragma once

#include "Engine/core/update/DiskChores.h"
#include "Settings/UpdateDefaults.h"
#include "common/SettingKeys.h"

#import <Foundation/Foundation.h>

#include <QDateTime>
#include <QString>

namespace Pelnar::Engine
{

NSString* NameOfSetting(Core::Setting setting);
void WarnOfType(Core::Setting setting, char const* wanted);

/// The value from where the table says that it may stand; nil without one.
id SettingObject(Core::Setting setting);
QString SettingText(Core::Setting setting);
bool IsSettingTrue(Core::Setting setting);

/// The same from \a place alone.
QString SettingTextIn(Core::SettingPlace place, Core::Setting setting);
bool IsSettingTrueIn(Core::SettingPlace place, Core::Setting setting);

QDateTime TimeOf(NSDate* date);

/// Puts \a changes into the user defaults, on the disk when it answers. A failure is in the log; a check does not
/// depend on it.
void SaveSettings(Settings::UpdateDefaults::Changes const& changes);
/// Has \a chores do so; the values count at once.
void SaveSettingsLater(Settings::UpdateDefaults::Changes const& changes, DiskChores& chores);

} // namespace Pelnar::Engine
