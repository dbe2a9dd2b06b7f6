#include "Publisher/lint/LintSubject.h"

#include "Engine/core/bundle/CheckBundle.h"
#include "Engine/core/feed/ReleaseRules.h"
#include "Publisher/Console.h"

#include <algorithm>
#include <set>
#include <tuple>

namespace Pelnar::Publisher
{
namespace
{

using Engine::ErrorCause;
using Engine::FeedPlatform;

LintRule RuleOf(ErrorCause cause)
{
    constexpr std::pair<ErrorCause, LintRule> RULES[] = {
        {ErrorCause::FeedDocumentType, LintRule::DocumentType},
        {ErrorCause::FeedTooDeep, LintRule::TooDeep},
        {ErrorCause::FeedTooManyAttributes, LintRule::TooManyAttributes},
        {ErrorCause::FeedTagTooLong, LintRule::TagTooLong},
        {ErrorCause::FeedTooMuchMarkup, LintRule::TooMuchMarkup},
        {ErrorCause::FeedTooManyItems, LintRule::TooManyItems},
        {ErrorCause::FeedTooManyNamespaces, LintRule::TooManyNamespaces},
        {ErrorCause::FeedIsWebPage, LintRule::NotAFeed},
        {ErrorCause::FeedIsOtherDocument, LintRule::NotAFeed},
    };
    auto const* const row =
        std::find_if(std::begin(RULES), std::end(RULES), [cause](auto const& each) { return each.first == cause; });
    return row == std::end(RULES) ? LintRule::MalformedXml : row->second;
}

LintFinding FindingOf(Engine::FeedParseError const& error)
{
    QString const what = error.detail.isEmpty() ? error.sentence.English() : error.detail;
    return {RuleOf(error.cause), {error.line, error.column}, WithoutFullStop(what)};
}

QStringList MachinesOf(XmlElement const& enclosure)
{
    return enclosure.OwnAttribute("machine").value_or(QString()).simplified().split(u' ', Qt::SkipEmptyParts);
}

/// The item that the parser takes.
XmlElement const* EnclosureFor(Engine::FeedTarget const& target, XmlElement const& item)
{
    XmlElement const* best = nullptr;
    for (XmlElement const& child : item.children)
    {
        std::optional<QString> const system = child.FeedAttribute("os");
        bool const isForPlatform =
            child.name.IsPlain("enclosure") &&
            (!system || system->trimmed().compare(Engine::NameOf(target.platform), Qt::CaseInsensitive) == 0);
        bool const isBetter = !best || (!Engine::SuitsMachine(MachinesOf(*best), target.machine) &&
                                        Engine::SuitsMachine(MachinesOf(child), target.machine));
        best = isForPlatform && isBetter ? &child : best;
    }
    return best;
}

/// Empty for the parsing without a machine; then each machine that the downloads of an item name.
QStringList MachinesIn(std::vector<XmlElement const*> const& items)
{
    QStringList named;
    for (XmlElement const* const item : items)
    {
        for (XmlElement const& child : item->children)
        {
            named += MachinesOf(child);
        }
    }
    QStringList machines{QString()};
    for (std::string const& name : Engine::MachineNames())
    {
        QString const machine = QString::fromStdString(name);
        machines += !named.isEmpty() && Engine::SuitsMachine(named, machine) ? QStringList(machine) : QStringList();
    }
    return machines;
}

/// The element below \a element whose place the parser reports for \a item.
XmlElement const* FindElement(XmlElement const& element, Engine::FeedItem const& item)
{
    for (XmlElement const& child : element.children)
    {
        if (child.IsSourceOf(item))
        {
            return &child;
        }
        if (XmlElement const* const found = FindElement(child, item))
        {
            return found;
        }
    }
    return nullptr;
}

LintItem LinkItem(Engine::FeedItem const& item, XmlElement const& element, Engine::FeedTarget const& target)
{
    LintItem linked;
    linked.full = {&item, &element, EnclosureFor(target, element)};
    for (Engine::FeedItem const& delta : item.deltas)
    {
        if (XmlElement const* const enclosure = FindElement(element, delta))
        {
            linked.deltas.push_back({&delta, enclosure, enclosure});
        }
    }
    return linked;
}

void AddPlatform(LintSubject& subject, QByteArray const& bytes, Engine::FeedTarget const& target)
{
    LintPlatform& added = subject.platforms.emplace_back();
    added.system = target.platform;
    added.parsed = Engine::ParseFeed(bytes, subject.address, target).value_or(Engine::FeedContent()).items;
    auto element = subject.itemElements.begin();
    for (Engine::FeedItem const& item : added.parsed)
    {
        // Both lists are in the order of the feed. The parser omits items of other platforms.
        element = std::find_if(element, subject.itemElements.end(),
                               [&](XmlElement const* each) { return each->IsSourceOf(item); });
        if (element == subject.itemElements.end())
        {
            return;
        }
        added.items.push_back(LinkItem(item, **element, target));
    }
}

/// A prefix that should be bound to the feed's namespace but is bound to another one.
bool IsWrong(XmlNamespace const& declared)
{
    bool const isAlmost = declared.uri.contains("xml-namespaces/sparkle"_l, Qt::CaseInsensitive);
    return !IsFeedNamespaceUri(declared.uri) && !declared.uri.isEmpty() && (isAlmost || declared.prefix == "sparkle"_l);
}

void FindWrongNamespaces(XmlElement const& element, std::set<QString>& uris, LintFindings& findings)
{
    for (XmlNamespace const& declared : element.namespaces)
    {
        if (IsWrong(declared) && uris.insert(declared.uri).second)
        {
            findings.Add(LintRule::WrongNamespace, element.place,
                         u"the prefix %1 is bound to \"%2\""_s.arg(declared.prefix, declared.uri));
        }
    }
    for (XmlElement const& child : element.children)
    {
        FindWrongNamespaces(child, uris, findings);
    }
}

/// \a bytes with the declaration corrected, so that only the wrong declaration is reported and not its consequences. A
/// feed in another encoding than UTF-8 is unchanged.
QByteArray WithRightNamespace(QByteArray bytes, LintFindings& findings)
{
    if (!Engine::ParseFeed(bytes, QUrl(), FeedPlatform::Linux))
    {
        return bytes;
    }
    std::set<QString> uris;
    FindWrongNamespaces(ReadFeedDocument(bytes), uris, findings);
    QByteArray const right = Engine::FEED_NAMESPACE;
    for (QString const& uri : uris)
    {
        for (char const quote : {'"', '\''})
        {
            bytes.replace(quote + uri.toHtmlEscaped().toUtf8() + quote, quote + right + quote);
        }
    }
    return bytes;
}

} // namespace

void LintFindings::Add(LintRule rule, TextPlace place, QString const& what)
{
    // Items for all platforms appear once for each platform, but are checked once.
    if (m_known.emplace(rule, place.line, place.column, what).second)
    {
        m_findings.push_back({rule, place, what});
    }
}

std::vector<LintFinding> LintFindings::Sorted() const
{
    std::vector<LintFinding> sorted = m_findings;
    std::stable_sort(
        sorted.begin(), sorted.end(),
        [](LintFinding const& a, LintFinding const& b)
        { return std::tie(a.place.line, a.place.column, a.rule) < std::tie(b.place.line, b.place.column, b.rule); });
    return sorted;
}

QString NameOf(Engine::FeedItem const& item)
{
    if (item.isDelta)
    {
        return u"the delta from %1"_s.arg(item.deltaFrom);
    }
    if (!item.versionString.isEmpty())
    {
        return u"item %1"_s.arg(item.versionString);
    }
    return item.title.isEmpty() ? u"an item"_s : u"item \"%1\""_s.arg(item.title);
}

LintResult LintFeed(QByteArray const& written, QUrl const& address)
{
    LintFindings findings;
    QByteArray const bytes = WithRightNamespace(written, findings);
    Engine::FeedParseResult const parsed = Engine::ParseFeed(bytes, address, FeedPlatform::MacOS);
    if (!parsed)
    {
        return {{FindingOf(parsed.error())}, nullptr};
    }
    auto subject = std::make_unique<LintSubject>();
    subject->address = address;
    subject->root = ReadFeedDocument(bytes);
    subject->itemElements = ItemElements(subject->root);
    for (QString const& machine : MachinesIn(subject->itemElements))
    {
        AddPlatform(*subject, bytes, {FeedPlatform::MacOS, machine});
        AddPlatform(*subject, bytes, {FeedPlatform::Linux, machine});
    }
    if (subject->itemElements.empty())
    {
        TextPlace const place =
            subject->root.children.empty() ? subject->root.place : subject->root.children.front().place;
        findings.Add(LintRule::NoItems, place, u"the feed has no item"_s);
    }
    for (auto* const check : {CheckNames, CheckTexts, CheckVersions, CheckSystems, CheckDownloads, CheckAddresses,
                              CheckOffers, CheckDeltas, CheckExtensions, CheckNotes})
    {
        check(*subject, findings);
    }
    return {findings.Sorted(), std::move(subject)};
}

} // namespace Pelnar::Publisher
