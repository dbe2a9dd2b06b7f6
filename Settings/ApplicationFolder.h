// ApplicationFolder.h: where an application keeps what belongs to one person: settings, state and caches, each in a
// folder named after the bundle's identifier, as the XDG rules say. Linux.
// Thread: any; BaseFolderPath() and FolderOf() read the environment. Ownership: values; descriptors are the caller's.
#pragma once

#include "Engine/core/delta/TreeAccess.h"

#include <QString>

#include <string>

namespace Pelnar::Settings
{

enum class BaseFolder
{
    Config, ///< XDG_CONFIG_HOME
    State,  ///< XDG_STATE_HOME
    Cache,  ///< XDG_CACHE_HOME
};

/// The folder that the environment names, or the usual one in the person's home; a relative value is ignored. Empty
/// when the person has no home.
std::string BaseFolderPath(BaseFolder base);

/// The name of the folder of the application \a bundleIdentifier: one name that leads nowhere else, no matter what the
/// identifier says. Without an identifier it is made of the name of the program's file.
std::string ApplicationFolderName(QString const& bundleIdentifier);

/// One of an application's folders. It need not exist.
struct ApplicationFolder
{
    std::string base; ///< absolute; empty when there is none
    std::string name;

    std::string Path() const { return base + '/' + name; }
};

/// REQUIRES: nobody changes the environment meanwhile.
ApplicationFolder FolderOf(BaseFolder base, QString const& bundleIdentifier);

/// The name of the program's file, by which name or link it may have been started.
std::string RunningProgramName();

enum class MissingFolder
{
    Make,
    Leave,
};

/// An open folder, or why there is none.
struct OpenedFolder
{
    Engine::UniqueFd folder;
    int errorNumber = 0; ///< ENOENT when it is missing
    std::string reason;  ///< for the log; empty when the folder is open
};

/// Opens the application's folder, without following a link that stands in its place. Refused is a folder that belongs
/// to another user or that others can change. A missing one is made for this user alone.
OpenedFolder OpenApplicationFolder(ApplicationFolder const& place, MissingFolder missing);

} // namespace Pelnar::Settings
