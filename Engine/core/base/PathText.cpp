#include "Engine/core/base/PathText.h"

#include <QFile>

#include <cstdint>

#include <unistr.h>

namespace Pelnar::Engine
{
namespace
{

constexpr ushort FIRST_SURROGATE = 0xDC80; ///< for the byte 0x80
constexpr ushort LAST_SURROGATE = 0xDCFF;
constexpr int FIRST_BYTE = 0x80;

bool IsByte(QString const& text, int place)
{
    ushort const unit = text.at(place).unicode();
    return unit >= FIRST_SURROGATE && unit <= LAST_SURROGATE && (place == 0 || !text.at(place - 1).isHighSurrogate());
}

} // namespace

QString PathText(std::string const& bytes)
{
    QString text;
    auto const* rest = reinterpret_cast<std::uint8_t const*>(bytes.data());
    auto const* const end = rest + bytes.size();
    while (rest != end)
    {
        std::uint8_t const* const bad = ::u8_check(rest, static_cast<std::size_t>(end - rest));
        // A text that begins with a byte order mark loses it. A letter in front prevents this.
        QByteArray const good =
            'x' + QByteArray(reinterpret_cast<char const*>(rest), static_cast<int>((bad ? bad : end) - rest));
        text += QString::fromUtf8(good.constData(), good.size()).midRef(1);
        if (!bad)
        {
            break;
        }
        text += QChar(static_cast<ushort>(FIRST_SURROGATE + *bad - FIRST_BYTE));
        rest = bad + 1;
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

QString PathForQt(int folderFd, QString const& path)
{
    bool const isFound = QFile::encodeName(path).toStdString() == PathBytes(path);
    return isFound ? path : QStringLiteral("/proc/self/fd/%1").arg(folderFd);
}

} // namespace Pelnar::Engine
