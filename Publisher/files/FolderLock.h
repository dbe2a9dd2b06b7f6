// FolderLock.h: one run at a time writes into a folder.
// Ownership: a scope object; the lock ends with it and with the process.
#pragma once

#include "Engine/core/base/Descriptor.h"
#include "Publisher/Console.h"

namespace Pelnar::Publisher
{

class FolderLock
{
public:
    /// Waits while another run holds \a folder, and says so first. A file system without locks is not waited for.
    /// Throws Refusal for a folder that cannot be opened.
    FolderLock(QString const& folder, Console const& console);

    /// Whether \a folder is the one that is held.
    [[nodiscard]] bool Holds(QString const& folder) const;

private:
    Engine::UniqueFd m_folder;
};

} // namespace Pelnar::Publisher
