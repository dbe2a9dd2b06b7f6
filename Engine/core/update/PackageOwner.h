// PackageOwner.h: whether a package manager keeps an application up to date, and how a person uses it.
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
    AppImage, ///< the application is in an image that is mounted read-only; the person replaces the image's file
};

struct PackageOwner
{
    PackageManager manager;
    QString package; ///< its name there; for an AppImage the image's path
    QString command; ///< what a person types to update it; empty for an AppImage
};

/// Where the answer is looked up. The defaults are the system's places; tests set others.
struct PackageSources
{
    QString dpkgInfoFolder = QStringLiteral("/var/lib/dpkg/info"); ///< the *.list files of installed packages
    QString flatpakInfoFile = QStringLiteral("/.flatpak-info");
    QString snapFolder = QStringLiteral("/snap");
    QString snapVariable;      ///< from the environment: SNAP
    QString appImageVariable;  ///< from the environment: APPIMAGE
    QString appFolderVariable; ///< from the environment: APPDIR, where the image is mounted

    static PackageSources OfThisProcess();
};

/// The owner of the bundle at the absolute path \a bundlePath; empty if no package manager owns it.
std::optional<PackageOwner> FindPackageOwner(QString const& bundlePath, PackageSources const& sources);

} // namespace Pelnar::Engine
