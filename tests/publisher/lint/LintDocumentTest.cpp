// LintDocumentTest.cpp: the places in the tree of a document are those that an editor shows.

#include "Publisher/lint/LintDocument.h"

#include <gtest/gtest.h>

namespace Pelnar::Publisher
{
namespace
{

std::string PlaceOf(LintElement const& element)
{
    return std::to_string(element.place.line) + ":" + std::to_string(element.place.column);
}

} // namespace

TEST(LintDocument, AnElementStandsWhereItsTagBegins)
{
    LintElement const document = ReadLintDocument("<?xml version='1.0'?>\n<!-- c -->\n<rss\n  a='1'><channel/>text<b>"
                                                  "<![CDATA[x]]></b>\r\n\t<c/></rss>");
    ASSERT_EQ(document.children.size(), 1u);
    LintElement const& rss = document.children[0];
    EXPECT_EQ(PlaceOf(rss), "3:1");
    ASSERT_EQ(rss.children.size(), 3u);
    EXPECT_EQ(PlaceOf(rss.children[0]), "4:9");
    EXPECT_EQ(PlaceOf(rss.children[1]), "4:23");
    EXPECT_EQ(rss.children[1].text.toStdString(), "x");
    EXPECT_EQ(PlaceOf(rss.children[2]), "5:2");
    EXPECT_EQ(rss.PlainAttribute("a").value_or(QString()).toStdString(), "1");
    EXPECT_FALSE(rss.FeedAttribute("a").has_value());
}

TEST(LintDocument, ItemsAreFoundAtEveryPlace)
{
    LintElement const document =
        ReadLintDocument("<rss><item/><channel><item/><x><item/></x></channel><y:item xmlns:y='urn:y'/></rss>");
    EXPECT_EQ(ItemElements(document).size(), 3u);
}

} // namespace Pelnar::Publisher
