// AlignmentText.h: the bytes of a program in the form in which versions are compared. Each address field is replaced by
// a label of the bytes at its target. So code that only moved looks the same.
#pragma once

#include "Engine/core/delta/ImageLayout.h"

namespace Pelnar::Engine
{

[[nodiscard]] ByteBuffer AlignmentTextOf(Bytes program, ImageLayout const& layout);

} // namespace Pelnar::Engine
