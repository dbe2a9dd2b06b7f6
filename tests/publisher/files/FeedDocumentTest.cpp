// FeedDocumentTest.cpp: the places in the tree of a document are those that an editor shows, and its pieces of the text
// are those that an edit replaces.

#include "Publisher/files/FeedDocument.h"

#include <gtest/gtest.h>

namespace Pelnar::Publisher
{
namespace
{

std::string PlaceOf(XmlElement const& element)
{
    return std::to_string(element.place.line) + ":" + std::to_string(element.place.column);
}

} // namespace

TEST(FeedDocument, AnElementStandsWhereItsTagBegins)
{
    XmlElement const document = ReadFeedDocument("<?xml version='1.0'?>\n<!-- c -->\n<rss\n  a='1'><channel/>text<b>"
                                                 "<![CDATA[x]]></b>\r\n\t<c/></rss>");
    ASSERT_EQ(document.children.size(), 1u);
    XmlElement const& rss = document.children[0];
    EXPECT_EQ(PlaceOf(rss), "3:1");
    ASSERT_EQ(rss.children.size(), 3u);
    EXPECT_EQ(PlaceOf(rss.children[0]), "4:9");
    EXPECT_EQ(PlaceOf(rss.children[1]), "4:23");
    EXPECT_EQ(rss.children[1].text.toStdString(), "x");
    EXPECT_EQ(PlaceOf(rss.children[2]), "5:2");
    EXPECT_EQ(rss.PlainAttribute("a").value_or(QString()).toStdString(), "1");
    EXPECT_FALSE(rss.FeedAttribute("a").has_value());
}

TEST(FeedDocument, AnElementKnowsItsPieceOfTheText)
{
    QString const text =
        QString::fromUtf8("<rss a='&lt;&amp;'>\xC3\xA9\xF0\x9F\x98\x80\r\n<a  /><b >x<c></c >&#10;</b></rss>\n");
    for (QByteArray const& mark : {QByteArray(), QByteArray("\xEF\xBB\xBF")})
    {
        XmlElement const document = ReadFeedDocument(mark + text.toUtf8());
        auto const piece = [&text](TextRange const& range)
        { return text.mid(range.start, range.end - range.start).toStdString(); };
        XmlElement const& rss = document.children.at(0);
        ASSERT_EQ(rss.children.size(), 2u);
        EXPECT_EQ(piece(rss.range) + "\n", text.toStdString());
        EXPECT_EQ(piece(rss.children[0].range), "<a  />");
        EXPECT_EQ(piece(rss.children[0].content), "");
        EXPECT_TRUE(rss.children[0].IsSingleTag());
        EXPECT_EQ(piece(rss.children[1].range), "<b >x<c></c >&#10;</b>");
        EXPECT_EQ(piece(rss.children[1].content), "x<c></c >&#10;");
        XmlElement const& inner = rss.children[1].children.at(0);
        EXPECT_EQ(piece(inner.range), "<c></c >");
        EXPECT_EQ(piece(inner.content), "");
        EXPECT_FALSE(inner.IsSingleTag());
    }
}

TEST(FeedDocument, ItemsAreFoundAtEveryPlace)
{
    XmlElement const document =
        ReadFeedDocument("<rss><item/><channel><item/><x><item/></x></channel><y:item xmlns:y='urn:y'/></rss>");
    EXPECT_EQ(ItemElements(document).size(), 3u);
}

} // namespace Pelnar::Publisher
