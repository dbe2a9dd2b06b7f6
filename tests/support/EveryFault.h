// EveryFault.h: every row of the tables of faults, for tests of all of them.
#pragma once

#include "Engine/core/faults/ErrorCause.h"
#include "Engine/core/faults/UpdateFault.h"

#include <vector>

namespace Pelnar::Testing
{

inline std::vector<Engine::ErrorCause> EveryCause()
{
    return {
#define PELNAR_CAUSE(name, number, code, blame, sentence) Engine::ErrorCause::name,
#include "Engine/core/faults/ErrorCauses.def"
    };
}

inline std::vector<Engine::UpdateFault> EveryUpdateFault()
{
    return {
#define PELNAR_FAULT(name, number, code, blame, sentence, what, mend) Engine::UpdateFault::name,
#include "Engine/core/faults/UpdateFaults.def"
    };
}

} // namespace Pelnar::Testing
