#include "Engine/core/delta/DeflateTokens.h"

#include <zlib.h>

#include <algorithm>
#include <new>

namespace Pelnar::Engine
{
namespace
{

constexpr int WINDOW_BITS = -15; ///< without a header
constexpr std::size_t WINDOW_BYTES = 32768;
constexpr std::size_t MEETING_BYTES = 8192; ///< in which a repetition must end at the same place in both texts
constexpr std::size_t TAIL_BYTES = 1024;    ///< near the end of its input zlib finds other tokens
constexpr std::size_t LEAST_RUN_BYTES = WINDOW_BYTES + MEETING_BYTES + 2 * TAIL_BYTES;

/// A run of bytes that is in both texts.
struct EqualRun
{
    std::size_t oldBegin;
    std::size_t begin;
    std::size_t size;
};

std::size_t BytesOf(DeflateToken token)
{
    return std::max<std::size_t>(token.length, 1);
}

/// What zlib makes of \a text from \a begin to \a end, with the bytes before as its dictionary.
ByteBuffer Deflate(Bytes text, std::size_t begin, std::size_t end, DeflateParameters parameters)
{
    z_stream stream{};
    if (deflateInit2(&stream, parameters.level, Z_DEFLATED, WINDOW_BITS, parameters.memory, Z_DEFAULT_STRATEGY) != Z_OK)
    {
        throw std::bad_alloc();
    }
    std::size_t const known = std::min(begin, WINDOW_BYTES);
    if (known > 0)
    {
        static_cast<void>(deflateSetDictionary(&stream, text.data() + begin - known, static_cast<uInt>(known)));
    }
    ByteBuffer packed(deflateBound(&stream, static_cast<uLong>(end - begin)));
    stream.next_in = const_cast<Bytef*>(text.data() + begin);
    stream.avail_in = static_cast<uInt>(end - begin);
    stream.next_out = packed.data();
    stream.avail_out = static_cast<uInt>(packed.size());
    static_cast<void>(deflate(&stream, Z_FINISH)); // the buffer is large enough for all
    packed.resize(stream.total_out);
    deflateEnd(&stream);
    return packed;
}

void AppendEqualRuns(PackedBase const& base, Bytes text, std::size_t oldBegin, std::size_t begin, std::size_t size,
                     std::vector<EqualRun>& runs)
{
    for (std::size_t at = 0; at < size;)
    {
        auto const from = text.begin() + static_cast<std::ptrdiff_t>(begin + at);
        auto const old = base.text.begin() + static_cast<std::ptrdiff_t>(oldBegin + at);
        auto const equal = static_cast<std::size_t>(
            std::mismatch(from, from + static_cast<std::ptrdiff_t>(size - at), old).first - from);
        // The old tokens are read once and in order.
        bool const isBehind = runs.empty() || runs.back().oldBegin + runs.back().size <= oldBegin + at;
        if (equal >= LEAST_RUN_BYTES && isBehind)
        {
            runs.push_back({oldBegin + at, begin + at, equal});
        }
        at += equal + 1;
    }
}

std::vector<EqualRun> EqualRunsOf(PackedBase const& base, Bytes text)
{
    std::vector<EqualRun> runs;
    std::uint64_t position = 0;
    std::size_t made = 0;
    for (PatchStep const& step : base.steps)
    {
        AppendEqualRuns(base, text, static_cast<std::size_t>(position), made, static_cast<std::size_t>(step.likeBytes),
                        runs);
        made += static_cast<std::size_t>(step.likeBytes + step.extraBytes);
        position = MovedBy(position + step.likeBytes, step.move);
    }
    return runs;
}

/// After a repetition, what zlib does depends only on its window and on the following text. So if a repetition ends at
/// the same place in both texts, and windows and following texts are equal, the next tokens are equal, too.
class TokenCopier
{
public:
    TokenCopier(Bytes oldData, Bytes text, DeflateParameters parameters)
        : m_old(oldData), m_text(text), m_parameters(parameters)
    {
        // Pages without tokens take no memory. A vector that grows would need the tokens twice.
        m_tokens.reserve(text.size());
    }

    [[nodiscard]] bool Copy(EqualRun const& run) { return Meet(run) && CopyOldTokens(run); }
    [[nodiscard]] bool AddRest()
    {
        ByteBuffer const packed = Deflate(m_text, m_made, m_text.size(), m_parameters);
        TokenReader tokens(View(packed));
        for (DeflateToken token; m_made < m_text.size() && tokens.Next(token);)
        {
            Add(token);
        }
        return m_made == m_text.size();
    }
    DeflateTokens&& Take() { return std::move(m_tokens); }

private:
    void Add(DeflateToken token)
    {
        m_tokens.push_back(token);
        m_made += BytesOf(token);
    }

    /// Lets zlib find tokens, up to a place in \a run where a repetition ends in both texts.
    bool Meet(EqualRun const& run)
    {
        std::size_t const first = run.begin + WINDOW_BYTES;
        std::size_t const last = first + MEETING_BYTES;
        ByteBuffer const packed = Deflate(m_text, m_made, last + TAIL_BYTES, m_parameters);
        TokenReader tokens(View(packed));
        for (DeflateToken token; m_made < last && tokens.Next(token);)
        {
            Add(token);
            if (m_made >= first && token.length > 0 && IsOldEnd(run.oldBegin + (m_made - run.begin)))
            {
                return true;
            }
        }
        return false;
    }

    /// True if a repetition of the old text ends at \a position.
    bool IsOldEnd(std::size_t position)
    {
        while (m_oldMade < position && m_old.Next(m_oldToken))
        {
            m_oldMade += BytesOf(m_oldToken);
        }
        return m_oldMade == position && m_oldToken.length > 0;
    }

    /// Ends after a repetition, so that zlib can continue.
    bool CopyOldTokens(EqualRun const& run)
    {
        std::size_t const end = run.oldBegin + run.size - TAIL_BYTES;
        std::size_t count = m_tokens.size();
        std::size_t made = m_made;
        while (m_oldMade < end && m_old.Next(m_oldToken))
        {
            Add(m_oldToken);
            m_oldMade += BytesOf(m_oldToken);
            if (m_oldToken.length > 0)
            {
                count = m_tokens.size();
                made = m_made;
            }
        }
        m_tokens.resize(count);
        m_made = made;
        return m_oldMade >= end;
    }

    TokenReader m_old;
    DeflateToken m_oldToken;
    std::size_t m_oldMade = 0; ///< bytes of the old text whose tokens are read
    Bytes m_text;
    DeflateParameters m_parameters;
    DeflateTokens m_tokens;
    std::size_t m_made = 0; ///< bytes of the text that the tokens make
};

} // namespace

bool TokenReader::StartBlock()
{
    m_isLast = m_bits.Take(1) != 0;
    m_kind = static_cast<BlockKind>(m_bits.Take(2));
    bool const hasCodes = m_kind == BlockKind::Fixed     ? m_codes->SetFixed()
                          : m_kind == BlockKind::Dynamic ? m_codes->ReadDynamic(m_bits)
                                                         : false;
    if (hasCodes)
    {
        m_codes->StartReading();
    }
    return hasCodes;
}

bool TokenReader::Next(DeflateToken& token)
{
    for (;;)
    {
        if (!m_isInBlock && (m_isLast || !StartBlock()))
        {
            return false;
        }
        bool isEnd = false;
        if (!Next(token, isEnd))
        {
            return false;
        }
        m_isInBlock = !isEnd;
        if (!isEnd)
        {
            return true;
        }
    }
}

std::optional<DeflateTokens> TokensOf(Bytes text, DeflateParameters parameters)
{
    TokenCopier copier({}, text, parameters);
    return copier.AddRest() ? std::optional<DeflateTokens>(copier.Take()) : std::nullopt;
}

std::optional<DeflateTokens> TokensLike(PackedBase const& base, Bytes text, DeflateParameters parameters)
{
    std::vector<EqualRun> const runs = EqualRunsOf(base, text);
    TokenCopier copier(base.data, text, parameters);
    bool const isCopied =
        !runs.empty() && std::all_of(runs.begin(), runs.end(), [&copier](EqualRun run) { return copier.Copy(run); });
    return isCopied && copier.AddRest() ? std::optional<DeflateTokens>(copier.Take()) : std::nullopt;
}

} // namespace Pelnar::Engine
