#include "Engine/core/delta/PackedText.h"

#include "Engine/core/delta/DeflateCodes.h"
#include "Engine/core/delta/ManifestBytes.h"

#include <zlib.h>

#include <algorithm>
#include <memory>
#include <new>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t FIXED_OPENING_BYTES = 10;
constexpr std::size_t CLOSING_BYTES = 8;
constexpr int WINDOW_BITS = -15; ///< deflated data by themselves
constexpr std::uint64_t MAX_BLOCKS = 1u << 16;
constexpr std::uint8_t TOLD_EXTRA = 4;
constexpr std::uint8_t TOLD_NAME = 8;
constexpr std::uint8_t TOLD_REMARK = 16;
constexpr std::uint8_t TOLD_CHECK = 2;

/// Where the deflated data begin; 0 for a file of another kind.
std::size_t OpeningBytes(Bytes file)
{
    constexpr std::uint8_t KNOWN = TOLD_EXTRA | TOLD_NAME | TOLD_REMARK | TOLD_CHECK | 1;
    bool const isPacked = file.size() > FIXED_OPENING_BYTES + CLOSING_BYTES && file[0] == 0x1F && file[1] == 0x8B &&
                          file[2] == 8 && (file[3] & ~KNOWN) == 0;
    if (!isPacked)
    {
        return 0;
    }
    std::size_t end = FIXED_OPENING_BYTES;
    end += (file[3] & TOLD_EXTRA) != 0 ? 2 + file[end] + 256u * file[end + 1] : 0;
    for (std::uint8_t const text : {TOLD_NAME, TOLD_REMARK})
    {
        std::size_t const zero = (file[3] & text) != 0 ? file.find(std::uint8_t(0), end) : end;
        end = zero == Bytes::npos ? file.size() : (file[3] & text) != 0 ? zero + 1 : end;
    }
    end += (file[3] & TOLD_CHECK) != 0 ? 2 : 0;
    return end < file.size() ? end : 0;
}

/// \a text deflated as the most common packers do it.
ByteBuffer Deflate(Bytes text, int level, int memory)
{
    z_stream stream{};
    if (deflateInit2(&stream, level, Z_DEFLATED, WINDOW_BITS, memory, Z_DEFAULT_STRATEGY) != Z_OK)
    {
        throw std::bad_alloc();
    }
    ByteBuffer packed(deflateBound(&stream, static_cast<uLong>(text.size())));
    stream.next_in = const_cast<Bytef*>(text.data());
    stream.avail_in = static_cast<uInt>(text.size());
    stream.next_out = packed.data();
    stream.avail_out = static_cast<uInt>(packed.size());
    static_cast<void>(deflate(&stream, Z_FINISH)); // there is room for all
    packed.resize(stream.total_out);
    deflateEnd(&stream);
    return packed;
}

/// The tokens of deflated data, one block after the other.
class TokenReader
{
public:
    explicit TokenReader(Bytes bytes) : m_bits(bytes), m_codes(std::make_unique<BlockCodes>()) {}

    BitReader& Bits() { return m_bits; }
    BlockKind Kind() const { return m_kind; }
    bool IsLastBlock() const { return m_isLast; }

    /// False for a block that is stored as it is, or broken.
    [[nodiscard]] bool StartBlock()
    {
        m_isLast = m_bits.Take(1) != 0;
        m_kind = static_cast<BlockKind>(m_bits.Take(2));
        return m_kind == BlockKind::Fixed     ? m_codes->SetFixed()
               : m_kind == BlockKind::Dynamic ? m_codes->ReadDynamic(m_bits)
                                              : false;
    }
    [[nodiscard]] bool Next(DeflateToken& token, bool& isEnd) { return m_codes->Read(m_bits, token, isEnd); }

private:
    BitReader m_bits;
    std::unique_ptr<BlockCodes> m_codes;
    BlockKind m_kind = BlockKind::Stored;
    bool m_isLast = false;
};

/// The tokens of all blocks as if there were none.
class TokenStream
{
public:
    explicit TokenStream(Bytes bytes) : m_reader(bytes) {}

    [[nodiscard]] bool Next(DeflateToken& token)
    {
        for (bool isEnd = true;;)
        {
            if (!m_isInBlock && (m_isOver || !m_reader.StartBlock()))
            {
                return false;
            }
            m_isInBlock = true;
            if (!m_reader.Next(token, isEnd))
            {
                return false;
            }
            if (!isEnd)
            {
                return true;
            }
            m_isInBlock = false;
            m_isOver = m_reader.IsLastBlock();
        }
    }

private:
    TokenReader m_reader;
    bool m_isInBlock = false;
    bool m_isOver = false;
};

/// What is told of a block, and the bits that stand before its tokens.
void AppendBlock(ByteBuffer& recipe, BlockKind kind, std::uint64_t tokens, Bytes data, std::size_t begin,
                 std::size_t end)
{
    recipe.push_back(static_cast<std::uint8_t>(kind));
    ManifestBytes::AppendNumber(recipe, tokens);
    if (kind == BlockKind::Dynamic)
    {
        ManifestBytes::AppendNumber(recipe, end - begin);
        BitReader bits(data);
        bits.Skip(static_cast<unsigned>(begin));
        BitWriter copy;
        for (std::size_t left = end - begin; left > 0;)
        {
            auto const now = static_cast<unsigned>(std::min<std::size_t>(left, 8));
            copy.Put(bits.Take(now), now);
            left -= now;
        }
        recipe.insert(recipe.end(), copy.Buffer().begin(), copy.Buffer().end());
    }
}

/// The blocks of a file; false when they are not packed as they are to be.
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
    ManifestBytes::AppendNumber(recipe, count);
    recipe.insert(recipe.end(), blocks.begin(), blocks.end());
    dataBytes = (reader.Bits().Position() + 7) / 8;
    return true;
}

void AppendBytes(ByteBuffer& recipe, Bytes bytes)
{
    ManifestBytes::AppendNumber(recipe, bytes.size());
    recipe.insert(recipe.end(), bytes.begin(), bytes.end());
}

/// Follows a recipe.
class Packer
{
public:
    Packer(Bytes recipe, Bytes text, std::size_t maxSize) : m_recipe(recipe), m_text(text), m_maxSize(maxSize) {}

    std::optional<ByteBuffer> Pack()
    {
        Bytes const opening = TakeBytes();
        std::uint8_t const level = m_recipe.Byte();
        std::uint8_t const memory = m_recipe.Byte();
        bool const isKnown = level >= 1 && level <= 9 && memory >= 1 && memory <= 9;
        std::uint64_t const blocks = m_recipe.Count(MAX_BLOCKS);
        if (!isKnown || m_recipe.Error() != DeltaManifestError::None)
        {
            return std::nullopt;
        }
        m_bits.Buffer().assign(opening.begin(), opening.end());
        ByteBuffer const packed = Deflate(m_text, level, memory);
        TokenStream tokens(Bytes(packed.data(), packed.size()));
        for (std::uint64_t i = 0; i < blocks; ++i)
        {
            if (!WriteBlock(tokens, i + 1 == blocks))
            {
                return std::nullopt;
            }
        }
        m_bits.EndByte();
        Bytes const closing = TakeBytes();
        ByteBuffer& file = m_bits.Buffer();
        file.insert(file.end(), closing.begin(), closing.end());
        bool const isWhole = m_recipe.Error() == DeltaManifestError::None && m_recipe.IsAtEnd();
        return isWhole && file.size() <= m_maxSize ? std::optional<ByteBuffer>(std::move(file)) : std::nullopt;
    }

private:
    Bytes TakeBytes() { return m_recipe.Raw(m_recipe.Number()); }

    bool WriteBlock(TokenStream& tokens, bool isLast)
    {
        auto const kind = static_cast<BlockKind>(m_recipe.Byte());
        std::uint64_t const count = m_recipe.Number();
        m_bits.Put(isLast ? 1 : 0, 1);
        m_bits.Put(static_cast<std::uint32_t>(kind), 2);
        if (!(kind == BlockKind::Fixed ? m_codes->SetFixed() : kind == BlockKind::Dynamic && CopyCodes()))
        {
            return false;
        }
        DeflateToken token;
        for (std::uint64_t i = 0; i < count; ++i)
        {
            bool const isWritten = tokens.Next(token) && m_codes->Write(m_bits, token);
            if (!isWritten || m_bits.Buffer().size() > m_maxSize)
            {
                return false;
            }
        }
        return m_codes->WriteEnd(m_bits) && m_recipe.Error() == DeltaManifestError::None;
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
        for (std::uint64_t left = count; left > 0;)
        {
            auto const now = static_cast<unsigned>(std::min<std::uint64_t>(left, 8));
            m_bits.Put(bits.Take(now), now);
            left -= now;
        }
        return true;
    }

    ManifestBytes::Reader m_recipe;
    Bytes m_text;
    std::size_t m_maxSize;
    BitWriter m_bits;
    std::unique_ptr<BlockCodes> m_codes = std::make_unique<BlockCodes>();
};

} // namespace

std::optional<ByteBuffer> UnpackText(Bytes file)
{
    std::size_t const opening = OpeningBytes(file);
    if (opening == 0 || file.size() > MAX_PACKED_TEXT_BYTES)
    {
        return std::nullopt;
    }
    z_stream stream{};
    if (inflateInit2(&stream, WINDOW_BITS) != Z_OK)
    {
        throw std::bad_alloc();
    }
    ByteBuffer text;
    stream.next_in = const_cast<Bytef*>(file.data() + opening);
    stream.avail_in = static_cast<uInt>(file.size() - opening);
    int answer = Z_OK;
    while (answer == Z_OK && text.size() < MAX_PACKED_TEXT_BYTES)
    {
        text.resize(std::min(MAX_PACKED_TEXT_BYTES, std::max(text.size() * 2, file.size() * 4)));
        stream.next_out = text.data() + stream.total_out;
        stream.avail_out = static_cast<uInt>(text.size() - stream.total_out);
        answer = inflate(&stream, Z_NO_FLUSH);
    }
    text.resize(stream.total_out);
    bool const isOne = answer == Z_STREAM_END && stream.avail_in == CLOSING_BYTES;
    inflateEnd(&stream);
    return isOne ? std::optional<ByteBuffer>(std::move(text)) : std::nullopt;
}

std::optional<ByteBuffer> PackByRecipe(Bytes recipe, Bytes text, std::size_t maxSize)
{
    return Packer(recipe, text, maxSize).Pack();
}

std::optional<ByteBuffer> FindRecipe(Bytes file, Bytes text)
{
    std::size_t const opening = OpeningBytes(file);
    std::size_t dataBytes = 0;
    ByteBuffer blocks;
    Bytes const data = opening == 0 ? Bytes() : file.substr(opening);
    if (data.empty() || !AppendBlocks(blocks, data, dataBytes) || dataBytes > data.size())
    {
        return std::nullopt;
    }
    // Most files come from the strongest level or the usual one; the memory is that of gzip, or of zlib by default.
    for (std::uint8_t const level : {9, 6, 8, 7, 5, 4, 3, 2, 1})
    {
        for (std::uint8_t const memory : {9, 8})
        {
            ByteBuffer recipe;
            AppendBytes(recipe, file.substr(0, opening));
            recipe.push_back(level);
            recipe.push_back(memory);
            recipe.insert(recipe.end(), blocks.begin(), blocks.end());
            AppendBytes(recipe, data.substr(dataBytes));
            std::optional<ByteBuffer> const made = PackByRecipe(Bytes(recipe.data(), recipe.size()), text, file.size());
            if (made && Bytes(made->data(), made->size()) == file)
            {
                return recipe;
            }
        }
    }
    return std::nullopt;
}

} // namespace Pelnar::Engine
