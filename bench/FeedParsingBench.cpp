// FeedParsingBench.cpp: the time to parse a feed, compared with a bare QXmlStreamReader loop that stores the same
// fields and checks nothing: no limits, no namespaces by address, no cleaned texts. It also measures the most expensive
// feeds.

#include "Engine/core/feed/FeedParser.h"
#include "bench/Ratios.h"

#include <benchmark/benchmark.h>

#include <QXmlStreamReader>

#include <array>
#include <cstdint>
#include <limits>
#include <map>

namespace
{

using namespace Pelnar::Engine;

QByteArray MakeFeed(int items)
{
    QByteArray feed = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<rss version=\"2.0\" "
                      "xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\">\n<channel>\n"
                      "<title>App</title>\n";
    QByteArray const notes = QByteArray("<li>One more thing that works better than before</li>\n").repeated(6);
    for (int i = 0; i < items; ++i)
    {
        QByteArray const number = QByteArray::number(i);
        feed += "    <item>\n      <title>Version 5." + number +
                "</title>\n"
                "      <sparkle:minimumSystemVersion>10.13</sparkle:minimumSystemVersion>\n"
                "      <sparkle:releaseNotesLink>https://www.example.com/notes/5." +
                number +
                ".html</sparkle:releaseNotesLink>\n"
                "      <description><![CDATA[<ul>\n" +
                notes +
                "</ul>]]></description>\n"
                "      <pubDate>Mon, 07 Jan 2019 10:00:00 +0000</pubDate>\n"
                "      <enclosure url=\"https://files.example.com/downloads/App-5." +
                number +
                ".zip\"\n"
                "        sparkle:version=\"5." +
                number + "\" sparkle:shortVersionString=\"5." + number +
                "\"\n"
                "        length=\"10485760\" type=\"application/octet-stream\" sparkle:os=\"macos\"\n"
                "        "
                "sparkle:edSignature="
                "\"7cLALFUHSwvEJWSkV8aMreoBe4fhRa4FncC5NoThKxwThL6FDR7hTiPJh1fo2uagnPogisnQsgFgq6mGkt2RBw==\" />\n"
                "    </item>\n";
    }
    return feed + "</channel>\n</rss>\n";
}

void BareEnclosure(QXmlStreamReader& reader, FeedItem& item)
{
    QVariantMap properties;
    QXmlStreamAttributes const attributes = reader.attributes();
    for (QXmlStreamAttribute const& attribute : attributes)
    {
        QString const value = attribute.value().toString();
        properties.insert(attribute.qualifiedName().toString(), value);
        if (attribute.qualifiedName() == QLatin1String("url"))
        {
            item.fileUrl = QUrl(value);
        }
        else if (attribute.qualifiedName() == QLatin1String("length"))
        {
            item.contentLength = value.toULongLong();
        }
        else if (attribute.qualifiedName() == QLatin1String("sparkle:version"))
        {
            item.versionString = value;
        }
        else if (attribute.qualifiedName() == QLatin1String("sparkle:shortVersionString"))
        {
            item.displayVersionString = value;
        }
        else if (attribute.qualifiedName() == QLatin1String("sparkle:edSignature"))
        {
            item.edSignature = value;
        }
    }
    item.properties.insert(QStringLiteral("enclosure"), properties);
}

FeedItem BareItem(QXmlStreamReader& reader)
{
    FeedItem item;
    item.line = static_cast<int>(reader.lineNumber());
    item.column = static_cast<int>(reader.columnNumber());
    while (reader.readNextStartElement())
    {
        QString const name = reader.qualifiedName().toString();
        if (name == QLatin1String("enclosure"))
        {
            BareEnclosure(reader, item);
            reader.skipCurrentElement();
            continue;
        }
        QString const text = reader.readElementText(QXmlStreamReader::IncludeChildElements);
        if (name == QLatin1String("title"))
        {
            item.title = text;
        }
        else if (name == QLatin1String("pubDate"))
        {
            item.dateString = text;
        }
        else if (name == QLatin1String("description"))
        {
            item.description = text;
        }
        else if (name == QLatin1String("sparkle:minimumSystemVersion"))
        {
            item.minimumSystemVersion = text;
        }
        else if (name == QLatin1String("sparkle:releaseNotesLink"))
        {
            item.releaseNotesUrl = QUrl(text);
        }
        item.properties.insert(name, text);
    }
    return item;
}

std::vector<FeedItem> ParseBare(QByteArray const& feed)
{
    std::vector<FeedItem> items;
    QXmlStreamReader reader(feed);
    while (!reader.atEnd())
    {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String("item"))
        {
            items.push_back(BareItem(reader));
        }
    }
    return items;
}

std::vector<FeedItem> ParseOurs(QByteArray const& feed)
{
    FeedLimits limits;
    limits.maxItems = std::numeric_limits<int>::max();
    limits.maxMarkup = std::numeric_limits<int>::max();
    static QUrl const FEED_URL(QStringLiteral("https://feeds.example.com/appcast.xml"));
    return ParseFeed(feed, FEED_URL, FeedPlatform::MacOS, limits).value().items;
}

bool IsSame(std::vector<FeedItem> const& a, std::vector<FeedItem> const& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](FeedItem const& x, FeedItem const& y)
                      {
                          return x.title == y.title && x.dateString == y.dateString && x.description == y.description &&
                                 x.minimumSystemVersion == y.minimumSystemVersion &&
                                 x.releaseNotesUrl == y.releaseNotesUrl && x.fileUrl == y.fileUrl &&
                                 x.contentLength == y.contentLength && x.versionString == y.versionString &&
                                 x.displayVersionString == y.displayVersionString && x.edSignature == y.edSignature &&
                                 x.properties == y.properties;
                      });
}

/// Made once for each number of items and kept, because making the largest feed takes longer than parsing it.
QByteArray const& FeedOf(std::int64_t items)
{
    static std::map<std::int64_t, QByteArray> feeds;
    QByteArray& feed = feeds[items];
    if (feed.isEmpty())
    {
        feed = MakeFeed(static_cast<int>(items));
    }
    return feed;
}

template <typename Parse>
void Run(benchmark::State& state, Parse parse)
{
    QByteArray const& feed = FeedOf(state.range(0));
    if (state.range(0) <= 1000 && !IsSame(ParseOurs(feed), ParseBare(feed)))
    {
        state.SkipWithError("the two parsers keep different fields");
        return;
    }
    for (auto _ : state)
    {
        (void)_;
        std::vector<FeedItem> const items = parse(feed);
        benchmark::DoNotOptimize(items.data());
    }
    state.SetBytesProcessed(state.iterations() * feed.size());
}

void FeedParsing(benchmark::State& state)
{
    Run(state, ParseOurs);
}
void FeedParsingBare(benchmark::State& state)
{
    Run(state, ParseBare);
}

BENCHMARK(FeedParsing)->Arg(10)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(FeedParsingBare)->Arg(10)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);

constexpr int MOST_FEED_BYTES = 4 << 20;
constexpr double MOST_HOSTILE_MILLISECONDS = 200;

/// As many copies of \a piece as a feed may contain, in items of \a piecesPerItem.
QByteArray MakeHostileFeed(QByteArray const& piece, int piecesPerItem)
{
    QByteArray const item = "<item>" + piece.repeated(piecesPerItem) + "</item>";
    QByteArray const head =
        "<rss version='2.0' xmlns:s='http://www.andymatuschak.org/xml-namespaces/sparkle'><channel>";
    QByteArray const tail = "</channel></rss>";
    return head + item.repeated((MOST_FEED_BYTES - head.size() - tail.size()) / item.size()) + tail;
}

QByteArray ManyAttributes(int count)
{
    QByteArray tag = "<s:e";
    for (int i = 0; i < count; ++i)
    {
        tag += " a" + QByteArray::number(i) + "='" + QByteArray(36, 'v') + '\'';
    }
    return tag + "/>";
}

/// The most expensive feeds that are allowed, and feeds that exceed a limit only at their end.
QByteArray HostileFeed(std::int64_t kind)
{
    switch (kind)
    {
    case 0: // 100,000 elements, each with a text: the limit
        return MakeHostileFeed("<e>" + QByteArray(36, 't') + "</e>", 50);
    case 1: // tags of 256 attributes
        return MakeHostileFeed(ManyAttributes(255), 4);
    case 2: // exceeds the limit of elements, in one item
        return MakeHostileFeed("<e/>", 200 * 1000);
    case 3: // texts that consist of references only
        return MakeHostileFeed("<description>" + QByteArray("&#38;").repeated(420) + "</description>", 1);
    }
    QByteArray const delta =
        "<enclosure url='https://e.example/" + QByteArray(150, 'p') + "' s:deltaFrom='1' s:version='2' length='1'/>";
    return MakeHostileFeed("<s:deltas>" + delta.repeated(10) + "</s:deltas><enclosure url='https://e.example/'/>", 1);
}

void HostileFeedParsing(benchmark::State& state)
{
    static QUrl const FEED_URL(QStringLiteral("https://feeds.example.com/appcast.xml"));
    QByteArray const feed = HostileFeed(state.range(0));
    bool isAccepted = false;
    for (auto _ : state)
    {
        (void)_;
        isAccepted = ParseFeed(feed, FEED_URL, FeedPlatform::MacOS).has_value();
    }
    state.counters["bytes"] = static_cast<double>(feed.size());
    state.counters["accepted"] = isAccepted ? 1 : 0;
}
BENCHMARK(HostileFeedParsing)->DenseRange(0, 4)->Unit(benchmark::kMillisecond);

std::array<Pelnar::Bench::StatedTime, 5> const HOSTILE_TIMES = {{
    {"HostileFeedParsing/0", MOST_HOSTILE_MILLISECONDS},
    {"HostileFeedParsing/1", MOST_HOSTILE_MILLISECONDS},
    {"HostileFeedParsing/2", MOST_HOSTILE_MILLISECONDS},
    {"HostileFeedParsing/3", MOST_HOSTILE_MILLISECONDS},
    {"HostileFeedParsing/4", MOST_HOSTILE_MILLISECONDS},
}};

// Nine tenths of the other parser's speed.
constexpr double MOST_TIME = 1 / 0.9;
Pelnar::Bench::StatedRatio const SHORT_RATIO("FeedParsing/10", "FeedParsingBare/10", MOST_TIME);
Pelnar::Bench::StatedRatio const LONG_RATIO("FeedParsing/1000", "FeedParsingBare/1000", MOST_TIME);
Pelnar::Bench::StatedRatio const HUGE_RATIO("FeedParsing/100000", "FeedParsingBare/100000", MOST_TIME);

} // namespace
