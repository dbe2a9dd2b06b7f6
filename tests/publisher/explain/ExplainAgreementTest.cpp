// ExplainAgreementTest.cpp: the tool and the shipped updater must agree on random feeds. The generator prefers values
// at the limits of the rules.

#include "Engine/core/feed/FeedParser.h"
#include "HostFramework/Reference/ReferenceOSVersion.h"
#include "HostFramework/VersionText.h"
#include "Publisher/choice/FeedChoice.h"
#include "tests/corpus/ShippedChoice.h"

#include <gtest/gtest.h>

#include <random>

namespace Pelnar::Testing
{
namespace
{

constexpr int FEEDS = 1500;
char const* const SYSTEM = "12.3";

class FeedGenerator
{
public:
    explicit FeedGenerator(unsigned seed) : m_engine(seed) {}

    QByteArray Feed()
    {
        QByteArray text = "<rss xmlns:s='http://www.andymatuschak.org/xml-namespaces/sparkle'><channel>";
        for (int i = Number(6); i >= 0; --i)
        {
            text += Item();
        }
        return text + "</channel></rss>";
    }

private:
    int Number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(m_engine); }

    char const* OneOf(std::initializer_list<char const*> values) { return values.begin()[Number(int(values.size()))]; }

    QByteArray Enclosure(char const* version)
    {
        QByteArray const name =
            QByteArray::number(Number(4)) + OneOf({".zip", ".zip", ".sparkle_guided.pkg", ".sparkle_interactive.zip",
                                                   ".SPARKLE_GUIDED.pkg", "%2Esparkle_guided%2Epkg"});
        return QByteArray("<enclosure url='") + OneOf({"", "", "https://x.example/", "https://x.example?", "ftp:", "http://[bad/"}) + name +
               OneOf({"", "", "", "?", "#", "?v=1"}) + "' length='" + OneOf({"1", "2", "2", "3", "0", "-1", "1e3"}) + "' s:version='" + version + "'";
    }

    QByteArray Item()
    {
        char const* const version = OneOf({"5.1", "5.1.0", "5.2", "6", "6.0.0.0", "5", "4.9", "", "6.x", "6.0"});
        QByteArray item = "<item>" + Enclosure(version) + "/>";
        item += QByteArray("<pubDate>") +
                OneOf({"Mon, 07 Jan 2019 10:00:00 +0000", "Mon, 07 Jan 2019 10:00:00 +0000", "Mon Jan 7 2019", ""}) +
                "</pubDate>";
        item += QByteArray("<s:minimumSystemVersion>") + OneOf({"", "12.3.0", "12.4", "11", "abc", "12.3"}) +
                "</s:minimumSystemVersion>";
        item += QByteArray("<s:maximumSystemVersion>") + OneOf({"", "", "12.3", "12.2", "13"}) +
                "</s:maximumSystemVersion>";
        item += QByteArray("<pelnar1_") + OneOf({"A", "b", "OverridePathToRelaunch"}) + OneOf({"", " x='y'"}) + "/>";
        item += "<s:deltas>";
        // Each delta starts from another version: the order among deltas of one version is not defined.
        if (Number(2) == 0)
        {
            item += Enclosure(version) + " s:deltaFrom='" + OneOf({"5.0", "5.0.0.0", "5"}) + "' pelnar1_A='d'/>";
        }
        if (Number(3) == 0)
        {
            item += Enclosure(version) + " s:deltaFrom='" + OneOf({"4.9", "", "5.x", "4"}) + "'/>";
        }
        return item + "</s:deltas></item>";
    }

    std::mt19937 m_engine;
};

std::string Text(std::optional<ShippedChoice> const& choice)
{
    return choice ? (choice->version + QLatin1Char('|') + choice->deltaFrom + QLatin1Char('|') +
                     QString::number(choice->length) + QLatin1Char('|') + choice->url)
                        .toStdString()
                  : "none";
}

std::string Text(Engine::FeedItem const* item)
{
    return item ? (item->versionString + QLatin1Char('|') + item->deltaFrom + QLatin1Char('|') +
                   QString::number(item->contentLength) + QLatin1Char('|') + item->fileUrl.toString(QUrl::FullyEncoded))
                      .toStdString()
                : "none";
}

} // namespace

TEST(ExplainAgreement, TheToolChoosesWhatTheShippedUpdaterChooses)
{
    Util::SetOSVersion(QLatin1String(SYSTEM));
    Publisher::Client const client{Core::Version(5, 0), Core::Version(12, 3)};
    FeedGenerator generator(20260);
    int chosen = 0;
    int deltas = 0;
    for (int i = 0; i < FEEDS; ++i)
    {
        QByteArray const bytes = generator.Feed();
        Engine::FeedParseResult const feed = Engine::ParseFeed(
            bytes, QUrl(QStringLiteral("https://feeds.example.com/appcast.xml")), Engine::FeedPlatform::MacOS);
        ASSERT_TRUE(feed.has_value()) << bytes.toStdString();
        Publisher::FeedChoice const choice = Publisher::ChooseFromFeed(feed.value().items, client);
        std::optional<ShippedChoice> const shipped = ChooseFromFeed(feed.value().items, client.localVersion);
        ASSERT_EQ(Text(choice.chosen), Text(shipped)) << bytes.toStdString();
        if (choice.chosen)
        {
            EXPECT_EQ(Publisher::ExtensionsOf(*choice.chosen), shipped->extensions) << bytes.toStdString();
            ++chosen;
            deltas += choice.chosen->isDelta ? 1 : 0;
        }
    }
    // The generator produces every kind of answer.
    EXPECT_GT(chosen, FEEDS / 10);
    EXPECT_LT(chosen, FEEDS);
    EXPECT_GT(deltas, FEEDS / 100);
}

TEST(ExplainAgreement, OneReadingOfAFeedServesManyClients)
{
    FeedGenerator generator(20261);
    int updates = 0;
    for (int i = 0; i < FEEDS / 4; ++i)
    {
        QByteArray const bytes = generator.Feed();
        Engine::FeedParseResult const feed = Engine::ParseFeed(
            bytes, QUrl(QStringLiteral("https://feeds.example.com/appcast.xml")), Engine::FeedPlatform::MacOS);
        Publisher::FeedChooser chooser(feed.value().items);
        for (Core::Version const& system :
             {Core::Version(12, 3), Core::Version(), Core::Version(10), Core::Version(13)})
        {
            for (Core::Version const& local :
                 {Core::Version(5, 0), Core::Version(4), Core::Version(5, 1), Core::Version(6)})
            {
                Publisher::Client const client{local, system};
                Engine::FeedItem const* const chosen = Publisher::ChooseFromFeed(feed.value().items, client).chosen;
                ASSERT_EQ(Text(chooser.Answer(client).chosen), Text(chosen)) << bytes.toStdString();
                ASSERT_EQ(Text(chooser.Choose(client).chosen), Text(chosen)) << bytes.toStdString();
                updates += chosen ? 1 : 0;
            }
        }
    }
    EXPECT_GT(updates, FEEDS / 4);
}

} // namespace Pelnar::Testing
