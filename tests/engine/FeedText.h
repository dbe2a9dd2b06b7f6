// FeedText.h: small feeds for tests. Plain C++.
#pragma once

#include <QByteArray>

namespace Pelnar::Testing
{

inline QByteArray FeedWith(QByteArray const& items)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<rss version=\"2.0\" "
           "xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\">\n<channel>\n<title>Pelnar</"
           "title>\n" +
           items + "</channel>\n</rss>\n";
}

/// \a inside is added to the item after its other elements.
inline QByteArray ItemOf(QByteArray const& version, QByteArray const& inside = {})
{
    return "<item><title>Version " + version + "</title><pubDate>Mon, 07 Jan 2019 10:00:00 +0000</pubDate>" +
           "<enclosure url=\"Pelnar-" + version + ".zip\" sparkle:version=\"" + version +
           "\" length=\"1000\" type=\"application/octet-stream\"/>" + inside + "</item>\n";
}

/// A delta of an item with \a version.
inline QByteArray DeltaOf(QByteArray const& version, QByteArray const& from)
{
    return "<sparkle:deltas><enclosure url=\"Pelnar-" + version + "-" + from + ".delta\" sparkle:version=\"" + version +
           "\" sparkle:deltaFrom=\"" + from + "\" length=\"100\"/></sparkle:deltas>";
}

} // namespace Pelnar::Testing
