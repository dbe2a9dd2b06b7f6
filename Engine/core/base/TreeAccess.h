// TreeAccess.h: opens and creates files, folders and links below one open folder. Links in it never lead
// out of that folder. Thread: one at a time. Ownership: the caller keeps the folder's descriptor.
#pragma once

#include "Engine/core/base/Descriptor.h"

#include <string>

namespace Pelnar::Engine
{

/// Every failure sets errno. Paths are relative, with "/" between components.
class TreeAccess
{
public:
    explicit TreeAccess(int folderFd) : m_folderFd(folderFd) {}

    /// Opens an existing file for reading. A link as any component is refused.
    UniqueFd OpenFile(std::string const& path) const;
    /// Creates a file for writing and reading, with mode 0755 if \a isExecutable, else 0644. The umask has no effect.
    UniqueFd MakeFile(std::string const& path, bool isExecutable);
    [[nodiscard]] bool MakeFolder(std::string const& path);
    [[nodiscard]] bool MakeLink(std::string const& path, std::string const& target);

private:
    UniqueFd OpenBeneath(std::string const& path, int flags, unsigned mode) const;
    UniqueFd OpenParent(std::string const& path, std::string& name) const;

    int m_folderFd;
};

} // namespace Pelnar::Engine
