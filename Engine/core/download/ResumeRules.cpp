#include "Engine/core/download/ResumeRules.h"

#include <algorithm>
#include <array>

namespace Pelnar::Engine
{
namespace
{

constexpr int STATUS_OK = 200;
constexpr int STATUS_PARTIAL = 206;
constexpr int STATUS_RANGE_NOT_SATISFIABLE = 416;

/// The only description of the rest of \a partial that is accepted.
QByteArray RangeOfRest(PartialArchive const& partial)
{
    return "bytes " + QByteArray::number(partial.bytes) + '-' + QByteArray::number(partial.declaredBytes - 1) + '/' +
           QByteArray::number(partial.declaredBytes);
}

/// Fails if a body cannot have \a bytes.
Result<void> JudgeLength(HttpHead const& head, quint64 bytes)
{
    Result<BodyPlan> const plan = JudgeFraming(head);
    if (!plan)
    {
        return Failure(plan.error());
    }
    bool const isOther = plan->kind == BodyPlan::Kind::Length && static_cast<quint64>(plan->length) != bytes;
    return isOther ? Failure(ErrorCause::DownloadLengthDiffers) : Result<void>();
}

bool IsRestOf(PartialArchive const& partial, HttpHead const& head)
{
    // The answer must repeat the validator: a server may support ranges but not the condition on them.
    QByteArray const& asked = PreferredValidator(partial.validators);
    QByteArray const name = partial.validators.entityTag.isEmpty() ? "last-modified" : "etag";
    bool const isMultipart = head.OnlyValue("content-type").toLower().startsWith("multipart/");
    return !isMultipart && head.OnlyValue(name) == asked &&
           head.OnlyValue("content-range").toLower() == RangeOfRest(partial);
}

ResumeRules Refuse(ErrorCause cause)
{
    return {ResumeStep::Refuse, MakeError(cause)};
}

} // namespace

std::vector<HeaderField> RangeFields(PartialArchive const& partial)
{
    if (partial.bytes == 0 || partial.bytes >= partial.declaredBytes || partial.validators.IsEmpty())
    {
        return {};
    }
    return {{"Range", "bytes=" + QByteArray::number(partial.bytes) + '-'},
            {"If-Range", PreferredValidator(partial.validators)}};
}

ResumeRules DecideResume(PartialArchive const& partial, HttpHead const& head)
{
    bool const hasAskedForRest = !RangeFields(partial).empty();
    if (head.status == STATUS_OK)
    {
        Result<void> const length = JudgeLength(head, partial.declaredBytes);
        return length ? ResumeRules{ResumeStep::Restart, std::nullopt}
                      : ResumeRules{ResumeStep::Refuse, length.error()};
    }
    if (head.status == STATUS_PARTIAL)
    {
        if (!hasAskedForRest)
        {
            return Refuse(ErrorCause::DownloadRangeWrong);
        }
        bool const isRest = IsRestOf(partial, head) && JudgeLength(head, partial.declaredBytes - partial.bytes);
        return {isRest ? ResumeStep::Append : ResumeStep::AskWhole, std::nullopt};
    }
    if (head.status == STATUS_RANGE_NOT_SATISFIABLE)
    {
        if (partial.bytes == partial.declaredBytes)
        {
            return {ResumeStep::HandOver, std::nullopt};
        }
        return hasAskedForRest ? ResumeRules{ResumeStep::AskWhole, std::nullopt}
                               : Refuse(ErrorCause::DownloadRangeWrong);
    }
    return {ResumeStep::Refuse, MakeHttpStatusError(head.status)};
}

bool IsPassing(EngineError const& error)
{
    constexpr std::array CAUSES = {ErrorCause::HostNotFound,     ErrorCause::ConnectionRefused,
                                   ErrorCause::ConnectTimeout,   ErrorCause::NetworkUnreachable,
                                   ErrorCause::ConnectionFailed, ErrorCause::ProxyFailed,
                                   ErrorCause::IncompleteHead,   ErrorCause::IncompleteBody};
    constexpr std::array STATUSES = {500, 502, 503, 504};
    return std::find(CAUSES.begin(), CAUSES.end(), error.cause) != CAUSES.end() ||
           std::find(STATUSES.begin(), STATUSES.end(), error.httpStatus) != STATUSES.end();
}

bool IsAnswersFault(EngineError const& error)
{
    return error.httpStatus != 0 ||
           (!IsPassing(error) && !IsAboutTheArchive(error.cause) && BlameOf(error) != Blame::Network);
}

bool IsAboutTheArchive(ErrorCause cause)
{
    return cause == ErrorCause::DownloadLengthDiffers || cause == ErrorCause::SurplusBody;
}

} // namespace Pelnar::Engine
