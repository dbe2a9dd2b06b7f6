// EngineState.h: whether the engine is at work. Plain C++.
#pragma once

namespace Pelnar::Testing
{

[[nodiscard]] bool IsEngineBusy();

} // namespace Pelnar::Testing
