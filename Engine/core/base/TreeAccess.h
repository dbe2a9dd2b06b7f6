// TreeAccess.h: opens and creates files, folders and links below one open folder. Links in it never lead
// out of that folder. Thread: one at a time. Ownership: the caller keeps the folder's descriptor.
#pragma once

#include "Engine/core/base/Descriptor.h"

#include <string>

#include <sys/stat.h>

namespace Pelnar::Engine
{

/// Every failure sets errno. Paths are relative, with "/" between components.
class TreeAccess
{
public:
    explicit TreeAccess(int folderFd) : m_folderFd(folderFd) {}

    /// Opens an existing file for reading. A link as any component is refused.
    UniqueFd OpenFile(std::string const& path);
    /// The status of what has \a path, which may be a link itself.
    [[nodiscard]] bool FindStatus(std::string const& path, struct stat& status);
    /// Creates a file for writing and reading, with mode 0755 if \a isExecutable, else 0644. The umask has no effect.
    UniqueFd MakeFile(std::string const& path, bool isExecutable);
    [[nodiscard]] bool MakeFolder(std::string const& path);
    [[nodiscard]] bool MakeLink(std::string const& path, std::string const& target);

private:
    UniqueFd Open(std::string const& path, int flags, unsigned mode);
    [[nodiscard]] bool EnterParent(std::string const& path, std::string& name);

    int m_folderFd;
    std::string m_parentPath; ///< of m_parent
    UniqueFd m_parent;        ///< the parent of the last path: neighbours in a tree mostly have the same one
};

} // namespace Pelnar::Engine
