// ResumeDecision.h: what becomes of a partial archive when a server has answered: pure decisions on what is on the disk
// and the head of the answer.
// Thread: any; no state. Ownership: values only.
#pragma once

#include "Engine/core/EngineError.h"
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
    Validators validators; ///< of the answer that they came from
};

/// The fields of a request for the rest; none when the whole archive has to be asked for.
std::vector<HeaderField> RangeFields(PartialArchive const& partial);

enum class ResumeStep
{
    Append,   ///< the body is the rest
    Restart,  ///< the body is the whole archive: begin at 0
    HandOver, ///< what is on the disk is the whole archive
    AskWhole, ///< what is on the disk is of no use: forget it and ask for the whole
    Refuse,
};

struct ResumeDecision
{
    ResumeStep step = ResumeStep::Refuse;
    std::optional<EngineError> error; ///< of Refuse only
};

/// Judges the answer \a head, which leads nowhere else, to a request with RangeFields(\a partial).
[[nodiscard]] ResumeDecision DecideResume(PartialArchive const& partial, HttpHead const& head);

} // namespace Pelnar::Engine
