#include "Engine/core/base/PathText.h"

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t MAX_CHARACTER_BYTES = 4;
constexpr ushort FIRST_SURROGATE = 0xDC80; ///< for the byte 0x80
constexpr ushort LAST_SURROGATE = 0xDCFF;
constexpr int FIRST_BYTE = 0x80;

/// The one character at the start of the text, and its number of bytes; empty if the text starts with an invalid byte.
QString FirstCharacter(std::string const& bytes, std::size_t begin, std::size_t& size)
{
    std::size_t const most = std::min(MAX_CHARACTER_BYTES, bytes.size() - begin);
    for (size = 1; size <= most; ++size)
    {
        QByteArray const piece(bytes.data() + begin, static_cast<int>(size));
        // A text that begins with a byte order mark loses it. A letter in front prevents this.
        QString const text = QString::fromUtf8('x' + piece).mid(1);
        if (text.toUtf8() == piece)
        {
            return text;
        }
    }
    size = 1;
    return {};
}

bool IsByte(QString const& text, int place)
{
    ushort const unit = text.at(place).unicode();
    return unit >= FIRST_SURROGATE && unit <= LAST_SURROGATE && (place == 0 || !text.at(place - 1).isHighSurrogate());
}

} // namespace

QString PathText(std::string const& bytes)
{
    QString text;
    std::size_t size = 0;
    for (std::size_t begin = 0; begin < bytes.size(); begin += size)
    {
        QString const character = FirstCharacter(bytes, begin, size);
        if (!character.isEmpty())
        {
            text += character;
            continue;
        }
        int const byte = static_cast<unsigned char>(bytes[begin]);
        text += QChar(static_cast<ushort>(FIRST_SURROGATE + byte - FIRST_BYTE));
    }
    return text;
}

std::string PathBytes(QString const& text)
{
    std::string bytes;
    int begin = 0;
    for (int place = 0; place < text.size(); ++place)
    {
        if (IsByte(text, place))
        {
            bytes += text.mid(begin, place - begin).toStdString();
            bytes += static_cast<char>(text.at(place).unicode() - FIRST_SURROGATE + FIRST_BYTE);
            begin = place + 1;
        }
    }
    return bytes + text.mid(begin).toStdString();
}

} // namespace Pelnar::Engine
