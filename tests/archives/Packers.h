// Packers.h: the packing programs of this machine, each called as publishers call it.
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
    Impossible, ///< the format cannot hold them
};

struct Packer
{
    char const* name;
    char const* program; ///< must be installed
    char const* script;  ///< for a shell in the folder that holds "$1": packs it into "$2"
    bool isZip = false;
    PackedLongNames longNames = PackedLongNames::Kept;
};

void PrintTo(Packer const& packer, std::ostream* out);

std::vector<Packer> const& Packers();
[[nodiscard]] bool IsInstalled(std::string const& program);

/// The archive that \a packer makes of the folder \a name in \a parent, with only these variables and a search path.
/// Empty if it makes none.
std::string Pack(Packer const& packer, std::string const& parent, std::string const& name,
                 std::vector<std::string> const& variables);

} // namespace Pelnar::Testing
