// AlignmentText.h: a program's bytes as they are compared with another version's: what a field says of a place is
// replaced by what stands at that place, so that code which only moved looks the same.
#pragma once

#include "Engine/core/delta/ImageLayout.h"

namespace Pelnar::Engine
{

[[nodiscard]] ByteBuffer AlignmentTextOf(Bytes program, ImageLayout const& layout);

} // namespace Pelnar::Engine
