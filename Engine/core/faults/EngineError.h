// EngineError.h: a failure as a plain value: the published code, the cause beneath it with a number of its own, one
// sentence for a person.
#pragma once

#include "Engine/core/faults/FaultTable.h"
#include "Engine/core/faults/Sentence.h"

#include <QString>

namespace Pelnar::Engine
{

struct EngineError
{
    ErrorCode code = ErrorCode::Appcast;
    ErrorCause cause = ErrorCause::NoUpdate;
    int httpStatus = 0;                    ///< for HttpStatus only
    UpdateFault fault = UpdateFault::None; ///< for Fault only
    Sentence sentence;                     ///< our own words only: what happened and what to do
    QString detail; ///< may quote others; escaped and at most MAX_REMOTE_TEXT characters; may be empty

    /// The domain and code of the underlying error. No two failures share both.
    QString UnderlyingDomain() const;
    int UnderlyingCode() const;
};

constexpr int MAX_REMOTE_TEXT = 200;

/// Text of others made fit for a log line or a label: markup escaped, hidden characters (SafeText.h) replaced, cut at
/// MAX_REMOTE_TEXT characters, never inside an escape.
QString EscapedRemoteText(QString const& text);

/// \a remoteDetail is escaped here.
EngineError MakeError(ErrorCause cause, QString const& remoteDetail = {});
EngineError MakeHttpStatusError(int status);
/// \a error, met on the way to an archive: with the code of downloads, and in words that do not speak of the feed.
EngineError AsDownloadError(EngineError error);
/// \a cause is NoRoomForUpdate, DownloadNoRoom or DownloadQuotaReached; the sentence says how much the archive needs
/// and how much is free.
EngineError MakeRoomError(ErrorCause cause, quint64 neededBytes, quint64 freeBytes);
/// \a errorNumber, 0 when no system call failed, is named in the detail. REQUIRES: \a fault is not None.
EngineError MakeFaultError(UpdateFault fault, int errorNumber = 0);

/// Of a Fault, that of the fault itself.
Blame BlameOf(EngineError const& error);

} // namespace Pelnar::Engine
