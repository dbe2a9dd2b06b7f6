// TokenizedText.h: the text in deflated data, with its tokens, so that the next version of the text can be packed with
// the same ones. Thread: any; no shared state. Ownership: values only. Any bytes are safe.
#pragma once

#include "Engine/core/base/Bytes.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace Pelnar::Engine
{

/// A literal byte, or a copy of earlier text.
struct DeflateToken
{
    std::uint16_t length = 0; ///< 0 for a literal
    std::uint16_t value = 0;  ///< the literal byte, or the distance

    bool operator==(DeflateToken other) const { return length == other.length && value == other.value; }
};

/// A copy of earlier text, at its place.
struct Repetition
{
    std::uint32_t position; ///< in the text
    std::uint16_t length;
    std::uint16_t distance;

    std::size_t End() const { return std::size_t(position) + length; }
    bool operator==(Repetition const& other) const
    {
        return position == other.position && length == other.length && distance == other.distance;
    }
};
using Repetitions = std::vector<Repetition>; ///< in their order

struct TokenizedText
{
    ByteBuffer text;
    Repetitions repetitions;  ///< the other bytes of the text are literals
    std::size_t tokenEnd = 0; ///< the data have a stored block there; the tokens behind it are not kept

    /// Of memory.
    std::size_t Bytes() const { return text.size() + repetitions.size() * sizeof(Repetition); }
};

/// Walks through the tokens of a text. Ownership: refers to both, which outlive it.
class TokenWalk
{
public:
    TokenWalk(Bytes text, Repetitions const& repetitions)
        : m_text(text), m_first(repetitions.data()), m_next(m_first), m_last(m_first + repetitions.size())
    {
    }
    explicit TokenWalk(TokenizedText const& text)
        : TokenWalk(View(text.text).substr(0, text.tokenEnd), text.repetitions)
    {
    }

    /// The bytes of the text whose tokens are taken.
    std::size_t Made() const { return m_made; }
    /// True if the last taken token is a repetition.
    bool IsAfterRepetition() const { return m_next != m_first && (m_next - 1)->End() == m_made; }
    /// The literals before the next repetition, at most \a most.
    Bytes TakeLiterals(std::uint64_t most)
    {
        std::size_t const end = m_next != m_last ? m_next->position : m_text.size();
        Bytes const literals =
            m_text.substr(m_made, static_cast<std::size_t>(std::min<std::uint64_t>(most, end - m_made)));
        m_made += literals.size();
        return literals;
    }
    /// Nothing at the end. REQUIRES: the literals before it are taken.
    std::optional<Repetition> TakeRepetition()
    {
        if (m_next == m_last)
        {
            return std::nullopt;
        }
        m_made = m_next->End();
        return *m_next++;
    }
    /// The next token; nothing at the end.
    std::optional<DeflateToken> Take()
    {
        if (Bytes const literal = TakeLiterals(1); !literal.empty())
        {
            return DeflateToken{0, literal.front()};
        }
        std::optional<Repetition> const next = TakeRepetition();
        return next ? std::optional<DeflateToken>(DeflateToken{next->length, next->distance}) : std::nullopt;
    }
    /// Skips tokens that begin before \a position. False if none ends there.
    [[nodiscard]] bool SkipTo(std::size_t position)
    {
        while (m_made < position)
        {
            TakeLiterals(position - m_made);
            if (m_made < position && !TakeRepetition())
            {
                return false;
            }
        }
        return m_made == position;
    }

private:
    Bytes m_text;
    Repetition const* m_first;
    Repetition const* m_next;
    Repetition const* m_last; ///< behind all
    std::size_t m_made = 0;
};

/// A text that is unpacked at the moment. Behind its bytes there is room for one more token.
class TextInProgress
{
public:
    static constexpr std::size_t ROOM_BYTES = 288; ///< the longest repetition, copied by 16 bytes

    TextInProgress(std::size_t usualBytes, std::size_t maxBytes);

    std::uint8_t* Begin() { return m_made.text.data(); }
    std::size_t Size() const { return m_size; }
    /// REQUIRES: the bytes are written.
    void SetSize(std::size_t size) { m_size = size; }
    /// The number of bytes behind which there is too little room.
    std::size_t Limit() const { return m_made.text.size() - ROOM_BYTES; }
    /// Makes room behind Size() bytes. False if the text is too long.
    [[nodiscard]] bool Grow();
    void AddRepetition(Repetition repetition) { m_made.repetitions.push_back(repetition); }
    /// Bytes without tokens. False if the text is too long.
    [[nodiscard]] bool AddStored(Bytes bytes);
    /// Nothing if the text is too long.
    [[nodiscard]] std::optional<TokenizedText> Take();

private:
    TokenizedText m_made;
    std::size_t m_size = 0;
    std::size_t m_maxBytes;
    bool m_hasStored = false;
};

/// The text in the deflated \a data. Nothing if they are damaged, if the text has more than \a maxBytes, or if not
/// exactly \a trailerBytes follow the deflated data. \a usualBytes is a guess of the text's size, which saves time.
[[nodiscard]] std::optional<TokenizedText> Inflate(Bytes data, std::size_t trailerBytes, std::size_t usualBytes,
                                                   std::size_t maxBytes);

} // namespace Pelnar::Engine
