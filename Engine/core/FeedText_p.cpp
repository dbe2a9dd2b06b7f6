// FeedText_p.cpp: single values of a feed.
#include "Engine/core/FeedText_p.h"

namespace Pelnar::Engine
{

namespace
{

bool IsLineBreakOrTab(ushort unit)
{
    return unit == '\n' || unit == '\r' || unit == '\t';
}

/// A control character, a line or paragraph separator, or one that embeds, overrides or isolates a writing direction.
bool IsUnsafe(ushort unit)
{
    if (unit < 0x20)
    {
        return true;
    }
    if (unit < 0x7F)
    {
        return false;
    }
    return unit <= 0x9F || (unit >= 0x2028 && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069);
}

bool IsUnsafe(ushort unit, FeedTextKind kind)
{
    return IsUnsafe(unit) && (kind == FeedTextKind::SingleLine || !IsLineBreakOrTab(unit));
}

/// "zip", "dmg" and "gz", but not the "1" of "App_1.1" nor the "0b2" of "App_1.0b2".
bool IsExtension(QStringRef text)
{
    return !text.isEmpty() && (!text.front().isDigit() || text.compare(QLatin1String("7z"), Qt::CaseInsensitive) == 0);
}

} // namespace

QString CleanFeedText(QStringRef text, FeedTextKind kind)
{
    if (kind == FeedTextKind::SingleLine)
    {
        text = text.trimmed();
    }
    QString cleaned = text.toString();
    for (int i = 0; i < text.size(); ++i)
    {
        if (IsUnsafe(text.at(i).unicode(), kind))
        {
            cleaned[i] = QLatin1Char(' ');
        }
    }
    return cleaned;
}

quint64 FeedLength(QStringRef text, quint64 most)
{
    quint64 length = 0;
    for (QChar const character : text)
    {
        if (character < QLatin1Char('0') || character > QLatin1Char('9'))
        {
            return 0;
        }
        quint64 const digit = character.unicode() - '0';
        if (digit > most || length > (most - digit) / 10)
        {
            return 0;
        }
        length = length * 10 + digit;
    }
    return length;
}

QString VersionInFileName(QUrl const& url)
{
    QString const fileName = url.fileName(QUrl::FullyDecoded);
    int const underscore = fileName.lastIndexOf(QLatin1Char('_'));
    if (underscore < 0)
    {
        return {};
    }
    QStringRef version = fileName.midRef(underscore + 1);
    for (int dot = version.lastIndexOf(QLatin1Char('.')); dot >= 0 && IsExtension(version.mid(dot + 1));
         dot = version.lastIndexOf(QLatin1Char('.')))
    {
        version.truncate(dot);
    }
    // A percent-encoded control character passed the cleaning of the address.
    return CleanFeedText(version, FeedTextKind::SingleLine);
}

QUrl FeedAddress(QString const& text, QUrl const& base)
{
    if (text.isEmpty())
    {
        return {};
    }
    QUrl address(text);
    if (!address.isValid() || !address.isRelative())
    {
        return address.isValid() ? address : QUrl();
    }
    return base.resolved(address);
}

} // namespace Pelnar::Engine
