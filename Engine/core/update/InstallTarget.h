// InstallTarget.h: the installed bundle that an update will replace, opened once, and whether it can be replaced.
// Ownership: the object owns the descriptors; all code that updates the bundle uses only them.
#pragma once

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/faults/Result.h"
#include "Engine/core/update/PackageOwner.h"

#include <QString>

#include <string>

namespace Pelnar::Engine
{

struct InstallTarget
{
    UniqueFd parent; ///< the folder that holds the bundle
    UniqueFd bundle;
    std::string name; ///< of the bundle, in the parent
    QString path;     ///< absolute, without any link
};

using OpenedTarget = Result<InstallTarget>;

/// Opens the bundle at \a bundlePath, of any owner.
OpenedTarget OpenInstalledBundle(QString const& bundlePath);

/// Opens the bundle at \a bundlePath and checks, before a download, that it may be replaced: no package manager owns
/// it, its file system can be written, only this user or the administrator can change its folders, and there is space
/// for \a neededBytes next to it. Otherwise returns one error that names the obstacle and says what to do. Reads the
/// package manager's lists, which may take long.
OpenedTarget OpenInstallTarget(QString const& bundlePath, quint64 neededBytes, PackageSources const& sources);

/// Fails if the bundle is no longer in its place, or may no longer be replaced. Reads only the folders themselves, so
/// it is quick.
[[nodiscard]] Result<void> JudgeAgain(InstallTarget const& target);

/// The error for a fault before the download, with the place where the application is installed.
EngineError MakeTargetError(InstallTarget const& target, UpdateFault fault, int errorNumber);

/// \a error; with the disk's numbers if it is about missing space.
EngineError WithRoom(EngineError const& error, InstallTarget const& target, quint64 neededBytes);

} // namespace Pelnar::Engine
