#include "tests/engine/StoredDefaults.h"

#import <Foundation/Foundation.h>

#include "Foundation/FoundationText.h"
#include "Settings/DefaultsFile.h"
#include "Settings/UpdateDefaults.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <gtest/gtest.h>

using namespace Pelnar::Foundation;

namespace Pelnar::Testing
{
namespace
{

QString Identifier()
{
    @autoreleasepool
    {
        return ToQString([[NSBundle mainBundle] bundleIdentifier]);
    }
}

Settings::ApplicationFolder OwnDefaults() { return Settings::FolderOf(Settings::BaseFolder::Config, Identifier()); }

void SetDefault(char const* key, Engine::PropertyListValue const& value)
{
    EXPECT_TRUE(Settings::ChangeDefaults(OwnDefaults(), {},
                                         [key, &value](Settings::DefaultsEntries& entries) { entries[key] = value; }));
}

QVariant DefaultNamed(char const* key)
{
    for (Core::SettingKey const& known : Core::SETTING_KEYS)
    {
        if (known.name == key)
        {
            return Settings::UpdateDefaults(Identifier()).Value(known.setting);
        }
    }
    return {};
}

void WriteWhole(QString const& path, QByteArray const& bytes)
{
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QSaveFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    EXPECT_TRUE(file.commit());
}

} // namespace

void SetTextDefault(char const* key, char const* value)
{
    SetDefault(key, Settings::EntryFor(QString::fromUtf8(value)));
}

void SetListDefault(char const* key)
{
    Engine::PropertyListValue list;
    list.kind = Engine::PropertyListValue::Kind::List;
    SetDefault(key, list);
}

QString DefaultsFolder() { return QFile::decodeName(OwnDefaults().Path().c_str()); }

QString StateFolder()
{
    return QFile::decodeName(Settings::FolderOf(Settings::BaseFolder::State, Identifier()).Path().c_str());
}

void SpoilDefaults(QByteArray const& bytes)
{
    WriteWhole(DefaultsFolder() + QLatin1Char('/') + QLatin1String(Settings::DEFAULTS_FILE), bytes);
}

QString EarlierDefaultsFolder()
{
    @autoreleasepool
    {
        return ToQString(GSDefaultsRootForUser(NSUserName()));
    }
}

void WriteEarlierDefaults(QByteArray const& bytes)
{
    @autoreleasepool
    {
        [[NSUserDefaults standardUserDefaults] synchronize];
        WriteWhole(EarlierDefaultsFolder() + QLatin1Char('/') + ToQString([[NSProcessInfo processInfo] processName]) +
                       QStringLiteral(".plist"),
                   bytes);
        [NSUserDefaults resetStandardUserDefaults];
    }
}

QString OwnDefault(QString const& key)
{
    @autoreleasepool
    {
        NSString* const value = [[NSUserDefaults standardUserDefaults] stringForKey:ToNSString(key)];
        return value ? ToQString(value) : QString();
    }
}

void StoreOwnDefault(QString const& key, QString const& value)
{
    @autoreleasepool
    {
        [[NSUserDefaults standardUserDefaults] setObject:ToNSString(value) forKey:ToNSString(key)];
        [[NSUserDefaults standardUserDefaults] synchronize];
    }
}

QString TextDefault(char const* key)
{
    QVariant const value = DefaultNamed(key);
    return value.type() == QVariant::String ? value.toString() : QString();
}

bool IsRecentDateDefault(char const* key)
{
    QDateTime const time = DefaultNamed(key).toDateTime();
    qint64 const age = time.isValid() ? time.secsTo(QDateTime::currentDateTimeUtc()) : -1;
    return age >= 0 && age < 60;
}

} // namespace Pelnar::Testing
