// SUExport.h: marks the exports of the engine's shared library.
#pragma once

#define SU_EXPORT __attribute__((visibility("default")))
