// FeedLimitsTest.cpp: the parser's limits. Each is tested from both sides, with the line of the error.
#include "tests/engine_core/FeedFixture.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTextCodec>

#include <sys/inotify.h>
#include <unistd.h>

namespace Pelnar::Engine::Tests
{

namespace
{

void ExpectRefused(FeedParseResult const& result, ErrorCause cause, std::string const& sentence)
{
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().cause, cause);
    EXPECT_EQ(Text(result.error().sentence.English()), sentence);
}

QByteArray Repeated(int count, QByteArray const& text)
{
    return text.repeated(count);
}

QByteArray Attributes(int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
    {
        text += " a" + QByteArray::number(i) + "=\"=\"";
    }
    return text;
}

/// In a feed the item is the third level.
QByteArray Nested(int levels)
{
    return "<item>" + Repeated(levels - 3, "<a>") + Repeated(levels - 3, "</a>") + "</item>";
}

/// True if any file in the folder was opened since the object was made.
class OpenWatch
{
public:
    explicit OpenWatch(QString const& folder) : descriptor(inotify_init1(IN_NONBLOCK))
    {
        EXPECT_GE(inotify_add_watch(descriptor, folder.toLocal8Bit().constData(), IN_OPEN | IN_ACCESS), 0);
    }
    ~OpenWatch() { close(descriptor); }
    OpenWatch(OpenWatch const&) = delete;
    OpenWatch& operator=(OpenWatch const&) = delete;

    [[nodiscard]] bool HasSeenAccess()
    {
        char buffer[4096];
        return read(descriptor, buffer, sizeof buffer) > 0;
    }

private:
    int descriptor;
};

} // namespace

TEST(FeedDocumentType, AnyDeclarationIsRefusedBeforeAnEntityGrows)
{
    struct Row
    {
        char const* name;
        QByteArray declaration;
    };
    QByteArray bomb = "<!DOCTYPE rss [<!ENTITY e0 \"ha\">";
    for (int i = 1; i < 30; ++i)
    {
        QByteArray const before = "&e" + QByteArray::number(i - 1) + ";";
        bomb += "<!ENTITY e" + QByteArray::number(i) + " \"" + before.repeated(10) + "\">";
    }
    Row const rows[] = {
        {"name only", "<!DOCTYPE rss>"},
        {"external subset", "<!DOCTYPE rss SYSTEM \"file:///etc/passwd\">"},
        {"public subset", "<!DOCTYPE rss PUBLIC \"-//x\" \"http://127.0.0.1/x.dtd\">"},
        {"internal entity", "<!DOCTYPE rss [<!ENTITY a \"b\">]>"},
        {"external entity", "<!DOCTYPE rss [<!ENTITY a SYSTEM \"file:///etc/passwd\">]>"},
        {"parameter entity", "<!DOCTYPE rss [<!ENTITY % a SYSTEM \"file:///etc/passwd\"> %a;]>"},
        {"entity bomb", bomb + "]>"},
        {"long entity", "<!DOCTYPE rss [<!ENTITY a \"" + QByteArray(60000, 'x') + "\">]>"},
    };
    for (Row const& row : rows)
    {
        SCOPED_TRACE(row.name);
        ExpectRefused(
            Parse("<?xml version=\"1.0\"?>\n" + row.declaration + "<rss><item><title>&e29;&a;</title></item></rss>"),
            ErrorCause::FeedDocumentType, "Line 2 of the feed has a document type declaration, which is not allowed.");
    }
}

TEST(FeedDocumentType, IsFoundInEveryEncoding)
{
    QString const text = QStringLiteral("<?xml version=\"1.0\"?><!DOCTYPE rss [<!ENTITY a \"b\">]><rss/>");
    for (char const* codec : {"UTF-8", "UTF-16", "UTF-16LE", "UTF-16BE", "UTF-32"})
    {
        QByteArray const bytes = QTextCodec::codecForName(codec)->fromUnicode(text);
        EXPECT_EQ(int(Parse(bytes).error().cause), int(ErrorCause::FeedDocumentType)) << codec;
    }
    // In this encoding the bytes of the declaration need not contain a "<".
    EXPECT_FALSE(Parse("<?xml version=\"1.0\" encoding=\"UTF-7\"?>+ADw-!DOCTYPE rss><rss/>"));
}

TEST(FeedDocumentType, ItsTextInsideOtherMarkupIsNoDeclaration)
{
    FeedParseResult const result =
        Parse(Feed("<!-- <!DOCTYPE a> --><?pi <!DOCTYPE b> ?><item><title><![CDATA[<!DOCTYPE c>]]>"
                   "</title></item>"));
    ASSERT_EQ(result.value().items.size(), 1u);
    EXPECT_EQ(Text(result.value().items[0].title), "<!DOCTYPE c>");
}

TEST(FeedOutsideWorld, NothingThatAFeedNamesIsOpened)
{
    QTemporaryDir folder;
    QFile bait(folder.filePath(QStringLiteral("bait.xml")));
    ASSERT_TRUE(bait.open(QIODevice::WriteOnly));
    bait.close();
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    OpenWatch watch(folder.path());
    QByteArrayList const addresses{"file://" + bait.fileName().toUtf8(),
                                   "http://127.0.0.1:" + QByteArray::number(server.serverPort()) + "/x"};
    for (QByteArray const& address : addresses)
    {
        QByteArrayList const documents{
            "<!DOCTYPE rss SYSTEM \"" + address + "\"><rss/>",
            "<!DOCTYPE rss [<!ENTITY a SYSTEM \"" + address + "\">]><rss>&a;</rss>",
            "<!DOCTYPE rss [<!ENTITY % a SYSTEM \"" + address + "\">%a;]><rss/>",
            "<?xml-stylesheet href=\"" + address + "\" type=\"text/xsl\"?>" + "<rss/>",
            "<rss xmlns:xi=\"http://www.w3.org/2001/XInclude\"><item><xi:include href=\"" + address +
                "\"/></item></rss>",
            "<rss xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:schemaLocation=\"a " + address + "\"/>",
            Feed("<item><enclosure url=\"" + address + "\"/><link>" + address + "</link></item>"),
        };
        for (QByteArray const& document : documents)
        {
            FeedParseResult const result = Parse(document);
            EXPECT_EQ(result.has_value(), !document.contains("DOCTYPE")) << document.constData();
        }
    }
    EXPECT_FALSE(watch.HasSeenAccess());
    EXPECT_FALSE(server.waitForNewConnection(0));
    ASSERT_TRUE(bait.open(QIODevice::ReadOnly));
    EXPECT_TRUE(watch.HasSeenAccess()) << "the watch is blind";
}

TEST(FeedDepth, SixtyFourLevelsPassAndOneMoreIsRefused)
{
    EXPECT_TRUE(Parse(Feed(Nested(64))).has_value());
    ExpectRefused(Parse(Feed("\n\n" + Nested(65))), ErrorCause::FeedTooDeep,
                  "Line 7 of the feed nests elements more than 64 levels deep.");
}

TEST(FeedDepth, AMillionLevelsAreRefusedInsideAndOutsideOfItems)
{
    int const levels = 1000 * 1000;
    EXPECT_EQ(int(Parse(Feed(Nested(levels))).error().cause), int(ErrorCause::FeedTooDeep));
    EXPECT_EQ(int(Parse(Repeated(levels, "<a>")).error().cause), int(ErrorCause::FeedTooDeep));
}

TEST(FeedDepth, SiblingsAreNotLevels)
{
    EXPECT_TRUE(Parse(Feed("<item>" + Repeated(1000, "<a><b/></a>") + "</item>")).has_value());
}

TEST(FeedAttributes, TwoHundredAndFiftySixPassAndOneMoreIsRefused)
{
    FeedParseResult const result = Parse(Feed("<item" + Attributes(256) + "/>"));
    ASSERT_EQ(result.value().items.size(), 1u);
    EXPECT_EQ(result.value().items[0].properties.size(), 256);
    ExpectRefused(Parse(Feed("<item" + Attributes(257) + "/>")), ErrorCause::FeedTooManyAttributes,
                  "Line 5 of the feed has a tag with more than 256 attributes.");
}

TEST(FeedAttributes, FortyThousandInOneTagAreRefused)
{
    EXPECT_EQ(int(Parse(Feed("<item" + Attributes(40000) + "/>")).error().cause),
              int(ErrorCause::FeedTooManyAttributes));
    EXPECT_EQ(int(Parse(Feed("<item" + Attributes(40000))).error().cause), int(ErrorCause::FeedTooManyAttributes));
}

TEST(FeedAttributes, EqualSignsOutsideTagsAreNotCounted)
{
    QByteArray const signs(1000, '=');
    FeedParseResult const result =
        Parse(Feed("<item><!-- <a " + signs + "> --><title a='" + signs + "'>" + signs + "</title><a><![CDATA[<b " +
                   signs + ">]]></a><?pi <a " + signs + ">?></item>"));
    EXPECT_TRUE(result.has_value()) << Text(result.error().sentence.English());
}

TEST(FeedMarkup, ElementsAndAttributesAreCountedTogether)
{
    FeedLimits limits;
    limits.maxMarkup = 100;
    // Around the items there are rss with its version, channel and title.
    int const own = 4;
    auto refusalOf = [&limits](QByteArray const& items) { return Parse(Feed(items), FeedPlatform::MacOS, limits); };
    EXPECT_TRUE(refusalOf(Repeated(100 - own, "<a/>")).has_value());
    EXPECT_TRUE(
        refusalOf("<item>" + Repeated((100 - own - 1) / 5, "<a b='' c='' d='' e=''/>") + "</item>").has_value());
    ExpectRefused(refusalOf("\n\n" + Repeated(100 - own + 1, "<a/>")), ErrorCause::FeedTooMuchMarkup,
                  "Line 7 of the feed exceeds the limit of 100 elements and attributes.");
    ExpectRefused(refusalOf("<item" + Attributes(96) + "/>"), ErrorCause::FeedTooMuchMarkup,
                  "Line 5 of the feed exceeds the limit of 100 elements and attributes.");
    EXPECT_TRUE(refusalOf("<item" + Attributes(95) + "/>").has_value());
}

TEST(FeedMarkup, AFeedThatIsTagsThroughoutIsRefusedLongBeforeItsEnd)
{
    int const size = 4 << 20;
    QByteArray const shapes[] = {"<a/>", "<a></a>", "<a b=''/>", "<a" + Attributes(64) + "/>",
                                 "<a" + Attributes(256) + "/>"};
    for (QByteArray const& shape : shapes)
    {
        FeedParseResult const result = Parse(Feed("<item>" + Repeated(size / shape.size(), shape + "\n") + "</item>"));
        EXPECT_EQ(int(result.error().cause), int(ErrorCause::FeedTooMuchMarkup)) << shape.left(20).constData();
        EXPECT_LE(result.error().line, 5 + 100 * 1000) << shape.left(20).constData();
    }
    // Each of these tags is allowed alone, but only so many of the largest ones are read.
    EXPECT_LE(Parse(Feed(Repeated(size / 2000, "<a" + Attributes(256) + "/>\n"))).error().line, 5 + 100 * 1000 / 257);
}

TEST(FeedMarkup, TwoThousandItemsWithDeltasStayBelowTheLimit)
{
    QByteArray const attributes = " url='a' sparkle:version='2' sparkle:shortVersionString='2' length='1' type='b' "
                                  "sparkle:edSignature='c'";
    QByteArray const item = "<item><title/><description/><pubDate/><link/><sparkle:minimumSystemVersion/><enclosure" +
                            attributes + "/><sparkle:deltas>" +
                            Repeated(4, "<enclosure" + attributes + " sparkle:deltaFrom='1'/>") +
                            "</sparkle:deltas></item>";
    EXPECT_EQ(Parse(Feed(Repeated(2000, item))).value().items.size(), 2000u);
}

TEST(FeedTagLength, SixtyFourKibibytesPassAndOneByteMoreIsRefused)
{
    auto tag = [](int bytes) { return "<item a=\"" + QByteArray(bytes - 12, '>') + "\"/>"; };
    ASSERT_EQ(tag(65536).size(), 65536);
    EXPECT_TRUE(Parse(Feed(tag(65536))).has_value());
    ExpectRefused(Parse(Feed("\n" + tag(65537))), ErrorCause::FeedTagTooLong,
                  "Line 6 of the feed has a tag of more than 65536 bytes.");
}

TEST(FeedTagLength, CountsEndTagsBlanksNamesAndUnfinishedTags)
{
    QByteArray const blanks(65536, ' ');
    EXPECT_EQ(int(Parse(Feed("<item" + blanks + "></item>")).error().cause), int(ErrorCause::FeedTagTooLong));
    EXPECT_EQ(int(Parse(Feed("<item></item" + blanks + ">")).error().cause), int(ErrorCause::FeedTagTooLong));
    EXPECT_EQ(int(Parse(Feed("<" + QByteArray(65536, 'n') + "/>")).error().cause), int(ErrorCause::FeedTagTooLong));
    EXPECT_EQ(int(Parse(Feed("<item a='" + QByteArray(50 << 20, 'x'))).error().cause), int(ErrorCause::FeedTagTooLong));
}

TEST(FeedTagLength, TextCommentsAndSectionsMayBeLonger)
{
    QByteArray const text(200000, 'x');
    FeedParseResult const result = Parse(Feed("<item><title>" + text + "</title><!--" + text +
                                              "--><description><![CDATA[<" + text + "]]></description></item>"));
    ASSERT_EQ(result.value().items.size(), 1u);
    EXPECT_EQ(result.value().items[0].title.size(), 200000);
    EXPECT_EQ(result.value().items[0].description.size(), 200001);
}

TEST(FeedItems, TwoThousandPassAndOneMoreIsRefused)
{
    EXPECT_EQ(Parse(Feed(Repeated(2000, "<item/>\n"))).value().items.size(), 2000u);
    ExpectRefused(Parse(Feed(Repeated(2001, "<item/>\n"))), ErrorCause::FeedTooManyItems,
                  "Line 2005 of the feed has item number 2001, but only 2000 are allowed.");
}

TEST(FeedItems, ThoseLeftOutCountAndDeltasDoNot)
{
    QByteArray const foreign = "<item><enclosure url='a' sparkle:os='windows'/></item>";
    EXPECT_EQ(int(Parse(Feed(foreign.repeated(2001))).error().cause), int(ErrorCause::FeedTooManyItems));
    QByteArray const deltas = QByteArray("<enclosure url='a' sparkle:deltaFrom='1'/>").repeated(3000);
    EXPECT_EQ(
        Parse(Feed("<item><sparkle:deltas>" + deltas + "</sparkle:deltas></item>")).value().items.at(0).deltas.size(),
        3000u);
}

TEST(FeedNamespaces, SixtyFourInScopePassAndOneMoreIsRefused)
{
    auto declarations = [](int count)
    {
        QByteArray text;
        for (int i = 0; i < count; ++i)
        {
            text += " xmlns:n" + QByteArray::number(i) + "='u'";
        }
        return text;
    };
    // The feed itself declares one.
    EXPECT_TRUE(
        Parse(Feed("<item" + declarations(63) + "><title/></item><item" + declarations(63) + "/>")).has_value());
    ExpectRefused(Parse(Feed("<item" + declarations(60) + "><a" + declarations(4) + "/></item>")),
                  ErrorCause::FeedTooManyNamespaces, "Line 5 of the feed has more than 64 namespaces declared.");
}

TEST(FeedLimitsGiven, ReplaceTheEnginesOwn)
{
    FeedLimits limits;
    limits.maxItems = 3;
    limits.maxDepth = 4;
    EXPECT_TRUE(Parse(Feed(Repeated(3, "<item><a/></item>")), FeedPlatform::MacOS, limits).has_value());
    EXPECT_EQ(int(Parse(Feed(Repeated(4, "<item/>")), FeedPlatform::MacOS, limits).error().cause),
              int(ErrorCause::FeedTooManyItems));
    EXPECT_EQ(int(Parse(Feed("<item><a><b/></a></item>"), FeedPlatform::MacOS, limits).error().cause),
              int(ErrorCause::FeedTooDeep));
}

} // namespace Pelnar::Engine::Tests
