#include "Foundation/FoundationText.h"
#include "Settings/UpdateDefaults.h"

#include <QDateTime>

namespace Pelnar::Settings
{
namespace
{

NSString* NameOf(Core::Setting setting)
{
    std::string_view const name = Core::KeyOf(setting).name;
    return Foundation::ToNSString(QString::fromLatin1(name.data(), static_cast<int>(name.size())));
}

QVariant MeaningOf(id object, Core::SettingType type)
{
    if ([object isKindOfClass:[NSString class]])
    {
        return Foundation::ToQString(object);
    }
    if ([object isKindOfClass:[NSNumber class]])
    {
        return type == Core::SettingType::Boolean ? QVariant(bool([object boolValue]))
                                                  : QVariant(qlonglong([object longLongValue]));
    }
    if ([object isKindOfClass:[NSDate class]])
    {
        return QDateTime::fromSecsSinceEpoch(static_cast<qint64>([object timeIntervalSince1970]), Qt::UTC);
    }
    return object ? QVariant(QVariant::List) : QVariant();
}

id ObjectFor(QVariant const& value)
{
    if (value.type() == QVariant::Bool)
    {
        return [NSNumber numberWithBool:value.toBool()];
    }
    if (value.type() == QVariant::DateTime)
    {
        return
            [NSDate dateWithTimeIntervalSince1970:static_cast<NSTimeInterval>(value.toDateTime().toSecsSinceEpoch())];
    }
    if (value.type() == QVariant::Int || value.type() == QVariant::LongLong)
    {
        return [NSNumber numberWithLongLong:value.toLongLong()];
    }
    return Foundation::ToNSString(value.toString());
}

} // namespace

/// The system names the user defaults after the bundle, and no values are elsewhere.
UpdateDefaults::UpdateDefaults(QString const&, QStringList) {}

QVariant UpdateDefaults::Value(Core::Setting setting) const
{
    @autoreleasepool
    {
        id const object = [[NSUserDefaults standardUserDefaults] objectForKey:NameOf(setting)];
        return MeaningOf(object, Core::KeyOf(setting).type);
    }
}

void UpdateDefaults::Remember(Changes const& changes)
{
    @autoreleasepool
    {
        NSUserDefaults* const defaults = [NSUserDefaults standardUserDefaults];
        for (auto const& [setting, value] : changes)
        {
            [defaults setObject:value.isValid() ? ObjectFor(value) : nil forKey:NameOf(setting)];
        }
    }
}

bool UpdateDefaults::Save()
{
    @autoreleasepool
    {
        return [[NSUserDefaults standardUserDefaults] synchronize];
    }
}

} // namespace Pelnar::Settings
