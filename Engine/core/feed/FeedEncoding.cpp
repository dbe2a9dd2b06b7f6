// FeedEncoding.cpp: decodes the bytes of a feed.
#include "Engine/core/feed/FeedEncoding.h"

#include <QTextCodec>

#include <algorithm>
#include <cstring>
#include <string_view>

#include <unistr.h>

namespace Pelnar::Engine
{

namespace
{

constexpr int LONGEST_DECLARATION = 1024;

/// The name of the Unicode encoding that the first bytes show; empty if they show none.
QByteArray EncodingByFirstBytes(QByteArray const& bytes)
{
    auto startsWith = [&](char const* first, int size)
    { return bytes.size() >= size && std::memcmp(bytes.constData(), first, static_cast<size_t>(size)) == 0; };
    if (startsWith("\x00\x00\xFE\xFF", 4) || startsWith("\xFF\xFE\x00\x00", 4))
    {
        return "UTF-32";
    }
    if (startsWith("\x00\x00\x00<", 4))
    {
        return "UTF-32BE";
    }
    if (startsWith("<\x00\x00\x00", 4))
    {
        return "UTF-32LE";
    }
    if (startsWith("\xFE\xFF", 2) || startsWith("\xFF\xFE", 2))
    {
        return "UTF-16";
    }
    if (startsWith("\x00<", 2))
    {
        return "UTF-16BE";
    }
    if (startsWith("<\x00", 2))
    {
        return "UTF-16LE";
    }
    return {};
}

/// The value of encoding="…" in the XML declaration, as written; empty without a value. The reader may understand an
/// odd declaration differently, so its result is compared later.
QByteArray DeclaredEncoding(QByteArray const& bytes)
{
    std::string_view declaration(bytes.constData(), static_cast<size_t>(qMin(bytes.size(), LONGEST_DECLARATION)));
    if (declaration.substr(0, 3) == "\xEF\xBB\xBF")
    {
        declaration.remove_prefix(3);
    }
    size_t const end = declaration.find("?>");
    if (end == std::string_view::npos || declaration.substr(0, 5) != "<?xml")
    {
        return {};
    }
    declaration = declaration.substr(0, end);
    size_t const name = declaration.find("encoding");
    size_t const equals = name == std::string_view::npos ? name : declaration.find('=', name);
    size_t const opening = equals == std::string_view::npos ? equals : declaration.find_first_of("\"'", equals);
    size_t const closing =
        opening == std::string_view::npos ? opening : declaration.find(declaration[opening], opening + 1);
    if (closing == std::string_view::npos)
    {
        return {};
    }
    return QByteArray(declaration.data() + opening + 1, static_cast<int>(closing - opening - 1));
}

/// The offset of the next byte that is not ASCII; \a size if all are. Most of a feed is ASCII: this is ten times as
/// fast as the library's check.
int SkipAscii(std::uint8_t const* data, int at, int size)
{
    quint64 blocks[4];
    for (; size - at >= int(sizeof blocks); at += int(sizeof blocks))
    {
        std::memcpy(blocks, data + at, sizeof blocks);
        if (((blocks[0] | blocks[1] | blocks[2] | blocks[3]) & Q_UINT64_C(0x8080808080808080)) != 0)
        {
            break;
        }
    }
    return static_cast<int>(std::find_if(data + at, data + size, [](std::uint8_t byte) { return byte >= 0x80; }) -
                            data);
}

} // namespace

int FirstBadUtf8(QByteArray const& bytes)
{
    auto const* const data = reinterpret_cast<std::uint8_t const*>(bytes.constData());
    int at = SkipAscii(data, 0, bytes.size());
    while (at < bytes.size())
    {
        int const length = ::u8_mblen(data + at, static_cast<std::size_t>(bytes.size() - at));
        if (length <= 0)
        {
            return at;
        }
        at = SkipAscii(data, at + length, bytes.size());
    }
    return at;
}

FeedDocument DecodeFeed(QByteArray const& bytes)
{
    FeedDocument document;
    QByteArray encoding = EncodingByFirstBytes(bytes);
    if (encoding.isEmpty())
    {
        encoding = DeclaredEncoding(bytes);
    }
    if (encoding.isEmpty() || encoding.compare("UTF-8", Qt::CaseInsensitive) == 0)
    {
        document.badOffset = FirstBadUtf8(bytes);
        document.isDecodable = document.badOffset == bytes.size();
        document.utf8 = bytes;
        return document;
    }
    QTextCodec* const codec = QTextCodec::codecForName(encoding);
    if (codec == nullptr)
    {
        return document;
    }
    QTextCodec::ConverterState state;
    document.text = codec->toUnicode(bytes.constData(), bytes.size(), &state);
    // The codecs accept a lone half of a surrogate pair.
    document.isDecodable = state.invalidChars == 0 && state.remainingChars == 0 && document.text.isValidUtf16();
    document.utf8 = document.text.toUtf8();
    return document;
}

} // namespace Pelnar::Engine
