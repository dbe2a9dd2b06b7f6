#include "Engine/core/faults/Sentence.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <limits>

namespace Pelnar::Engine
{
namespace
{

/// As wide as its neighbours, so it includes its own blank.
constexpr QChar IDEOGRAPHIC_FULL_STOP(0x3002);

/// Deliberate: not QString::arg, which would search for place markers in inserted values.
QString Filled(QString const& text, QVector<QString> const& values)
{
    QString filled;
    for (int at = 0; at < text.size(); ++at)
    {
        int const number = text.at(at) == QLatin1Char('%') && at + 1 < text.size() ? text.at(at + 1).digitValue() : -1;
        if (number < 1 || number > values.size())
        {
            filled += text.at(at);
            continue;
        }
        filled += values.at(number - 1);
        ++at;
    }
    return filled;
}

QVector<QString> Shown(QVector<Sentence::Value> const& values, QLocale const& locale,
                       std::function<QString(QString const&)> const& shown)
{
    QVector<QString> texts;
    for (Sentence::Value const& value : values)
    {
        auto const* const size = std::get_if<ByteCount>(&value);
        auto const* const text = std::get_if<QString>(&value);
        texts += size ? SizeText(size->bytes, locale) : shown ? shown(*text) : *text;
    }
    return texts;
}

} // namespace

Sentence Sentence::FollowedBy(Sentence const& next) const
{
    Sentence both = *this;
    both.m_following.push_back(next);
    return both;
}

QString Sentence::English() const
{
    QString text = Filled(QString::fromUtf8(m_text), Shown(m_values, QLocale::c(), {}));
    for (Sentence const& next : m_following)
    {
        text += QLatin1Char(' ') + next.English();
    }
    return text;
}

QString Sentence::Translated(std::function<QString(QString const&)> const& shown) const
{
    if (IsEmpty())
    {
        return {};
    }
    QString text =
        Filled(QCoreApplication::translate("PelnarEngine_Errors", m_text), Shown(m_values, QLocale(), shown));
    for (Sentence const& next : m_following)
    {
        bool const hasBlank = text.endsWith(IDEOGRAPHIC_FULL_STOP);
        text += (hasBlank ? QString() : QStringLiteral(" ")) + next.Translated(shown);
    }
    return text;
}

QString SizeText(quint64 bytes, QLocale const& locale)
{
    auto const shown = static_cast<qint64>(std::min<quint64>(bytes, std::numeric_limits<qint64>::max()));
    return locale.formattedDataSize(shown, 1, QLocale::DataSizeSIFormat);
}

} // namespace Pelnar::Engine
