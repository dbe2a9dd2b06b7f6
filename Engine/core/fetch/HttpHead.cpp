#include "Engine/core/fetch/HttpHead.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

constexpr int STATUS_SWITCHING_PROTOCOLS = 101;

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

/// The status of "HTTP/1.1 200 OK" or "HTTP/2 200", or empty.
std::optional<int> ParseStatusLine(QByteArray const& line)
{
    constexpr std::array VERSIONS = {"HTTP/1.0 ", "HTTP/1.1 ", "HTTP/2 "};
    auto const version = std::find_if(VERSIONS.begin(), VERSIONS.end(),
                                      [&line](char const* candidate) { return line.startsWith(candidate); });
    if (version == VERSIONS.end() || !std::all_of(line.begin(), line.end(), IsFieldCharacter))
    {
        return std::nullopt;
    }
    QByteArray const rest = line.mid(static_cast<int>(std::strlen(*version)));
    bool const isNumber = rest.size() >= 3 && std::all_of(rest.begin(), rest.begin() + 3, IsDigit) &&
                          (rest.size() == 3 || rest[3] == ' ');
    int const status = isNumber ? rest.left(3).toInt() : 0;
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

/// A non-negative decimal number that fits, or empty.
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

QByteArray HttpHead::OnlyValue(QByteArray const& lowerCaseName) const
{
    std::vector<QByteArray> const values = Values(lowerCaseName);
    return values.size() == 1 ? values.front() : QByteArray();
}

Result<BodyPlan> JudgeFraming(HttpHead const& head)
{
    for (QByteArray const& encoding : head.Values("content-encoding"))
    {
        if (encoding.toLower() != "identity")
        {
            return Failure(ErrorCause::ContentEncodingRefused);
        }
    }
    std::vector<QByteArray> const lengths = head.Values("content-length");
    std::vector<QByteArray> const transfers = head.Values("transfer-encoding");
    if (!transfers.empty())
    {
        if (transfers.size() > 1 || transfers.front().toLower() != "chunked")
        {
            return Failure(ErrorCause::TransferEncodingRefused);
        }
        if (!lengths.empty())
        {
            return Failure(ErrorCause::ContradictoryLength);
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
        return Failure(ErrorCause::ContradictoryLength);
    }
    return BodyPlan{BodyPlan::Kind::Length, *length};
}

HttpHeadReader::Progress HttpHeadReader::Take(QByteArray const& line)
{
    m_bytes += line.size();
    if (m_bytes > m_maxBytes)
    {
        return Fail(ErrorCause::HeadTooLarge);
    }
    if (!line.endsWith("\r\n"))
    {
        return Fail(ErrorCause::MalformedHead);
    }
    QByteArray const content = line.left(line.size() - 2);
    if (m_hasHead)
    {
        return Progress::NeedsMore; // the trailer contains nothing useful
    }
    if (m_head.status == 0)
    {
        std::optional<int> const status = ParseStatusLine(content);
        m_head.status = status.value_or(0);
        return status ? Progress::NeedsMore : Fail(ErrorCause::MalformedHead);
    }
    if (content.isEmpty())
    {
        return EndHead();
    }
    std::optional<HeaderField> field = ParseField(content);
    if (!field)
    {
        return Fail(ErrorCause::MalformedHead);
    }
    m_head.fields.push_back(std::move(*field));
    return Progress::NeedsMore;
}

HttpHeadReader::Progress HttpHeadReader::EndHead()
{
    // It would switch to another protocol.
    if (m_head.status == STATUS_SWITCHING_PROTOCOLS)
    {
        return Fail(ErrorCause::MalformedHead);
    }
    if (m_head.status < 200)
    {
        Restart(); // informational: the final answer follows
        return Progress::NeedsMore;
    }
    m_hasHead = true;
    return Progress::Complete;
}

void HttpHeadReader::Restart()
{
    m_head = {};
    m_hasHead = false;
}

HttpHeadReader::Progress HttpHeadReader::Fail(ErrorCause cause)
{
    m_error = cause;
    return Progress::Failed;
}

} // namespace Pelnar::Engine
