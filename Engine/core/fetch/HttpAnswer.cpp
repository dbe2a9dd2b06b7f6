#include "Engine/core/fetch/HttpAnswer.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

constexpr int MAX_CHUNK_LINE_BYTES = 256;

bool IsTokenCharacter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || (character && std::strchr("!#$%&'*+-.^_`|~", character));
}

bool IsFieldCharacter(char character)
{
    return character == '\t' || (static_cast<unsigned char>(character) >= ' ' && character != 0x7f);
}

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// "HTTP/1.1 200 OK": the status, or nothing.
std::optional<int> ParseStatusLine(QByteArray const& line)
{
    bool const isHttp1 = line.startsWith("HTTP/1.0 ") || line.startsWith("HTTP/1.1 ");
    if (!isHttp1 || line.size() < 12 || !std::all_of(line.begin() + 9, line.begin() + 12, IsDigit) ||
        (line.size() > 12 && line[12] != ' ') || !std::all_of(line.begin(), line.end(), IsFieldCharacter))
    {
        return std::nullopt;
    }
    int const status = line.mid(9, 3).toInt();
    return status >= 100 && status < 600 ? std::optional(status) : std::nullopt;
}

std::optional<HeaderField> ParseField(QByteArray const& line)
{
    int const colon = line.indexOf(':');
    if (colon < 1 || !std::all_of(line.begin(), line.begin() + colon, IsTokenCharacter) ||
        !std::all_of(line.begin() + colon, line.end(), IsFieldCharacter))
    {
        return std::nullopt;
    }
    return HeaderField{line.left(colon).toLower(), line.mid(colon + 1).trimmed()};
}

/// A non-negative decimal number that fits, or nothing.
std::optional<qint64> ParseLength(QByteArray const& text)
{
    if (text.isEmpty() || !std::all_of(text.begin(), text.end(), IsDigit))
    {
        return std::nullopt;
    }
    bool isNumber = false;
    qint64 const length = text.toLongLong(&isNumber);
    return isNumber ? std::optional(length) : std::nullopt;
}

/// The size that begins a chunk; an extension after ";" is passed over.
std::optional<qint64> ParseChunkSize(QByteArray const& line)
{
    int const semicolon = line.indexOf(';');
    QByteArray const digits = (semicolon < 0 ? line : line.left(semicolon)).trimmed();
    bool const isHex = !digits.isEmpty() && digits.size() <= 15 &&
                       std::all_of(digits.begin(), digits.end(),
                                   [](char character) {
                                       return IsDigit(character) || (character >= 'a' && character <= 'f') ||
                                              (character >= 'A' && character <= 'F');
                                   });
    return isHex ? std::optional<qint64>(digits.toLongLong(nullptr, 16)) : std::nullopt;
}

} // namespace

std::vector<QByteArray> HttpHead::Values(QByteArray const& lowerCaseName) const
{
    std::vector<QByteArray> values;
    for (HeaderField const& field : fields)
    {
        if (field.name == lowerCaseName)
        {
            values.push_back(field.value);
        }
    }
    return values;
}

std::optional<HttpHead> ParseHttpHead(QByteArray const& lines)
{
    HttpHead head;
    bool isFirst = true;
    for (QByteArray line : lines.split('\n'))
    {
        if (line.endsWith('\r'))
        {
            line.chop(1);
        }
        if (isFirst)
        {
            std::optional<int> const status = ParseStatusLine(line);
            if (!status)
            {
                return std::nullopt;
            }
            head.status = *status;
            isFirst = false;
            continue;
        }
        std::optional<HeaderField> field = ParseField(line);
        if (!field)
        {
            return std::nullopt;
        }
        head.fields.push_back(std::move(*field));
    }
    return head;
}

std::variant<BodyPlan, ErrorCause> JudgeFraming(HttpHead const& head)
{
    for (QByteArray const& encoding : head.Values("content-encoding"))
    {
        if (encoding.toLower() != "identity")
        {
            return ErrorCause::ContentEncodingRefused;
        }
    }
    std::vector<QByteArray> const lengths = head.Values("content-length");
    std::vector<QByteArray> const transfers = head.Values("transfer-encoding");
    if (!transfers.empty())
    {
        if (transfers.size() > 1 || transfers.front().toLower() != "chunked")
        {
            return ErrorCause::TransferEncodingRefused;
        }
        if (!lengths.empty())
        {
            return ErrorCause::ContradictoryLength;
        }
        return BodyPlan{BodyPlan::Kind::Chunks, 0};
    }
    if (lengths.empty())
    {
        return BodyPlan{};
    }
    std::optional<qint64> const length = ParseLength(lengths.front());
    if (lengths.size() > 1 || !length)
    {
        return ErrorCause::ContradictoryLength;
    }
    return BodyPlan{BodyPlan::Kind::Length, *length};
}

HttpAnswerReader::HttpAnswerReader(FetchLimits const& limits, IBodySink* sink) : m_limits(limits), m_sink(sink) {}

HttpAnswerReader::Progress HttpAnswerReader::Feed(QByteArray const& bytes)
{
    m_pending.remove(0, m_position);
    m_position = 0;
    m_pending += bytes;
    if (!m_hasHead)
    {
        Progress const progress = ReadHead();
        if (progress != Progress::NeedsMore || !m_hasHead)
        {
            return progress;
        }
    }
    return ReadBody();
}

HttpAnswerReader::Progress HttpAnswerReader::End()
{
    if (!m_hasHead)
    {
        return Fail(MakeError(ErrorCause::IncompleteHead));
    }
    return m_plan.kind == BodyPlan::Kind::UntilClose ? Progress::Complete : Fail(MakeError(ErrorCause::IncompleteBody));
}

HttpAnswerReader::Progress HttpAnswerReader::ReadHead()
{
    for (;;)
    {
        int const lineEnd = m_pending.indexOf('\n', m_searchedTo);
        if (m_headBytes + (lineEnd < 0 ? m_pending.size() : lineEnd + 1) > m_limits.maxHeadBytes)
        {
            return Fail(MakeError(ErrorCause::HeadTooLarge));
        }
        if (lineEnd < 0)
        {
            m_searchedTo = m_pending.size();
            return Progress::NeedsMore;
        }
        int const lineLength = lineEnd - m_lineStart;
        bool const isEmptyLine = lineLength == 0 || (lineLength == 1 && m_pending[m_lineStart] == '\r');
        m_searchedTo = lineEnd + 1;
        if (!isEmptyLine)
        {
            m_lineStart = lineEnd + 1;
            continue;
        }
        std::optional<HttpHead> head = ParseHttpHead(m_pending.left(std::max(m_lineStart - 1, 0)));
        // 101 would switch to a protocol that was not asked for.
        if (!head || head->status == 101)
        {
            return Fail(MakeError(ErrorCause::MalformedHead));
        }
        m_headBytes += lineEnd + 1;
        m_pending.remove(0, lineEnd + 1);
        m_searchedTo = 0;
        m_lineStart = 0;
        if (head->status < 200)
        {
            continue; // informational: the answer is still to come
        }
        m_head = std::move(*head);
        m_hasHead = true;
        return BeginBody();
    }
}

HttpAnswerReader::Progress HttpAnswerReader::BeginBody()
{
    if (m_sink)
    {
        std::optional<qint64> const most = m_sink->BeginBody(m_head);
        if (!most)
        {
            return Progress::Complete;
        }
        m_limits.maxBodyBytes = *most;
    }
    else if (m_head.status != 200)
    {
        // What the body of another answer says is of no use here.
        return Progress::Complete;
    }
    std::variant<BodyPlan, ErrorCause> const framing = JudgeFraming(m_head);
    if (ErrorCause const* const cause = std::get_if<ErrorCause>(&framing))
    {
        return Fail(MakeError(*cause));
    }
    m_plan = std::get<BodyPlan>(framing);
    return m_plan.kind == BodyPlan::Kind::Length && m_plan.length > m_limits.maxBodyBytes
               ? Fail(MakeError(ErrorCause::BodyTooLarge))
               : Progress::NeedsMore;
}

HttpAnswerReader::Progress HttpAnswerReader::ReadBody()
{
    switch (m_plan.kind)
    {
    case BodyPlan::Kind::Length:
        if (m_bodyBytes + PendingBytes() > m_plan.length)
        {
            return Fail(MakeError(ErrorCause::SurplusBody));
        }
        if (Progress const progress = TakeData(PendingBytes()); progress != Progress::NeedsMore)
        {
            return progress;
        }
        return m_bodyBytes == m_plan.length ? Progress::Complete : Progress::NeedsMore;
    case BodyPlan::Kind::Chunks:
        return ReadChunks();
    case BodyPlan::Kind::UntilClose:
        return TakeData(PendingBytes());
    }
    return Fail(MakeError(ErrorCause::MalformedHead));
}

HttpAnswerReader::Progress HttpAnswerReader::ReadChunks()
{
    for (;;)
    {
        if (m_chunkState == ChunkState::Data)
        {
            qint64 const count = std::min<qint64>(m_chunkBytesLeft, PendingBytes());
            if (Progress const progress = TakeData(count); progress != Progress::NeedsMore)
            {
                return progress;
            }
            m_chunkBytesLeft -= count;
            if (m_chunkBytesLeft > 0)
            {
                return Progress::NeedsMore;
            }
            m_chunkState = ChunkState::DataEnd;
        }
        std::optional<QByteArray> const line = TakeLine();
        if (!line)
        {
            bool const isTooLong = PendingBytes() > MAX_CHUNK_LINE_BYTES && m_chunkState != ChunkState::Trailer;
            return isTooLong                                              ? Fail(MakeError(ErrorCause::MalformedChunk))
                   : m_headBytes + PendingBytes() > m_limits.maxHeadBytes ? Fail(MakeError(ErrorCause::HeadTooLarge))
                                                                          : Progress::NeedsMore;
        }
        if (m_chunkState == ChunkState::Size)
        {
            std::optional<qint64> const size = ParseChunkSize(*line);
            if (!size || line->size() > MAX_CHUNK_LINE_BYTES)
            {
                return Fail(MakeError(ErrorCause::MalformedChunk));
            }
            m_chunkBytesLeft = *size;
            m_chunkState = *size == 0 ? ChunkState::Trailer : ChunkState::Data;
        }
        else if (m_chunkState == ChunkState::DataEnd)
        {
            if (!line->isEmpty())
            {
                return Fail(MakeError(ErrorCause::MalformedChunk));
            }
            m_chunkState = ChunkState::Size;
        }
        else
        {
            m_headBytes += line->size() + 2;
            if (m_headBytes > m_limits.maxHeadBytes)
            {
                return Fail(MakeError(ErrorCause::HeadTooLarge));
            }
            if (line->isEmpty())
            {
                return PendingBytes() == 0 ? Progress::Complete : Fail(MakeError(ErrorCause::SurplusBody));
            }
        }
    }
}

HttpAnswerReader::Progress HttpAnswerReader::TakeData(qint64 count)
{
    if (m_sink && count > 0 && m_bodyBytes + count <= m_limits.maxBodyBytes)
    {
        std::memcpy(m_sink->Room().data, m_pending.constData() + m_position, static_cast<std::size_t>(count));
    }
    if (Progress const progress = CountData(count); progress != Progress::NeedsMore)
    {
        return progress;
    }
    if (!m_sink)
    {
        m_body.append(m_pending.constData() + m_position, static_cast<int>(count));
    }
    m_position += static_cast<int>(count);
    return Progress::NeedsMore;
}

HttpAnswerReader::Progress HttpAnswerReader::CountData(qint64 count)
{
    if (m_bodyBytes + count > m_limits.maxBodyBytes)
    {
        return Fail(MakeError(ErrorCause::BodyTooLarge));
    }
    m_bodyBytes += count;
    if (m_sink && count > 0)
    {
        m_sink->Took(count);
    }
    return Progress::NeedsMore;
}

qint64 HttpAnswerReader::DirectBytes() const
{
    if (!m_sink || !m_hasHead || PendingBytes() > 0)
    {
        return 0;
    }
    switch (m_plan.kind)
    {
    case BodyPlan::Kind::Length:
        return m_plan.length - m_bodyBytes;
    case BodyPlan::Kind::Chunks:
        return m_chunkState == ChunkState::Data ? m_chunkBytesLeft : 0;
    case BodyPlan::Kind::UntilClose:
        return m_limits.maxBodyBytes + 1 - m_bodyBytes; // the one more tells that there is one
    }
    return 0;
}

HttpAnswerReader::Progress HttpAnswerReader::TookDirectly(qint64 count)
{
    if (Progress const progress = CountData(count); progress != Progress::NeedsMore)
    {
        return progress;
    }
    if (m_plan.kind == BodyPlan::Kind::Chunks)
    {
        m_chunkBytesLeft -= count;
    }
    bool const isWhole = m_plan.kind == BodyPlan::Kind::Length && m_bodyBytes == m_plan.length;
    return isWhole ? Progress::Complete : Progress::NeedsMore;
}

HttpAnswerReader::Progress HttpAnswerReader::Fail(EngineError error)
{
    m_error = std::move(error);
    m_body.clear();
    return Progress::Failed;
}

std::optional<QByteArray> HttpAnswerReader::TakeLine()
{
    int const lineEnd = m_pending.indexOf('\n', m_position);
    if (lineEnd < 0)
    {
        return std::nullopt;
    }
    QByteArray line = m_pending.mid(m_position, lineEnd - m_position);
    m_position = lineEnd + 1;
    if (line.endsWith('\r'))
    {
        line.chop(1);
    }
    return line;
}

} // namespace Pelnar::Engine
