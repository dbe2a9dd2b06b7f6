// FeedText_p.cpp: single values of a feed.
#include "Engine/core/feed/FeedText_p.h"

#include "Engine/core/base/SafeText.h"

#include <algorithm>
#include <utility>

namespace Pelnar::Engine
{

namespace
{

constexpr bool IsLineBreakOrTab(char32_t codePoint)
{
    return codePoint == '\n' || codePoint == '\r' || codePoint == '\t';
}

bool IsDropped(char32_t codePoint, FeedTextKind kind)
{
    return IsHidden(codePoint) && (kind == FeedTextKind::SingleLine || !IsLineBreakOrTab(codePoint));
}

/// How many characters are tested together. The compiler turns this number into a few vector instructions.
constexpr int MANY_UNITS = 32;
constexpr int FEW_UNITS = 4;

/// True if all of \a COUNT characters are ordinary: ASCII, and no control character except those that \a kind keeps.
template <int COUNT>
inline bool AreOrdinary(ushort const* units, FeedTextKind kind)
{
    ushort found = 0;
    if (kind == FeedTextKind::SingleLine)
    {
        for (int i = 0; i < COUNT; ++i)
        {
            found = static_cast<ushort>(found | (units[i] < 0x20) | (units[i] > 0x7E));
        }
    }
    else
    {
        for (int i = 0; i < COUNT; ++i)
        {
            bool const isControl = (units[i] < 0x20) & (units[i] != '\n') & (units[i] != '\r') & (units[i] != '\t');
            found = static_cast<ushort>(found | isControl | (units[i] > 0x7E));
        }
    }
    return found == 0;
}

/// The index after the ordinary characters from \a from on, in steps of \a COUNT. The last few are tested together with
/// those before them.
template <int COUNT>
inline int SkipOrdinary(ushort const* units, int from, int size, FeedTextKind kind)
{
    while (size - from >= COUNT && AreOrdinary<COUNT>(units + from, kind))
    {
        from += COUNT;
    }
    bool const isTail = size - from < COUNT && size >= COUNT;
    return isTail && AreOrdinary<COUNT>(units + size - COUNT, kind) ? size : from;
}

/// The index of the first dropped character at or after \a from; \a size if no character is dropped.
int NextDropped(ushort const* units, int from, int size, FeedTextKind kind)
{
    int i = from;
    while (i < size)
    {
        i = SkipOrdinary<MANY_UNITS>(units, i, size, kind);
        i = SkipOrdinary<FEW_UNITS>(units, i, size, kind);
        for (int const end = std::min(i + MANY_UNITS, size); i < end;)
        {
            if (AreOrdinary<1>(units + i, kind))
            {
                ++i;
                continue;
            }
            CodePoint const character = CodePointAt(units, i, size);
            if (IsDropped(character.value, kind))
            {
                return i;
            }
            i += character.units;
        }
    }
    return size;
}

/// Servers refuse longer addresses.
constexpr int MAX_ADDRESS_CHARACTERS = 8 * 1024;
/// A character becomes at most nine when it is encoded.
constexpr int CERTAINLY_SHORT = MAX_ADDRESS_CHARACTERS / 9;

bool IsTooLong(QString const& text, QUrl const& address)
{
    return text.size() > CERTAINLY_SHORT && address.toEncoded().size() > MAX_ADDRESS_CHARACTERS;
}

/// A zone, as in fe80::1%eth0, names a network interface of one computer, so it has no meaning in a feed. Foundation
/// refuses it, and also the form for IP addresses of later versions.
bool HasUnusableHost(QUrl const& address)
{
    QString const host = address.host();
    return host.contains(QLatin1Char('%')) || (host.startsWith(QLatin1Char('v')) && host.contains(QLatin1Char(':')));
}

/// "zip", "dmg" and "gz", but not the "1" of "App_1.1" nor the "0b2" of "App_1.0b2".
bool IsExtension(QStringRef text)
{
    return !text.isEmpty() && (!text.front().isDigit() || text.compare(QLatin1String("7z"), Qt::CaseInsensitive) == 0);
}

/// The session sees an address through Foundation, the publisher's tool directly. Both must see the same one. GNUstep
/// drops an empty query and an empty fragment, and refuses a query or a fragment without a path.
QUrl AsFoundationKeepsIt(QUrl address)
{
    if (address.hasQuery() && address.query().isEmpty())
    {
        address.setQuery(QString());
    }
    if (address.hasFragment() && address.fragment().isEmpty())
    {
        address.setFragment(QString());
    }
    if ((address.hasQuery() || address.hasFragment()) && !address.host().isEmpty() && address.path().isEmpty())
    {
        address.setPath(QStringLiteral("/"));
    }
    return address;
}

} // namespace

QString CleanFeedText(QString text, FeedTextKind kind)
{
    if (kind == FeedTextKind::SingleLine && !text.isEmpty() &&
        (text.at(0).isSpace() || text.at(text.size() - 1).isSpace()))
    {
        text = std::move(text).trimmed();
    }
    int const size = text.size();
    int in = NextDropped(text.utf16(), 0, size, kind);
    int out = in;
    QChar* const characters = in < size ? text.data() : nullptr;
    while (in < size)
    {
        in += CodePointAt(text.utf16(), in, size).units;
        characters[out++] = QLatin1Char(' ');
        int const next = NextDropped(text.utf16(), in, size, kind);
        std::copy(characters + in, characters + next, characters + out);
        out += next - in;
        in = next;
    }
    text.truncate(out);
    return text;
}

quint64 FeedLength(QStringRef text, quint64 most)
{
    // Qt accepts signs and blanks too.
    bool const isDigits =
        std::all_of(text.begin(), text.end(),
                    [](QChar character) { return character >= QLatin1Char('0') && character <= QLatin1Char('9'); });
    quint64 const length = isDigits ? text.toULongLong() : 0;
    return length <= most ? length : 0;
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
    return CleanFeedText(version.toString(), FeedTextKind::SingleLine);
}

QUrl FeedAddress(QString const& text, QUrl const& base)
{
    if (text.isEmpty())
    {
        return {};
    }
    QUrl address(text);
    if (address.isRelative() && address.isValid())
    {
        address = base.resolved(address);
    }
    bool const isUsable = address.isValid() && !IsTooLong(text, address) && !HasUnusableHost(address);
    return isUsable ? AsFoundationKeepsIt(std::move(address)) : QUrl();
}

} // namespace Pelnar::Engine
