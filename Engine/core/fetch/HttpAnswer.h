// HttpAnswer.h: reads the bytes of one HTTP/1.x answer, strictly and within limits. No input or output of its own.
// Thread: one at a time. Ownership: values only; a sink stays its owner's and must live as long as the reader is fed.
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

/// Where the next bytes of a body go.
struct BodyRoom
{
    char* data = nullptr;
    qint64 size = 0;
};

/// Takes the body of an answer piece by piece, where a whole one would cost too much memory.
class IBodySink
{
public:
    virtual ~IBodySink() = default;

    /// The head is there: how many bytes its body may have at most, or nothing when the body is of no use.
    virtual std::optional<qint64> BeginBody(HttpHead const& head) = 0;
    /// Room for the next bytes, the same until some are taken; none while nothing can be taken.
    virtual BodyRoom Room() = 0;
    /// The first \a bytes of the room are filled.
    virtual void Took(qint64 bytes) = 0;
    /// Nothing more has arrived for now.
    virtual void Rest() = 0;
};

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

    /// Without a sink the body of an answer with status 200 is collected, and no other is read.
    explicit HttpAnswerReader(FetchLimits const& limits, IBodySink* sink = nullptr);

    /// Takes the next bytes. After Complete or Failed nothing more may be fed. REQUIRES: with a sink, no more bytes
    /// than it has room for.
    Progress Feed(QByteArray const& bytes);
    /// How many of the bytes to come are the body's for sure, so that they may go straight to the sink's room.
    qint64 DirectBytes() const;
    /// \a count bytes went there. REQUIRES: not more than DirectBytes().
    Progress TookDirectly(qint64 count);
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
    Progress CountData(qint64 count);
    Progress Fail(EngineError error);
    /// Moves the first line, without its end, out of the pending bytes; nothing when it is not there yet.
    std::optional<QByteArray> TakeLine();

    int PendingBytes() const { return m_pending.size() - m_position; }

    FetchLimits m_limits;
    IBodySink* m_sink;
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
    qint64 m_bodyBytes = 0;
    QByteArray m_body;
    EngineError m_error;
};

} // namespace Pelnar::Engine
