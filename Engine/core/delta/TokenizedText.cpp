#include "Engine/core/delta/TokenizedText.h"

#include "Engine/core/delta/DeflateCodes.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

/// A stored block: its size, the inverted size, and its bytes.
bool AddStoredBlock(BitReader& bits, Bytes data, TextInProgress& text)
{
    bits.Take((8 - bits.Position() % 8) % 8);
    std::uint32_t const size = bits.Take(16);
    bool const isSize = (bits.Take(16) ^ size) == 0xFFFF;
    std::size_t const begin = bits.Position() / 8;
    if (!isSize || begin > data.size() || size > data.size() - begin)
    {
        return false;
    }
    bits = BitReader(data, (begin + size) * 8);
    return text.AddStored(data.substr(begin, size));
}

} // namespace

TextInProgress::TextInProgress(std::size_t usualBytes, std::size_t maxBytes) : m_maxBytes(maxBytes)
{
    m_made.text.resize(std::min(usualBytes, maxBytes) + ROOM_BYTES);
}

bool TextInProgress::Grow()
{
    if (m_size > m_maxBytes)
    {
        return false;
    }
    m_made.text.resize(std::min(2 * m_size, m_maxBytes) + 2 * ROOM_BYTES);
    return true;
}

bool TextInProgress::AddStored(Bytes bytes)
{
    m_made.tokenEnd = std::exchange(m_hasStored, true) ? m_made.tokenEnd : m_size;
    if (bytes.size() > m_maxBytes - std::min(m_size, m_maxBytes))
    {
        return false;
    }
    m_made.text.resize(std::max(m_made.text.size(), m_size + bytes.size() + ROOM_BYTES));
    std::copy(bytes.begin(), bytes.end(), Begin() + m_size);
    m_size += bytes.size();
    return true;
}

std::optional<TokenizedText> TextInProgress::Take()
{
    if (m_size > m_maxBytes)
    {
        return std::nullopt;
    }
    m_made.text.resize(m_size);
    m_made.tokenEnd = m_hasStored ? m_made.tokenEnd : m_size;
    Repetitions& repetitions = m_made.repetitions;
    while (!repetitions.empty() && repetitions.back().position >= m_made.tokenEnd)
    {
        repetitions.pop_back();
    }
    return std::move(m_made);
}

std::optional<TokenizedText> Inflate(Bytes data, std::size_t trailerBytes, std::size_t usualBytes, std::size_t maxBytes)
{
    BitReader bits(data);
    TextInProgress text(usualBytes, maxBytes);
    auto const codes = std::make_unique<BlockCodes>();
    for (bool isLast = false; !isLast;)
    {
        isLast = bits.Take(1) != 0;
        auto const kind = static_cast<BlockKind>(bits.Take(2));
        bool const isRead = kind == BlockKind::Stored ? AddStoredBlock(bits, data, text)
                                                      : codes->Start(bits, kind) && codes->Read(bits, text);
        if (!isRead)
        {
            return std::nullopt;
        }
    }
    bool const isWhole = (bits.Position() + 7) / 8 + trailerBytes == data.size();
    return isWhole ? text.Take() : std::nullopt;
}

} // namespace Pelnar::Engine
