// SUExport.h: what the engine's shared library offers.
#pragma once

#define SU_EXPORT __attribute__((visibility("default")))
