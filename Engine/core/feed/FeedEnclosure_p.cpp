#include "Engine/core/feed/FeedEnclosure_p.h"

#include "Engine/core/bundle/TrustedKeys.h"
#include "Engine/core/feed/FeedProperties_p.h"

namespace Pelnar::Engine
{
namespace
{

/// The member of \a enclosure that an attribute fills, or null.
QString* MemberFor(FeedEnclosure& enclosure, QXmlStreamAttribute const& attribute)
{
    QStringRef const name = attribute.name();
    if (attribute.namespaceUri().isEmpty())
    {
        return IsNamed(name, QLatin1String("url"))      ? &enclosure.url
               : IsNamed(name, QLatin1String("length")) ? &enclosure.length
                                                        : nullptr;
    }
    if (!IsFeedNamespace(attribute.namespaceUri()))
    {
        bool const isOwn = IsNamed(attribute.namespaceUri(), QLatin1String(OWN_FEED_NAMESPACE));
        return isOwn && IsNamed(name, QLatin1String("machine"))      ? &enclosure.machines
               : isOwn && IsNamed(name, QLatin1String("signatures")) ? &enclosure.signatures
                                                                     : nullptr;
    }
    static std::pair<QLatin1String, QString FeedEnclosure::*> const MEMBERS[] = {
        {QLatin1String("version"), &FeedEnclosure::version},
        {QLatin1String("shortVersionString"), &FeedEnclosure::displayVersion},
        {QLatin1String("edSignature"), &FeedEnclosure::edSignature},
        {QLatin1String("installationType"), &FeedEnclosure::installationType},
        {QLatin1String("os"), &FeedEnclosure::operatingSystem},
        {QLatin1String("deltaFrom"), &FeedEnclosure::deltaFrom},
    };
    for (auto const& [text, member] : MEMBERS)
    {
        if (IsNamed(name, text))
        {
            return &(enclosure.*member);
        }
    }
    return nullptr;
}

/// A separate function: the reader copies attributes that are held during its next step.
void TakeAttributes(FeedWalker& walker, FeedEnclosure& enclosure)
{
    QXmlStreamAttributes const attributes = walker.Reader().attributes();
    for (QXmlStreamAttribute const& attribute : attributes)
    {
        QString text = CleanFeedText(attribute.value().toString(), FeedTextKind::SingleLine);
        QString const& name =
            walker.PropertyName(attribute.namespaceUri(), attribute.name(), attribute.qualifiedName());
        *enclosure.attributes.insert(name, QVariant()) = text;
        if (QString* const member = MemberFor(enclosure, attribute))
        {
            *member = text.isNull() ? QStringLiteral("") : std::move(text);
        }
    }
}

} // namespace

FeedEnclosure ReadFeedEnclosure(FeedWalker& walker)
{
    FeedEnclosure enclosure;
    enclosure.line = walker.Line();
    enclosure.column = walker.Column();
    TakeAttributes(walker, enclosure);
    while (walker.EnterChild())
    {
        // An enclosure has no content of its own. Content in a feed is kept as a property.
        QString const name = walker.PropertyName();
        AddFeedProperty(enclosure.attributes, name, ReadFeedElement(walker, FeedTextKind::SingleLine).value);
    }
    return enclosure;
}

QString NameOf(FeedPlatform platform)
{
    return platform == FeedPlatform::MacOS ? QStringLiteral("macos") : QStringLiteral("linux");
}

bool IsFor(FeedPlatform platform, FeedEnclosure const& enclosure)
{
    QString const& operatingSystem = enclosure.operatingSystem;
    return operatingSystem.isNull() || operatingSystem.compare(NameOf(platform), Qt::CaseInsensitive) == 0;
}

std::vector<FeedSignature> SignaturesIn(FeedEnclosure const& enclosure)
{
    // Words of a key's id, a colon and a signature.
    constexpr std::size_t MOST_SIGNATURES = 8;
    std::vector<FeedSignature> signatures;
    for (QString const& word : enclosure.signatures.split(QLatin1Char(' '), Qt::SkipEmptyParts))
    {
        QString const id = word.section(QLatin1Char(':'), 0, 0);
        QString const signature = word.section(QLatin1Char(':'), 1);
        if (IsKeyId(id.toStdString()) && !signature.isEmpty() && signatures.size() < MOST_SIGNATURES)
        {
            signatures.push_back({id, signature});
        }
    }
    return signatures;
}

} // namespace Pelnar::Engine
