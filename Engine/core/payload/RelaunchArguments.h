// RelaunchArguments.h: the arguments that an application wants its next version to be started with, and the bytes in
// which the helper reads them. The format is described in docs/formats/update-job.md.
// Thread: any; plain values. Ownership: none.
#pragma once

#include "Engine/include/Pelnar/RelaunchLimits_p.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Pelnar::Engine
{

/// The bytes before the first list of arguments: who reads no more than them reads none.
constexpr std::string_view RELAUNCH_ARGUMENTS_MAGIC = "PELNARA1";

/// REQUIRES: nothing is wrong with \a arguments.
std::string EncodeRelaunchArguments(std::vector<std::string> const& arguments);
/// The arguments of \a bytes; nothing unless they are whole, with nothing wrong with them.
std::optional<std::vector<std::string>> DecodeRelaunchArguments(std::string_view bytes);

/// What the regular file \a fd says, read from its beginning; none when it does not say a whole list. The file's
/// position is neither used nor changed.
std::vector<std::string> ReadRelaunchArguments(int fd);

} // namespace Pelnar::Engine
