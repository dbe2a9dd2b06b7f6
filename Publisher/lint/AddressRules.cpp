// AddressRules.cpp: addresses that only the publisher can reach, that are no download, or that two versions share.

#include "Engine/core/fetch/AddressReach.h"
#include "Publisher/Console.h"
#include "Publisher/choice/ClientInstallation.h"
#include "Publisher/lint/LintSubject.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace Pelnar::Publisher
{
namespace
{

/// True for an address of this computer, of its network link, or of a private network.
bool IsPrivate(Engine::NumericAddress const& address)
{
    struct Subnet
    {
        std::uint32_t start;
        int bits;
    };
    constexpr Subnet PRIVATE[] = {{0x00000000, 8},  {0x0a000000, 8},  {0x64400000, 10}, {0x7f000000, 8},
                                  {0xa9fe0000, 16}, {0xac100000, 12}, {0xc0a80000, 16}};
    Engine::NumericAddress mapped = address;
    bool const isCompatible = std::all_of(address.begin(), address.begin() + 12, [](auto byte) { return byte == 0; });
    if (isCompatible)
    {
        mapped[10] = mapped[11] = 0xff;
    }
    if (std::optional<std::uint32_t> const ipv4 = Engine::IPv4Of(mapped))
    {
        return std::any_of(std::begin(PRIVATE), std::end(PRIVATE),
                           [&](Subnet const& subnet) { return (*ipv4 ^ subnet.start) >> (32 - subnet.bits) == 0; });
    }
    return (address[0] & 0xfe) == 0xfc || (address[0] == 0xfe && (address[1] & 0xc0) == 0x80);
}

/// True if no client on another network can reach the host.
bool IsNear(QUrl const& url)
{
    QString host = url.host();
    while (host.endsWith(u'.'))
    {
        host.chop(1); // the root of all names
    }
    if (std::optional<Engine::NumericAddress> const address = Engine::NumericAddressOf(host))
    {
        return IsPrivate(*address);
    }
    constexpr char const* ENDINGS[] = {".localhost", ".local", ".internal", ".lan", ".home.arpa"};
    return (!host.isEmpty() && !host.contains(u'.')) || EndsWithOneOf(host, ENDINGS);
}

bool IsWebPage(LintDownload const& download)
{
    constexpr char const* ENDINGS[] = {".html", ".htm", ".xhtml", ".aspx", ".jsp", "/"};
    QString const path = download.item->fileUrl.path();
    QString const type =
        download.enclosure ? download.enclosure->PlainAttribute("type").value_or(QString()).trimmed() : QString();
    return path.isEmpty() || path.contains("/releases/tag/"_l) || type.startsWith("text/html"_l, Qt::CaseInsensitive) ||
           EndsWithOneOf(path, ENDINGS);
}

void CheckDownloadAddress(LintDownload const& download, QUrl const& feed, LintFindings& findings)
{
    QUrl const& url = download.item->fileUrl;
    if (IsOfThisDisk(download.WrittenAddress()))
    {
        findings.Add(LintRule::LocalAddress, download.Place(), download.WrittenAddress());
        return;
    }
    if (url.isEmpty() || url.isLocalFile())
    {
        return;
    }
    // In a dry run, the feed and its downloads are on the same computer.
    if (IsNear(url) && !(IsNear(feed) && !feed.isLocalFile()))
    {
        findings.Add(LintRule::NearAddress, download.Place(), url.toString(QUrl::FullyEncoded));
    }
    if (IsWebPage(download))
    {
        findings.Add(LintRule::WebPageDownload, download.Place(), url.toString(QUrl::FullyEncoded));
    }
}

/// Addresses in texts: in the markup of the notes, and in their link.
void CheckNotesAddresses(XmlElement const& item, LintFindings& findings)
{
    static QRegularExpression const LINK(u"(?:href|src)\\s*=\\s*[\"']?\\s*(file:[^\"'\\s>]*)"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    for (XmlElement const& child : item.children)
    {
        bool const isLink = child.name.IsPlain("link") || child.name.IsFeeds("releaseNotesLink") ||
                            child.name.IsFeeds("fullReleaseNotesLink");
        QString const text = child.text.trimmed();
        if (isLink && IsOfThisDisk(text))
        {
            findings.Add(LintRule::LocalAddress, child.place, text);
        }
        QRegularExpressionMatch const match =
            child.name.IsPlain("description") ? LINK.match(child.text) : QRegularExpressionMatch();
        if (match.hasMatch())
        {
            findings.Add(LintRule::LocalAddress, child.place, match.captured(1));
        }
    }
}

/// Equal for addresses that are one name for a server or a disk that ignores case or composes letters.
QString Likeness(QUrl const& url)
{
    QString const path = url.path(QUrl::FullyDecoded).normalized(QString::NormalizationForm_C).toCaseFolded();
    return url.adjusted(QUrl::RemovePath | QUrl::RemoveFragment).toString(QUrl::FullyEncoded) + u' ' + path;
}

void CheckSimilarAddresses(std::vector<LintItem> const& items, LintFindings& findings)
{
    QHash<QString, LintItem const*> firstLike;
    for (LintItem const& item : items)
    {
        QUrl const& url = item.full.item->fileUrl;
        LintItem const*& first = firstLike[Likeness(url)];
        first = first ? first : &item;
        if (url != first->full.item->fileUrl)
        {
            findings.Add(LintRule::SimilarAddress, item.full.Place(),
                         u"%1 is similar to the address of %2 in line %3"_s.arg(
                             url.toString(QUrl::FullyEncoded), NameOf(*first->full.item),
                             QString::number(first->full.Place().line)));
        }
    }
}

void CheckSharedAddresses(std::vector<LintItem> const& items, LintFindings& findings)
{
    QHash<QString, LintItem const*> firstAt;
    for (LintItem const& item : items)
    {
        QString const address = item.full.item->fileUrl.toString(QUrl::FullyEncoded);
        if (address.isEmpty())
        {
            continue;
        }
        LintItem const*& first = firstAt[address];
        first = first ? first : &item;
        if (OrderOfTexts(item.full.item->versionString, first->full.item->versionString) != 0)
        {
            findings.Add(LintRule::SharedAddress, item.full.Place(),
                         u"%1 is also the address of %2 in line %3"_s.arg(address, NameOf(*first->full.item),
                                                                          QString::number(first->full.Place().line)));
        }
    }
}

} // namespace

QString LintDownload::WrittenAddress() const
{
    return enclosure ? enclosure->PlainAttribute("url").value_or(QString()).trimmed() : QString();
}

bool IsOfThisDisk(QString const& text)
{
    static QRegularExpression const FORM(
        u"^(file:|[a-z]:[\\\\/]|\\\\\\\\|~/|/(home|Users|root|tmp|mnt|media|Volumes|private|run)/)"_s,
        QRegularExpression::CaseInsensitiveOption);
    return FORM.match(text).hasMatch();
}

void CheckAddresses(LintSubject const& subject, LintFindings& findings)
{
    for (XmlElement const* item : subject.itemElements)
    {
        CheckNotesAddresses(*item, findings);
    }
    for (LintPlatform const& platform : subject.platforms)
    {
        for (LintItem const& item : platform.items)
        {
            CheckDownloadAddress(item.full, subject.address, findings);
            for (LintDownload const& delta : item.deltas)
            {
                CheckDownloadAddress(delta, subject.address, findings);
            }
        }
        CheckSharedAddresses(platform.items, findings);
        CheckSimilarAddresses(platform.items, findings);
    }
}

} // namespace Pelnar::Publisher
