// StoredDefaults.h: the user defaults of this process as stored on the disk. Plain C++. Thread: main.
#pragma once

#include <QByteArray>
#include <QString>

namespace Pelnar::Testing
{

/// Sets a user default to a value of the given kind, on the disk.
void SetTextDefault(char const* key, char const* value);
void SetListDefault(char const* key);
/// The place of the user defaults.
QString DefaultsFolder();
/// The place of the application's state.
QString StateFolder();
/// Replaces the file of the user defaults by \a bytes.
void SpoilDefaults(QByteArray const& bytes);
/// The file of earlier versions, which is named after the program.
QString EarlierDefaultsFolder();
/// Puts \a bytes in the place of that file.
void WriteEarlierDefaults(QByteArray const& bytes);
/// A default that the host itself stored through Foundation, or an empty text.
QString OwnDefault(QString const& key);
void StoreOwnDefault(QString const& key, QString const& value);
/// Empty if there is no such default, or if it is not text.
QString TextDefault(char const* key);
/// True when the default is a date between a minute ago and now.
[[nodiscard]] bool IsRecentDateDefault(char const* key);

} // namespace Pelnar::Testing
