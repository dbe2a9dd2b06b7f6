// PublishedFeedTest.cpp: adding items to a feed changes nothing else of it.

#include "Publisher/generate/PublishedFeed.h"

#include "Publisher/Refusal.h"

#include <gtest/gtest.h>

namespace Pelnar::Publisher
{
namespace
{

PublishedFeed Read(QByteArray const& bytes)
{
    return PublishedFeed(QStringLiteral("feed.xml"), bytes, QUrl(QStringLiteral("https://example.com/feed.xml")));
}

QByteArray Item(char const* version)
{
    return QByteArray("<item><enclosure url=\"a\" s:version=\"") + version + "\" length=\"1\"/></item>";
}

QByteArray Feed(QByteArray const& items)
{
    return "<rss xmlns:s=\"http://www.andymatuschak.org/xml-namespaces/sparkle\"><channel>" + items +
           "</channel></rss>";
}

Addition Added(int major, char const* text)
{
    return {Core::Version(major, 0, 0, 0), QString::fromUtf8(text)};
}

TEST(PublishedFeed, WithoutAdditionsTheBytesStay)
{
    for (QByteArray const& bytes : {Feed(""), "\xEF\xBB\xBF" + Feed(Item("1.0")), Feed("\r\n<unknown a='1'/>\r\n")})
    {
        EXPECT_EQ(Read(bytes).With({}), bytes);
    }
}

TEST(PublishedFeed, AdditionsStandBeforeTheFirstOlderItem)
{
    struct Row
    {
        QByteArray before;
        QByteArray after;
    };
    Row const rows[] = {
        {"\n    " + Item("1.0") + "\n  ", "\n    <new/>\n    " + Item("1.0") + "\n  "},
        {"\n  " + Item("3.0") + "\n  " + Item("1.0") + "\n",
         "\n  " + Item("3.0") + "\n  <new/>\n  " + Item("1.0") + "\n"},
        {"\n\t" + Item("3.0") + "\n", "\n\t" + Item("3.0") + "\n\t<new/>\n"},
        {"\n  <title>T</title>\n  ", "\n  <title>T</title>\n    <new/>\n  "},
        {Item("x") + Item("1.0"), Item("x") + "<new/>\n    " + Item("1.0")},
        {"<!-- <item> --><t/>" + Item("1.0"), "<!-- <item> --><t/><new/>\n    " + Item("1.0")},
        {"<![CDATA[<item>]]>" + Item("1.0"), "<![CDATA[<item>]]><new/>\n    " + Item("1.0")},
        {"\r\n  " + Item("1.0") + "\r\n", "\r\n  <new/>\r\n  " + Item("1.0") + "\r\n"},
        {QByteArray("<t>\xC3\xA9\xF0\x9F\x98\x80</t>\n  ") + Item("1.0"),
         QByteArray("<t>\xC3\xA9\xF0\x9F\x98\x80</t>\n  <new/>\n  ") + Item("1.0")},
    };
    for (Row const& row : rows)
    {
        EXPECT_EQ(Read(Feed(row.before)).With({Added(2, "<new/>")}).toStdString(), Feed(row.after).toStdString());
    }
}

TEST(PublishedFeed, ByteOrderMarkAndUnknownElementsStay)
{
    QByteArray const before =
        "\xEF\xBB\xBF<?xml version='1.0'?>\n<!-- ours -->\n" + Feed("<x:y xmlns:x='z'/>" + Item("1.0"));
    QByteArray const after = Read(before).With({Added(2, "<new/>")});
    EXPECT_EQ(QByteArray(after).replace("<new/>\n    ", ""), before);
    EXPECT_TRUE(after.startsWith("\xEF\xBB\xBF<?xml"));
}

TEST(PublishedFeed, AdditionsOfOnePlaceKeepTheirOrder)
{
    QByteArray const after = Read(Feed("\n  " + Item("1.0"))).With({Added(3, "<three/>"), Added(2, "<two/>")});
    EXPECT_EQ(after, Feed("\n  <three/>\n  <two/>\n  " + Item("1.0")));
}

TEST(PublishedFeed, PrefixIsTheOneThatTheFeedBinds)
{
    EXPECT_EQ(Read(Feed("")).FeedPrefix(), QStringLiteral("s"));
    EXPECT_EQ(Read("<rss><channel></channel></rss>").FeedPrefix(), QString());
    EXPECT_EQ(Read("<rss xmlns:sparkle=\"http://example.com/\"><channel></channel></rss>").FeedPrefix(), QString());
}

TEST(PublishedFeed, EveryDownloadOfAnItemForTwoMachinesIsKnown)
{
    Publisher::PublishedFeed const feed(
        QStringLiteral("feed"),
        "<rss xmlns:p='https://pelnar.example/xml-namespaces/appcast' "
        "xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle'><channel><item>"
        "<enclosure url='https://dl.example.com/a.zip' sparkle:version='1.0' p:machine='x86_64'/>"
        "<enclosure url='https://dl.example.com/b.zip' sparkle:version='1.0' p:machine='aarch64'/>"
        "</item></channel></rss>",
        QUrl());
    ASSERT_EQ(feed.Items().size(), 2u);
    EXPECT_EQ(feed.Items()[0].item.policy.machines, QStringList{QStringLiteral("x86_64")});
    EXPECT_EQ(feed.Items()[1].item.policy.machines, QStringList{QStringLiteral("aarch64")});
}

TEST(PublishedFeed, ItemsOfEveryPlatformAreKnown)
{
    PublishedFeed const feed = Read(Feed("<item><enclosure url=\"a\" s:os=\"linux\" s:version=\"1.0\"/></item>"
                                         "<item><enclosure url=\"b\" s:os=\"macos\" s:version=\"1.0\"/></item>"
                                         "<item><enclosure url=\"c\" s:version=\"1.0\"/></item>"));
    ASSERT_EQ(feed.Items().size(), 3u);
    for (PublishedItem const& item : feed.Items())
    {
        std::size_t const expected = item.item.fileUrl.fileName() == QStringLiteral("c") ? 2 : 1;
        EXPECT_EQ(item.platforms.size(), expected) << item.item.fileUrl.toString().toStdString();
        EXPECT_GE(item.start, 0);
    }
}

} // namespace
} // namespace Pelnar::Publisher
