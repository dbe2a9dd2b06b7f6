#include "Engine/core/update/PhaseRules.h"

#include <initializer_list>

namespace Pelnar::Engine
{
namespace
{

struct Row
{
    RunEvent event;
    RunTransition transition;
    std::optional<UpdateMode> mode; ///< empty: both
};

} // namespace

std::optional<RunTransition> TransitionAt(RunPhase phase, RunEvent event, UpdateMode mode)
{
    auto const find = [event, mode](std::initializer_list<Row> rows) -> std::optional<RunTransition>
    {
        for (Row const& row : rows)
        {
            if (row.event == event && row.mode.value_or(mode) == mode)
            {
                return row.transition;
            }
        }
        return std::nullopt;
    };
    switch (phase)
    {
#define PELNAR_ON(event, step, next) {RunEvent::event, {&IUpdateSteps::step, RunPhase::next}, std::nullopt},
#define PELNAR_IF(mode, event, step, next) {RunEvent::event, {&IUpdateSteps::step, RunPhase::next}, UpdateMode::mode},
#define PELNAR_PHASE(name, steps)                                                                                      \
    case RunPhase::name:                                                                                               \
        return find({steps});
#include "Engine/core/update/PhaseRules.def"
    }
    return std::nullopt;
}

} // namespace Pelnar::Engine
