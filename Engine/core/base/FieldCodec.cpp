#include "Engine/core/base/FieldCodec.h"

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t NUMBER_BYTES = 8;

} // namespace

void FieldWriter::Number(std::uint64_t number)
{
    for (std::size_t i = 0; i < NUMBER_BYTES; ++i)
    {
        m_bytes += static_cast<char>(number >> (8 * i) & 0xff);
    }
}

void FieldWriter::Text(std::string_view text)
{
    Number(text.size());
    m_bytes += text;
}

void FieldWriter::Texts(std::vector<std::string> const& texts)
{
    Number(texts.size());
    for (std::string const& text : texts)
    {
        Text(text);
    }
}

FieldReader::FieldReader(std::string_view bytes, std::string_view magic)
    : m_rest(bytes), m_isGood(bytes.substr(0, magic.size()) == magic)
{
    m_rest.remove_prefix(m_isGood ? magic.size() : m_rest.size());
}

std::uint64_t FieldReader::Number()
{
    if (m_rest.size() < NUMBER_BYTES)
    {
        m_isGood = false;
        return 0;
    }
    std::uint64_t number = 0;
    for (std::size_t i = NUMBER_BYTES; i-- > 0;)
    {
        number = number << 8 | static_cast<std::uint8_t>(m_rest[i]);
    }
    m_rest.remove_prefix(NUMBER_BYTES);
    return number;
}

std::string FieldReader::Blob()
{
    std::uint64_t const size = Number();
    if (!m_isGood || size > m_rest.size())
    {
        m_isGood = false;
        return {};
    }
    std::string blob(m_rest.substr(0, size));
    m_rest.remove_prefix(size);
    return blob;
}

std::string FieldReader::Text()
{
    std::string text = Blob();
    m_isGood = m_isGood && text.find('\0') == std::string::npos;
    return text;
}

std::vector<std::string> FieldReader::Texts()
{
    std::vector<std::string> texts;
    for (std::uint64_t count = Number(); m_isGood && count > 0; --count)
    {
        texts.push_back(Text());
    }
    return texts;
}

} // namespace Pelnar::Engine
