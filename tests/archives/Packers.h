// Packers.h: the programs of this machine that pack folders, each as publishers call it.
// Thread: one.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace Pelnar::Testing
{

enum class PackedLongNames
{
    Kept,
    Impossible, ///< the format has no place for them
};

struct Packer
{
    char const* name;
    char const* program; ///< that must be installed
    char const* script;  ///< for a shell in the folder that holds "$1": packs it into "$2"
    bool isZip = false;
    PackedLongNames longNames = PackedLongNames::Kept;
};

void PrintTo(Packer const& packer, std::ostream* out);

std::vector<Packer> const& Packers();
[[nodiscard]] bool IsInstalled(std::string const& program);

/// The archive that \a packer makes of the folder \a name in \a parent, with these variables and a search path, and no
/// others. Empty when it makes none.
std::string Pack(Packer const& packer, std::string const& parent, std::string const& name,
                 std::vector<std::string> const& variables);

} // namespace Pelnar::Testing
