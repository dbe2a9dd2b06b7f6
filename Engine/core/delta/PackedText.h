// PackedText.h: files of gzip's kind as the texts in them, and back to the very same bytes.
// Thread: any; no state. Ownership: values only. Any bytes are safe.
// Two packed versions of a text have nothing in common behind the first change, their texts nearly everything. What a
// packer decides beyond the text, where its blocks end and the codes of each, is its recipe, which is small.
#pragma once

#include "Engine/core/delta/BinaryPatch.h"

#include <optional>

namespace Pelnar::Engine
{

/// Text and file are in memory: longer ones stay as they are.
constexpr std::size_t MAX_PACKED_TEXT_BYTES = 4u << 20;

/// The text in a file of one gzip member; nothing for another file and for a longer text.
[[nodiscard]] std::optional<ByteBuffer> UnpackText(Bytes file);

/// The file with \a text in it that \a recipe tells; nothing when the recipe is broken or asks for more than \a maxSize
/// bytes.
[[nodiscard]] std::optional<ByteBuffer> PackByRecipe(Bytes recipe, Bytes text, std::size_t maxSize);

/// The recipe by which \a text becomes \a file again; nothing when no known packer has made it.
[[nodiscard]] std::optional<ByteBuffer> FindRecipe(Bytes file, Bytes text);

} // namespace Pelnar::Engine
