#include "Engine/core/faults/EngineError.h"

#include "Engine/core/base/SafeText.h"

#include <cerrno>

namespace Pelnar::Engine
{
namespace
{

/// Network Authentication Required. It comes from the network, not from the server.
constexpr int STATUS_NETWORK_SIGN_IN = 511;

} // namespace

QString EngineError::UnderlyingDomain() const
{
    return cause == ErrorCause::HttpStatus ? QStringLiteral("PelnarHTTPStatusErrorDomain")
                                           : QStringLiteral("PelnarUpdateCheckErrorDomain");
}

int EngineError::UnderlyingCode() const
{
    if (cause == ErrorCause::HttpStatus)
    {
        return httpStatus;
    }
    return static_cast<int>(cause) + (cause == ErrorCause::Fault ? static_cast<int>(fault) : 0);
}

QString EscapedRemoteText(QString const& text)
{
    // More is never shown, and a megabyte is never read to its end.
    QString const safe = WithoutHidden(text.left(MAX_REMOTE_TEXT + 1), QLatin1Char('?'));
    QString escaped;
    for (int index = 0; index < safe.size();)
    {
        int const units = CodePointAt(safe.utf16(), index, safe.size()).units;
        QString const piece = safe.mid(index, units).toHtmlEscaped();
        if (escaped.size() + piece.size() > MAX_REMOTE_TEXT)
        {
            break;
        }
        escaped += piece;
        index += units;
    }
    return escaped;
}

EngineError MakeError(ErrorCause cause, QString const& remoteDetail)
{
    FaultEntry const& entry = EntryOf(cause);
    return {entry.code, cause, 0, UpdateFault::None, Sentence(entry.sentence), EscapedRemoteText(remoteDetail)};
}

EngineError MakeHttpStatusError(int status)
{
    if (status == STATUS_NETWORK_SIGN_IN)
    {
        return MakeError(ErrorCause::NetworkSignIn);
    }
    EngineError error = MakeError(ErrorCause::HttpStatus);
    error.httpStatus = status;
    error.sentence = Sentence(error.sentence.Source(), {QString::number(status)});
    return error;
}

EngineError AsDownloadError(EngineError error)
{
    error.code = ErrorCode::Download;
    if (char const* const sentence = EntryOf(error.cause).downloadSentence)
    {
        error.sentence = Sentence(sentence);
    }
    return error;
}

EngineError MakeRoomError(ErrorCause cause, quint64 neededBytes, quint64 freeBytes)
{
    EngineError error = MakeError(cause);
    error.sentence = Sentence(error.sentence.Source(), {ByteCount{neededBytes}, ByteCount{freeBytes}});
    return error;
}

EngineError MakeFaultError(UpdateFault fault, int errorNumber)
{
    FaultEntry const& entry = EntryOf(fault);
    EngineError error;
    error.code = entry.code;
    error.cause = ErrorCause::Fault;
    error.fault = fault;
    // The disk itself may have much free space.
    bool const isQuota = fault == UpdateFault::NoSpace && errorNumber == EDQUOT;
    error.sentence = Sentence(isQuota ? QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                                          "Your disk quota is too small for the update. Remove some of "
                                                          "your files and try again.")
                                      : entry.sentence);
    error.detail = QString::fromLatin1(entry.name);
    if (errorNumber != 0)
    {
        error.detail += QStringLiteral(" (errno %1)").arg(errorNumber);
    }
    return error;
}

Blame BlameOf(EngineError const& error)
{
    return error.cause == ErrorCause::Fault ? EntryOf(error.fault).blame : EntryOf(error.cause).blame;
}

} // namespace Pelnar::Engine
