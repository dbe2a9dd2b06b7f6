// FeedFixture.h: feeds written in a test, and their parser with the engine's own limits.
#pragma once

#include "Engine/core/feed/FeedParser.h"

#include <QByteArray>
#include <QUrl>

#include <string>

namespace Pelnar::Engine::Tests
{

inline QUrl FeedUrl()
{
    return QUrl(QStringLiteral("https://feeds.example.com/app/appcast.xml"));
}

/// A whole feed around \a items, with the feed's namespace under its usual prefix.
inline QByteArray Feed(QByteArray const& items)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
           "<rss version=\"2.0\" xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\">\n"
           "<channel>\n<title>App</title>\n" +
           items + "</channel>\n</rss>\n";
}

inline FeedParseResult Parse(QByteArray const& bytes, FeedPlatform platform = FeedPlatform::MacOS,
                             FeedLimits const& limits = {}, QStringList const& languages = {})
{
    return ParseFeed(bytes, FeedUrl(), platform, limits, languages);
}

/// The only item of a feed with \a content. If the number of items is not one, the test fails and the result is an
/// empty item.
FeedItem OnlyItem(QByteArray const& content, FeedPlatform platform = FeedPlatform::MacOS,
                  QStringList const& languages = {});

inline std::string Text(QString const& text)
{
    return text.toStdString();
}

} // namespace Pelnar::Engine::Tests
