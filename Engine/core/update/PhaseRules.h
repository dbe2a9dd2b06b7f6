// PhaseRules.h: the phases of an update, and the step that follows each event in each phase. Pure. PhaseRules.def is
// the table.
#pragma once

#include "Engine/core/update/UpdateRules.h"

#include <optional>

namespace Pelnar::Engine
{

enum class RunPhase
{
#define PELNAR_PHASE(name, steps) name,
#include "Engine/core/update/PhaseRules.def"
};

enum class RunEvent
{
#define PELNAR_EVENT(name) name,
#include "Engine/core/update/PhaseRules.def"
};

class IUpdateSteps
{
public:
    virtual ~IUpdateSteps() = default;
#define PELNAR_STEP(name) virtual void name() = 0;
#include "Engine/core/update/PhaseRules.def"
};

struct RunTransition
{
    void (IUpdateSteps::*step)();
    RunPhase next;
};
/// Empty if the event does nothing in that phase.
[[nodiscard]] std::optional<RunTransition> TransitionAt(RunPhase phase, RunEvent event, UpdateMode mode);

} // namespace Pelnar::Engine
