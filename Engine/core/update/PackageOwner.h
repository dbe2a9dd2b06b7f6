// PackageOwner.h: whether somebody else than this engine keeps an application up to date, and how a person asks them.
// Thread: any. Ownership: values only.
#pragma once

#include <QString>

#include <optional>

namespace Pelnar::Engine
{

enum class PackageManager
{
    Dpkg,
    Flatpak,
    Snap,
    AppImage, ///< the application stands in an image that is mounted read-only; the person replaces the image's file
};

struct PackageOwner
{
    PackageManager manager;
    QString package; ///< its name there; of an AppImage the image's path
    QString command; ///< what a person types to update it; empty for an AppImage
};

/// Where the answer is looked up; the defaults are the system's own. Tests name other places.
struct PackageSources
{
    QString dpkgInfoFolder = QStringLiteral("/var/lib/dpkg/info"); ///< the *.list files of installed packages
    QString flatpakInfoFile = QStringLiteral("/.flatpak-info");
    QString snapFolder = QStringLiteral("/snap");
    QString snapVariable;      ///< of the environment: SNAP
    QString appImageVariable;  ///< of the environment: APPIMAGE
    QString appFolderVariable; ///< of the environment: APPDIR, where the image is mounted

    static PackageSources OfThisProcess();
};

/// The owner of the bundle at the absolute path \a bundlePath; nothing when it is nobody's.
std::optional<PackageOwner> FindPackageOwner(QString const& bundlePath, PackageSources const& sources);

} // namespace Pelnar::Engine
