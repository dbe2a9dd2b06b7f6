#include "Publisher/generate/NewItem.h"

#include "Engine/core/fetch/AddressReach.h"
#include "Publisher/Refusal.h"

#include <QDateTime>
#include <QLocale>
#include <QStringList>

namespace Pelnar::Publisher
{
namespace
{

QString const FILE_PLACE = u"{file}"_s;
QString const VERSION_PLACE = u"{version}"_s;

/// The item's kind of installation; null for a bundle, which has none.
char const* InstallationType(ArchiveKind kind)
{
    switch (kind)
    {
    case ArchiveKind::GuidedInstaller:
        return "package";
    case ArchiveKind::InteractiveInstaller:
        return "interactive-package";
    case ArchiveKind::Bundle:
    case ArchiveKind::Delta:
        break;
    }
    return nullptr;
}

QString DateText(std::int64_t seconds)
{
    QDateTime const time = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
    return QLocale::c().toString(time, u"ddd, dd MMM yyyy hh:mm:ss '+0000'"_s);
}

QString Attribute(QString const& name, QString const& value)
{
    return u" %1=\"%2\""_s.arg(name, value.toHtmlEscaped());
}

QString Element(QString const& name, QString const& text)
{
    return u"<%1>%2</%1>"_s.arg(name, text.toHtmlEscaped());
}

/// The lines of one item.
class ItemWriter
{
public:
    ItemWriter(NewItem const& item, DownloadAddress const& address, QString feedPrefix)
        : m_item(item), m_address(address), m_feed(std::move(feedPrefix) + u':')
    {
    }

    QStringList Lines() const
    {
        QString const& shown = m_item.displayVersion.isEmpty() ? m_item.versionText : m_item.displayVersion;
        QStringList lines{u"<item>"_s, Inner(Element(u"title"_s, m_item.productName + u' ' + shown)),
                          Inner(Element(u"pubDate"_s, DateText(m_item.publishedAt)))};
        if (!m_item.minimumSystemVersion.isEmpty())
        {
            lines << Inner(Element(m_feed + u"minimumSystemVersion"_s, m_item.minimumSystemVersion));
        }
        for (ReleaseNotes const& notes : m_item.notes)
        {
            lines << Inner(DescriptionText(notes));
        }
        lines << Inner(EnclosureText());
        if (m_item.recompressed)
        {
            lines << Inner(
                Enclosure(u"pelnar:recompressed"_s, m_item.recompressed->fileName, {}, m_item.recompressed->signature));
        }
        if (!m_item.deltas.empty())
        {
            lines << Inner(u"<%1deltas>"_s.arg(m_feed));
            for (NewDelta const& delta : m_item.deltas)
            {
                lines << Inner(Inner(DeltaText(delta)));
            }
            lines << Inner(u"</%1deltas>"_s.arg(m_feed));
        }
        lines << Inner(KeysText());
        return lines << u"</item>"_s;
    }

private:
    static QString Inner(QString const& line) { return u"  "_s + line; }

    QString KeysText() const
    {
        QString const trusted =
            m_item.trustedIds.isEmpty() ? QString() : Attribute(u"trusted"_s, m_item.trustedIds.join(u' '));
        return u"<pelnar:keys xmlns:pelnar=\"%1\"%2%3/>"_s.arg(QLatin1String(Engine::OWN_FEED_NAMESPACE),
                                                               Attribute(u"signer"_s, m_item.signerId), trusted);
    }

    QString EnclosureText() const
    {
        QString more;
        if (!m_item.displayVersion.isEmpty())
        {
            more += Attribute(m_feed + u"shortVersionString"_s, m_item.displayVersion);
        }
        if (char const* const type = InstallationType(m_item.kind))
        {
            more += Attribute(m_feed + u"installationType"_s, QLatin1String(type));
        }
        return Enclosure(u"enclosure"_s, m_item.fileName, more, m_item.signature);
    }

    QString DeltaText(NewDelta const& delta) const
    {
        return Enclosure(u"enclosure"_s, delta.fileName, Attribute(m_feed + u"deltaFrom"_s, delta.baseVersion),
                         delta.signature);
    }

    QString Enclosure(QString const& element, QString const& fileName, QString const& more,
                      ArchiveSignature const& signature) const
    {
        QString const platform = Attribute(m_feed + u"os"_s, Engine::NameOf(m_item.platform));
        QString const machine =
            m_item.machines.isEmpty() ? QString() : Attribute(u"pelnar:machine"_s, m_item.machines.join(u' '));
        bool const isOwn = element != "enclosure"_l || !machine.isEmpty() || !signature.all.empty();
        QString const own = isOwn ? Attribute(u"xmlns:pelnar"_s, QLatin1String(Engine::OWN_FEED_NAMESPACE)) : QString();
        return u"<"_s + element +
               Attribute(u"url"_s, m_address.Of(fileName, m_item.versionText).toString(QUrl::FullyEncoded)) +
               Attribute(m_feed + u"version"_s, m_item.versionText) + more + platform + own + machine +
               Attribute(u"length"_s, QString::number(signature.length)) +
               Attribute(u"type"_s, u"application/octet-stream"_s) +
               Attribute(m_feed + u"edSignature"_s, signature.signature) + MoreSignatures(signature) + u"/>"_s;
    }

    static QString MoreSignatures(ArchiveSignature const& signature)
    {
        return signature.all.empty() ? QString() : Attribute(u"pelnar:signatures"_s, TextOf(signature.all));
    }

    NewItem const& m_item;
    DownloadAddress const& m_address;
    QString m_feed;
};

} // namespace

DownloadAddress DownloadAddress::UnderPrefix(QString const& prefix)
{
    bool const hasBraces = prefix.contains(u'{');
    QString const slash = prefix.endsWith(u'/') ? QString() : u"/"_s;
    return DownloadAddress(u"--url-prefix: \"%1\""_s.arg(prefix), hasBraces ? QString() : prefix + slash + FILE_PLACE);
}

DownloadAddress DownloadAddress::ByPattern(QString const& pattern)
{
    return DownloadAddress(u"--url-template: \"%1\""_s.arg(pattern), pattern);
}

DownloadAddress::DownloadAddress(QString option, QString pattern) : m_pattern(std::move(pattern))
{
    QUrl const url = Of(u"file"_s, u"1"_s);
    bool const isSecure = url.scheme() == "https"_l;
    bool const isForDryRun = url.scheme() == "http"_l && Engine::IsLoopback(url);
    bool const isPlain = url.userInfo().isEmpty() && !url.hasQuery() && !url.hasFragment();
    bool const isComplete = m_pattern.count(FILE_PLACE) == 1 && m_pattern.endsWith(FILE_PLACE) &&
                            !url.toString().contains(u'{') && !url.toString().contains("%7B"_l);
    if (!url.isValid() || url.host().isEmpty() || !isPlain || !isComplete || !(isSecure || isForDryRun))
    {
        throw Refusal({option + u" is not an address that clients download from"_s,
                       u"give an address such as https://updates.example.com/app/ (http only for this "
                       "computer), or as a template https://updates.example.com/{version}/{file}"_s});
    }
}

QUrl DownloadAddress::Of(QString const& fileName, QString const& version) const
{
    auto const encoded = [](QString const& text) { return QString::fromLatin1(QUrl::toPercentEncoding(text)); };
    QString address = m_pattern;
    address.replace(VERSION_PLACE, encoded(version)).replace(FILE_PLACE, encoded(fileName));
    return QUrl(address, QUrl::StrictMode);
}

QUrl DownloadAddress::OfFeed(QString const& fileName) const
{
    bool const isFolder = !m_pattern.contains(VERSION_PLACE);
    return isFolder ? Of(fileName, {}) : Of({}, {}).resolved(QUrl(u'/' + fileName));
}

QString DescriptionText(ReleaseNotes const& notes)
{
    QString html = notes.html;
    html.replace("]]>"_l, "]]]]><![CDATA[>"_l);
    QString const language = notes.language.isEmpty() ? QString() : Attribute(u"xml:lang"_s, notes.language);
    return u"<description%1><![CDATA[%2]]></description>"_s.arg(language, html);
}

QString ItemText(NewItem const& item, DownloadAddress const& address, QString const& feedPrefix,
                 QString const& indentation)
{
    return ItemWriter(item, address, feedPrefix).Lines().join(u'\n' + indentation);
}

QString EmptyFeedText(QString const& title, QString const& link)
{
    return u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<rss version=\"2.0\" xmlns:sparkle=\"%1\">\n"
           "  <channel>\n    %2\n    %3\n    %4\n  </channel>\n</rss>\n"_s.arg(
               QLatin1String(Engine::FEED_NAMESPACE), Element(u"title"_s, title), Element(u"link"_s, link),
               Element(u"description"_s, u"Updates of "_s + title));
}

} // namespace Pelnar::Publisher
