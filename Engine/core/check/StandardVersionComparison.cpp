#include "Engine/core/check/StandardVersionComparison.h"

#include <QStringView>

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

enum class PartKind
{
    End,
    Letters,
    Digits,
};

struct Part
{
    PartKind kind = PartKind::End;
    QStringView text;
};

bool IsDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

bool IsSeparator(QChar character)
{
    return character == QLatin1Char('.') || character == QLatin1Char('-') || character.isSpace();
}

/// Returns the parts of a version text from left to right, and an End part at each call after the last.
class PartReader
{
public:
    explicit PartReader(QStringView text) : m_rest(text) {}

    Part Next()
    {
        auto const begin =
            std::find_if_not(m_rest.begin(), m_rest.end(), [](QChar character) { return IsSeparator(character); });
        if (begin == m_rest.end())
        {
            m_rest = {};
            return {};
        }
        bool const isDigits = IsDigit(*begin);
        auto const end = std::find_if(begin, m_rest.end(),
                                      [isDigits](QChar character)
                                      { return IsSeparator(character) || IsDigit(character) != isDigits; });
        QStringView const text = m_rest.mid(begin - m_rest.begin(), end - begin);
        m_rest = m_rest.mid(end - m_rest.begin());
        return {isDigits ? PartKind::Digits : PartKind::Letters, text};
    }

private:
    QStringView m_rest;
};

QStringView WithoutLeadingZeros(QStringView digits)
{
    auto const first =
        std::find_if(digits.begin(), digits.end(), [](QChar character) { return character != QLatin1Char('0'); });
    return digits.mid(first - digits.begin());
}

int CompareNumbers(QStringView a, QStringView b)
{
    QStringView const numberA = WithoutLeadingZeros(a);
    QStringView const numberB = WithoutLeadingZeros(b);
    if (numberA.size() != numberB.size())
    {
        return numberA.size() < numberB.size() ? -1 : 1;
    }
    return numberA.compare(numberB);
}

} // namespace

int CompareVersionTexts(QString const& a, QString const& b)
{
    PartReader readerA(a);
    PartReader readerB(b);
    for (;;)
    {
        Part const partA = readerA.Next();
        Part const partB = readerB.Next();
        if (partA.kind != partB.kind)
        {
            // Letters, which name a pre-release, are older than the end, and the end is older than digits.
            auto const rank = [](PartKind kind) {
                return kind == PartKind::Letters ? 0 : kind == PartKind::End ? 1 : 2;
            };
            return rank(partA.kind) < rank(partB.kind) ? -1 : 1;
        }
        if (partA.kind == PartKind::End)
        {
            return 0;
        }
        int const order =
            partA.kind == PartKind::Digits ? CompareNumbers(partA.text, partB.text) : partA.text.compare(partB.text);
        if (order != 0)
        {
            return order;
        }
    }
}

} // namespace Pelnar::Engine
