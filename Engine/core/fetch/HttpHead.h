// HttpHead.h: the head of one HTTP answer, parsed strictly and within a limit. If two readers could understand a head
// differently (two lengths, a length with chunks, folded lines, bare line ends), it is refused and not interpreted.
// Thread: one at a time.
#pragma once

#include "Engine/core/faults/Result.h"
#include "Engine/core/fetch/FetchRules.h"

#include <QByteArray>

#include <vector>

namespace Pelnar::Engine
{

struct HttpHead
{
    int status = 0;
    std::vector<HeaderField> fields; ///< names in lower case, in the order of the answer

    /// The values of every field named \a lowerCaseName.
    std::vector<QByteArray> Values(QByteArray const& lowerCaseName) const;
    /// The value of the field if it appears exactly once.
    QByteArray OnlyValue(QByteArray const& lowerCaseName) const;
};

/// How a body ends.
struct BodyPlan
{
    enum class Kind
    {
        Length,
        Chunks,
        UntilClose, ///< with the connection, or by the protocol's own frames
    };
    Kind kind = Kind::UntilClose;
    qint64 length = 0;
};

/// How \a head frames its body, or why it is refused.
[[nodiscard]] Result<BodyPlan> JudgeFraming(HttpHead const& head);

/// Reads an answer's head line by line, with the informational heads before it and the trailer after the body.
class HttpHeadReader
{
public:
    enum class Progress
    {
        NeedsMore,
        Complete, ///< this line ended the head
        Failed,
    };

    /// \a maxBytes is the limit for all lines together.
    explicit HttpHeadReader(int maxBytes) : m_maxBytes(maxBytes) {}

    /// Reads a whole line including its end. After Failed, no further call is allowed.
    Progress Take(QByteArray const& line);
    /// Another head follows the complete one, because that one was informational: it begins with the next line.
    void Restart();

    /// True once the final head has ended.
    [[nodiscard]] bool HasHead() const { return m_hasHead; }
    HttpHead const& Head() const { return m_head; }
    /// Why the last progress was Failed.
    ErrorCause Error() const { return m_error; }

private:
    Progress EndHead();
    Progress Fail(ErrorCause cause);

    int m_maxBytes;
    int m_bytes = 0;
    bool m_hasHead = false;
    HttpHead m_head;
    ErrorCause m_error = ErrorCause::MalformedHead;
};

} // namespace Pelnar::Engine
