// ServedFile.h: decides which files of a folder are served and which are hidden. Ownership: the caller keeps the
// folder's descriptor.
#pragma once

#include "Engine/core/base/Descriptor.h"

#include <QString>

#include <vector>

namespace Pelnar::Publisher
{

/// An open file of the folder, or the reason why it is hidden.
struct ServedFile
{
    Engine::UniqueFd file;
    QString hiddenBecause; ///< empty if the file is served or does not exist
};

/// Opens the plain file \a path below the folder open at \a folderFd. Hidden are: names that begin with a dot, files
/// that only their owner may read, private keys (by name or content), and everything in a hidden folder.
ServedFile OpenServedFile(int folderFd, QString const& path);

/// The paths of the private keys in the folder open at \a folderFd, and below it, as far as it can be read. Hidden
/// names are left out.
std::vector<QString> FindHiddenKeys(int folderFd);

} // namespace Pelnar::Publisher
