#include "Engine/ui/ServerText.h"

namespace Pelnar::Engine
{
namespace
{

constexpr int MAX_NAME_CHARACTERS = 100;
constexpr int MAX_VERSION_CHARACTERS = 40;
constexpr int MAX_INSERTED_CHARACTERS = 200;

bool IsShown(QChar c)
{
    switch (c.category())
    {
    case QChar::Other_Control:
    case QChar::Other_Format: // the marks that reorder text are among them
    case QChar::Other_NotAssigned:
    case QChar::Other_PrivateUse:
        return false;
    case QChar::Mark_NonSpacing:
    case QChar::Mark_SpacingCombining:
    case QChar::Mark_Enclosing:
    case QChar::Number_DecimalDigit:
    case QChar::Number_Letter:
    case QChar::Number_Other:
    case QChar::Separator_Space:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
    case QChar::Other_Surrogate: // one half of a character beyond the first plane
    case QChar::Letter_Uppercase:
    case QChar::Letter_Lowercase:
    case QChar::Letter_Titlecase:
    case QChar::Letter_Modifier:
    case QChar::Letter_Other:
    case QChar::Punctuation_Connector:
    case QChar::Punctuation_Dash:
    case QChar::Punctuation_Open:
    case QChar::Punctuation_Close:
    case QChar::Punctuation_InitialQuote:
    case QChar::Punctuation_FinalQuote:
    case QChar::Punctuation_Other:
    case QChar::Symbol_Math:
    case QChar::Symbol_Currency:
    case QChar::Symbol_Modifier:
    case QChar::Symbol_Other:
        break;
    }
    return true;
}

} // namespace

QString OneLine(QString const& text, int maxCharacters)
{
    // Twice what is shown leaves enough after blanks are joined; a megabyte is never read to its end.
    QString const start = text.left(2 * maxCharacters + 2);
    QString shown;
    for (QChar const c : start)
    {
        if (c.isSpace())
        {
            shown += QLatin1Char(' ');
        }
        else if (IsShown(c))
        {
            shown += c;
        }
    }
    shown = shown.simplified();
    if (shown.size() <= maxCharacters && start.size() == text.size())
    {
        return shown;
    }
    shown.truncate(maxCharacters - 1);
    if (!shown.isEmpty() && shown.at(shown.size() - 1).isHighSurrogate())
    {
        shown.chop(1);
    }
    return shown + QChar(0x2026);
}

QString ShownName(QString const& name)
{
    return OneLine(name, MAX_NAME_CHARACTERS);
}

QString ShownVersion(QString const& version)
{
    return OneLine(version, MAX_VERSION_CHARACTERS);
}

QString ShownSentence(Sentence const& sentence, Qt::LayoutDirection direction)
{
    constexpr char16_t FIRST_STRONG_ISOLATE = 0x2068;
    constexpr char16_t END_OF_ISOLATE = 0x2069;
    return sentence.Translated(
        [direction](QString const& text)
        {
            QString const line = OneLine(text, MAX_INSERTED_CHARACTERS);
            // Between words that run the other way, the slashes of a path and the dashes of a command would go astray.
            bool const isAgainstTheSentence = line.isRightToLeft() != (direction == Qt::RightToLeft);
            return isAgainstTheSentence ? QChar(FIRST_STRONG_ISOLATE) + line + QChar(END_OF_ISOLATE) : line;
        });
}

} // namespace Pelnar::Engine
