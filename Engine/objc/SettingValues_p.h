// SettingValues_p.h: the values of the settings, from the bundle's information dictionary and from the user defaults. A
// value of the wrong type counts as absent, with a warning. Objective-C++.
// Thread: main. Ownership: returned Foundation objects are autoreleased, so the caller needs a pool.
#pragma once

#include "Engine/core/base/DiskChores.h"
#include "Settings/UpdateDefaults.h"
#include "common/SettingKeys.h"

#import <Foundation/Foundation.h>

#include <QDateTime>
#include <QString>

namespace Pelnar::Engine
{

NSString* NameOfSetting(Core::Setting setting);
void WarnOfType(Core::Setting setting, char const* wanted);

/// The value from the places that the table allows; nil without one.
id SettingObject(Core::Setting setting);
QString SettingText(Core::Setting setting);
bool IsSettingTrue(Core::Setting setting);

/// The same, from \a place alone.
QString SettingTextIn(Core::SettingPlace place, Core::Setting setting);
bool IsSettingTrueIn(Core::SettingPlace place, Core::Setting setting);

QDateTime TimeOf(NSDate* date);

/// Writes \a changes to the user defaults; they are on the disk on return. A failure is logged; a check does not depend
/// on it.
void SaveSettings(Settings::UpdateDefaults::Changes const& changes);
/// The same through \a chores; the values count immediately.
void SaveSettingsLater(Settings::UpdateDefaults::Changes const& changes, DiskChores& chores);

} // namespace Pelnar::Engine
