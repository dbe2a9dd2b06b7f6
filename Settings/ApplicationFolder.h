// ApplicationFolder.h: the folders of an application for one person: settings, state and caches. Each is named after
// the bundle's identifier, by the XDG rules. Linux.
// Thread: any; BaseFolderPath() and FolderOf() read the environment.
#pragma once

#include "Engine/core/base/Descriptor.h"

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

/// The folder that the environment names, or the default one in the person's home; a relative value is ignored. Empty
/// if the person has no home.
std::string BaseFolderPath(BaseFolder base);

/// The name of the folder of the application \a bundleIdentifier: one name that stays inside the base folder, for any
/// identifier. Without an identifier it is made from the name of the program's file.
std::string ApplicationFolderName(QString const& bundleIdentifier);

/// One of an application's folders. It may be missing.
struct ApplicationFolder
{
    std::string base; ///< absolute; empty if the environment names no folder
    std::string name;

    std::string Path() const { return base + '/' + name; }
};

/// REQUIRES: no thread changes the environment meanwhile.
ApplicationFolder FolderOf(BaseFolder base, QString const& bundleIdentifier);

/// The name of the program's file, independent of the name or link by which it was started.
std::string RunningProgramName();

enum class MissingFolder
{
    Make,
    Leave,
};

/// An open folder, or why it is not open.
struct OpenedFolder
{
    Engine::UniqueFd folder;
    int errorNumber = 0; ///< ENOENT if it is missing
    std::string reason;  ///< for the log; empty if the folder is open
};

/// Opens the application's folder without following a link in its place. Refuses a folder that belongs to another user
/// or that others can change. A missing folder is created for this user alone.
OpenedFolder OpenApplicationFolder(ApplicationFolder const& place, MissingFolder missing);

} // namespace Pelnar::Settings
