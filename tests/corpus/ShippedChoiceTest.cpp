// ShippedChoiceTest.cpp: from the bytes of a feed to the session's answer, with the engine's own objects.

#include "tests/corpus/ShippedChoice.h"
#include "Engine/core/feed/FeedParser.h"

#include <gtest/gtest.h>

namespace Pelnar::Testing
{
namespace
{

std::optional<ShippedChoice> Choose(QByteArray const& items, Core::Version const& localVersion)
{
    Engine::FeedParseResult const feed = Engine::ParseFeed(
        "<rss xmlns:s='http://www.andymatuschak.org/xml-namespaces/sparkle'><channel>" + items + "</channel></rss>",
        QUrl(QStringLiteral("https://feeds.example.com/app/appcast.xml")), Engine::FeedPlatform::MacOS);
    EXPECT_TRUE(feed.has_value()) << feed.error().sentence.English().toStdString();
    return ChooseFromFeed(feed.value().items, localVersion);
}

char const* const ITEM_WITH_DELTA = R"(<item>
    <pelnar1_OverridePathToRelaunch>/Applications/App.app</pelnar1_OverridePathToRelaunch>
    <pelnar1_Channel>stable</pelnar1_Channel>
    <enclosure url='App.zip' length='100' s:version='5.1'/>
    <s:deltas><enclosure url='5.0.delta' length='10' s:deltaFrom='5.0' pelnar1_Channel='delta'/></s:deltas></item>)";

std::string Extension(ShippedChoice const& choice, char const* name)
{
    return choice.extensions.value(QLatin1String(name)).toString().toStdString();
}

} // namespace

TEST(ShippedChoice, ADeltaOfTheRunningVersionHasItsItemsExtensionsOverlaidByItsOwn)
{
    std::optional<ShippedChoice> const choice = Choose(ITEM_WITH_DELTA, Core::Version(5, 0));
    ASSERT_TRUE(choice.has_value());
    EXPECT_EQ(choice->deltaFrom.toStdString(), "5.0");
    EXPECT_EQ(choice->version.toStdString(), "5.1");
    EXPECT_EQ(choice->length, 10u);
    EXPECT_EQ(choice->url.toStdString(), "https://feeds.example.com/app/5.0.delta");
    EXPECT_EQ(choice->extensions.size(), 2);
    EXPECT_EQ(Extension(*choice, "PELNAR1_OVERRIDEPATHTORELAUNCH"), "/Applications/App.app");
    EXPECT_EQ(Extension(*choice, "PELNAR1_CHANNEL"), "delta");
}

TEST(ShippedChoice, AFullItemHasItsOwnExtensions)
{
    std::optional<ShippedChoice> const choice = Choose(ITEM_WITH_DELTA, Core::Version(4, 9));
    ASSERT_TRUE(choice.has_value());
    EXPECT_EQ(choice->deltaFrom.toStdString(), "");
    EXPECT_EQ(choice->url.toStdString(), "https://feeds.example.com/app/App.zip");
    EXPECT_EQ(Extension(*choice, "PELNAR1_CHANNEL"), "stable");
}

TEST(ShippedChoice, AnExtensionThatIsNoTextIsKeptWithoutAValue)
{
    std::optional<ShippedChoice> const choice =
        Choose("<item><pelnar1_A b='c'>d</pelnar1_A><pelnar1_E>f</pelnar1_E><pelnar1_E>g</pelnar1_E>"
               "<enclosure url='App.zip' length='1' s:version='5.1'/></item>",
               Core::Version(5, 0));
    ASSERT_TRUE(choice.has_value());
    EXPECT_EQ(choice->extensions.size(), 2);
    EXPECT_FALSE(choice->extensions.value(QStringLiteral("PELNAR1_A")).isValid());
    EXPECT_FALSE(choice->extensions.value(QStringLiteral("PELNAR1_E")).isValid());
}

TEST(ShippedChoice, OddVersionsAndLengthsOfAFeedAreNotOffered)
{
    for (char const* version :
         {"", "-1", "1.-2", "1.2.3.4.5", "1e3", "9 9", "99999999999999999999", "\xD9\xA9.\xD9\xA9"})
    {
        EXPECT_FALSE(Choose(QByteArray("<item><enclosure url='A.zip' length='1' s:version='") + version + "'/></item>",
                            Core::Version(0)))
            << version;
    }
    for (char const* length : {"", "0", "-1", "1e9", "0x10", "9223372036854775808", "18446744073709551616"})
    {
        EXPECT_FALSE(Choose(QByteArray("<item><enclosure url='A.zip' s:version='9' length='") + length + "'/></item>",
                            Core::Version(0)))
            << length;
    }
}

} // namespace Pelnar::Testing
