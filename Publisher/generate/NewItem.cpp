#include "Publisher/generate/NewItem.h"

#include "Publisher/Refusal.h"

#include <QDateTime>
#include <QHostAddress>
#include <QLocale>
#include <QStringList>

namespace Pelnar::Publisher
{
namespace
{

QString const FEED_NAMESPACE = QStringLiteral("http://www.andymatuschak.org/xml-namespaces/sparkle");

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

bool IsThisComputer(QUrl const& url)
{
    return url.host() == QLatin1String("localhost") || QHostAddress(url.host()).isLoopback();
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
                          Inner(Element(QStringLiteral("pubDate"), DateText(m_item.changedAt)))};
        if (!m_item.minimumSystemVersion.isEmpty())
        {
            lines << Inner(Element(m_feed + QStringLiteral("minimumSystemVersion"), m_item.minimumSystemVersion));
        }
        if (m_item.notes)
        {
            lines << Inner(QStringLiteral("<description>%1</description>").arg(CharacterData(*m_item.notes)));
        }
        lines << Inner(EnclosureText());
        if (!m_item.deltas.empty())
        {
            lines << Inner(QStringLiteral("<%1deltas>").arg(m_feed));
            for (NewDelta const& delta : m_item.deltas)
            {
                lines << Inner(Inner(DeltaText(delta)));
            }
            lines << Inner(QStringLiteral("</%1deltas>").arg(m_feed));
        }
        return lines << QStringLiteral("</item>");
    }

private:
    static QString Inner(QString const& line) { return QStringLiteral("  ") + line; }

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
        return Enclosure(m_item.fileName, more, m_item.signature);
    }

    QString DeltaText(NewDelta const& delta) const
    {
        return Enclosure(delta.fileName, Attribute(m_feed + QStringLiteral("deltaFrom"), delta.baseVersion),
                         delta.signature);
    }

    QString Enclosure(QString const& fileName, QString const& more, ArchiveSignature const& signature) const
    {
        QString const platform = Attribute(m_feed + QStringLiteral("os"), QLatin1String(PlatformName(m_item.platform)));
        return QStringLiteral("<enclosure") +
               Attribute(QStringLiteral("url"), m_address.Of(fileName).toString(QUrl::FullyEncoded)) +
               Attribute(m_feed + QStringLiteral("version"), m_item.versionText) + more + platform +
               Attribute(QStringLiteral("length"), QString::number(signature.length)) +
               Attribute(QStringLiteral("type"), QStringLiteral("application/octet-stream")) +
               Attribute(m_feed + QStringLiteral("edSignature"), signature.signature) + QStringLiteral("/>");
    }

    NewItem const& m_item;
    DownloadAddress const& m_address;
    QString m_feed;
};

} // namespace

DownloadAddress::DownloadAddress(QString const& prefix) : m_prefix(prefix)
{
    if (!m_prefix.endsWith(QLatin1Char('/')))
    {
        m_prefix += QLatin1Char('/');
    }
    QUrl const url(m_prefix, QUrl::StrictMode);
    bool const isSecure = url.scheme() == QLatin1String("https");
    bool const isForDryRun = url.scheme() == QLatin1String("http") && IsThisComputer(url);
    bool const isPlain = url.userInfo().isEmpty() && !url.hasQuery() && !url.hasFragment();
    if (!url.isValid() || url.host().isEmpty() || !isPlain || !(isSecure || isForDryRun))
    {
        throw Refusal({{},
                       0,
                       0,
                       QStringLiteral("--url-prefix: \"%1\" is no folder that clients download from").arg(prefix),
                       QStringLiteral("give an address such as https://updates.example.com/app/ (http only for this "
                                      "computer)")});
    }
}

QUrl DownloadAddress::Of(QString const& fileName) const
{
    return QUrl(m_prefix + QString::fromLatin1(QUrl::toPercentEncoding(fileName)), QUrl::StrictMode);
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
