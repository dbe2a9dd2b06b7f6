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

QString const FEED_NAMESPACE = QStringLiteral("http://www.andymatuschak.org/xml-namespaces/sparkle");

QString const FILE_PLACE = QStringLiteral("{file}");
QString const VERSION_PLACE = QStringLiteral("{version}");

char const* PlatformName(Engine::FeedPlatform platform)
{
    switch (platform)
    {
    case Engine::FeedPlatform::MacOS:
        return "macos";
    case Engine::FeedPlatform::Linux:
        return "linux";
    }
    return "";
}

/// What an item says of the way in which it is installed; null for a bundle, which says nothing.
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
    return QLocale::c().toString(time, QStringLiteral("ddd, dd MMM yyyy hh:mm:ss '+0000'"));
}

QString Attribute(QString const& name, QString const& value)
{
    return QStringLiteral(" %1=\"%2\"").arg(name, value.toHtmlEscaped());
}

QString Element(QString const& name, QString const& text)
{
    return QStringLiteral("<%1>%2</%1>").arg(name, text.toHtmlEscaped());
}

/// A section that holds \a text, no matter what stands in it.
QString CharacterData(QString text)
{
    return QStringLiteral("<![CDATA[") + text.replace(QLatin1String("]]>"), QLatin1String("]]]]><![CDATA[>")) +
           QStringLiteral("]]>");
}

/// The lines of one item.
class ItemWriter
{
public:
    ItemWriter(NewItem const& item, DownloadAddress const& address, QString feedPrefix)
        : m_item(item), m_address(address), m_feed(std::move(feedPrefix) + QLatin1Char(':'))
    {
    }

    QStringList Lines() const
    {
        QString const& shown = m_item.displayVersion.isEmpty() ? m_item.versionText : m_item.displayVersion;
        QStringList lines{QStringLiteral("<item>"),
                          Inner(Element(QStringLiteral("title"), m_item.productName + QLatin1Char(' ') + shown)),
                          Inner(Element(QStringLiteral("pubDate"), DateText(m_item.publishedAt)))};
        if (!m_item.minimumSystemVersion.isEmpty())
        {
            lines << Inner(Element(m_feed + QStringLiteral("minimumSystemVersion"), m_item.minimumSystemVersion));
        }
        for (ReleaseNotes const& notes : m_item.notes)
        {
            QString const language =
                notes.language.isEmpty() ? QString() : Attribute(QStringLiteral("xml:lang"), notes.language);
            lines << Inner(QStringLiteral("<description%1>%2</description>").arg(language, CharacterData(notes.html)));
        }
        lines << Inner(EnclosureText());
        if (m_item.recompressed)
        {
            lines << Inner(Enclosure(QStringLiteral("pelnar:recompressed"), m_item.recompressed->fileName, {},
                                     m_item.recompressed->signature));
        }
        if (!m_item.deltas.empty())
        {
            lines << Inner(QStringLiteral("<%1deltas>").arg(m_feed));
            for (NewDelta const& delta : m_item.deltas)
            {
                lines << Inner(Inner(DeltaText(delta)));
            }
            lines << Inner(QStringLiteral("</%1deltas>").arg(m_feed));
        }
        lines << Inner(KeysText());
        return lines << QStringLiteral("</item>");
    }

private:
    static QString Inner(QString const& line) { return QStringLiteral("  ") + line; }

    QString KeysText() const
    {
        QString const trusted = m_item.trustedIds.isEmpty()
                                    ? QString()
                                    : Attribute(QStringLiteral("trusted"), m_item.trustedIds.join(QLatin1Char(' ')));
        return QStringLiteral("<pelnar:keys xmlns:pelnar=\"%1\"%2%3/>")
            .arg(QLatin1String(Engine::OWN_FEED_NAMESPACE), Attribute(QStringLiteral("signer"), m_item.signerId),
                 trusted);
    }

    QString EnclosureText() const
    {
        QString more;
        if (!m_item.displayVersion.isEmpty())
        {
            more += Attribute(m_feed + QStringLiteral("shortVersionString"), m_item.displayVersion);
        }
        if (char const* const type = InstallationType(m_item.kind))
        {
            more += Attribute(m_feed + QStringLiteral("installationType"), QLatin1String(type));
        }
        return Enclosure(QStringLiteral("enclosure"), m_item.fileName, more, m_item.signature);
    }

    QString DeltaText(NewDelta const& delta) const
    {
        return Enclosure(QStringLiteral("enclosure"), delta.fileName,
                         Attribute(m_feed + QStringLiteral("deltaFrom"), delta.baseVersion), delta.signature);
    }

    QString Enclosure(QString const& element, QString const& fileName, QString const& more,
                      ArchiveSignature const& signature) const
    {
        QString const platform = Attribute(m_feed + QStringLiteral("os"), QLatin1String(PlatformName(m_item.platform)));
        QString const machine = m_item.machines.isEmpty() ? QString()
                                                          : Attribute(QStringLiteral("pelnar:machine"),
                                                                      m_item.machines.join(QLatin1Char(' ')));
        bool const isOwn = element != QLatin1String("enclosure") || !machine.isEmpty() || !signature.all.empty();
        QString const own =
            isOwn ? Attribute(QStringLiteral("xmlns:pelnar"), QLatin1String(Engine::OWN_FEED_NAMESPACE)) : QString();
        return QStringLiteral("<") + element +
               Attribute(QStringLiteral("url"),
                         m_address.Of(fileName, m_item.versionText).toString(QUrl::FullyEncoded)) +
               Attribute(m_feed + QStringLiteral("version"), m_item.versionText) + more + platform + own + machine +
               Attribute(QStringLiteral("length"), QString::number(signature.length)) +
               Attribute(QStringLiteral("type"), QStringLiteral("application/octet-stream")) +
               Attribute(m_feed + QStringLiteral("edSignature"), signature.signature) + MoreSignatures(signature) +
               QStringLiteral("/>");
    }

    static QString MoreSignatures(ArchiveSignature const& signature)
    {
        return signature.all.empty() ? QString()
                                     : Attribute(QStringLiteral("pelnar:signatures"), TextOf(signature.all));
    }

    NewItem const& m_item;
    DownloadAddress const& m_address;
    QString m_feed;
};

} // namespace

DownloadAddress DownloadAddress::UnderPrefix(QString const& prefix)
{
    bool const hasBraces = prefix.contains(QLatin1Char('{'));
    QString const slash = prefix.endsWith(QLatin1Char('/')) ? QString() : QStringLiteral("/");
    return DownloadAddress(QStringLiteral("--url-prefix: \"%1\"").arg(prefix),
                           hasBraces ? QString() : prefix + slash + FILE_PLACE);
}

DownloadAddress DownloadAddress::ByPattern(QString const& pattern)
{
    return DownloadAddress(QStringLiteral("--url-template: \"%1\"").arg(pattern), pattern);
}

DownloadAddress::DownloadAddress(QString option, QString pattern) : m_pattern(std::move(pattern))
{
    QUrl const url = Of(QStringLiteral("file"), QStringLiteral("1"));
    bool const isSecure = url.scheme() == QLatin1String("https");
    bool const isForDryRun = url.scheme() == QLatin1String("http") && Engine::IsLoopback(url);
    bool const isPlain = url.userInfo().isEmpty() && !url.hasQuery() && !url.hasFragment();
    bool const isComplete = m_pattern.count(FILE_PLACE) == 1 && m_pattern.endsWith(FILE_PLACE) &&
                            !url.toString().contains(QLatin1Char('{')) &&
                            !url.toString().contains(QLatin1String("%7B"));
    if (!url.isValid() || url.host().isEmpty() || !isPlain || !isComplete || !(isSecure || isForDryRun))
    {
        throw Refusal({{},
                       0,
                       0,
                       option + QStringLiteral(" is no place that clients download from"),
                       QStringLiteral("give an address such as https://updates.example.com/app/ (http only for this "
                                      "computer), or as a template https://updates.example.com/{version}/{file}")});
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
    return isFolder ? Of(fileName, {}) : Of({}, {}).resolved(QUrl(QLatin1Char('/') + fileName));
}

QString ItemText(NewItem const& item, DownloadAddress const& address, QString const& feedPrefix,
                 QString const& indentation)
{
    return ItemWriter(item, address, feedPrefix).Lines().join(QLatin1Char('\n') + indentation);
}

QString EmptyFeedText(QString const& title, QString const& link)
{
    return QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<rss version=\"2.0\" xmlns:sparkle=\"%1\">\n"
                          "  <channel>\n    %2\n    %3\n    %4\n  </channel>\n</rss>\n")
        .arg(FEED_NAMESPACE, Element(QStringLiteral("title"), title), Element(QStringLiteral("link"), link),
             Element(QStringLiteral("description"), QStringLiteral("Updates of ") + title));
}

} // namespace Pelnar::Publisher
