// FeedDocumentTest.cpp: the bytes that the parser accepts as a feed: encodings, well-formedness, namespaces, harmful
// characters.
#include "Engine/core/feed/FeedEncoding.h"
#include "tests/engine_core/FeedFixture.h"

#include <gtest/gtest.h>

#include <QTextCodec>

namespace Pelnar::Engine::Tests
{

namespace
{

char const* const SAMPLE = R"(<?xml version="1.0" encoding="utf-8"?>
<!-- App's releases -->
<rss version="2.0" xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle">
  <channel>
    <title>App</title>
    <item>
      <title>App 5.1 &amp; &#x201C;more&#x201D; é</title>
      <description><![CDATA[<p>notes</p>]]></description>
      <enclosure url="App_5.1.zip" length="10" sparkle:os='macos'/>
      <sparkle:deltas><enclosure url="a" sparkle:deltaFrom="5.0" length="1"/></sparkle:deltas>
    </item>
  </channel>
</rss>
)";

std::string TitleOf(FeedParseResult const& result)
{
    return result ? Text(result->items.at(0).title) : "refused: " + Text(result.error().sentence.English());
}

ErrorCause KindOf(QByteArray const& bytes)
{
    return Parse(bytes).error().cause;
}

} // namespace

TEST(FeedDocument, TruncatedAtAnyByteIsAnError)
{
    QByteArray const sample(SAMPLE);
    ASSERT_TRUE(Parse(sample).has_value());
    for (int size = 0; size < sample.trimmed().size(); ++size)
    {
        FeedParseResult const result = Parse(sample.left(size));
        EXPECT_EQ(int(result.error().cause), int(ErrorCause::FeedMalformed)) << size;
        EXPECT_GE(result.error().line, 1) << size;
        EXPECT_FALSE(result.error().detail.isEmpty()) << size;
    }
}

TEST(FeedDocument, OnlyCommentsAndBlanksMayFollowTheRoot)
{
    QByteArray const sample(SAMPLE);
    EXPECT_TRUE(Parse(sample + "\n\n<!-- a signature block: c2ln -->\n").has_value());
    EXPECT_TRUE(Parse(sample + "<?pi?>").has_value());
    for (char const* junk : {"junk", "<rss/>", "</rss>", "<![CDATA[x]]>", "&amp;", "<", "\xEF\xBB\xBF", "\x1A"})
    {
        EXPECT_EQ(int(KindOf(sample + junk)), int(ErrorCause::FeedMalformed)) << junk;
    }
    EXPECT_EQ(int(KindOf(sample + QByteArray(1, '\0'))), int(ErrorCause::FeedMalformed));
}

TEST(FeedDocument, WhatIsNotWellFormedIsAnErrorAndNeverAFeedWithoutItems)
{
    struct Row
    {
        char const* name;
        QByteArray bytes;
    };
    Row const rows[] = {
        {"empty", ""},
        {"blanks", " \n"},
        {"text", "Service unavailable"},
        {"JSON", "{\"version\": 1}"},
        {"gzip", QByteArray::fromHex("1f8b0800000000000003b329")},
        {"blank before the declaration", " <?xml version=\"1.0\"?><rss/>"},
        {"two declarations", "<?xml version=\"1.0\"?><?xml version=\"1.0\"?><rss/>"},
        {"bare ampersand", "<rss><item><link>https://x/?a=1&b=2</link></item></rss>"},
        {"entity of web pages", "<rss>&nbsp;</rss>"},
        {"mismatched tag", "<rss><item></rss></item>"},
        {"attribute without quotes", "<rss version=2/>"},
        {"attribute twice", "<rss a='1' a='2'/>"},
        {"one attribute by two prefixes", "<rss xmlns:a='u' xmlns:b='u' a:c='' b:c=''/>"},
        {"undeclared prefix", "<rss><sparkle:version>1</sparkle:version></rss>"},
        {"undeclared attribute prefix", "<rss sparkle:version='1'/>"},
        {"prefix bound to nothing", "<rss xmlns:a=''/>"},
        {"\"<\" in an attribute", "<rss a='<'/>"},
        {"\"--\" in a comment", "<rss><!-- a -- b --></rss>"},
        {"unknown declaration", "<rss><!ELEMENT a></rss>"},
        {"small doctype", "<!doctype html><html></html>"},
        {"null byte", QByteArray("<rss>\0</rss>", 12)},
        {"escape", "<rss>\x1B[2J</rss>"},
        {"escape by reference", "<rss><title>&#27;[2J</title></rss>"},
        {"null by reference", "<rss><title>&#0;</title></rss>"},
        {"surrogate by reference", "<rss><title>&#xD800;</title></rss>"},
    };
    for (Row const& row : rows)
    {
        FeedParseResult const result = Parse(row.bytes);
        EXPECT_EQ(int(result.error().cause), int(ErrorCause::FeedMalformed)) << row.name;
        EXPECT_EQ(Text(result.error().sentence.English()),
                  "Line " + std::to_string(result.error().line) + " of the feed is not well-formed XML.")
            << row.name;
    }
}

TEST(FeedDocument, AnErrorNamesItsPlaceAndQuotesNothing)
{
    FeedParseResult const result = Parse("<rss>\r\n<item>\n</item>\r\n<item a=\"1\" \xC2\x9B/></rss>");
    EXPECT_EQ(result.error().line, 4);
    EXPECT_EQ(result.error().column, 15); // the reader looks one character ahead
    EXPECT_EQ(Text(result.error().sentence.English()), "Line 4 of the feed is not well-formed XML.");
    EXPECT_FALSE(result.error().detail.contains(QChar(0x9B)));
    FeedLimits limits;
    limits.maxTagBytes = 20;
    FeedParseResult const tooLong =
        Parse("<rss>\r\n<item>\n</item>\r\xC3\xA9<item a=\"123456789012345\"/></rss>", FeedPlatform::MacOS, limits);
    EXPECT_EQ(tooLong.error().line, 4);
    EXPECT_EQ(tooLong.error().column, 2);
}

TEST(FeedDocument, ItemsBeforeAnErrorAreNotAnswered)
{
    EXPECT_FALSE(Parse("<rss><item><title>a</title></item><item></rss>"));
}

TEST(FeedDocument, WithoutItemsIsAnEmptyFeed)
{
    for (char const* bytes : {"<rss/>", "<rss><channel/></rss>", "<a:rss xmlns:a='u'/>", "<RSS/>",
                              "<rdf:RDF xmlns:rdf='u'/>", "<channel/>", "<rss><a:item xmlns:a='u'/></rss>",
                              "<feed><item><enclosure sparkle:os='other' xmlns:sparkle='http://www.andymatuschak.org/"
                              "xml-namespaces/sparkle'/></item></feed>"})
    {
        FeedParseResult const result = Parse(bytes);
        EXPECT_TRUE(result.has_value()) << bytes;
        EXPECT_TRUE(result.value().items.empty()) << bytes;
    }
}

TEST(FeedDocument, OtherDocumentIsNotAnEmptyFeed)
{
    for (char const* bytes : {"<Error><Code>AccessDenied</Code></Error>", "<error/>", "<sitemapindex/>",
                              "<feed xmlns='http://www.w3.org/2005/Atom'><entry/></feed>", "<svg><rss/></svg>",
                              "<urlset><url><loc>x</loc></url></urlset>"})
    {
        FeedParseResult const result = Parse(bytes);
        EXPECT_EQ(int(result.error().cause), int(ErrorCause::FeedIsOtherDocument)) << bytes;
    }
    FeedParseResult const result = Parse("<?xml version='1.0'?>\n<!-- a -->\n<Error>\n</Error>");
    EXPECT_EQ(result.error().line, 3);
    EXPECT_EQ(Text(result.error().sentence.English()), "Line 3 of the feed begins a document that is not a feed.");
}

TEST(FeedDocument, UnknownDocumentWithoutAnItemIsAnEmptyFeed)
{
    for (char const* bytes :
         {"<programs><program id='a'/></programs>", "<rss/>", "<channel/>", "<x:item xmlns:x='u'/>", "<a><Error/></a>"})
    {
        FeedParseResult const result = Parse(bytes);
        ASSERT_TRUE(result.has_value()) << bytes;
        EXPECT_TRUE(result->items.empty()) << bytes;
    }
}

TEST(FeedDocument, WebPageIsNotAFeed)
{
    for (char const* bytes : {"<html/>", "\n<HTML><body><item/></body></HTML>",
                              "<?xml version='1.0'?><html xmlns='http://www.w3.org/1999/xhtml'/>",
                              "<html><body><br>Please log in</body></html>"})
    {
        FeedParseResult const result = Parse(bytes);
        EXPECT_EQ(int(result.error().cause), int(ErrorCause::FeedIsWebPage)) << bytes;
    }
    EXPECT_EQ(Text(Parse("<html/>").error().sentence.English()),
              "Line 1 of the feed begins a web page instead of a feed.");
    EXPECT_TRUE(Parse(Feed("<item><html/></item>")).has_value());
}

TEST(FeedDocument, TakesItemsWithoutAChannelAndNoItemOfAnItem)
{
    EXPECT_EQ(TitleOf(Parse("<rss><item><title>a</title></item></rss>")), "a");
    EXPECT_EQ(
        TitleOf(Parse("<rss><channel><item><title>a</title><item><title>b</title></item></item></channel></rss>")),
        "a");
}

TEST(FeedEncoding, IsTakenFromTheMarkElseTheBytesElseTheDeclarationElseUtf8)
{
    QString const title = QString::fromUtf8("Обновление 5.1 ✓");
    auto document = [&](char const* declared)
    {
        return QLatin1String("<?xml version='1.0'") +
               (*declared != 0 ? QLatin1String(" encoding='") + QLatin1String(declared) + QLatin1String("'")
                               : QString()) +
               QLatin1String("?><rss><item><title>") + title + QLatin1String("</title></item></rss>");
    };
    auto encoded = [&](char const* codec, char const* declared, bool withMark)
    {
        QScopedPointer<QTextEncoder> encoder(QTextCodec::codecForName(codec)->makeEncoder(QTextCodec::IgnoreHeader));
        return encoder->fromUnicode((withMark ? QString(QChar(0xFEFF)) : QString()) + document(declared));
    };
    std::string const expected = Text(title);
    EXPECT_EQ(TitleOf(Parse(encoded("UTF-8", "", false))), expected);
    EXPECT_EQ(TitleOf(Parse(encoded("UTF-8", "utf-8", true))), expected);
    for (char const* codec : {"UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE"})
    {
        for (char const* declared : {"", "UTF-16", "utf-8"})
        {
            EXPECT_EQ(TitleOf(Parse(encoded(codec, declared, true))), expected) << codec << " " << declared;
            EXPECT_EQ(TitleOf(Parse(encoded(codec, declared, false))), expected) << codec << " " << declared;
        }
    }
    QByteArray const cyrillic =
        "<?xml version=\"1.0\" encoding=\"windows-1251\"?><rss><item><title>\xCE\xE1</title></item></rss>";
    EXPECT_EQ(TitleOf(Parse(cyrillic)), "Об");
    QByteArray const japanese =
        "<?xml version='1.0' encoding='Shift_JIS'?><rss><item><title>\x83\x41</title></item></rss>";
    EXPECT_EQ(TitleOf(Parse(japanese)), "ア");
}

TEST(FeedEncoding, OneThatIsWrongOrUnknownIsAnError)
{
    struct Row
    {
        char const* name;
        QByteArray bytes;
    };
    Row const rows[] = {
        {"unknown", "<?xml version='1.0' encoding='x-none'?><rss/>"},
        {"two encodings", "<?xml version='1.0' encoding='UTF-8' encoding='UTF-7'?><rss/>"},
        {"an encoding in the version", "<?xml version='1.0 encoding=\"UTF-8\"' encoding='UTF-7'?><rss/>"},
        {"unfinished encoding", "<?xml version='1.0' encoding='UTF-7?><rss/>"},
        {"encoding without a value", "<?xml version='1.0' encoding?><rss/>"},
        {"a declaration longer than is looked at",
         "<?xml version='1.0'" + QByteArray(2000, ' ') + "encoding='windows-1251'?><rss>\xD0\x9E</rss>"},
        {"declared UTF-16, is ASCII", "<?xml version='1.0' encoding='UTF-16'?><rss/>"},
        {"declared UTF-8, is Latin-1", "<?xml version='1.0' encoding='utf-8'?><rss>\xE9</rss>"},
        {"undeclared Latin-1", "<rss>\xE9</rss>"},
        {"odd byte of UTF-16", QByteArray("\xFF\xFE<\0r\0/\0>\0 ", 11)},
        {"lone surrogate of UTF-16", QByteArray("\xFF\xFE<\0r\0>\0\x00\xD8<\0/\0r\0>\0", 18)},
    };
    for (Row const& row : rows)
    {
        EXPECT_EQ(int(KindOf(row.bytes)), int(ErrorCause::FeedMalformed)) << row.name;
    }
}

TEST(FeedEncoding, BadUtf8IsRefusedAtEveryPlace)
{
    struct Row
    {
        char const* name;
        char const* sequence;
    };
    Row const rows[] = {
        {"overlong slash", "\xC0\xAF"},
        {"overlong in three", "\xE0\x80\xAF"},
        {"overlong in four", "\xF0\x80\x80\xAF"},
        {"surrogate", "\xED\xA0\x80"},
        {"past the last", "\xF4\x90\x80\x80"},
        {"lone continuation", "\x80"},
        {"cut two", "\xC3"},
        {"cut three", "\xE2\x82"},
        {"cut four", "\xF0\x9F\x98"},
        {"five bytes", "\xF8\x88\x80\x80\x80"},
        {"never a byte", "\xFF"},
    };
    for (Row const& row : rows)
    {
        for (int before : {0, 1, 7, 8, 100, 5000, 20000})
        {
            QByteArray const start = "<rss>\n" + QByteArray(before, 'x');
            FeedParseResult const result = Parse(start + row.sequence + "</rss>");
            EXPECT_EQ(int(result.error().cause), int(ErrorCause::FeedMalformed)) << row.name << before;
            EXPECT_EQ(result.error().line, 2) << row.name << before;
            EXPECT_EQ(result.error().column, before + 1) << row.name << before;
        }
    }
}

TEST(FeedEncoding, FindsTheFirstBadByteAsQtDoes)
{
    QTextCodec* const codec = QTextCodec::codecForName("UTF-8");
    for (int lead = 0; lead < 256; ++lead)
    {
        for (int second = 0; second < 256; ++second)
        {
            for (char const* rest : {"", "\x80", "\x80\x80", "\xBF\xBF\xBF", "a"})
            {
                QByteArray const bytes = QByteArray(1, char(lead)) + QByteArray(1, char(second)) + rest + "....";
                QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
                (void)codec->toUnicode(bytes.constData(), bytes.size(), &state);
                ASSERT_EQ(FirstBadUtf8(bytes) == bytes.size(), state.invalidChars == 0 && state.remainingChars == 0)
                    << bytes.toHex().constData();
            }
        }
    }
}

TEST(FeedNamespace, OnlyTheUriCountsForAnyPrefix)
{
    FeedParseResult const renamed = Parse(R"(<rss xmlns:x="http://www.andymatuschak.org/xml-namespaces/sparkle"><item>
        <x:version>1</x:version><enclosure url="a" x:edSignature="s" edSignature="t"/></item></rss>)");
    ASSERT_EQ(renamed.value().items.size(), 1u);
    EXPECT_EQ(Text(renamed.value().items[0].versionString), "1");
    EXPECT_EQ(Text(renamed.value().items[0].edSignature), "s");
    EXPECT_TRUE(renamed.value().items[0].properties.contains(QStringLiteral("sparkle:version")));

    FeedParseResult const defaulted = Parse(R"(<rss><item><version
        xmlns="http://www.andymatuschak.org/xml-namespaces/sparkle">1</version></item></rss>)");
    ASSERT_EQ(defaulted.value().items.size(), 1u);
    EXPECT_EQ(Text(defaulted.value().items[0].versionString), "1");
}

TEST(FeedNamespace, AnotherUriUnderTheUsualPrefixIsForeign)
{
    FeedParseResult const result = Parse(R"(<rss xmlns:sparkle="https://other.example/sparkle"><item>
        <sparkle:version>1</sparkle:version><sparkle:criticalUpdate/><sparkle:minimumSystemVersion>99</sparkle:minimumSystemVersion>
        <enclosure url="A_7.zip" sparkle:version="2" sparkle:os="windows" sparkle:edSignature="s"/>
        <sparkle:deltas><enclosure url="a" sparkle:deltaFrom="1"/></sparkle:deltas></item></rss>)");
    ASSERT_EQ(result.value().items.size(), 1u);
    FeedItem const& item = result.value().items[0];
    EXPECT_EQ(Text(item.versionString), "7");
    EXPECT_FALSE(item.isCritical);
    EXPECT_TRUE(item.minimumSystemVersion.isEmpty());
    EXPECT_TRUE(item.edSignature.isEmpty());
    EXPECT_TRUE(item.deltas.empty());
    EXPECT_FALSE(item.properties.contains(QStringLiteral("sparkle:version")));
    EXPECT_EQ(Text(item.properties.value(QStringLiteral("{https://other.example/sparkle}version")).toString()), "1");
}

TEST(FeedNamespace, APrefixMayBeBoundAgainInside)
{
    FeedParseResult const result =
        Parse(R"(<rss xmlns:s="u"><item xmlns:s="http://www.andymatuschak.org/xml-namespaces/sparkle">
        <s:version>1</s:version><s:shortVersionString xmlns:s="v">2</s:shortVersionString></item></rss>)");
    ASSERT_EQ(result.value().items.size(), 1u);
    EXPECT_EQ(Text(result.value().items[0].versionString), "1");
    EXPECT_TRUE(result.value().items[0].displayVersionString.isEmpty());
}

TEST(FeedNamespace, ElementsOfRssHaveNone)
{
    FeedItem const item =
        OnlyItem("<m:title xmlns:m='u'>other</m:title><title>own</title><m:enclosure xmlns:m='u' url='b'/>");
    EXPECT_EQ(Text(item.title), "own");
    EXPECT_TRUE(item.fileUrl.isEmpty());
}

TEST(FeedCharacters, ThatForgeLinesOrDisguiseLabelsBecomeBlanks)
{
    struct Row
    {
        char const* name;
        char const* written;
        char const* read;
    };
    Row const rows[] = {
        {"line feed", "5&#10;1", "5 1"},
        {"carriage return", "5&#13;1", "5 1"},
        {"tab", "5&#9;1", "5 1"},
        {"delete", "5&#127;1", "5 1"},
        {"8-bit escape sequence", "5&#x9B;31m", "5 31m"},
        {"next line", "5&#x85;1", "5 1"},
        {"first and last of C1", "5&#x80;&#x9F;1", "5  1"},
        {"line separator", "5&#x2028;1", "5 1"},
        {"paragraph separator", "5&#x2029;1", "5 1"},
        {"right-to-left override", "5&#x202E;1", "5 1"},
        {"isolates", "5&#x2066;&#x2069;1", "5  1"},
        {"written out", "5\xE2\x80\xAE\x31", "5 1"},
        {"at the ends", "&#10; 5 &#10;", "5"},
        {"direction mark", "5&#x200F;1", "5 1"},
        {"tags", "5&#xE0041;&#xE007F;1", "5  1"},
        {"a tag at the end", "5&#xE0041;", "5 "},
        {"no width", "5&#x200B;1", "5 1"},
        {"ordinary text", "5 \xC3\xA9\xD7\xA9\xF0\x9F\x98\x80~", "5 \xC3\xA9\xD7\xA9\xF0\x9F\x98\x80~"},
    };
    for (Row const& row : rows)
    {
        QByteArray const text = row.written;
        FeedItem const item =
            OnlyItem("<title>" + text + "</title><pubDate>" + text + "</pubDate><sparkle:minimumSystemVersion>" + text +
                     "</sparkle:minimumSystemVersion><sparkle:maximumSystemVersion>" + text +
                     "</sparkle:maximumSystemVersion><description sparkle:format='" + text + "'/><pelnar1_A>" + text +
                     "</pelnar1_A><b c='" + text + "'/><enclosure url='" + text + "' sparkle:version='" + text +
                     "' sparkle:shortVersionString='" + text + "' sparkle:edSignature='" + text +
                     "' sparkle:installationType='" + text + "'/><sparkle:deltas><enclosure sparkle:deltaFrom='" +
                     text + "'/></sparkle:deltas>");
        QStringList const texts{
            item.title,
            item.dateString,
            item.minimumSystemVersion,
            item.maximumSystemVersion,
            item.descriptionFormat,
            item.versionString,
            item.displayVersionString,
            item.edSignature,
            item.installationType,
            item.properties.value(QStringLiteral("pelnar1_A")).toString(),
            item.properties.value(QStringLiteral("b")).toMap().value(QStringLiteral("c")).toString(),
            item.deltas.at(0).deltaFrom};
        for (int i = 0; i < texts.size(); ++i)
        {
            EXPECT_EQ(Text(texts[i]), row.read) << row.name << ", text " << i;
        }
        for (char const byte : item.fileUrl.toEncoded())
        {
            EXPECT_TRUE(byte > 0x20 && byte < 0x7F) << row.name;
        }
    }
}

TEST(FeedCharacters, ADescriptionKeepsItsLinesAndTabsAndNothingElseOfThem)
{
    FeedItem const item = OnlyItem("<description> a\r\n\tb&#13;&#x9B;c&#x202E;d </description>");
    EXPECT_EQ(Text(item.description), " a\n\tb\r c d ");
    EXPECT_EQ(item.properties.value(QStringLiteral("description")).toString(), item.description);
}

} // namespace Pelnar::Engine::Tests
