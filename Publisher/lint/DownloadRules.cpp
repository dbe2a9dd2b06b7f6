// DownloadRules.cpp: addresses, lengths, dates, file names and signatures of downloads.

#include "App/UpdateChecker/SparkleImpl/Choice/UpdateType.h"
#include "Engine/core/bundle/Ed25519Signature.h"
#include "Engine/core/feed/ReleaseRules.h"
#include "Engine/core/fetch/FetchRules.h"
#include "Publisher/lint/LintSubject.h"

#include <algorithm>

namespace Pelnar::Publisher
{
namespace
{

using App::Session::DetectUpdateType;

constexpr int MAX_ADDRESS_CHARACTERS = 8192;

QString Shortened(QString const& text)
{
    constexpr int MOST = 80;
    return text.size() <= MOST ? text : text.left(MOST) + u"..."_s;
}

bool IsLocalFile(QUrl const& url)
{
    return url.scheme() == "file"_l;
}

/// For an address that is present.
void CheckAddress(QUrl const& url, TextPlace place, QUrl const& feed, LintFindings& findings)
{
    QString const text = Shortened(url.toString(QUrl::FullyEncoded));
    bool const isHttp = url.scheme() == "http"_l;
    // A feed that is read before it is published has relative addresses of files.
    if (!isHttp && !Engine::IsHttps(url) && !(IsLocalFile(url) && IsLocalFile(feed)))
    {
        findings.Add(LintRule::AddressScheme, place, text);
        return;
    }
    if (isHttp && !Engine::IsLoopback(url))
    {
        findings.Add(LintRule::AddressInsecure, place, text);
    }
    if (!IsLocalFile(url) && url.host().isEmpty())
    {
        findings.Add(LintRule::AddressHost, place, text);
    }
    if (!url.userInfo().isEmpty())
    {
        findings.Add(LintRule::AddressCredentials, place, u"the address at %1"_s.arg(url.host()));
    }
    if (url.host(QUrl::FullyEncoded).contains("xn--"_l))
    {
        findings.Add(LintRule::AddressInternational, place, u"the host is %1"_s.arg(url.host(QUrl::FullyEncoded)));
    }
}

/// For an address that clients treat as missing.
void CheckMissingAddress(LintDownload const& download, QUrl const& feed, LintFindings& findings)
{
    QString const text = download.WrittenAddress();
    if (feed.resolved(QUrl(text)).toEncoded().size() > MAX_ADDRESS_CHARACTERS)
    {
        findings.Add(LintRule::AddressTooLong, download.Place(), Shortened(text));
        return;
    }
    findings.Add(LintRule::AddressMissing, download.Place(), NameOf(*download.item) + u" has no valid address"_s);
}

void CheckLength(LintDownload const& download, LintFindings& findings)
{
    if (!download.enclosure || download.item->contentLength != 0)
    {
        return;
    }
    std::optional<QString> const length = download.enclosure->PlainAttribute("length");
    QString const text = length.value_or(QString()).trimmed();
    if (text.isEmpty())
    {
        findings.Add(LintRule::LengthMissing, download.Place(), NameOf(*download.item) + u" has no length"_s);
        return;
    }
    bool const isDecimal =
        std::all_of(text.begin(), text.end(), [](QChar each) { return each >= u'0' && each <= u'9'; });
    bool const isZero = isDecimal && text.count(u'0') == text.size();
    findings.Add(!isDecimal ? LintRule::LengthUnreadable
                 : isZero   ? LintRule::LengthZero
                            : LintRule::LengthTooLarge,
                 download.Place(), u"the length of %1 is \"%2\""_s.arg(NameOf(*download.item), Shortened(text)));
}

void CheckMarker(LintDownload const& download, LintFindings& findings)
{
    QString const name = download.item->fileUrl.fileName(QUrl::FullyDecoded);
    if (DetectUpdateType(false, name) != DetectUpdateType(false, name.toLower()))
    {
        findings.Add(LintRule::MarkerCase, download.Place(), name);
    }
}

void CheckSignature(LintDownload const& download, LintFindings& findings)
{
    if (!download.enclosure)
    {
        return;
    }
    std::optional<QString> const signature = download.enclosure->FeedAttribute("edSignature");
    Engine::Ed25519SignatureBytes bytes;
    if (!signature || signature->isEmpty())
    {
        findings.Add(LintRule::SignatureMissing, download.Place(),
                     NameOf(*download.item) + u" has no sparkle:edSignature"_s);
    }
    else if (Engine::ParseSignature(download.item->edSignature.toStdString(), bytes) != Engine::UpdateFault::None)
    {
        findings.Add(LintRule::SignatureUnreadable, download.Place(),
                     u"the signature of %1 is \"%2\""_s.arg(NameOf(*download.item), Shortened(*signature)));
    }
}

void CheckDate(LintItem const& item, LintFindings& findings)
{
    QString const& text = item.full.item->dateString;
    if (text.isEmpty())
    {
        return;
    }
    XmlElement const* const date = item.full.element->PlainChild("pubDate");
    TextPlace const place = date ? date->place : item.full.element->place;
    if (QDate::fromString(text, Qt::TextDate).isValid())
    {
        findings.Add(LintRule::DateTextForm, place, u"the date is \"%1\""_s.arg(Shortened(text)));
    }
    else if (!Engine::FeedTime(text).isValid())
    {
        findings.Add(LintRule::DateUnusual, place, u"the date is \"%1\""_s.arg(Shortened(text)));
    }
}

void CheckDownload(LintDownload const& download, QUrl const& feed, LintFindings& findings)
{
    QUrl const& url = download.item->fileUrl;
    bool const isReported = IsOfThisDisk(download.WrittenAddress()); // by another rule
    if (url.isEmpty() && !isReported)
    {
        CheckMissingAddress(download, feed, findings);
    }
    else if (!isReported)
    {
        CheckAddress(url, download.Place(), feed, findings);
    }
    CheckLength(download, findings);
    CheckSignature(download, findings);
}

} // namespace

void CheckDownloads(LintSubject const& subject, LintFindings& findings)
{
    if (subject.address.scheme() == "http"_l && !Engine::IsLoopback(subject.address))
    {
        findings.Add(LintRule::AddressInsecure, {1, 1},
                     u"the feed is at %1"_s.arg(Shortened(subject.address.toString(QUrl::FullyEncoded))));
    }
    for (LintPlatform const& platform : subject.platforms)
    {
        for (LintItem const& item : platform.items)
        {
            CheckDownload(item.full, subject.address, findings);
            CheckMarker(item.full, findings);
            CheckDate(item, findings);
            for (LintDownload const& delta : item.deltas)
            {
                CheckDownload(delta, subject.address, findings);
            }
        }
    }
}

} // namespace Pelnar::Publisher
