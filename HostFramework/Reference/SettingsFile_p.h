// SettingsFile_p.h: reads text from an ini file and reports what is wrong with it. Private to the reference framework.
// Thread: one at a time. Ownership: a scope object; it reads the file when it is created.
#pragma once

#include <QSettings>
#include <QString>

#include <string>

namespace Pelnar::App
{

class SettingsFile
{
public:
    /// Throws std::runtime_error if \a iniPath cannot be read or is not an ini file.
    explicit SettingsFile(QString const& iniPath);

    /// The value without surrounding blanks; empty if the key is missing.
    QString Text(QString const& section, QString const& key) const;
    /// The same, but throws std::runtime_error if the key is missing.
    QString RequiredText(QString const& section, QString const& key) const;
    /// The name of a key in messages: the file, the section and the key.
    std::string Describe(QString const& section, QString const& key) const;

private:
    QString m_path;
    QSettings m_settings;
};

} // namespace Pelnar::App
