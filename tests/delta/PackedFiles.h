// PackedFiles.h: texts, and gzip files of them.
#pragma once

#include "Engine/core/delta/BinaryPatch.h"

#include <string>

namespace Pelnar::Testing
{

/// \a size bytes of words and numbers, different for each \a seed.
std::string WordsOf(unsigned seed, std::size_t size);

/// \a text as zlib compresses it.
std::string GzipOf(std::string const& text, int level = 9, int memory = 8);

/// \a size bytes that cannot be compressed, different for each \a seed.
std::string Noise(unsigned seed, std::size_t size);

} // namespace Pelnar::Testing
