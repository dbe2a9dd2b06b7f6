// UpdateError.h: has moved.
#pragma once

#include "Engine/core/faults/EngineError.h" // IWYU pragma: export
