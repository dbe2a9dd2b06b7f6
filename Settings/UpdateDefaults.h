// UpdateDefaults.h: the user defaults of the update checker: on Linux a file in the person's XDG folders, on macOS the
// user defaults of the application. Plain C++.
// Thread: any; several processes of one application may save at once. Ownership: values; what is remembered belongs to
// the process.
#pragma once

#include "common/SettingKeys.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <map>
#include <string>

namespace Pelnar::Settings
{

class UpdateDefaults
{
public:
    /// A value of no type takes the key away.
    using Changes = std::map<Core::Setting, QVariant>;

    /// The defaults of the application \a bundleIdentifier. \a earlierFiles are property lists of earlier versions:
    /// what they know of the keys is taken over once, the first ones first, and only where there is no value yet. They
    /// are never changed.
    explicit UpdateDefaults(QString const& bundleIdentifier, QStringList earlierFiles = {});

    /// Nothing without the key; a value of the wrong type is a text or a list.
    QVariant Value(Core::Setting setting) const;

    /// Has Value() answer \a changes from now on, in the whole process. Nothing is on the disk yet.
    void Remember(Changes const& changes);
    /// Puts what is remembered on the disk, beside what other processes have saved meanwhile. When that fails, which
    /// the log says, it stays remembered.
    [[nodiscard]] bool Save();

private:
    std::string m_base; // of the folder, and its name; Linux
    std::string m_name;
    QStringList m_earlierFiles;
};

} // namespace Pelnar::Settings
