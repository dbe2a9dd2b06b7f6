// PackedFiles.h: texts, and files of gzip's kind with them.
#pragma once

#include "Engine/core/delta/BinaryPatch.h"

#include <string>

namespace Pelnar::Testing
{

/// Some \a size bytes of words and numbers, others for each \a seed.
std::string WordsOf(unsigned seed, std::size_t size);

/// \a text as zlib packs it.
std::string GzipOf(std::string const& text, int level = 9, int memory = 8);

/// Some \a size bytes that no packer makes smaller, others for each \a seed.
std::string Noise(unsigned seed, std::size_t size);

} // namespace Pelnar::Testing
