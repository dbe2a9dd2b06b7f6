// UpdateFault.h: has moved.
#pragma once

#include "Engine/core/faults/UpdateFault.h" // IWYU pragma: export
