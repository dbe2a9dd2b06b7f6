// PackedText.h: unpacks gzip files, and packs their texts again to exactly the same bytes.
// Thread: any; no shared state. Any bytes are safe. Two versions of a packed text have no bytes in common after the
// first change, so a delta is made from the texts. A small recipe has what the text does not tell: the parameters of
// zlib, the ends of the blocks, and their codes.
#pragma once

#include "Engine/core/delta/DeflateTokens.h"

#include <optional>

namespace Pelnar::Engine
{

/// Texts and files are in memory. Larger ones are not unpacked.
constexpr std::size_t MAX_PACKED_TEXT_BYTES = 4u << 20;

/// The text in a gzip file of one member; nothing for another file or a longer text.
[[nodiscard]] std::optional<TokenizedText> UnpackText(Bytes file);

/// The deflated data of a gzip file, and the bytes after them. Nothing for another file.
[[nodiscard]] Bytes PackedDataOf(Bytes file);

/// Packs \a text by \a recipe; nothing if the recipe is damaged or makes more than \a maxSize bytes. \a base is the old
/// text from which the text was made.
[[nodiscard]] std::optional<ByteBuffer> PackByRecipe(Bytes recipe, Bytes text, std::size_t maxSize,
                                                     PackedBase const& base);

/// The recipe that makes \a file from \a text and needs no base; nothing if a packer without zlib made the file.
[[nodiscard]] std::optional<ByteBuffer> FindRecipe(Bytes file, Bytes text);

/// The recipe that copies tokens from \a base, if it makes \a file from \a text, otherwise \a recipe.
[[nodiscard]] ByteBuffer FasterRecipe(ByteBuffer const& recipe, Bytes file, TokenizedText const& text,
                                      PackedBase const& base);

} // namespace Pelnar::Engine
