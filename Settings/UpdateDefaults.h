// UpdateDefaults.h: the user defaults of the update checker: on Linux a file in the person's XDG folders, on macOS the
// user defaults of the application. Plain C++.
// Thread: any; several processes of one application may save at the same time. Ownership: the process owns remembered
// values. On Linux the engine's library holds them, for the session too.
#pragma once

#include "common/Export.h"
#include "common/SettingKeys.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <map>
#include <string>

namespace Pelnar::Settings
{

class PELNAR_EXPORT UpdateDefaults
{
public:
    /// An empty value removes the key.
    using Changes = std::map<Core::Setting, QVariant>;

    /// The defaults of the application \a bundleIdentifier. \a earlierFiles are property lists of earlier versions.
    /// Their values are copied once, earlier files first, and only for keys without a value. The files are never
    /// changed.
    explicit UpdateDefaults(QString const& bundleIdentifier, QStringList earlierFiles = {});

    /// Empty without the key; a value of the wrong type is a text or a list.
    QVariant Value(Core::Setting setting) const;

    /// Makes Value() return \a changes from now on, in the whole process. Nothing is on the disk yet.
    void Remember(Changes const& changes);
    /// Writes the remembered values to the disk, and keeps what other processes have saved meanwhile. If this fails,
    /// the log says so and the values stay remembered.
    [[nodiscard]] bool Save();

private:
    std::string m_base; // of the folder, and its name; Linux
    std::string m_name;
    QStringList m_earlierFiles;
};

} // namespace Pelnar::Settings
