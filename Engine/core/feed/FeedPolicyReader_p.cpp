// FeedPolicyReader_p.cpp: the elements of an item that say for which installations it is meant.
#include "Engine/core/feed/FeedPolicyReader_p.h"

namespace Pelnar::Engine
{
namespace
{

/// The texts of the children \a name in \a element. There may be one or several.
QStringList ChildTexts(QVariant const& element, QString const& name)
{
    QVariant const child = element.toMap().value(name);
    QStringList texts;
    for (QVariant const& each : child.type() == QVariant::List ? child.toList() : QVariantList{child})
    {
        if (each.type() == QVariant::String && !each.toString().isEmpty())
        {
            texts.append(each.toString());
        }
    }
    return texts;
}

} // namespace

void TakeInformational(ItemPolicy& policy, QVariant const& element)
{
    if (!policy.isInformational)
    {
        policy.isInformational = true;
        policy.informationalFor = ChildTexts(element, QStringLiteral("sparkle:version"));
        policy.informationalBelow = ChildTexts(element, QStringLiteral("sparkle:belowVersion")).value(0);
    }
}

void TakeCritical(FeedItem& item, QString const& bound)
{
    bool const isForAll = item.isCritical && item.policy.criticalBelow.isEmpty();
    item.isCritical = true;
    item.policy.criticalBelow = isForAll ? QString() : bound;
}

QStringList WordsOf(QString text)
{
    return text.replace(QLatin1Char(','), QLatin1Char(' ')).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

qint64 RolloutSeconds(QString const& text)
{
    constexpr qint64 LONGEST = 10LL * 365 * 24 * 60 * 60;
    bool isNumber = false;
    qint64 const seconds = text.toLongLong(&isNumber);
    return isNumber && seconds > 0 && seconds <= LONGEST ? seconds : 0;
}

} // namespace Pelnar::Engine
