// ResumeRules.h: what to do with a partial archive after a server's answer. Pure functions of the bytes on the disk
// and the head of the answer.
#pragma once

#include "Engine/core/faults/EngineError.h"
#include "Engine/core/fetch/HttpHead.h"
#include "Engine/core/fetch/Validators.h"

#include <optional>
#include <vector>

namespace Pelnar::Engine
{

struct PartialArchive
{
    quint64 bytes = 0; ///< on the disk, from the archive's start
    quint64 declaredBytes = 0;
    Validators validators; ///< of the answer that the bytes came from
};

/// The fields of a request for the rest; none if the whole archive must be requested.
std::vector<HeaderField> RangeFields(PartialArchive const& partial);

enum class ResumeStep
{
    Append,   ///< the body is the rest
    Restart,  ///< the body is the whole archive: begin at 0
    HandOver, ///< what is on the disk is the whole archive
    AskWhole, ///< the answer is useless: request the whole archive
    Refuse,
};

struct ResumeRules
{
    ResumeStep step = ResumeStep::Refuse;
    std::optional<EngineError> error; ///< for Refuse only
};

/// Judges the answer \a head, which is not a redirect, to a request with RangeFields(\a partial).
[[nodiscard]] ResumeRules DecideResume(PartialArchive const& partial, HttpHead const& head);

/// True for a failure that may disappear soon.
[[nodiscard]] bool IsPassing(EngineError const& error);

/// True if the server's answer was refused, though the archive may be the right one.
[[nodiscard]] bool IsAnswersFault(EngineError const& error);

/// True if the server's archive cannot be the archive of the feed, so that no part of its body is worth keeping.
[[nodiscard]] bool IsAboutTheArchive(ErrorCause cause);

} // namespace Pelnar::Engine
