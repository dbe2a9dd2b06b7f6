// HttpAnswer.h: reads the bytes of one HTTP/1.x answer, strictly and within limits. No input or output of its own.
// Thread: any. Ownership: values only.
// Everything that two readers might understand differently (two lengths, a length beside chunks, folded or bare lines)
// is refused, not interpreted.
#pragma once

#include "Engine/core/EngineError.h"
#include "Engine/core/fetch/FetchPolicy.h"

#include <QByteArray>

#include <optional>
#include <variant>
#include <vector>

namespace Pelnar::Engine
{

struct HttpHead
{
    int status = 0;
    std::vector<HeaderField> fields; ///< names in lower case, in the order of the answer

    /// The values of every field named \a lowerCaseName.
    std::vector<QByteArray> Values(QByteArray const& lowerCaseName) const;
};

/// Parses the lines of a head, the empty line at its end left out; nothing when they are not proper HTTP/1.x.
[[nodiscard]] std::optional<HttpHead> ParseHttpHead(QByteArray const& lines);

/// How the end of a body is known.
struct BodyPlan
{
    enum class Kind
    {
        Length,
        Chunks,
        UntilClose,
    };
    Kind kind = Kind::UntilClose;
    qint64 length = 0;
};

/// How \a head frames its body, or why it is refused.
[[nodiscard]] std::variant<BodyPlan, ErrorCause> JudgeFraming(HttpHead const& head);

/// Follows an answer from its first byte to its last.
class HttpAnswerReader
{
public:
    enum class Progress
    {
        NeedsMore,
        Complete,
        Failed,
    };

    explicit HttpAnswerReader(FetchLimits const& limits);

    /// Takes the next bytes. After Complete or Failed nothing more may be fed.
    Progress Feed(QByteArray const& bytes);
    /// The connection has ended where NeedsMore was the last answer.
    Progress End();

    /// True from the end of the final head on.
    [[nodiscard]] bool HasHead() const { return m_hasHead; }
    HttpHead const& Head() const { return m_head; }
    QByteArray const& Body() const { return m_body; }
    /// Why the last progress was Failed.
    EngineError const& Error() const { return m_error; }

private:
    enum class ChunkState
    {
        Size,
        Data,
        DataEnd,
        Trailer,
    };

    Progress ReadHead();
    Progress BeginBody();
    Progress ReadBody();
    Progress ReadChunks();
    Progress TakeData(qint64 count);
    Progress Fail(EngineError error);
    /// Moves the first line, without its end, out of the pending bytes; nothing when it is not there yet.
    std::optional<QByteArray> TakeLine();

    int PendingBytes() const { return m_pending.size() - m_position; }

    FetchLimits m_limits;
    QByteArray m_pending;
    int m_position = 0;   ///< of the first byte of m_pending that has not been taken; 0 before the body
    int m_searchedTo = 0; ///< in m_pending no line ends before here
    int m_lineStart = 0;  ///< of the head's last, unfinished line
    int m_headBytes = 0;  ///< of heads and trailers read so far
    bool m_hasHead = false;
    HttpHead m_head;
    BodyPlan m_plan;
    ChunkState m_chunkState = ChunkState::Size;
    qint64 m_chunkBytesLeft = 0;
    QByteArray m_body;
    EngineError m_error;
};

} // namespace Pelnar::Engine
