// PolicyFixture.h: items of a feed, and installations for which they are judged.
#pragma once

#include "Engine/core/feed/FeedParser.h"
#include "Engine/core/feed/ReleaseRules.h"

#include <gtest/gtest.h>

namespace Pelnar::Testing
{

using Engine::FeedItem;
using Engine::Installation;
using Engine::PolicyVerdict;

/// For versions with one digit at most after each dot.
inline int OrderOf(QString const& a, QString const& b)
{
    double const difference = a.toDouble() - b.toDouble();
    return difference < 0 ? -1 : difference > 0 ? 1 : 0;
}

inline FeedItem ItemWith(QByteArray const& elements, QByteArray const& attributes = {},
                         Engine::FeedTarget const& target = Engine::FeedPlatform::Linux)
{
    QByteArray const feed = "<rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle' "
                            "xmlns:pelnar='https://pelnar.example/xml-namespaces/appcast'><channel><item>"
                            "<pubDate>Mon, 07 Jan 2030 10:00:00 +0000</pubDate>" +
                            elements + "<enclosure url='a.zip' length='1' sparkle:version='6.0' " + attributes +
                            "/></item></channel></rss>";
    Engine::FeedParseResult const result =
        Engine::ParseFeed(feed, QUrl(QStringLiteral("https://feeds.example.com/a.xml")), target);
    EXPECT_TRUE(result && result->items.size() == 1U) << feed.toStdString();
    return result && !result->items.empty() ? result->items.front() : FeedItem();
}

inline QDateTime Moment(char const* text)
{
    return QDateTime::fromString(QLatin1String(text), Qt::ISODate);
}

inline Installation Client(char const* version = "5.0", char const* machine = "x86_64",
                           QStringList const& channels = {})
{
    Installation installation;
    installation.version = QLatin1String(version);
    installation.machine = QLatin1String(machine);
    installation.channels = channels;
    installation.now = Moment("2030-01-08T10:00:00Z");
    return installation;
}

} // namespace Pelnar::Testing
