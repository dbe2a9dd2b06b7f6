// Export.h: marks the exports of the shared libraries; everything else stays hidden.
#pragma once

#if defined(_WIN32)
#error "The update checker is built on macOS and Linux only."
#else
#define PELNAR_EXPORT __attribute__((visibility("default")))
/// For a private class inside an exported one, which would otherwise be exported with it.
#define PELNAR_PRIVATE __attribute__((visibility("hidden")))
#endif
