// RelaunchArguments.h: the arguments for the next version's start, and the bytes in which the helper reads them. The
// format is in docs/formats/update-job.md. Pure functions.
#pragma once

#include "common/RelaunchLimits.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Pelnar::Engine
{

/// The bytes before the first list of arguments. A reader that finds only these bytes finds no arguments.
constexpr std::string_view RELAUNCH_ARGUMENTS_MAGIC = "PELNARA1";

/// REQUIRES: \a arguments are valid.
std::string EncodeRelaunchArguments(std::vector<std::string> const& arguments);
/// The arguments of \a bytes; empty unless they are complete and valid.
std::optional<std::vector<std::string>> DecodeRelaunchArguments(std::string_view bytes);

/// The arguments in the regular file \a fd, read from its beginning; none if the list is incomplete. The file's
/// position is neither used nor changed.
std::vector<std::string> ReadRelaunchArguments(int fd);

} // namespace Pelnar::Engine
