// Sanitizers.h: whether this build is watched by the address sanitizer, for tests whose work must then be less.
#pragma once

namespace Pelnar::Testing
{

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define PELNAR_ADDRESS_SANITIZER
#endif
#endif
#if defined(PELNAR_ADDRESS_SANITIZER)
constexpr bool IS_SANITIZED = true;
#else
constexpr bool IS_SANITIZED = false;
#endif

} // namespace Pelnar::Testing
