// HttpHead.h: the head of one HTTP answer, read strictly and within a limit. What two readers might understand
// differently (two lengths, a length beside chunks, folded lines, bare line ends) is refused, not interpreted.
// Thread: one at a time. Ownership: values only.
#pragma once

#include "Engine/core/EngineError.h"
#include "Engine/core/fetch/FetchPolicy.h"

#include <QByteArray>

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
    /// The value of the field, when it is there exactly once.
    QByteArray OnlyValue(QByteArray const& lowerCaseName) const;
};

/// How the end of a body is known.
struct BodyPlan
{
    enum class Kind
    {
        Length,
        Chunks,
        UntilClose, ///< by the connection's end, or by the protocol's own frames
    };
    Kind kind = Kind::UntilClose;
    qint64 length = 0;
};

/// How \a head frames its body, or why it is refused.
[[nodiscard]] std::variant<BodyPlan, ErrorCause> JudgeFraming(HttpHead const& head);

/// Reads an answer's head line by line, with the informational heads before it and the trailer behind the body.
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

    /// Takes a whole line with its end. After Failed no more may be given.
    Progress Take(QByteArray const& line);
    /// The complete head was a question, to which another answer follows: it begins with the next line.
    void Restart();

    /// True from the end of the final head on.
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
