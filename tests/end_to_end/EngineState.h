// EngineState.h: whether the engine is busy. Plain C++.
#pragma once

namespace Pelnar::Testing
{

[[nodiscard]] bool IsEngineBusy();

} // namespace Pelnar::Testing
