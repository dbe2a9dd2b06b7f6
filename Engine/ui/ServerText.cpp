#include "Engine/ui/ServerText.h"

#include "Engine/core/base/SafeText.h"

namespace Pelnar::Engine
{
namespace
{

constexpr int MAX_NAME_CHARACTERS = 100;
constexpr int MAX_VERSION_CHARACTERS = 40;
constexpr int MAX_INSERTED_CHARACTERS = 200;

} // namespace

QString OneLine(QString const& text, int maxCharacters)
{
    // Twice the shown length is enough after blanks are joined; a megabyte is never read to its end.
    QString const start = text.left(2 * maxCharacters + 2);
    QString shown;
    for (int index = 0; index < start.size();)
    {
        CodePoint const character = CodePointAt(start.utf16(), index, start.size());
        if (QChar::isSpace(character.value))
        {
            shown += QLatin1Char(' ');
        }
        else if (!IsHidden(character.value))
        {
            shown += start.midRef(index, character.units);
        }
        index += character.units;
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
            // Between words of the other direction, the slashes of a path and the dashes of a command would be
            // displayed in the wrong place.
            bool const isAgainstTheSentence = line.isRightToLeft() != (direction == Qt::RightToLeft);
            return isAgainstTheSentence ? QChar(FIRST_STRONG_ISOLATE) + line + QChar(END_OF_ISOLATE) : line;
        });
}

} // namespace Pelnar::Engine
