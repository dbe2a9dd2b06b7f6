#include "Engine/core/update/PackageOwner.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

namespace Pelnar::Engine
{
namespace
{

/// True for a name that needs no quotes in a command.
bool IsPlainName(QString const& name)
{
    static QRegularExpression const PLAIN(QStringLiteral("^[A-Za-z0-9][A-Za-z0-9+._-]*$"));
    return PLAIN.match(name).hasMatch();
}

bool IsBelow(QString const& path, QString const& folder)
{
    return folder.startsWith(QLatin1Char('/')) &&
           path.startsWith(folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/'));
}

/// The names under which a package may list the path: a folder of the root may be the same as its namesake in /usr.
QStringList NamesOf(QString const& path)
{
    QStringList names{path};
    for (QString const& folder : {QStringLiteral("/bin/"), QStringLiteral("/sbin/"), QStringLiteral("/lib/"),
                                  QStringLiteral("/lib32/"), QStringLiteral("/lib64/"), QStringLiteral("/libx32/")})
    {
        if (path.startsWith(folder))
        {
            names += QStringLiteral("/usr") + path;
        }
        else if (path.startsWith(QStringLiteral("/usr") + folder))
        {
            names += path.mid(4);
        }
    }
    return names;
}

bool ListsAnyOf(QByteArray const& list, QStringList const& paths)
{
    for (QString const& path : paths)
    {
        QByteArray const line = path.toUtf8() + '\n';
        if (list.startsWith(line) || list.contains('\n' + line))
        {
            return true;
        }
    }
    return false;
}

std::optional<PackageOwner> OwnerByDpkg(QString const& bundlePath, PackageSources const& sources)
{
    QStringList const paths = NamesOf(bundlePath);
    QDir const folder(sources.dpkgInfoFolder);
    for (QString const& fileName : folder.entryList({QStringLiteral("*.list")}, QDir::Files, QDir::Unsorted))
    {
        QFile file(folder.filePath(fileName));
        if (!file.open(QIODevice::ReadOnly) || !ListsAnyOf(file.readAll(), paths))
        {
            continue;
        }
        QString const package = fileName.section(QLatin1Char('.'), 0, -2).section(QLatin1Char(':'), 0, 0);
        if (IsPlainName(package))
        {
            return PackageOwner{PackageManager::Dpkg, package,
                                QStringLiteral("sudo apt install --only-upgrade ") + package};
        }
    }
    return std::nullopt;
}

/// The value of "name" in the group "Application" of the file with which a sandbox describes itself.
QString NameInFlatpak(QString const& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
    {
        return {};
    }
    bool isInGroup = false;
    while (!file.atEnd())
    {
        QByteArray const line = file.readLine().trimmed();
        if (line.startsWith('['))
        {
            isInGroup = line == "[Application]";
        }
        else if (isInGroup && line.startsWith("name="))
        {
            return QString::fromUtf8(line.mid(5));
        }
    }
    return {};
}

std::optional<PackageOwner> OwnerByFlatpak(QString const& bundlePath, PackageSources const& sources)
{
    // An application in a sandbox may keep files elsewhere, such as in the person's own folder. Those do not belong to
    // the package.
    if (!IsBelow(bundlePath, QStringLiteral("/app")) && !IsBelow(bundlePath, QStringLiteral("/usr")))
    {
        return std::nullopt;
    }
    QString const name = NameInFlatpak(sources.flatpakInfoFile);
    return IsPlainName(name)
               ? std::optional(PackageOwner{PackageManager::Flatpak, name, QStringLiteral("flatpak update ") + name})
               : std::nullopt;
}

/// A snap is in FOLDER/NAME/REVISION.
std::optional<PackageOwner> OwnerBySnap(QString const& bundlePath, PackageSources const& sources)
{
    QString name;
    if (IsBelow(bundlePath + QLatin1Char('/'), sources.snapVariable))
    {
        name = QFileInfo(QFileInfo(QDir::cleanPath(sources.snapVariable)).path()).fileName();
    }
    else if (IsBelow(bundlePath, sources.snapFolder))
    {
        name = bundlePath.mid(QDir::cleanPath(sources.snapFolder).size() + 1).section(QLatin1Char('/'), 0, 0);
    }
    return IsPlainName(name)
               ? std::optional(PackageOwner{PackageManager::Snap, name, QStringLiteral("snap refresh ") + name})
               : std::nullopt;
}

std::optional<PackageOwner> OwnerByAppImage(QString const& bundlePath, PackageSources const& sources)
{
    // Every program that is started from the image inherits the variables, so the bundle must be inside the image.
    bool const isInImage = sources.appImageVariable.startsWith(QLatin1Char('/')) &&
                           IsBelow(bundlePath + QLatin1Char('/'), sources.appFolderVariable);
    return isInImage ? std::optional(PackageOwner{PackageManager::AppImage, sources.appImageVariable, {}})
                     : std::nullopt;
}

} // namespace

PackageSources PackageSources::OfThisProcess()
{
    PackageSources sources;
    sources.snapVariable = QString::fromUtf8(qgetenv("SNAP"));
    sources.appImageVariable = QString::fromUtf8(qgetenv("APPIMAGE"));
    sources.appFolderVariable = QString::fromUtf8(qgetenv("APPDIR"));
    return sources;
}

std::optional<PackageOwner> FindPackageOwner(QString const& bundlePath, PackageSources const& sources)
{
    for (auto const find : {&OwnerByFlatpak, &OwnerBySnap, &OwnerByAppImage, &OwnerByDpkg})
    {
        if (auto owner = find(bundlePath, sources))
        {
            return owner;
        }
    }
    return std::nullopt;
}

} // namespace Pelnar::Engine
