// SealedProgram.h: a copy of the helper's program in memory that nobody can change. It is made when it is first wanted
// and kept: a disk that is busy with an update may take its time over a few bytes that it was not asked for lately, and
// a process goes on with the helper that it began with, no matter what is installed meanwhile.
// Thread: any. Ownership: the copy goes with the object; anyone who started the program has it still.
#pragma once

#include "Engine/core/delta/TreeAccess.h"

#include <mutex>
#include <string>

namespace Pelnar::Engine
{

/// What the helper is called, among the processes too.
constexpr char HELPER_NAME[] = "pelnar-update-installer";

class SealedProgram
{
public:
    /// Touches nothing yet. \a path is absolute.
    explicit SealedProgram(std::string path) : m_path(std::move(path)) {}

    /// The copy, which is made now unless there is one; where the system runs no program from memory, the file itself,
    /// opened once. Throws UpdateRefusal: HelperUnusable when the file is no
    /// regular one, when anybody but the administrator and this user could change it, or when it did change while it
    /// was copied; then the next call tries again.
    int Descriptor();

private:
    std::string m_path;
    std::mutex m_mutex; ///< guards what follows
    UniqueFd m_copy;
};

} // namespace Pelnar::Engine
