// SeparateDelta.h: makes containers of the format in which every file's data stand by themselves, as publishers have
// made them before.
#pragma once

#include <filesystem>
#include <string>

namespace Pelnar::Testing
{

/// The container that turns \a oldFolder, as version 1.0, into \a newFolder, as 2.0.
std::string MakeSeparateDelta(std::filesystem::path const& oldFolder, std::filesystem::path const& newFolder);

} // namespace Pelnar::Testing
