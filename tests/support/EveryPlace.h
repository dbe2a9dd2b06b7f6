// EveryPlace.h: whether a sweep visits every place or a sample.
#pragma once

#include <cstdlib>

namespace Pelnar::Testing
{

/// True if the environment requests faults at every place instead of a sample.
inline bool IsEveryPlaceWanted()
{
    return std::getenv("PELNAR_EVERY_PLACE") != nullptr;
}

} // namespace Pelnar::Testing
