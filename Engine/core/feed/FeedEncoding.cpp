// FeedEncoding.cpp: decodes the bytes of a feed.
#include "Engine/core/feed/FeedEncoding.h"

#include <QTextCodec>

#include <cstring>
#include <string_view>

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

/// The value of encoding="…" in the XML declaration, as written; empty if there is none. The reader may understand an
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

/// The offset of the next byte that is not ASCII; \a size if there is none.
int SkipAscii(uchar const* data, int at, int size)
{
    quint64 blocks[4];
    while (size - at >= int(sizeof blocks))
    {
        std::memcpy(blocks, data + at, sizeof blocks);
        if (((blocks[0] | blocks[1] | blocks[2] | blocks[3]) & Q_UINT64_C(0x8080808080808080)) != 0)
        {
            break;
        }
        at += int(sizeof blocks);
    }
    while (at < size && data[at] < 0x80)
    {
        ++at;
    }
    return at;
}

bool IsContinuation(uchar byte)
{
    return (byte & 0xC0) == 0x80;
}

/// The length of the sequence of two or more bytes that starts at \a at, of which \a left bytes are there; 0 if it is
/// not UTF-8.
int SequenceLength(uchar const* at, int left)
{
    uchar const lead = at[0];
    if (lead >= 0xC2 && lead <= 0xDF)
    {
        return left >= 2 && IsContinuation(at[1]) ? 2 : 0;
    }
    if ((lead & 0xF0) == 0xE0)
    {
        uchar const least = lead == 0xE0 ? 0xA0 : 0x80;
        uchar const most = lead == 0xED ? 0x9F : 0xBF;
        return left >= 3 && at[1] >= least && at[1] <= most && IsContinuation(at[2]) ? 3 : 0;
    }
    if (lead >= 0xF0 && lead <= 0xF4)
    {
        uchar const least = lead == 0xF0 ? 0x90 : 0x80;
        uchar const most = lead == 0xF4 ? 0x8F : 0xBF;
        return left >= 4 && at[1] >= least && at[1] <= most && IsContinuation(at[2]) && IsContinuation(at[3]) ? 4 : 0;
    }
    return 0;
}

} // namespace

int FirstBadUtf8(QByteArray const& bytes)
{
    auto const* const data = reinterpret_cast<uchar const*>(bytes.constData());
    int const size = bytes.size();
    int at = 0;
    while (at < size)
    {
        at = SkipAscii(data, at, size);
        if (at == size)
        {
            break;
        }
        int const length = SequenceLength(data + at, size - at);
        if (length == 0)
        {
            return at;
        }
        at += length;
    }
    return size;
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
