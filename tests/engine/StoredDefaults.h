// StoredDefaults.h: the user defaults of this process, as they stand on the disk. Plain C++.
// Thread: main.
#pragma once

#include <QByteArray>
#include <QString>

namespace Pelnar::Testing
{

/// Sets a user default to a value of the given kind, on the disk.
void SetTextDefault(char const* key, char const* value);
void SetListDefault(char const* key);
/// Where the user defaults are kept.
QString DefaultsFolder();
/// Where the application's state is kept.
QString StateFolder();
/// Puts \a bytes in the place of the file with the user defaults.
void SpoilDefaults(QByteArray const& bytes);
/// Where versions before this one kept them, in a file named after the program.
QString EarlierDefaultsFolder();
/// Puts \a bytes in the place of that file.
void WriteEarlierDefaults(QByteArray const& bytes);
/// A default that the host itself stored through Foundation, or an empty text.
QString OwnDefault(QString const& key);
void StoreOwnDefault(QString const& key, QString const& value);
/// Empty when there is no such default, or it is no text.
QString TextDefault(char const* key);
/// True when the default is a date between a minute ago and now.
[[nodiscard]] bool IsRecentDateDefault(char const* key);

} // namespace Pelnar::Testing
