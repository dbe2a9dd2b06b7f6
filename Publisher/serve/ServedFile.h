// ServedFile.h: which files of a folder are served, and which are hidden. Ownership: the folder's descriptor stays the
// caller's.
#pragma once

#include "Engine/core/base/Descriptor.h"

#include <QString>

namespace Pelnar::Publisher
{

/// An open file of the folder, or the reason why it is hidden.
struct ServedFile
{
    Engine::UniqueFd file;
    QString hiddenBecause; ///< empty for a file that is served, and for one that is not there
};

/// The plain file \a path below the folder open at \a folderFd. Hidden are names that begin with a dot, what only its
/// owner may read, and private keys, by name or by content; so is what stands in a folder that is hidden.
ServedFile OpenServedFile(int folderFd, QString const& path);

} // namespace Pelnar::Publisher
