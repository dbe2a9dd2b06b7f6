// FeedItemReader_p.cpp: one <item> of a feed with its deltas.
#include "Engine/core/feed/FeedItemReader_p.h"

#include "Engine/core/feed/FeedEnclosure_p.h"
#include "Engine/core/feed/FeedPolicyReader_p.h"
#include "Engine/core/feed/FeedProperties_p.h"
#include "Engine/core/feed/ReleaseRules.h"

#include <limits>

namespace Pelnar::Engine
{

namespace
{

/// The best value so far of a text that may be given in several languages.
struct LocalizedText
{
    QString text;
    QString format;
    int rank = std::numeric_limits<int>::max(); ///< lower is better; the first of equal ones stays
};

struct ItemDraft
{
    FeedItem& item;
    LocalizedText title = {};
    LocalizedText description = {};
    LocalizedText releaseNotes = {};
    QString link = {};
    QString versionElement = {};
    QString displayVersionElement = {};
    QString hardware = {};
    QString rolloutInterval = {};
    std::optional<FeedEnclosure> enclosure = {}; ///< the first for the platform, for its machine if there is one
    bool hasForeignEnclosure = false;
    std::vector<FeedEnclosure> deltas = {};
    std::optional<FeedEnclosure> recompressed = {}; ///< the first for the platform and the machine
};

bool IsBetterFor(QString const& machine, FeedEnclosure const& enclosure, FeedEnclosure const& best)
{
    return !SuitsMachine(WordsOf(best.machines), machine) && SuitsMachine(WordsOf(enclosure.machines), machine);
}

/// 0 for the most wanted language. After the wanted ones come a text without a language, then a text in another
/// language.
int LanguageRank(QStringRef language, QStringList const& wanted)
{
    if (language.isEmpty())
    {
        return wanted.size();
    }
    for (int i = 0; i < wanted.size(); ++i)
    {
        QString const tag = QString(wanted.at(i)).replace(QLatin1Char('_'), QLatin1Char('-'));
        // "de" matches the wish "de-AT", and "de-AT" matches the wish "de".
        bool const isPrefix =
            tag.startsWith(language, Qt::CaseInsensitive) || language.startsWith(tag, Qt::CaseInsensitive);
        int const shorter = qMin(tag.size(), language.size());
        bool const endsThere = (tag.size() == shorter || tag.at(shorter) == QLatin1Char('-')) &&
                               (language.size() == shorter || language.at(shorter) == QLatin1Char('-'));
        if (isPrefix && endsThere)
        {
            return i;
        }
    }
    return wanted.size() + 1;
}

/// The rank of the element just entered.
int LanguageRank(FeedWalker const& walker, QStringList const& wanted)
{
    if (!walker.HasAttributes())
    {
        return LanguageRank(QStringRef(), wanted);
    }
    QXmlStreamAttributes const attributes = walker.Reader().attributes();
    return LanguageRank(attributes.value(QLatin1String("http://www.w3.org/XML/1998/namespace"), QLatin1String("lang")),
                        wanted);
}

QString FormatOf(FeedWalker const& walker)
{
    if (!walker.HasAttributes())
    {
        return {};
    }
    QXmlStreamAttributes const attributes = walker.Reader().attributes();
    for (QXmlStreamAttribute const& attribute : attributes)
    {
        if (IsFeedNamespace(attribute.namespaceUri()) && IsNamed(attribute.name(), QLatin1String("format")))
        {
            return CleanFeedText(attribute.value().toString(), FeedTextKind::SingleLine);
        }
    }
    return {};
}

bool IsPlainElement(QXmlStreamReader const& reader, QLatin1String name)
{
    return reader.namespaceUri().isEmpty() && IsNamed(reader.name(), name);
}

QVariant ReadDeltas(FeedWalker& walker, FeedPlatform platform, std::vector<FeedEnclosure>& deltas)
{
    QVariantMap properties = ReadFeedAttributes(walker);
    while (walker.EnterChild())
    {
        QXmlStreamReader const& reader = walker.Reader();
        QString const name = walker.PropertyName();
        if (!IsPlainElement(reader, QLatin1String("enclosure")))
        {
            AddFeedProperty(properties, name, ReadFeedElement(walker, FeedTextKind::SingleLine).value);
            continue;
        }
        FeedEnclosure enclosure = ReadFeedEnclosure(walker);
        AddFeedProperty(properties, name, enclosure.attributes);
        // No client can use a delta that does not name the version it starts from.
        if (!enclosure.deltaFrom.isNull() && IsFor(platform, enclosure))
        {
            deltas.push_back(std::move(enclosure));
        }
    }
    return properties;
}

void TakeIfBetter(LocalizedText& best, int rank, QString&& text)
{
    if (rank < best.rank)
    {
        best.rank = rank;
        best.text = std::move(text);
    }
}

/// The first one counts.
void TakeIfFirst(QString& value, QString&& text)
{
    if (value.isNull())
    {
        value = text.isNull() ? QStringLiteral("") : std::move(text);
    }
}

/// The place for the text of the feed's own element \a name, or null.
QString* FeedTextPlace(ItemDraft& draft, QStringRef name)
{
    ItemPolicy& policy = draft.item.policy;
    std::pair<QLatin1String, QString*> const places[] = {
        {QLatin1String("version"), &draft.versionElement},
        {QLatin1String("shortVersionString"), &draft.displayVersionElement},
        {QLatin1String("minimumSystemVersion"), &draft.item.minimumSystemVersion},
        {QLatin1String("maximumSystemVersion"), &draft.item.maximumSystemVersion},
        {QLatin1String("channel"), &policy.channel},
        {QLatin1String("hardwareRequirements"), &draft.hardware},
        {QLatin1String("phasedRolloutInterval"), &draft.rolloutInterval},
        {QLatin1String("minimumUpdateVersion"), &policy.minimumUpdateVersion},
        {QLatin1String("minimumAutoupdateVersion"), &policy.minimumAutoupdateVersion},
    };
    for (auto const& [text, place] : places)
    {
        if (IsNamed(name, text))
        {
            return place;
        }
    }
    return nullptr;
}

QVariant ReadFeedChild(FeedWalker& walker, FeedItemContext const& context, ItemDraft& draft)
{
    QStringRef const name = walker.Reader().name();
    if (IsNamed(name, QLatin1String("deltas")))
    {
        return ReadDeltas(walker, context.platform, draft.deltas);
    }
    // Decided before the element is read, because the name is valid only until the reader's next step.
    QString* const place = FeedTextPlace(draft, name);
    bool const isTags = IsNamed(name, QLatin1String("tags"));
    bool const isCritical = IsNamed(name, QLatin1String("criticalUpdate"));
    bool const isInformational = IsNamed(name, QLatin1String("informationalUpdate"));
    bool const isReleaseNotes = IsNamed(name, QLatin1String("releaseNotesLink"));
    int const rank = isReleaseNotes ? LanguageRank(walker, context.languages) : 0;
    FeedElement element = ReadFeedElement(walker, FeedTextKind::SingleLine);
    if (place != nullptr)
    {
        TakeIfFirst(*place, std::move(element.text));
    }
    else if (isReleaseNotes)
    {
        TakeIfBetter(draft.releaseNotes, rank, std::move(element.text));
    }
    else if (isInformational)
    {
        TakeInformational(draft.item.policy, element.value);
    }
    if (isCritical || (isTags && element.hasFeedCriticalUpdate))
    {
        TakeCritical(draft.item, isCritical ? element.value.toMap().value(QStringLiteral("sparkle:version")).toString()
                                            : QString());
    }
    return std::move(element.value);
}

QVariant ReadRecompressed(FeedWalker& walker, FeedItemContext const& context,
                          std::optional<FeedEnclosure>& recompressed)
{
    FeedEnclosure enclosure = ReadFeedEnclosure(walker);
    QVariant value = enclosure.attributes;
    bool const isForThis =
        IsFor(context.platform, enclosure) && SuitsMachine(WordsOf(enclosure.machines), context.machine);
    if (isForThis && !recompressed)
    {
        recompressed = std::move(enclosure);
    }
    return value;
}

/// One of our own elements: docs/formats/item-keys.md, item-archives.md. The first one counts.
QVariant ReadOwnChild(FeedWalker& walker, FeedItemContext const& context, ItemDraft& draft)
{
    if (IsNamed(walker.Reader().name(), QLatin1String("recompressed")))
    {
        return ReadRecompressed(walker, context, draft.recompressed);
    }
    FeedItem& item = draft.item;
    item.policy.isWithdrawn = item.policy.isWithdrawn || IsNamed(walker.Reader().name(), QLatin1String("withdrawn"));
    if (IsNamed(walker.Reader().name(), QLatin1String("keys")) && item.signerKey.isEmpty() &&
        item.trustedKeys.isEmpty())
    {
        QXmlStreamAttributes const attributes = walker.Reader().attributes();
        item.signerKey = CleanFeedText(attributes.value(QLatin1String("signer")).toString(), FeedTextKind::SingleLine);
        item.trustedKeys =
            CleanFeedText(attributes.value(QLatin1String("trusted")).toString(), FeedTextKind::SingleLine)
                .split(QLatin1Char(' '), Qt::SkipEmptyParts);
    }
    return ReadFeedElement(walker, FeedTextKind::SingleLine).value;
}

QVariant ReadDescription(FeedWalker& walker, FeedItemContext const& context, LocalizedText& description)
{
    int const rank = LanguageRank(walker, context.languages);
    QString format = FormatOf(walker);
    FeedElement element = ReadFeedElement(walker, FeedTextKind::Block);
    if (rank < description.rank)
    {
        description = {std::move(element.text), std::move(format), rank};
    }
    return std::move(element.value);
}

QVariant ReadPlainChild(FeedWalker& walker, FeedItemContext const& context, ItemDraft& draft)
{
    QXmlStreamReader const& reader = walker.Reader();
    if (IsNamed(reader.name(), QLatin1String("enclosure")))
    {
        FeedEnclosure enclosure = ReadFeedEnclosure(walker);
        QVariant value = enclosure.attributes;
        if (!IsFor(context.platform, enclosure))
        {
            draft.hasForeignEnclosure = true;
        }
        else if (!draft.enclosure || IsBetterFor(context.machine, enclosure, *draft.enclosure))
        {
            draft.enclosure = std::move(enclosure);
        }
        return value;
    }
    if (IsNamed(reader.name(), QLatin1String("description")))
    {
        return ReadDescription(walker, context, draft.description);
    }
    bool const isTitle = IsNamed(reader.name(), QLatin1String("title"));
    QString* const place = IsNamed(reader.name(), QLatin1String("pubDate")) ? &draft.item.dateString
                           : IsNamed(reader.name(), QLatin1String("link"))  ? &draft.link
                                                                            : nullptr;
    int const rank = isTitle ? LanguageRank(walker, context.languages) : 0;
    FeedElement element = ReadFeedElement(walker, FeedTextKind::SingleLine);
    if (isTitle)
    {
        TakeIfBetter(draft.title, rank, std::move(element.text));
    }
    else if (place != nullptr)
    {
        TakeIfFirst(*place, std::move(element.text));
    }
    return std::move(element.value);
}

void ApplyEnclosure(FeedItem& item, FeedEnclosure const& enclosure, FeedItemContext const& context)
{
    item.fileUrl = FeedAddress(enclosure.url, context.feedUrl);
    item.contentLength = FeedLength(QStringRef(&enclosure.length), context.limits.maxContentLength);
    item.edSignature = enclosure.edSignature;
    item.installationType = enclosure.installationType;
    item.policy.machines = WordsOf(enclosure.machines);
    item.signatures = SignaturesIn(enclosure);
}

/// Empty if it cannot be downloaded and verified.
std::vector<FeedItem> MakeRecompressed(FeedItem const& parent, FeedEnclosure const& enclosure,
                                       FeedItemContext const& context)
{
    FeedItem recompressed;
    recompressed.versionString = parent.versionString;
    recompressed.signerKey = parent.signerKey;
    recompressed.line = enclosure.line;
    recompressed.column = enclosure.column;
    ApplyEnclosure(recompressed, enclosure, context);
    bool const isSigned = !recompressed.edSignature.isEmpty() || !recompressed.signatures.empty();
    bool const isUsable = recompressed.fileUrl.isValid() && recompressed.contentLength > 0 && isSigned;
    return isUsable ? std::vector<FeedItem>{recompressed} : std::vector<FeedItem>();
}

FeedItem MakeDelta(FeedItem const& parent, FeedEnclosure const& enclosure, FeedItemContext const& context)
{
    FeedItem delta;
    delta.title = parent.title;
    delta.dateString = parent.dateString;
    delta.description = parent.description;
    delta.descriptionFormat = parent.descriptionFormat;
    delta.minimumSystemVersion = parent.minimumSystemVersion;
    delta.maximumSystemVersion = parent.maximumSystemVersion;
    delta.releaseNotesUrl = parent.releaseNotesUrl;
    delta.infoUrl = parent.infoUrl;
    delta.isCritical = parent.isCritical;
    delta.policy = parent.policy;
    delta.signerKey = parent.signerKey;
    delta.trustedKeys = parent.trustedKeys;
    delta.versionString = enclosure.version.isNull() ? parent.versionString : enclosure.version;
    delta.displayVersionString =
        enclosure.displayVersion.isNull() ? parent.displayVersionString : enclosure.displayVersion;
    delta.deltaFrom = enclosure.deltaFrom;
    delta.isDelta = true;
    delta.line = enclosure.line;
    delta.column = enclosure.column;
    ApplyEnclosure(delta, enclosure, context);
    if (delta.policy.machines.isEmpty())
    {
        delta.policy.machines = parent.policy.machines;
    }
    delta.inheritedProperties = parent.properties;
    delta.properties = enclosure.attributes;
    delta.properties.insert(QStringLiteral("enclosure"), enclosure.attributes);
    return delta;
}

void Finish(ItemDraft& draft, FeedItemContext const& context)
{
    FeedItem& item = draft.item;
    item.title = std::move(draft.title.text);
    item.description = std::move(draft.description.text);
    item.descriptionFormat = std::move(draft.description.format);
    item.releaseNotesUrl = FeedAddress(draft.releaseNotes.text, context.feedUrl);
    item.infoUrl = FeedAddress(draft.link, context.feedUrl);
    item.policy.hardware = WordsOf(draft.hardware);
    item.policy.rolloutSeconds = RolloutSeconds(draft.rolloutInterval);
    item.versionString = std::move(draft.versionElement);
    item.displayVersionString = std::move(draft.displayVersionElement);
    if (draft.enclosure)
    {
        ApplyEnclosure(item, *draft.enclosure, context);
        if (!draft.enclosure->version.isNull())
        {
            item.versionString = std::move(draft.enclosure->version);
        }
        if (!draft.enclosure->displayVersion.isNull())
        {
            item.displayVersionString = std::move(draft.enclosure->displayVersion);
        }
    }
    if (item.versionString.isNull())
    {
        item.versionString = VersionInFileName(item.fileUrl);
    }
    if (draft.enclosure && draft.recompressed)
    {
        item.recompressed = MakeRecompressed(item, *draft.recompressed, context);
    }
    item.deltas.reserve(draft.deltas.size());
    for (FeedEnclosure const& delta : draft.deltas)
    {
        item.deltas.push_back(MakeDelta(item, delta, context));
    }
}

} // namespace

bool ReadFeedItem(FeedWalker& walker, FeedItemContext const& context, FeedItem& item)
{
    ItemDraft draft{item};
    item.line = walker.Line();
    item.column = walker.Column();
    QVariantMap const attributes = ReadFeedAttributes(walker);
    while (walker.EnterChild())
    {
        QXmlStreamReader const& reader = walker.Reader();
        QString const name = walker.PropertyName();
        QVariant value = reader.namespaceUri().isEmpty()          ? ReadPlainChild(walker, context, draft)
                         : IsFeedNamespace(reader.namespaceUri()) ? ReadFeedChild(walker, context, draft)
                         : reader.namespaceUri() == QLatin1String(OWN_FEED_NAMESPACE)
                             ? ReadOwnChild(walker, context, draft)
                             : ReadFeedElement(walker, FeedTextKind::SingleLine).value;
        AddFeedProperty(item.properties, name, std::move(value));
    }
    for (auto attribute = attributes.cbegin(); attribute != attributes.cend(); ++attribute)
    {
        if (!item.properties.contains(attribute.key()))
        {
            item.properties.insert(attribute.key(), attribute.value());
        }
    }
    if (draft.hasForeignEnclosure && !draft.enclosure)
    {
        return false;
    }
    Finish(draft, context);
    return true;
}

} // namespace Pelnar::Engine
