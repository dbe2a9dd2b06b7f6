#include "HostFramework/Reference/SettingsFile_p.h"

#include <QFileInfo>
#include <QStringList>

#include <stdexcept>

namespace Pelnar::App
{

SettingsFile::SettingsFile(QString const& iniPath) : m_path(iniPath), m_settings(iniPath, QSettings::IniFormat)
{
    m_settings.setIniCodec("UTF-8");
    QFileInfo const file(iniPath);
    if (!file.isFile() || !file.isReadable() || m_settings.status() == QSettings::AccessError)
    {
        throw std::runtime_error("cannot read the settings file " + iniPath.toStdString());
    }
    if (m_settings.status() == QSettings::FormatError)
    {
        throw std::runtime_error("the settings file " + iniPath.toStdString() + " is malformed");
    }
}

QString SettingsFile::Text(QString const& section, QString const& key) const
{
    // An unquoted comma turns the value into a list; a list of one element is the usual case.
    QStringList const parts = m_settings.value(section + QLatin1Char('/') + key).toStringList();
    return parts.join(QLatin1Char(',')).trimmed();
}

QString SettingsFile::RequiredText(QString const& section, QString const& key) const
{
    QString const text = Text(section, key);
    if (text.isEmpty())
    {
        throw std::runtime_error(Describe(section, key) + " is missing");
    }
    return text;
}

std::string SettingsFile::Describe(QString const& section, QString const& key) const
{
    return m_path.toStdString() + ": [" + section.toStdString() + "] " + key.toStdString();
}

} // namespace Pelnar::App
