// KeptArguments.h: what this application wants its next version to be started with, in a memory file that a helper
// reads once this process has ended: what was said last counts, however late it was said.
// Thread: main. Ownership: one for the process, as long as it lives; a shared file is its receiver's.
#pragma once

#include "Engine/core/delta/TreeAccess.h"

#include <string>
#include <vector>

namespace Pelnar::Engine
{

class KeptArguments
{
public:
    static KeptArguments& OfProcess();

    /// From now on these are wanted. False, logged, when they cannot be given to a program; what was wanted before
    /// stays.
    [[nodiscard]] bool Keep(std::vector<std::string> const& arguments);
    /// None is wanted any more.
    void Forget();

    /// The file, which says what is wanted now and whenever that changes. Throws UpdateRefusal.
    UniqueFd Share();

private:
    KeptArguments() = default;
    [[nodiscard]] bool Write() const;

    std::vector<std::string> m_arguments;
    UniqueFd m_file; ///< since it was shared
};

} // namespace Pelnar::Engine
