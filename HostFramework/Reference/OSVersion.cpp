#include "HostFramework/OSVersion.h"

#include "HostFramework/Reference/ReferenceOSVersion.h"

#include <QFile>
#include <QOperatingSystemVersion>

#include <algorithm>

namespace Pelnar::Util
{
namespace
{

QString& Override()
{
    static QString version;
    return version;
}

bool MayBeEscaped(char character)
{
    return character == '"' || character == '\\' || character == '$' || character == '`';
}

/// The value as a shell reads it: quoted as a whole or not at all.
QByteArray Unquote(QByteArray const& value)
{
    char const quote = value.size() >= 2 ? value.front() : '\0';
    if ((quote != '"' && quote != '\'') || value.back() != quote)
    {
        return value;
    }
    QByteArray const inner = value.mid(1, value.size() - 2);
    if (quote == '\'')
    {
        return inner;
    }
    QByteArray result;
    for (int i = 0; i < inner.size(); ++i)
    {
        if (inner[i] == '\\' && i + 1 < inner.size() && MayBeEscaped(inner[i + 1]))
        {
            ++i;
        }
        result += inner[i];
    }
    return result;
}

} // namespace

QString OSVersion()
{
    if (!Override().isNull())
    {
        return Override();
    }
#if defined(Q_OS_MACOS)
    return AllComponentsOf(QOperatingSystemVersion::current());
#else
    return VersionIdFromFiles({QStringLiteral("/etc/os-release"), QStringLiteral("/usr/lib/os-release")});
#endif
}

void SetOSVersion(QString const& version)
{
    Override() = version;
}

QString AllComponentsOf(QOperatingSystemVersion const& version)
{
    // A number that the system omits is negative here.
    return QStringLiteral("%1.%2.%3")
        .arg(version.majorVersion())
        .arg(std::max(0, version.minorVersion()))
        .arg(std::max(0, version.microVersion()));
}

QString VersionIdOf(QByteArray const& osRelease)
{
    QByteArray const key("VERSION_ID=");
    QString version;
    for (QByteArray const& rawLine : osRelease.split('\n'))
    {
        QByteArray const line = rawLine.trimmed();
        if (line.startsWith(key))
        {
            version = QString::fromUtf8(Unquote(line.mid(key.size())));
        }
    }
    return version;
}

QString VersionIdFromFiles(QStringList const& paths)
{
    for (QString const& path : paths)
    {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
        {
            return VersionIdOf(file.readAll());
        }
    }
    return QString();
}

} // namespace Pelnar::Util
