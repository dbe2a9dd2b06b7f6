#include "Engine/core/delta/PackedText.h"

#include "Engine/core/delta/ManifestBytes.h"

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t FIXED_HEADER_BYTES = 10;
constexpr std::size_t TRAILER_BYTES = 8;
constexpr std::uint64_t MAX_BLOCKS = 1u << 16;
constexpr std::uint8_t MAX_LEVEL = 9;
constexpr std::uint8_t MAX_MEMORY = 9;
constexpr std::uint8_t USUAL_MEMORY = 8;
constexpr std::uint8_t LEVEL_MASK = 15;
constexpr std::uint8_t COPIES_TOKENS = 16;   ///< added to the level if tokens are copied from the old text
constexpr std::uint8_t CORRECTS_TOKENS = 32; ///< the same, with corrections
constexpr std::size_t TEXT_BYTES_FOR_CORRECTION_BYTE = 256; ///< with more corrections the delta would grow too much
// Bits of the header's flags.
constexpr std::uint8_t HAS_EXTRA = 4;
constexpr std::uint8_t HAS_NAME = 8;
constexpr std::uint8_t HAS_COMMENT = 16;
constexpr std::uint8_t HAS_HEADER_HASH = 2;

/// The size of a gzip file's header; 0 for another file.
std::size_t HeaderBytes(Bytes file)
{
    constexpr std::uint8_t KNOWN = HAS_EXTRA | HAS_NAME | HAS_COMMENT | HAS_HEADER_HASH | 1;
    bool const isPacked = file.size() > FIXED_HEADER_BYTES + TRAILER_BYTES && file[0] == 0x1F && file[1] == 0x8B &&
                          file[2] == 8 && (file[3] & ~KNOWN) == 0;
    if (!isPacked)
    {
        return 0;
    }
    std::size_t end = FIXED_HEADER_BYTES;
    end += (file[3] & HAS_EXTRA) != 0 ? 2 + file[end] + 256u * file[end + 1] : 0;
    for (std::uint8_t const text : {HAS_NAME, HAS_COMMENT})
    {
        std::size_t const zero = (file[3] & text) != 0 ? file.find(std::uint8_t(0), end) : end;
        end = zero == Bytes::npos ? file.size() : (file[3] & text) != 0 ? zero + 1 : end;
    }
    end += (file[3] & HAS_HEADER_HASH) != 0 ? 2 : 0;
    return end < file.size() ? end : 0;
}

/// The size of the text as the end of \a file tells it, or a guess if that is not likely.
std::size_t FirstTextBytes(Bytes file)
{
    Bytes const last = file.substr(file.size() - 4);
    std::size_t const told =
        last[0] | std::size_t(last[1]) << 8 | std::size_t(last[2]) << 16 | std::size_t(last[3]) << 24;
    std::size_t const guess = std::min(MAX_PACKED_TEXT_BYTES, file.size() * 4);
    return told > 0 && told <= 4 * guess ? std::min(MAX_PACKED_TEXT_BYTES, told) : guess;
}

void CopyBits(BitReader& from, BitWriter& to, std::uint64_t count)
{
    for (std::uint64_t left = count; left > 0;)
    {
        auto const now = static_cast<unsigned>(std::min<std::uint64_t>(left, 8));
        to.Put(from.Take(now), now);
        left -= now;
    }
}

/// Appends a block's kind, the number of its tokens, and its code lengths.
void AppendBlock(ByteBuffer& recipe, BlockKind kind, std::uint64_t tokens, Bytes data, std::size_t begin,
                 std::size_t end)
{
    recipe.push_back(static_cast<std::uint8_t>(kind));
    AppendNumber(recipe, tokens);
    if (kind == BlockKind::Dynamic)
    {
        AppendNumber(recipe, end - begin);
        BitReader bits(data, begin);
        BitWriter writer;
        CopyBits(bits, writer, end - begin);
        ByteBuffer const copy = writer.Take();
        recipe.insert(recipe.end(), copy.begin(), copy.end());
    }
}

/// Appends the blocks of \a data; false if one is stored or damaged.
bool AppendBlocks(ByteBuffer& recipe, Bytes data, std::size_t& dataBytes)
{
    TokenReader reader(data);
    ByteBuffer blocks;
    std::uint64_t count = 0;
    do
    {
        std::size_t const begin = reader.Bits().Position() + 3;
        if (count == MAX_BLOCKS || !reader.StartBlock())
        {
            return false;
        }
        std::size_t const end = reader.Bits().Position();
        std::uint64_t tokens = 0;
        DeflateToken token;
        for (bool isEnd = false; !isEnd; ++tokens)
        {
            if (!reader.Next(token, isEnd))
            {
                return false;
            }
        }
        AppendBlock(blocks, reader.Kind(), tokens - 1, data, begin, end);
        ++count;
    } while (!reader.IsLastBlock());
    AppendNumber(recipe, count);
    recipe.insert(recipe.end(), blocks.begin(), blocks.end());
    dataBytes = (reader.Bits().Position() + 7) / 8;
    return true;
}

void AppendBytes(ByteBuffer& recipe, Bytes bytes)
{
    AppendNumber(recipe, bytes.size());
    recipe.insert(recipe.end(), bytes.begin(), bytes.end());
}

/// Follows a recipe.
class Packer
{
public:
    Packer(Bytes recipe, Bytes text, std::size_t maxSize, PackedBase const& base)
        : m_recipe(recipe), m_text(text), m_maxSize(maxSize), m_base(base)
    {
    }

    std::optional<ByteBuffer> Pack()
    {
        m_bits.Append(TakeBytes());
        if (!FindTokens())
        {
            return std::nullopt;
        }
        std::uint64_t const blocks = m_recipe.Count(MAX_BLOCKS);
        for (std::uint64_t i = 0; i < blocks; ++i)
        {
            if (!WriteBlock(i + 1 == blocks))
            {
                return std::nullopt;
            }
        }
        m_bits.Append(TakeBytes());
        bool const isWhole = m_recipe.Error() == DeltaManifestError::None && m_recipe.IsAtEnd();
        return isWhole && m_bits.Size() <= m_maxSize ? std::optional<ByteBuffer>(m_bits.Take()) : std::nullopt;
    }

private:
    Bytes TakeBytes() { return m_recipe.Raw(m_recipe.Number()); }

    bool FindTokens()
    {
        std::uint8_t const level = m_recipe.Byte();
        DeflateParameters const parameters{level & LEVEL_MASK, m_recipe.Byte()};
        bool const isKnown = parameters.level >= 1 && parameters.level <= MAX_LEVEL && parameters.memory >= 1 &&
                             parameters.memory <= MAX_MEMORY;
        int const copying = level - parameters.level;
        std::optional<Repetitions> tokens;
        if (isKnown && copying == CORRECTS_TOKENS)
        {
            tokens = CorrectedTokens(m_base, m_text, parameters, TakeCorrections());
        }
        else if (isKnown && (copying == 0 || copying == COPIES_TOKENS))
        {
            tokens = copying == 0 ? TokensOf(m_text, parameters) : TokensLike(m_base, m_text, parameters);
        }
        m_repetitions = std::move(tokens).value_or(Repetitions());
        m_tokens.emplace(m_text, m_repetitions);
        return tokens.has_value();
    }

    TokenCorrections TakeCorrections()
    {
        TokenCorrections corrections;
        for (std::uint64_t left = m_recipe.Count(MAX_CORRECTION_NUMBERS);
             left > 0 && m_recipe.Error() == DeltaManifestError::None; --left)
        {
            corrections.push_back(m_recipe.Number());
        }
        return corrections;
    }

    bool WriteBlock(bool isLast)
    {
        auto const kind = static_cast<BlockKind>(m_recipe.Byte());
        std::uint64_t const count = m_recipe.Number();
        m_bits.Put(isLast ? 1 : 0, 1);
        m_bits.Put(static_cast<std::uint32_t>(kind), 2);
        if (!(kind == BlockKind::Fixed ? m_codes->SetFixed() : kind == BlockKind::Dynamic && CopyCodes()))
        {
            return false;
        }
        m_codes->StartWriting();
        bool const isWritten = m_codes->Write(m_bits, *m_tokens, count) && m_codes->WriteEnd(m_bits);
        return isWritten && m_bits.Size() <= m_maxSize && m_recipe.Error() == DeltaManifestError::None;
    }

    bool CopyCodes()
    {
        std::uint64_t const count = m_recipe.Count(m_maxSize * 8);
        Bytes const bytes = m_recipe.Raw((count + 7) / 8);
        BitReader source(bytes);
        if (m_recipe.Error() != DeltaManifestError::None || !m_codes->ReadDynamic(source) || source.Position() != count)
        {
            return false;
        }
        BitReader bits(bytes);
        CopyBits(bits, m_bits, count);
        return true;
    }

    ManifestBytes::Reader m_recipe;
    Bytes m_text;
    std::size_t m_maxSize;
    PackedBase const& m_base;
    Repetitions m_repetitions;
    std::optional<TokenWalk> m_tokens;
    BitWriter m_bits;
    std::unique_ptr<BlockCodes> m_codes = std::make_unique<BlockCodes>();
};

bool IsRecipe(ByteBuffer const& recipe, Bytes text, Bytes file, PackedBase const& base)
{
    std::optional<ByteBuffer> const made = PackByRecipe(View(recipe), text, file.size(), base);
    return made && View(*made) == file;
}

/// \a recipe with corrections of copied tokens; nothing if they take too much space, or do not make the file. The
/// recipe's level is at \a levelAt.
std::optional<ByteBuffer> CorrectedRecipe(ByteBuffer const& recipe, std::size_t levelAt, Bytes file,
                                          TokenizedText const& text, PackedBase const& base)
{
    std::optional<TokenCorrections> const corrections =
        FindCorrections(base, text, {recipe[levelAt], recipe[levelAt + 1]});
    if (!corrections)
    {
        return std::nullopt;
    }
    ByteBuffer numbers;
    AppendNumber(numbers, corrections->size());
    for (std::uint64_t const number : *corrections)
    {
        AppendNumber(numbers, number);
    }
    ByteBuffer corrected = recipe;
    corrected[levelAt] |= CORRECTS_TOKENS;
    corrected.insert(corrected.begin() + static_cast<std::ptrdiff_t>(levelAt + 2), numbers.begin(), numbers.end());
    bool const isSmall = numbers.size() <= text.text.size() / TEXT_BYTES_FOR_CORRECTION_BYTE;
    return isSmall && IsRecipe(corrected, View(text.text), file, base) ? std::optional<ByteBuffer>(std::move(corrected))
                                                                       : std::nullopt;
}

} // namespace

std::optional<TokenizedText> UnpackText(Bytes file)
{
    std::size_t const header = HeaderBytes(file);
    return header == 0 || file.size() > MAX_PACKED_TEXT_BYTES
               ? std::nullopt
               : Inflate(file.substr(header), TRAILER_BYTES, FirstTextBytes(file), MAX_PACKED_TEXT_BYTES);
}

Bytes PackedDataOf(Bytes file)
{
    std::size_t const header = HeaderBytes(file);
    return header == 0 ? Bytes() : file.substr(header);
}

std::optional<ByteBuffer> PackByRecipe(Bytes recipe, Bytes text, std::size_t maxSize, PackedBase const& base)
{
    return Packer(recipe, text, maxSize, base).Pack();
}

std::optional<ByteBuffer> FindRecipe(Bytes file, Bytes text)
{
    Bytes const data = PackedDataOf(file);
    std::size_t dataBytes = 0;
    ByteBuffer blocks;
    if (data.empty() || !AppendBlocks(blocks, data, dataBytes) || dataBytes > data.size())
    {
        return std::nullopt;
    }
    // Most files are made with level 9 or 6, and with the memory level of gzip or the default one of zlib.
    for (std::uint8_t const level : {9, 6, 8, 7, 5, 4, 3, 2, 1})
    {
        for (std::uint8_t const memory : {MAX_MEMORY, USUAL_MEMORY})
        {
            ByteBuffer recipe;
            AppendBytes(recipe, file.substr(0, file.size() - data.size()));
            recipe.push_back(level);
            recipe.push_back(memory);
            recipe.insert(recipe.end(), blocks.begin(), blocks.end());
            AppendBytes(recipe, data.substr(dataBytes));
            if (IsRecipe(recipe, text, file, {}))
            {
                return recipe;
            }
        }
    }
    return std::nullopt;
}

ByteBuffer FasterRecipe(ByteBuffer const& recipe, Bytes file, TokenizedText const& text, PackedBase const& base)
{
    ManifestBytes::Reader reader(View(recipe));
    std::uint64_t const header = reader.Number();
    static_cast<void>(reader.Raw(header));
    std::size_t const levelAt = recipe.size() - reader.Left();
    if (std::optional<ByteBuffer> corrected = CorrectedRecipe(recipe, levelAt, file, text, base))
    {
        return std::move(*corrected);
    }
    ByteBuffer faster = recipe;
    faster[levelAt] |= COPIES_TOKENS;
    return IsRecipe(faster, View(text.text), file, base) ? faster : recipe;
}

} // namespace Pelnar::Engine
