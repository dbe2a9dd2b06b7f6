// AddressRules.cpp: addresses that nobody but the publisher reaches, that lead to something else than an update, or
// that two versions share.

#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "Publisher/lint/AddressForms.h"
#include "Publisher/lint/LintSubject.h"

#include <QHash>
#include <QHostAddress>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace Pelnar::Publisher
{
namespace
{

using App::Session::VersionFromStringNoexcept;

/// Of no place that a client on another network reaches.
bool IsNear(QUrl const& url)
{
    QString host = url.host();
    while (host.endsWith(QLatin1Char('.')))
    {
        host.chop(1); // the root of all names
    }
    QHostAddress address(host);
    bool holdsIPv4 = false;
    quint32 const number = address.toIPv4Address(&holdsIPv4);
    address = holdsIPv4 ? QHostAddress(number) : address; // that an address of IPv6 may hold
    if (!address.isNull())
    {
        static QPair<QHostAddress, int> const PRIVATE[] = {
            QHostAddress::parseSubnet(QStringLiteral("0.0.0.0/8")),
            QHostAddress::parseSubnet(QStringLiteral("10.0.0.0/8")),
            QHostAddress::parseSubnet(QStringLiteral("100.64.0.0/10")),
            QHostAddress::parseSubnet(QStringLiteral("172.16.0.0/12")),
            QHostAddress::parseSubnet(QStringLiteral("192.168.0.0/16")),
            QHostAddress::parseSubnet(QStringLiteral("169.254.0.0/16")),
            QHostAddress::parseSubnet(QStringLiteral("fc00::/7")),
            QHostAddress::parseSubnet(QStringLiteral("fe80::/10")),
        };
        return address.isLoopback() || std::any_of(std::begin(PRIVATE), std::end(PRIVATE),
                                                   [&](auto const& subnet) { return address.isInSubnet(subnet); });
    }
    constexpr char const* ENDINGS[] = {".localhost", ".local", ".internal", ".lan", ".home.arpa"};
    return (!host.isEmpty() && !host.contains(QLatin1Char('.'))) ||
           std::any_of(std::begin(ENDINGS), std::end(ENDINGS),
                       [&](char const* ending) { return host.endsWith(QLatin1String(ending), Qt::CaseInsensitive); });
}

bool IsWebPage(LintDownload const& download)
{
    constexpr char const* ENDINGS[] = {".html", ".htm", ".xhtml", ".aspx", ".jsp", "/"};
    QString const path = download.item->fileUrl.path();
    QString const type =
        download.enclosure ? download.enclosure->PlainAttribute("type").value_or(QString()).trimmed() : QString();
    return path.isEmpty() || path.contains(QLatin1String("/releases/tag/")) ||
           type.startsWith(QLatin1String("text/html"), Qt::CaseInsensitive) ||
           std::any_of(std::begin(ENDINGS), std::end(ENDINGS),
                       [&](char const* ending) { return path.endsWith(QLatin1String(ending), Qt::CaseInsensitive); });
}

void CheckDownloadAddress(LintDownload const& download, QUrl const& feed, LintFindings& findings)
{
    QUrl const& url = download.item->fileUrl;
    if (IsOfThisDisk(WrittenAddress(download)))
    {
        findings.Add(LintRule::LocalAddress, download.Place(), WrittenAddress(download));
        return;
    }
    if (url.isEmpty() || url.isLocalFile())
    {
        return;
    }
    // A dry run's feed lies as near as its downloads do.
    if (IsNear(url) && !(IsNear(feed) && !feed.isLocalFile()))
    {
        findings.Add(LintRule::NearAddress, download.Place(), url.toString(QUrl::FullyEncoded));
    }
    if (IsWebPage(download))
    {
        findings.Add(LintRule::WebPageDownload, download.Place(), url.toString(QUrl::FullyEncoded));
    }
}

/// Of texts that hold addresses: the notes' markup and their link.
void CheckNotesAddresses(LintElement const& item, LintFindings& findings)
{
    static QRegularExpression const LINK(QStringLiteral("(?:href|src)\\s*=\\s*[\"']?\\s*(file:[^\"'\\s>]*)"),
                                         QRegularExpression::CaseInsensitiveOption);
    for (LintElement const& child : item.children)
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
        Core::Version const version = VersionFromStringNoexcept(item.full.item->versionString);
        Core::Version const other = VersionFromStringNoexcept(first->full.item->versionString);
        if (version.IsValid() && other.IsValid() && !App::Session::IsSameVersion(version, other))
        {
            findings.Add(LintRule::SharedAddress, item.full.Place(),
                         QStringLiteral("%1 is the address of %2 in line %3 as well")
                             .arg(address, NameOf(*first->full.item))
                             .arg(first->full.Place().line));
        }
    }
}

} // namespace

QString WrittenAddress(LintDownload const& download)
{
    return download.enclosure ? download.enclosure->PlainAttribute("url").value_or(QString()).trimmed() : QString();
}

bool IsOfThisDisk(QString const& text)
{
    static QRegularExpression const FORM(
        QStringLiteral("^(file:|[a-z]:[\\\\/]|\\\\\\\\|~/|/(home|Users|root|tmp|mnt|media|Volumes|private|run)/)"),
        QRegularExpression::CaseInsensitiveOption);
    return FORM.match(text).hasMatch();
}

void CheckAddresses(LintSubject const& subject, LintFindings& findings)
{
    for (LintElement const* item : subject.itemElements)
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
    }
}

} // namespace Pelnar::Publisher
