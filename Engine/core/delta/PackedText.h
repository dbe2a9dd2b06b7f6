// PackedText.h: files of gzip's kind as the texts in them, and back to the very same bytes.
// Any bytes are safe. Two packed versions of a text have nothing in common behind the first change, their texts
// nearly everything. What a packer decides beyond the text, where its blocks end and the codes of each, is its
// recipe, which is small.
#pragma once

#include "Engine/core/delta/DeflateTokens.h"

#include <optional>

namespace Pelnar::Engine
{

/// Text and file are in memory: longer ones stay as they are.
constexpr std::size_t MAX_PACKED_TEXT_BYTES = 4u << 20;

/// The text in a file of one gzip member; nothing for another file and for a longer text.
[[nodiscard]] std::optional<ByteBuffer> UnpackText(Bytes file);

/// The packed data of a file that UnpackText accepts, and the bytes behind them.
[[nodiscard]] Bytes PackedDataOf(Bytes file);

/// Packs \a text as \a recipe says; nothing if the recipe is damaged or makes more than \a maxSize bytes. \a base is
/// what the text was made from.
[[nodiscard]] std::optional<ByteBuffer> PackByRecipe(Bytes recipe, Bytes text, std::size_t maxSize,
                                                     PackedBase const& base);

/// The recipe that packs \a text to \a file again, from any base; nothing if another packer than zlib made the file.
[[nodiscard]] std::optional<ByteBuffer> FindRecipe(Bytes file, Bytes text);

/// The recipe that copies tokens from \a base, if it packs \a text to \a file again, else \a recipe.
[[nodiscard]] ByteBuffer FasterRecipe(ByteBuffer const& recipe, Bytes file, Bytes text, PackedBase const& base);

} // namespace Pelnar::Engine
