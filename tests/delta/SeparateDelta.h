// SeparateDelta.h: makes containers of the separate format, which the product only applies.
#pragma once

#include "Engine/core/delta/DeltaManifest.h"

#include <filesystem>
#include <optional>
#include <string>

namespace Pelnar::Testing
{

/// The patch that turns \a oldBytes into \a newBytes; nothing if the old bytes are too many for an index.
std::optional<Engine::BinaryPatch> MakeBinaryPatch(Engine::Bytes oldBytes, Engine::Bytes newBytes);

/// Makes the \a newSize bytes of the new file from the five streams alone.
Engine::PatchVerdict ApplyBinaryPatch(Engine::Bytes oldBytes, Engine::PatchSources const& sources,
                                      std::uint64_t newSize, Engine::ByteSink const& sink);

/// The bytes of \a manifest in its format.
Engine::ByteBuffer EncodeManifest(Engine::DeltaManifest const& manifest);
/// The header and the compressed manifest of a container in the format of \a manifest.
Engine::ByteBuffer EncodeOpening(Engine::DeltaManifest const& manifest);

/// The container that turns \a oldFolder, as version 1.0, into \a newFolder, as 2.0.
std::string MakeSeparateDelta(std::filesystem::path const& oldFolder, std::filesystem::path const& newFolder);

} // namespace Pelnar::Testing
