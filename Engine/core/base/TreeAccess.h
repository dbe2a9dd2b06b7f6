// TreeAccess.h: files, folders and links below one open folder, never outside it, no matter which links stand there.
// Thread: one at a time. Ownership: the folder's descriptor stays the caller's.
#pragma once

#include "Engine/core/base/Descriptor.h"

#include <string>

namespace Pelnar::Engine
{

/// Every failure leaves errno set. Paths are relative, with "/" between components.
class TreeAccess
{
public:
    explicit TreeAccess(int folderFd) : m_folderFd(folderFd) {}

    /// An existing file, to be read; a link as any component is refused.
    UniqueFd OpenFile(std::string const& path) const;
    /// A new file, to be written and read, with mode 0755 when \a isExecutable, else 0644, no matter what the umask is.
    UniqueFd MakeFile(std::string const& path, bool isExecutable);
    [[nodiscard]] bool MakeFolder(std::string const& path);
    [[nodiscard]] bool MakeLink(std::string const& path, std::string const& target);

private:
    UniqueFd OpenBeneath(std::string const& path, int flags, unsigned mode) const;
    UniqueFd OpenParent(std::string const& path, std::string& name) const;

    int m_folderFd;
};

} // namespace Pelnar::Engine
