// SealedProgram.h: a copy of the helper's program in memory that nobody can change. It is made at the first use and
// kept. A disk that is busy with an update may be slow to read the program again, and a process must continue with the
// helper that it started with, even after an installation.
// Ownership: the object owns the copy; a started program keeps it.
#pragma once

#include "Engine/core/base/Descriptor.h"

#include <mutex>
#include <string>

namespace Pelnar::Engine
{

/// The helper's name, also in the list of processes.
constexpr char HELPER_NAME[] = "pelnar-update-installer";

class SealedProgram
{
public:
    /// Reads nothing yet. \a path is absolute.
    explicit SealedProgram(std::string path) : m_path(std::move(path)) {}

    /// Returns the copy, and makes it at the first call. If the system runs no program from memory, it returns the file
    /// itself, opened once. Throws UpdateRefusal: HelperUnusable if the file is not regular, if a user other than the
    /// administrator and this user could change it, or if it changed during the copy; then the next call tries again.
    int Descriptor();

private:
    std::string m_path;
    std::mutex m_mutex; ///< guards the members below
    UniqueFd m_copy;
};

} // namespace Pelnar::Engine
