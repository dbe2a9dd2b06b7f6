// ErrorCause.h: the causes of a failure in a check, a download or the application's own part of an update, and the
// published codes. Constants. A new cause is a row of ErrorCauses.def.
#pragma once

namespace Pelnar::Engine
{

/// The published codes of the engine's error domain.
enum class ErrorCode
{
    AppcastParse = 1000,
    NoUpdate = 1001,
    Appcast = 1002,

    TemporaryFolder = 2000,
    Download = 2001,

    Unarchiving = 3000,
    Signature = 3001,
    Validation = 3002,

    FileCopy = 4000,
    Relaunch = 4004,
    Installation = 4005,
    Downgrade = 4006,
    Cancelled = 4007,
    NotWritable = 4012,
};

/// The causes. The numbers are published: they are the codes of the underlying errors and never change.
enum class ErrorCause
{
#define PELNAR_CAUSE(name, number, code, blame, sentence) name = number,
#include "Engine/core/faults/ErrorCauses.def"
};

} // namespace Pelnar::Engine
