#include "Engine/objc/SettingValues_p.h"

#include "Engine/core/base/LatestWriter.h"
#include "Foundation/FoundationText.h"
#include "Settings/ApplicationFolder.h"

#include <glog/logging.h>

#include <utility>

using namespace Pelnar::Foundation;
using Pelnar::Core::KeyOf;
using Pelnar::Core::Setting;
using Pelnar::Core::SettingPlace;
using Pelnar::Core::SettingType;

namespace Pelnar::Engine
{
namespace
{

/// The files of earlier versions: named after the program, or after the name by which it was started.
QStringList EarlierDefaultsFiles()
{
    QString const folder = ToQString(GSDefaultsRootForUser(NSUserName())) + QLatin1Char('/');
    QStringList names{QString::fromStdString(Settings::RunningProgramName()),
                      ToQString([[NSProcessInfo processInfo] processName])};
    names.removeDuplicates();
    QStringList files;
    for (QString const& name : std::as_const(names))
    {
        files.append(folder + name + QStringLiteral(".plist"));
    }
    return files;
}

Settings::UpdateDefaults Defaults()
{
    return Settings::UpdateDefaults(SettingText(Setting::BundleIdentifier), EarlierDefaultsFiles());
}

/// Nil for no value. If the value has another type than the setting, an object of a class that no setting has.
id ObjectOf(QVariant const& value, SettingType type)
{
    if (!value.isValid())
    {
        return nil;
    }
    QVariant::Type const given = value.type();
    if (type == SettingType::Text && given == QVariant::String)
    {
        return ToNSString(value.toString());
    }
    if (type == SettingType::Boolean && given == QVariant::Bool)
    {
        return [NSNumber numberWithBool:value.toBool()];
    }
    if (type == SettingType::Number && (given == QVariant::LongLong || given == QVariant::Int))
    {
        return [NSNumber numberWithLongLong:value.toLongLong()];
    }
    if (type == SettingType::Date && given == QVariant::DateTime)
    {
        qint64 const seconds = value.toDateTime().toSecsSinceEpoch();
        return [NSDate dateWithTimeIntervalSince1970:static_cast<NSTimeInterval>(seconds)];
    }
    return [NSNull null];
}

/// Foundation's order of lookup with the application's own values in the middle: first the command line, then the
/// application, then values for all applications of the person and values that the host registered.
id DefaultObject(Setting setting)
{
    NSUserDefaults* const shared = [NSUserDefaults standardUserDefaults];
    NSString* const name = NameOfSetting(setting);
    id object = [[shared volatileDomainForName:NSArgumentDomain] objectForKey:name];
    if (!object)
    {
        object = ObjectOf(Defaults().Value(setting), KeyOf(setting).type);
    }
    if (!object)
    {
        object = [[shared persistentDomainForName:NSGlobalDomain] objectForKey:name];
    }
    return object ? object : [[shared volatileDomainForName:NSRegistrationDomain] objectForKey:name];
}

id ObjectIn(SettingPlace place, Setting setting)
{
    id const object = place == SettingPlace::Information ? nil : DefaultObject(setting);
    return object || place == SettingPlace::Defaults
               ? object
               : [[[NSBundle mainBundle] infoDictionary] objectForKey:NameOfSetting(setting)];
}

} // namespace

NSString* NameOfSetting(Setting setting)
{
    std::string_view const name = KeyOf(setting).name;
    return ToNSString(QString::fromLatin1(name.data(), static_cast<int>(name.size())));
}

void WarnOfType(Setting setting, char const* wanted)
{
    LOG(WARNING) << "The setting " << KeyOf(setting).name << " is not " << wanted << " and is ignored";
}

id SettingObject(Setting setting) { return ObjectIn(KeyOf(setting).place, setting); }

QString SettingText(Setting setting) { return SettingTextIn(KeyOf(setting).place, setting); }

bool IsSettingTrue(Setting setting) { return IsSettingTrueIn(KeyOf(setting).place, setting); }

QString SettingTextIn(SettingPlace place, Setting setting)
{
    id const object = ObjectIn(place, setting);
    if (!object)
    {
        return {};
    }
    if (![object isKindOfClass:[NSString class]])
    {
        WarnOfType(setting, "text");
        return {};
    }
    return ToQString(object);
}

bool IsSettingTrueIn(SettingPlace place, Setting setting)
{
    // A property list in the old style has no booleans, only text.
    id const object = ObjectIn(place, setting);
    if (!object)
    {
        return false;
    }
    if (![object isKindOfClass:[NSNumber class]] && ![object isKindOfClass:[NSString class]])
    {
        WarnOfType(setting, "a boolean");
        return false;
    }
    return [object boolValue];
}

QDateTime TimeOf(NSDate* date)
{
    return QDateTime::fromSecsSinceEpoch(static_cast<qint64>([date timeIntervalSince1970]), Qt::UTC);
}

void SaveSettings(Settings::UpdateDefaults::Changes const& changes)
{
    Settings::UpdateDefaults defaults = Defaults();
    defaults.Remember(changes);
    (void)defaults.Save(); // the log has the failure
}

void SaveSettingsLater(Settings::UpdateDefaults::Changes const& changes, DiskChores& chores)
{
    static LatestWriter<Settings::UpdateDefaults> writer;
    Settings::UpdateDefaults defaults = Defaults();
    defaults.Remember(changes);
    // Each save writes all remembered values.
    writer.Put(defaults, chores, [](Settings::UpdateDefaults latest) { return latest.Save(); });
}

} // namespace Pelnar::Engine
