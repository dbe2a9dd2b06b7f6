// InstallTarget.h: the installed bundle that an update is to replace, opened once, and whether it can be.
// Thread: any. Ownership: the descriptors are the object's; anyone who updates the bundle acts through them only.
#pragma once

#include "Engine/core/EngineError.h"
#include "Engine/core/delta/TreeAccess.h"
#include "Engine/core/update/PackageOwner.h"

#include <QString>

#include <string>
#include <variant>

namespace Pelnar::Engine
{

struct InstallTarget
{
    UniqueFd parent; ///< the folder that holds the bundle
    UniqueFd bundle;
    std::string name; ///< of the bundle, in the parent
    QString path;     ///< absolute, without any link
};

using OpenedTarget = std::variant<InstallTarget, EngineError>;

/// Opens the bundle at \a bundlePath, no matter whose it is.
OpenedTarget OpenInstalledBundle(QString const& bundlePath);

/// Opens the bundle at \a bundlePath and finds out, before anything is downloaded, whether it may be replaced: owned by
/// no package manager, on a file system that can be written, in folders that only this user or the administrator can
/// change, with room for \a neededBytes beside it. Otherwise one error that names what is in the way and what to do.
/// Reads the package manager's lists, which takes its time.
OpenedTarget OpenInstallTarget(QString const& bundlePath, quint64 neededBytes, PackageSources const& sources);

/// What a fault before the download is to a person who wants to know where the application is installed.
EngineError MakeTargetError(InstallTarget const& target, UpdateFault fault, int errorNumber);

/// \a error; in the numbers of the disk when it is for want of room there.
EngineError WithRoom(EngineError const& error, InstallTarget const& target, quint64 neededBytes);

} // namespace Pelnar::Engine
