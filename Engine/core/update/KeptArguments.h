// KeptArguments.h: the arguments for the next version's start, in a memory file that a helper reads after this process
// has ended. The last arguments count, at any time.
// Thread: main. Ownership: one for the process, for its whole life; the receiver owns a shared file.
#pragma once

#include "Engine/core/base/Descriptor.h"

#include <string>
#include <vector>

namespace Pelnar::Engine
{

class KeptArguments
{
public:
    static KeptArguments& OfProcess();

    /// Sets the arguments. Returns false and logs the reason if a program cannot get them; the earlier arguments then
    /// stay.
    [[nodiscard]] bool Keep(std::vector<std::string> const& arguments);
    /// Removes the arguments.
    void Forget();

    /// The file, which always has the current arguments. Throws UpdateRefusal.
    UniqueFd Share();

private:
    KeptArguments() = default;
    [[nodiscard]] bool Write() const;

    std::vector<std::string> m_arguments;
    UniqueFd m_file; ///< set once it was shared
};

} // namespace Pelnar::Engine
