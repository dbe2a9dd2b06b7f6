#include "App/UpdateChecker/SparkleImpl/Choice/TextPrefilters.h"

#include <QStringView>
#include <QUrl>

namespace Pelnar::App::Session
{
namespace
{

constexpr char16_t SPACE = u' ';
/// A shorter host is within every limit of host names and of their labels.
constexpr int PLAIN_HOST_LENGTH_LIMIT = 62;

constexpr bool IsLowerLetter(char16_t unit)
{
    return unit >= u'a' && unit <= u'z';
}

constexpr bool IsDigit(char16_t unit)
{
    return unit >= u'0' && unit <= u'9';
}

/// Letters, digits, "/", ".", "-", "_" and "~", by their code; a table, because addresses are long.
struct PlainInPath
{
    bool isPlain[128] = {};

    constexpr PlainInPath()
    {
        for (char16_t unit = 0; unit < 128; ++unit)
        {
            isPlain[unit] = IsLowerLetter(unit) || IsDigit(unit) || (unit >= u'A' && unit <= u'Z') || unit == u'/' ||
                            unit == u'.' || unit == u'-' || unit == u'_' || unit == u'~';
        }
    }
};
constexpr PlainInPath PLAIN_IN_PATH;

constexpr bool IsPlainInPath(char16_t unit)
{
    return unit < 128 && PLAIN_IN_PATH.isPlain[unit];
}

/// True if \a host is certainly a valid name: labels of lower-case letters, single inner hyphens and digits. The last
/// label has only letters, because otherwise it might be read as a number. Two hyphens might begin an encoded label.
bool IsPlainHost(QStringView host)
{
    if (host.isEmpty() || host.size() >= PLAIN_HOST_LENGTH_LIMIT)
    {
        return false;
    }
    bool hasOnlyLetters = true; // about the current label
    char16_t previous = u'.';
    for (QChar const character : host)
    {
        char16_t const unit = character.unicode();
        if (unit == u'.' || unit == u'-')
        {
            if (previous == u'.' || previous == u'-')
            {
                return false;
            }
            hasOnlyLetters = unit == u'.';
        }
        else if (IsDigit(unit))
        {
            hasOnlyLetters = false;
        }
        else if (!IsLowerLetter(unit))
        {
            return false;
        }
        previous = unit;
    }
    return hasOnlyLetters && previous != u'.';
}

bool IsCertainlyValidAddress(QStringView text)
{
    QStringView const scheme = u"https://";
    if (!text.startsWith(scheme))
    {
        return false;
    }
    QStringView const rest = text.mid(scheme.size());
    qsizetype hostLength = 0;
    while (hostLength < rest.size() && rest[hostLength].unicode() != u'/')
    {
        ++hostLength;
    }
    if (!IsPlainHost(rest.left(hostLength)))
    {
        return false;
    }
    bool isPlain = true; // checked once at the end: nearly every address is plain
    for (qsizetype i = hostLength; i < rest.size(); ++i)
    {
        isPlain &= IsPlainInPath(rest[i].unicode());
    }
    return isPlain;
}

/// Qt takes the second to last of the parts between blanks as the day of the month. If this part is missing, or
/// contains a printable ASCII character that no number has, the text is not a date. Every usual date of a feed ends in
/// a time of day and a zone, and so is decided here.
bool IsCertainlyNoTextDate(QStringView text)
{
    qsizetype position = text.size();
    auto const skip = [&](bool blanks)
    {
        while (position > 0 && (text[position - 1].unicode() == SPACE) == blanks)
        {
            --position;
        }
    };
    skip(true);
    skip(false);
    skip(true);
    if (position == 0)
    {
        return true;
    }
    for (; position > 0 && text[position - 1].unicode() != SPACE; --position)
    {
        char16_t const unit = text[position - 1].unicode();
        bool const isPrintable = unit > SPACE && unit < 0x7f;
        if (isPrintable && !IsDigit(unit) && unit != u'+' && unit != u'-')
        {
            return true;
        }
    }
    return false;
}

} // namespace

bool IsValidAddress(QString const& text)
{
    return IsCertainlyValidAddress(text) || QUrl(text).isValid();
}

QDate TextDate(QString const& text)
{
    return IsCertainlyNoTextDate(text) ? QDate() : QDate::fromString(text, Qt::TextDate);
}

} // namespace Pelnar::App::Session
