#include "Engine/core/delta/DeflateTokens.h"

#include <zlib.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

constexpr int WINDOW_BITS = -15; ///< without a header
constexpr std::size_t WINDOW_BYTES = 32768;
constexpr std::size_t MEETING_BYTES = 8192; ///< in which a repetition must end at the same place in both texts
constexpr std::size_t USUAL_MEETING_BYTES = 512;
constexpr std::size_t TAIL_BYTES = 1024; ///< near the end of its input zlib finds other tokens
constexpr std::size_t LEAST_RUN_BYTES = WINDOW_BYTES + MEETING_BYTES + 2 * TAIL_BYTES;
constexpr std::size_t LEAST_CORRECTED_RUN_BYTES = MEETING_BYTES + 2 * TAIL_BYTES;
constexpr std::uint64_t SHORTEST_REPETITION = 3;
constexpr std::uint64_t LONGEST_REPETITION = 258;

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

/// How many bytes \a a and \a b, of \a size bytes, have in common before their first difference.
std::size_t EqualBytes(std::uint8_t const* a, std::uint8_t const* b, std::size_t size)
{
    constexpr std::size_t BLOCK_BYTES = 256;
    std::size_t equal = 0;
    while (size - equal >= BLOCK_BYTES && std::memcmp(a + equal, b + equal, BLOCK_BYTES) == 0)
    {
        equal += BLOCK_BYTES;
    }
    return static_cast<std::size_t>(std::mismatch(a + equal, a + size, b + equal).first - a);
}

void AppendEqualRuns(PackedBase const& base, Bytes text, std::size_t leastBytes, EqualRun like,
                     std::vector<EqualRun>& runs)
{
    auto const [oldBegin, begin, size] = like;
    for (std::size_t at = 0; at < size;)
    {
        std::size_t const equal =
            EqualBytes(text.data() + begin + at, base.text.text.data() + oldBegin + at, size - at);
        // The old tokens are read once and in order.
        bool const isBehind = runs.empty() || runs.back().oldBegin + runs.back().size <= oldBegin + at;
        if (equal >= leastBytes && isBehind)
        {
            runs.push_back({oldBegin + at, begin + at, equal});
        }
        at += equal + 1;
    }
}

std::vector<EqualRun> EqualRunsOf(PackedBase const& base, Bytes text, std::size_t leastBytes)
{
    std::vector<EqualRun> runs;
    std::uint64_t position = 0;
    std::size_t made = 0;
    for (PatchStep const& step : base.steps)
    {
        AppendEqualRuns(base, text, leastBytes,
                        {static_cast<std::size_t>(position), made, static_cast<std::size_t>(step.likeBytes)}, runs);
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
    TokenCopier(TokenizedText const& old, Bytes text, DeflateParameters parameters)
        : m_old(old), m_text(text), m_parameters(parameters)
    {
        // Unused pages take no memory. A vector that grows would need the repetitions twice.
        m_repetitions.reserve(text.size() / SHORTEST_REPETITION + 1);
    }

    [[nodiscard]] bool Copy(EqualRun const& run) { return Meet(run, run.begin + WINDOW_BYTES) && CopyOldTokens(run); }
    /// Copies the tokens of \a run with its corrections.
    [[nodiscard]] bool Correct(EqualRun const& run, CorrectionReader& corrections)
    {
        if (!Meet(run, run.begin))
        {
            return false;
        }
        for (std::uint64_t left = corrections.Take(); left > 0; --left)
        {
            if (!CopyTokens(corrections.Take()) || !AddCorrection(run, corrections))
            {
                return false;
            }
        }
        return CopyTokens(corrections.Take()) && corrections.IsGood();
    }
    /// Finds the corrections of \a run. \a wanted reads the tokens of the text.
    [[nodiscard]] bool FindCorrections(EqualRun const& run, TokenWalk& wanted, TokenCorrections& corrections);
    [[nodiscard]] bool AddRest()
    {
        if (m_made == m_text.size())
        {
            return true;
        }
        ByteBuffer const packed = Deflate(m_text, m_made, m_text.size(), m_parameters);
        TokenReader tokens(View(packed));
        for (DeflateToken token; m_made < m_text.size() && tokens.Next(token);)
        {
            Add(token);
        }
        return m_made == m_text.size();
    }
    Repetitions&& Take() { return std::move(m_repetitions); }

private:
    void Add(DeflateToken token)
    {
        if (token.length > 0)
        {
            m_repetitions.push_back({static_cast<std::uint32_t>(m_made), token.length, token.value});
        }
        m_made += BytesOf(token);
    }

    /// Lets zlib find tokens, up to the first place in \a run, from \a first on, where a repetition ends in both texts.
    bool Meet(EqualRun const& run, std::size_t first)
    {
        return Meet(run, first, USUAL_MEETING_BYTES) || Meet(run, first, MEETING_BYTES);
    }

    /// False, without tokens, if there is no such place among \a meetingBytes. It may be tried again with more.
    bool Meet(EqualRun const& run, std::size_t first, std::size_t meetingBytes)
    {
        std::size_t const count = m_repetitions.size();
        std::size_t const made = m_made;
        std::size_t const last = first + meetingBytes;
        if (made > last)
        {
            return false; // corrections may go on behind their run
        }
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
        m_repetitions.resize(count);
        m_made = made;
        return false;
    }

    /// True if a repetition of the old text ends at \a position.
    bool IsOldEnd(std::size_t position) { return m_old.SkipTo(position) && m_old.IsAfterRepetition(); }

    /// Ends after a repetition, so that zlib can continue.
    bool CopyOldTokens(EqualRun const& run)
    {
        std::size_t const end = run.oldBegin + run.size - TAIL_BYTES;
        std::size_t made = m_made;
        while (m_old.Made() < end)
        {
            m_made += m_old.TakeLiterals(end - m_old.Made()).size();
            if (m_old.Made() == end)
            {
                break;
            }
            if (!CopyRepetition())
            {
                return false;
            }
            made = m_made;
        }
        m_made = made;
        return true;
    }

    bool CopyTokens(std::uint64_t count)
    {
        while (count > 0)
        {
            std::size_t const literals =
                m_old.TakeLiterals(std::min<std::uint64_t>(count, m_text.size() - m_made)).size();
            m_made += literals;
            count -= literals;
            if (count > 0 && !CopyRepetition())
            {
                return false;
            }
            count -= count > 0 ? 1 : 0;
        }
        return true;
    }

    /// False if the old text has no more, or if it is longer than the rest of the text.
    bool CopyRepetition()
    {
        std::optional<Repetition> repetition = m_old.TakeRepetition();
        if (!repetition || repetition->length > m_text.size() - m_made)
        {
            return false;
        }
        repetition->position = static_cast<std::uint32_t>(m_made);
        m_repetitions.push_back(*repetition);
        m_made = repetition->End();
        return true;
    }

    bool AddCorrection(EqualRun const& run, CorrectionReader& corrections)
    {
        for (std::uint64_t left = corrections.Take(); left > 0; --left)
        {
            std::uint64_t const length = corrections.Take();
            std::uint64_t const distance = length > 0 ? corrections.Take() : 1;
            bool const isToken = length == 0 || (length >= SHORTEST_REPETITION && length <= LONGEST_REPETITION);
            if (!corrections.IsGood() || !isToken || distance == 0 || distance > WINDOW_BYTES ||
                std::max<std::uint64_t>(length, 1) > m_text.size() - m_made)
            {
                return false;
            }
            Add({static_cast<std::uint16_t>(length),
                 static_cast<std::uint16_t>(length > 0 ? distance : m_text[m_made])});
        }
        // The old tokens of the same bytes.
        return corrections.IsGood() && m_old.SkipTo(run.oldBegin + (m_made - run.begin));
    }

    /// Takes wanted tokens after \a first, and old tokens, until both end at the same place. Empty if they do not.
    DeflateTokens FindCorrection(EqualRun const& run, DeflateToken first, TokenWalk& wanted)
    {
        DeflateTokens tokens{first};
        Add(first);
        while (m_made - run.begin != m_old.Made() - run.oldBegin)
        {
            bool const isBehind = m_made - run.begin < m_old.Made() - run.oldBegin;
            std::optional<DeflateToken> const token = isBehind ? wanted.Take() : m_old.Take();
            if (!token)
            {
                return {};
            }
            if (isBehind)
            {
                tokens.push_back(*token);
                Add(*token);
            }
        }
        return tokens;
    }

    TokenWalk m_old;
    Bytes m_text;
    DeflateParameters m_parameters;
    Repetitions m_repetitions;
    std::size_t m_made = 0; ///< bytes of the text that the tokens make
};

bool TokenCopier::FindCorrections(EqualRun const& run, TokenWalk& wanted, TokenCorrections& corrections)
{
    // The caller checks that zlib finds the wanted tokens up to here.
    if (!Meet(run, run.begin) || !wanted.SkipTo(m_made))
    {
        return false;
    }
    std::size_t const countAt = corrections.size();
    corrections.push_back(0);
    std::uint64_t copied = 0;
    // zlib goes on after a repetition, and well before the end of a run that ends inside the text.
    std::size_t const end = run.begin + run.size;
    bool const isLast = end == m_text.size();
    std::size_t const stop = isLast ? end : end - TAIL_BYTES;
    for (bool isRepetition = true; m_made < stop || (!isLast && !isRepetition);)
    {
        bool const isInside = isLast || m_made < end;
        std::optional<DeflateToken> const token = wanted.Take();
        std::optional<DeflateToken> const oldToken = m_old.Take();
        if (!isInside || corrections.size() > MAX_CORRECTION_NUMBERS || !token || !oldToken)
        {
            return false;
        }
        if (*token == *oldToken)
        {
            Add(*token);
            ++copied;
            isRepetition = token->length > 0;
            continue;
        }
        DeflateTokens const tokens = FindCorrection(run, *token, wanted);
        if (tokens.empty())
        {
            return false;
        }
        AppendCorrection(corrections, std::exchange(copied, 0), tokens);
        ++corrections[countAt];
        isRepetition = tokens.back().length > 0;
    }
    corrections.push_back(copied);
    return corrections.size() <= MAX_CORRECTION_NUMBERS;
}

} // namespace

bool TokenReader::StartBlock()
{
    m_isLast = m_bits.Take(1) != 0;
    m_kind = static_cast<BlockKind>(m_bits.Take(2));
    return m_codes->Start(m_bits, m_kind);
}

bool TokenReader::Next(DeflateToken& token)
{
    while (m_isInBlock || (!m_isLast && StartBlock()))
    {
        bool isEnd = false;
        bool const isRead = Next(token, isEnd);
        m_isInBlock = isRead && !isEnd;
        if (!isEnd)
        {
            return isRead;
        }
    }
    return false;
}

std::optional<Repetitions> TokensOf(Bytes text, DeflateParameters parameters)
{
    TokenizedText const old;
    TokenCopier copier(old, text, parameters);
    return copier.AddRest() ? std::optional<Repetitions>(copier.Take()) : std::nullopt;
}

std::optional<Repetitions> TokensLike(PackedBase const& base, Bytes text, DeflateParameters parameters)
{
    std::vector<EqualRun> const runs = EqualRunsOf(base, text, LEAST_RUN_BYTES);
    TokenCopier copier(base.text, text, parameters);
    bool const isCopied =
        !runs.empty() && std::all_of(runs.begin(), runs.end(), [&copier](EqualRun run) { return copier.Copy(run); });
    return isCopied && copier.AddRest() ? std::optional<Repetitions>(copier.Take()) : std::nullopt;
}

std::optional<Repetitions> CorrectedTokens(PackedBase const& base, Bytes text, DeflateParameters parameters,
                                           TokenCorrections const& corrections)
{
    std::vector<EqualRun> const runs = EqualRunsOf(base, text, LEAST_CORRECTED_RUN_BYTES);
    TokenCopier copier(base.text, text, parameters);
    CorrectionReader reader(corrections);
    bool const isCopied =
        !runs.empty() &&
        std::all_of(runs.begin(), runs.end(), [&copier, &reader](EqualRun run) { return copier.Correct(run, reader); });
    return isCopied && reader.IsAtEnd() && copier.AddRest() ? std::optional<Repetitions>(copier.Take()) : std::nullopt;
}

std::optional<TokenCorrections> FindCorrections(PackedBase const& base, TokenizedText const& text,
                                                DeflateParameters parameters)
{
    std::vector<EqualRun> const runs = EqualRunsOf(base, View(text.text), LEAST_CORRECTED_RUN_BYTES);
    TokenCopier copier(base.text, View(text.text), parameters);
    TokenWalk wanted(text);
    TokenCorrections corrections;
    bool const areFound =
        !runs.empty() && std::all_of(runs.begin(), runs.end(),
                                     [&](EqualRun run) { return copier.FindCorrections(run, wanted, corrections); });
    return areFound ? std::optional<TokenCorrections>(std::move(corrections)) : std::nullopt;
}

} // namespace Pelnar::Engine
