#include "Engine/core/check/SparingOrder.h"

#include "Engine/core/feed/ReleaseRules.h"

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

constexpr int MOST_COMPONENTS = 4;
constexpr int MOST_DIGITS = 9;

/// True for a text that every comparator can read.
bool IsPlain(QString const& version)
{
    auto const isNumber = [](QStringRef const& component)
    {
        return !component.isEmpty() && component.size() <= MOST_DIGITS &&
               std::all_of(component.begin(), component.end(),
                           [](QChar sign) { return sign >= QLatin1Char('0') && sign <= QLatin1Char('9'); });
    };
    QVector<QStringRef> const components = version.splitRef(QLatin1Char('.'));
    return components.size() <= MOST_COMPONENTS && std::all_of(components.begin(), components.end(), isNumber);
}

} // namespace

int SparingOrder::Compare(QString const& a, QString const& b)
{
    if (a == b)
    {
        return 0;
    }
    if (IsPlain(a) && IsPlain(b))
    {
        return m_order(a, b);
    }
    auto const [known, isNew] = m_known.try_emplace({a, b}, 0);
    if (isNew && m_unreadable >= MAX_LOGGED_ITEMS)
    {
        ++m_uncompared;
    }
    else if (isNew)
    {
        known->second = m_order(a, b);
        m_unreadable += known->second == 0 ? 1 : 0;
    }
    return known->second;
}

} // namespace Pelnar::Engine
