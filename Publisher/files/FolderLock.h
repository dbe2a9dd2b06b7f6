// FolderLock.h: lets one run at a time write to a folder. Ownership: a scope object; the lock ends with it and with the
// process.
#pragma once

#include "Engine/core/base/Descriptor.h"
#include "Publisher/Console.h"

namespace Pelnar::Publisher
{

class FolderLock
{
public:
    /// Waits while another run holds \a folder, and prints a message first. Does not wait on a file system without
    /// locks. Throws Refusal if the folder cannot be opened.
    FolderLock(QString const& folder, Console const& console);

    /// True if \a folder is the locked one.
    [[nodiscard]] bool Holds(QString const& folder) const;

private:
    Engine::UniqueFd m_folder;
};

} // namespace Pelnar::Publisher
