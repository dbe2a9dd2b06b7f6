// Sanitizers.h: says whether this build uses the address sanitizer, for tests that must do less work then.
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
