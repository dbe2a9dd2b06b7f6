// Export.h: marks what the shared libraries offer; everything else stays hidden.
#pragma once

#if defined(_WIN32)
#error "The update checker is built on macOS and Linux only."
#else
#define PELNAR_EXPORT __attribute__((visibility("default")))
#endif
