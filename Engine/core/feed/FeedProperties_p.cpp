// FeedProperties_p.cpp: any element of a feed as a value.
#include "Engine/core/feed/FeedProperties_p.h"

namespace Pelnar::Engine
{

QVariantMap ReadFeedAttributes(FeedWalker& walker)
{
    QVariantMap properties;
    if (!walker.HasAttributes())
    {
        return properties;
    }
    QXmlStreamAttributes const attributes = walker.Reader().attributes();
    for (QXmlStreamAttribute const& attribute : attributes)
    {
        properties.insert(walker.PropertyName(attribute.namespaceUri(), attribute.name(), attribute.qualifiedName()),
                          CleanFeedText(attribute.value().toString(), FeedTextKind::SingleLine));
    }
    return properties;
}

void AddFeedProperty(QVariantMap& properties, QString const& name, QVariant value)
{
    QVariantMap::iterator const found = properties.lowerBound(name);
    if (found == properties.end() || found.key() != name)
    {
        *properties.insert(found, name, QVariant()) = std::move(value);
        return;
    }
    QVariant& place = *found;
    // A value of the feed is a text or a map, so a list was begun here. It leaves the map while it grows: a shared list
    // would be copied at each step.
    QVariantList list;
    if (place.type() == QVariant::List)
    {
        list = place.toList();
        place = QVariant();
    }
    else
    {
        list.append(place);
    }
    list.append(std::move(value));
    place = list;
}

FeedElement ReadFeedElement(FeedWalker& walker, FeedTextKind kind)
{
    FeedElement element;
    QVariantMap properties = ReadFeedAttributes(walker);
    QString text;
    while (walker.EnterChild(&text))
    {
        QString const name = walker.PropertyName();
        if (IsNamed(QStringRef(&name), QLatin1String("sparkle:criticalUpdate")))
        {
            element.hasFeedCriticalUpdate = true;
        }
        AddFeedProperty(properties, name, ReadFeedElement(walker, FeedTextKind::SingleLine).value);
    }
    element.text = CleanFeedText(std::move(text), kind);
    if (properties.isEmpty())
    {
        element.value = element.text;
        return element;
    }
    if (!element.text.trimmed().isEmpty())
    {
        properties.insert(QStringLiteral("#text"), element.text);
    }
    element.value = properties;
    return element;
}

} // namespace Pelnar::Engine
