// FeedItemTest.cpp: every property of an item and of its deltas, and the additional elements of a feed.
#include "Engine/core/fetch/FetchRules.h"
#include "tests/engine_core/FeedFixture.h"
#include "tests/support/CauseOf.h"

#include <gtest/gtest.h>

#include <optional>

namespace Pelnar::Engine::Tests
{

namespace
{

char const* const FULL_ITEM = R"(
  <title>
    App 5.1
  </title>
  <pubDate>Mon, 07 Jan 2019 10:00:00 +0000</pubDate>
  <link>https://www.example.com/news</link>
  <description sparkle:format="plain-text"><![CDATA[ first <b>line</b>
second ]]></description>
  <sparkle:version>510</sparkle:version>
  <sparkle:shortVersionString>5.1</sparkle:shortVersionString>
  <sparkle:minimumSystemVersion>10.13</sparkle:minimumSystemVersion>
  <sparkle:maximumSystemVersion>14.9</sparkle:maximumSystemVersion>
  <sparkle:releaseNotesLink>
     notes/5.1.html
  </sparkle:releaseNotesLink>
  <sparkle:criticalUpdate/>
  <enclosure url="https://files.example.com/App.zip" length="4096" type="application/octet-stream"
     sparkle:edSignature="c2lnbmF0dXJl" sparkle:installationType="package"/>
  <pelnar1_OverridePathToRelaunch>/Applications/App.app</pelnar1_OverridePathToRelaunch>
)";

QVariantMap Map(QVariant const& value)
{
    return value.toMap();
}
std::string At(QVariantMap const& map, char const* name)
{
    return Text(map.value(QLatin1String(name)).toString());
}

} // namespace

TEST(FeedItem, TellsWhoSignedItAndWhomItTrusts)
{
    char const* const open = "<p:keys xmlns:p='https://pelnar.example/xml-namespaces/appcast' signer=' a1 ' ";
    FeedItem const item = OnlyItem((QByteArray(open) + "trusted='a1  b2'/><keys signer='x'/>").constData());
    EXPECT_EQ(Text(item.signerKey), "a1");
    EXPECT_EQ(Text(item.trustedKeys.join(QLatin1Char(','))), "a1,b2");
    FeedItem const other = OnlyItem("<keys signer='x' trusted='y'/><k:keys xmlns:k='urn:k' signer='z'/>");
    EXPECT_TRUE(other.signerKey.isEmpty());
    EXPECT_TRUE(other.trustedKeys.isEmpty());
}

TEST(FeedItem, ASmallerArchiveOfTheBundleStandsBesideTheOneForAllClients)
{
    QByteArray const enclosure = "<enclosure url='https://a.example/App.zip' length='100' sparkle:edSignature='eg=='/>";
    auto const recompressed = [](QByteArray const& attributes)
    {
        return "<p:recompressed xmlns:p='https://pelnar.example/xml-namespaces/appcast' url='App.tar.zst' " +
               attributes + "/>";
    };
    FeedItem const item = OnlyItem((recompressed("length='60' sparkle:edSignature='eh=='") + enclosure +
                                    recompressed("length='50' sparkle:edSignature='ei=='"))
                                       .constData());
    EXPECT_EQ(Text(item.fileUrl.fileName()), "App.zip");
    EXPECT_EQ(item.contentLength, 100u);
    ASSERT_EQ(item.recompressed.size(), 1u);
    EXPECT_EQ(Text(item.recompressed[0].fileUrl.fileName()), "App.tar.zst");
    EXPECT_EQ(item.recompressed[0].contentLength, 60u) << "the first counts";
    EXPECT_EQ(Text(item.recompressed[0].edSignature), "eh==");
    for (char const* const unusable :
         {"length='60'", "sparkle:edSignature='eh=='", "length='-1' sparkle:edSignature='eh=='",
          "length='60' sparkle:edSignature='eh==' sparkle:os='windows'", "length='0' sparkle:edSignature='eh=='"})
    {
        EXPECT_TRUE(OnlyItem((enclosure + recompressed(unusable)).constData()).recompressed.empty()) << unusable;
    }
    EXPECT_TRUE(OnlyItem(recompressed("length='60' sparkle:edSignature='eh=='").constData()).recompressed.empty())
        << "with no other file";
}

TEST(FeedItem, TakesEveryPropertyOfAFullItem)
{
    FeedItem const item = OnlyItem(FULL_ITEM);
    EXPECT_EQ(Text(item.title), "App 5.1");
    EXPECT_EQ(Text(item.dateString), "Mon, 07 Jan 2019 10:00:00 +0000");
    EXPECT_EQ(Text(item.description), " first <b>line</b>\nsecond ");
    EXPECT_EQ(Text(item.descriptionFormat), "plain-text");
    EXPECT_EQ(Text(item.minimumSystemVersion), "10.13");
    EXPECT_EQ(Text(item.maximumSystemVersion), "14.9");
    EXPECT_EQ(Text(item.releaseNotesUrl.toString()), "https://feeds.example.com/app/notes/5.1.html");
    EXPECT_EQ(Text(item.infoUrl.toString()), "https://www.example.com/news");
    EXPECT_EQ(Text(item.fileUrl.toString()), "https://files.example.com/App.zip");
    EXPECT_EQ(item.contentLength, 4096u);
    EXPECT_EQ(Text(item.versionString), "510");
    EXPECT_EQ(Text(item.displayVersionString), "5.1");
    EXPECT_EQ(Text(item.edSignature), "c2lnbmF0dXJl");
    EXPECT_EQ(Text(item.installationType), "package");
    EXPECT_TRUE(item.isCritical);
    EXPECT_FALSE(item.isDelta);
    EXPECT_TRUE(item.deltaFrom.isEmpty());
    EXPECT_TRUE(item.deltas.empty());
    EXPECT_EQ(item.line, 5);
    EXPECT_EQ(item.column, 7);
}

TEST(FeedItem, LeavesEverythingEmptyThatTheFeedDoesNotSay)
{
    FeedItem const item = OnlyItem("");
    EXPECT_TRUE(item.title.isEmpty());
    EXPECT_TRUE(item.dateString.isEmpty());
    EXPECT_TRUE(item.description.isEmpty());
    EXPECT_TRUE(item.descriptionFormat.isEmpty());
    EXPECT_TRUE(item.minimumSystemVersion.isEmpty());
    EXPECT_TRUE(item.maximumSystemVersion.isEmpty());
    EXPECT_TRUE(item.releaseNotesUrl.isEmpty());
    EXPECT_TRUE(item.infoUrl.isEmpty());
    EXPECT_TRUE(item.fileUrl.isEmpty());
    EXPECT_EQ(item.contentLength, 0u);
    EXPECT_TRUE(item.versionString.isEmpty());
    EXPECT_TRUE(item.displayVersionString.isEmpty());
    EXPECT_TRUE(item.edSignature.isEmpty());
    EXPECT_TRUE(item.installationType.isEmpty());
    EXPECT_FALSE(item.isCritical);
    EXPECT_TRUE(item.properties.isEmpty());
}

TEST(FeedItem, IsCriticalByAnElementOrByATag)
{
    EXPECT_TRUE(OnlyItem("<sparkle:criticalUpdate/>").isCritical);
    EXPECT_TRUE(OnlyItem("<sparkle:tags><sparkle:criticalUpdate/></sparkle:tags>").isCritical);
    EXPECT_FALSE(OnlyItem("<sparkle:tags><sparkle:other/></sparkle:tags>").isCritical);
    EXPECT_FALSE(OnlyItem("<criticalUpdate/><tags><criticalUpdate/></tags>").isCritical);
    EXPECT_FALSE(OnlyItem("<other><sparkle:criticalUpdate/></other>").isCritical);
    EXPECT_FALSE(OnlyItem("<sparkle:tags><a><sparkle:criticalUpdate/></a></sparkle:tags>").isCritical);
}

TEST(FeedPlatforms, TakesTheFirstEnclosureForThePlatformAndLeavesForeignItemsOut)
{
    QByteArray const items = R"(
        <item><title>both</title><enclosure url="w" sparkle:os="windows"/><enclosure url="l" sparkle:os="linux"/>
            <enclosure url="m" sparkle:os="macos"/><enclosure url="any"/></item>
        <item><title>any first</title><enclosure url="any"/><enclosure url="m" sparkle:os="macos"/></item>
        <item><title>case</title><enclosure url="l" sparkle:os="Linux"/><enclosure url="m" sparkle:os="macOS"/></item>
        <item><title>foreign</title><enclosure url="w" sparkle:os="windows"/><enclosure url="a" sparkle:os="android"/></item>
        <item><title>empty</title><enclosure url="e" sparkle:os=""/></item>
        <item><title>none</title></item>
        <item><title>no namespace</title><enclosure url="n" os="windows"/></item>)";
    auto names = [&](FeedPlatform platform)
    {
        std::string text;
        for (FeedItem const& item : Parse(Feed(items), platform).value_or(FeedContent()).items)
        {
            text += Text(item.title) + "=" + Text(item.fileUrl.fileName()) + ";";
        }
        return text;
    };
    EXPECT_EQ(names(FeedPlatform::MacOS), "both=m;any first=any;case=m;none=;no namespace=n;");
    EXPECT_EQ(names(FeedPlatform::Linux), "both=l;any first=any;case=l;none=;no namespace=n;");
}

TEST(FeedDeltas, InheritFromTheirItemAndAddTheirOwn)
{
    FeedItem const item = OnlyItem(QByteArray(FULL_ITEM) + R"(<sparkle:deltas>
        <enclosure url="5.0.delta" length="12" sparkle:deltaFrom="500" sparkle:edSignature="ZGVsdGE="/>
        <enclosure url="4.9.delta" length="0" sparkle:deltaFrom="490" sparkle:version="511"
            sparkle:shortVersionString="5.1.1" pelnar1_OverridePathToRelaunch="/opt/App"/>
      </sparkle:deltas>)");
    ASSERT_EQ(item.deltas.size(), 2u);
    FeedItem const& plain = item.deltas[0];
    EXPECT_TRUE(plain.isDelta);
    EXPECT_EQ(Text(plain.deltaFrom), "500");
    EXPECT_EQ(Text(plain.fileUrl.toString()), "https://feeds.example.com/app/5.0.delta");
    EXPECT_EQ(plain.contentLength, 12u);
    EXPECT_EQ(Text(plain.edSignature), "ZGVsdGE=");
    EXPECT_EQ(Text(plain.installationType), "");
    EXPECT_EQ(plain.title, item.title);
    EXPECT_EQ(plain.dateString, item.dateString);
    EXPECT_EQ(plain.description, item.description);
    EXPECT_EQ(plain.descriptionFormat, item.descriptionFormat);
    EXPECT_EQ(plain.minimumSystemVersion, item.minimumSystemVersion);
    EXPECT_EQ(plain.maximumSystemVersion, item.maximumSystemVersion);
    EXPECT_EQ(plain.releaseNotesUrl, item.releaseNotesUrl);
    EXPECT_EQ(plain.infoUrl, item.infoUrl);
    EXPECT_EQ(plain.versionString, item.versionString);
    EXPECT_EQ(plain.displayVersionString, item.displayVersionString);
    EXPECT_TRUE(plain.isCritical);
    EXPECT_TRUE(plain.deltas.empty());
    EXPECT_GT(plain.line, item.line);
    EXPECT_EQ(At(plain.AllProperties(), "pelnar1_OverridePathToRelaunch"), "/Applications/App.app");
    EXPECT_EQ(At(plain.AllProperties(), "title"), "App 5.1");
    EXPECT_EQ(At(plain.AllProperties(), "sparkle:deltaFrom"), "500");
    EXPECT_EQ(At(Map(plain.AllProperties().value(QStringLiteral("enclosure"))), "url"), "5.0.delta");

    FeedItem const& own = item.deltas[1];
    EXPECT_EQ(Text(own.versionString), "511");
    EXPECT_EQ(Text(own.displayVersionString), "5.1.1");
    EXPECT_EQ(own.contentLength, 0u);
    EXPECT_EQ(At(own.AllProperties(), "pelnar1_OverridePathToRelaunch"), "/opt/App");
    EXPECT_EQ(At(item.AllProperties(), "pelnar1_OverridePathToRelaunch"), "/Applications/App.app");
}

TEST(FeedDeltas, InheritAlsoWhatStandsBehindThem)
{
    FeedItem const item = OnlyItem(R"(<sparkle:deltas><enclosure url="d" sparkle:deltaFrom="1"/></sparkle:deltas>
        <sparkle:version>2</sparkle:version><title>late</title><enclosure url="f" length="9"/>)");
    ASSERT_EQ(item.deltas.size(), 1u);
    EXPECT_EQ(Text(item.deltas[0].versionString), "2");
    EXPECT_EQ(Text(item.deltas[0].title), "late");
    EXPECT_EQ(item.deltas[0].contentLength, 0u);
    EXPECT_EQ(Text(item.fileUrl.fileName()), "f");
}

TEST(FeedDeltas, AreLeftOutWithoutAStartAndForOtherPlatforms)
{
    FeedItem const item = OnlyItem(R"(<sparkle:version>2</sparkle:version><enclosure url="f"/><sparkle:deltas>
        <enclosure url="no start"/><enclosure url="w" sparkle:deltaFrom="1" sparkle:os="windows"/>
        <enclosure url="empty start" sparkle:deltaFrom=""/><other/></sparkle:deltas>
        <deltas><enclosure url="x" sparkle:deltaFrom="1"/></deltas>)");
    ASSERT_EQ(item.deltas.size(), 1u);
    EXPECT_EQ(Text(item.deltas[0].fileUrl.fileName()), "empty start");
}

TEST(FeedLanguages, TheMostWantedTextWins)
{
    QByteArray const content = R"(
        <title xml:lang="fr">titre</title><title>title</title><title xml:lang="de">Titel</title>
        <description xml:lang="fr">texte</description><description xml:lang="de-AT" sparkle:format="markdown">Text</description>
        <sparkle:releaseNotesLink xml:lang="ja">/ja</sparkle:releaseNotesLink>
        <sparkle:releaseNotesLink>/any</sparkle:releaseNotesLink>
        <sparkle:releaseNotesLink xml:lang="de">/de</sparkle:releaseNotesLink>
        <sparkle:releaseNotesLink>/second</sparkle:releaseNotesLink>)";
    auto texts = [&](QStringList const& languages)
    {
        FeedItem const item = OnlyItem(content, FeedPlatform::MacOS, languages);
        return Text(item.title + QLatin1Char(' ') + item.description + QLatin1Char(' ') + item.descriptionFormat +
                    QLatin1Char(' ') + item.releaseNotesUrl.path());
    };
    EXPECT_EQ(texts({}), "title texte  /any");
    EXPECT_EQ(texts({QStringLiteral("de_DE"), QStringLiteral("de")}), "Titel Text markdown /de");
    EXPECT_EQ(texts({QStringLiteral("pt"), QStringLiteral("fr-CA")}), "titre texte  /any");
    EXPECT_EQ(texts({QStringLiteral("jam")}), "title texte  /any");
    EXPECT_EQ(texts({QStringLiteral("JA")}), "title texte  /ja");
}

TEST(FeedProperties, HoldEveryChildByItsQualifiedNameThenTheItemsAttributes)
{
    FeedParseResult const result = Parse(R"(<rss xmlns:s="http://www.andymatuschak.org/xml-namespaces/sparkle"
        xmlns:dc="http://purl.org/dc/elements/1.1/"><channel>
        <item pelnar1_Attribute="from the item" title="hidden" dc:x="y" s:z="w">
            <title> App </title><s:version>1</s:version><dc:creator>me</dc:creator><empty/>
            <enclosure url="a" s:os="macos"/>
            <s:tags><s:one/><s:two at="2"/></s:tags>
            <noted xml:lang="de"> text </noted><flat a=""/>
            <twice>1</twice><twice>2</twice><twice a="3"/>
            <pelnar1_Element>value</pelnar1_Element><mixed>a<b>c</b>d<b/></mixed>
        </item></channel></rss>)");
    ASSERT_EQ(result.value().items.size(), 1u);
    QVariantMap const properties = result.value().items[0].properties;
    EXPECT_EQ(QStringList(properties.keys()).join(QLatin1Char(' ')).toStdString(),
              "dc:creator dc:x empty enclosure flat mixed noted pelnar1_Attribute pelnar1_Element sparkle:tags "
              "sparkle:version sparkle:z title twice");
    EXPECT_EQ(At(properties, "title"), "App");
    EXPECT_EQ(At(properties, "sparkle:version"), "1");
    EXPECT_EQ(At(properties, "dc:creator"), "me");
    EXPECT_EQ(properties.value(QStringLiteral("empty")).type(), QVariant::String);
    EXPECT_EQ(At(properties, "pelnar1_Attribute"), "from the item");
    EXPECT_EQ(At(properties, "pelnar1_Element"), "value");
    EXPECT_EQ(At(properties, "sparkle:z"), "w");
    EXPECT_EQ(At(Map(properties.value(QStringLiteral("enclosure"))), "sparkle:os"), "macos");
    QVariantMap const tags = Map(properties.value(QStringLiteral("sparkle:tags")));
    EXPECT_EQ(At(tags, "sparkle:one"), "");
    EXPECT_EQ(At(Map(tags.value(QStringLiteral("sparkle:two"))), "at"), "2");
    QVariantMap const noted = Map(properties.value(QStringLiteral("noted")));
    EXPECT_EQ(At(noted, "xml:lang") + At(noted, "#text"), "detext");
    EXPECT_EQ(Map(properties.value(QStringLiteral("flat"))).keys(), QStringList{QStringLiteral("a")});
    QVariantList const twice = properties.value(QStringLiteral("twice")).toList();
    ASSERT_EQ(twice.size(), 3);
    EXPECT_EQ(Text(twice[0].toString() + twice[1].toString()), "12");
    EXPECT_EQ(At(Map(twice[2]), "a"), "3");
    QVariantMap const mixed = Map(properties.value(QStringLiteral("mixed")));
    EXPECT_EQ(At(mixed, "#text"), "ad");
    EXPECT_EQ(mixed.value(QStringLiteral("b")).toList().size(), 2);
}

TEST(FeedProperties, HoldDeltasAsAMapOfTheirEnclosures)
{
    FeedItem const item = OnlyItem(R"(<sparkle:deltas note="n"><enclosure url="a" sparkle:deltaFrom="1"/>
        <enclosure url="b"><inner>i</inner></enclosure></sparkle:deltas>)");
    QVariantMap const deltas = Map(item.properties.value(QStringLiteral("sparkle:deltas")));
    EXPECT_EQ(At(deltas, "note"), "n");
    QVariantList const enclosures = deltas.value(QStringLiteral("enclosure")).toList();
    ASSERT_EQ(enclosures.size(), 2);
    EXPECT_EQ(At(Map(enclosures[0]), "sparkle:deltaFrom"), "1");
    EXPECT_EQ(At(Map(enclosures[1]), "inner"), "i");
}

TEST(FeedProperties, DropNothingWhenThereAreMoreNamesThanTheNameTableKeeps)
{
    QByteArray content;
    for (int i = 0; i < 200; ++i)
    {
        QByteArray const name = "n" + QByteArray::number(i);
        content += "<" + name + ">" + QByteArray::number(i) + "</" + name + ">";
    }
    FeedItem const item = OnlyItem(content);
    ASSERT_EQ(item.properties.size(), 200);
    EXPECT_EQ(At(item.properties, "n0") + At(item.properties, "n31") + At(item.properties, "n199"), "031199");
}

} // namespace Pelnar::Engine::Tests
