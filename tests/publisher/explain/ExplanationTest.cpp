// ExplanationTest.cpp: the verdict and the reason of every item and delta.

#include "Publisher/explain/Explanation.h"
#include "Engine/core/feed/FeedParser.h"

#include <gtest/gtest.h>

namespace Pelnar::Publisher
{
namespace
{

char const* const ENCLOSURE = "<enclosure url='a.zip' length='9' s:version='5.1'/>";

class ExplainedFeed
{
public:
    explicit ExplainedFeed(QByteArray const& items, Client const& client = {Core::Version(5, 0), Core::Version(12, 3)},
                           Engine::Installation const& installation = {})
        : m_feed(Engine::ParseFeed("<rss xmlns:s='http://www.andymatuschak.org/xml-namespaces/sparkle' "
                                   "xmlns:p='https://pelnar.example/xml-namespaces/appcast'><channel>" +
                                       items + "</channel></rss>",
                                   QUrl(QStringLiteral("https://feeds.example.com/appcast.xml")),
                                   Engine::FeedPlatform::Linux))
        , m_explanation(ExplainFeed(m_feed.value().items, client, installation))
    {
        EXPECT_TRUE(m_feed.has_value()) << m_feed.error().sentence.English().toStdString();
    }

    Explanation const& Get() const { return m_explanation; }
    ItemExplanation const& Item(int index) const { return m_explanation.items.at(std::size_t(index)); }
    ItemExplanation const& Delta(int item, int index) const { return Item(item).deltas.at(std::size_t(index)); }

private:
    Engine::FeedParseResult m_feed;
    Explanation m_explanation;
};

std::string Said(ItemExplanation const& item)
{
    return std::string(item.VerdictName()) + ": " + item.detail.toStdString();
}

struct FailureRow
{
    char const* name;
    char const* item;
    char const* said;
};

class FailedTest : public ::testing::TestWithParam<FailureRow>
{
};

QByteArray Full(char const* version, char const* url, char const* length)
{
    return QByteArray("<item><enclosure url='") + url + "' length='" + length + "' s:version='" + version +
           "'/></item>";
}

} // namespace

TEST_P(FailedTest, IsNamedWithTheTwoValuesThatItCompared)
{
    ExplainedFeed const feed(GetParam().item);
    EXPECT_EQ(Said(feed.Item(0)), GetParam().said);
    EXPECT_EQ(feed.Item(0).standing, Standing::Refused);
    EXPECT_EQ(feed.Get().choice.chosen, nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    , FailedTest,
    ::testing::Values(
        FailureRow{"SystemTooOld",
                   "<item><enclosure url='a' length='1' s:version='6'/><s:minimumSystemVersion>12.4"
                   "</s:minimumSystemVersion></item>",
                   "system-too-old: system 12.3 < minimum 12.4"},
        FailureRow{"SystemTooNew",
                   "<item><enclosure url='a' length='1' s:version='6'/><s:maximumSystemVersion>12.2.9"
                   "</s:maximumSystemVersion></item>",
                   "system-too-new: system 12.3 > maximum 12.2.9"},
        FailureRow{"NoVersion", "<item><enclosure url='a' length='1'/></item>", "version-unreadable: no version"},
        FailureRow{"BadVersion", "<item><enclosure url='a' length='1' s:version='6b'/></item>",
                   "version-unreadable: version \"6b\" is not one to four numbers separated by dots"},
        FailureRow{"Older", "<item><enclosure url='a' length='1' s:version='4.9'/></item>",
                   "version-older: version 4.9 < installed 5.0"},
        FailureRow{"Equal", "<item><enclosure url='a' length='1' s:version='5'/></item>",
                   "version-equal: version 5 = installed 5.0"},
        FailureRow{"NoAddress", "<item><enclosure length='1' s:version='6'/></item>",
                   "url-invalid: no enclosure with a valid address"},
        FailureRow{"TextDate",
                   "<item><pubDate>Mon Jan 7 2019</pubDate><enclosure url='a' length='1' s:version='6'/></item>",
                   "date-refused: date \"Mon Jan 7 2019\" is in the text form that is refused"},
        FailureRow{"NoLength", "<item><enclosure url='a' s:version='6'/></item>",
                   "length-zero: length is 0, missing or not a number"}),
    [](auto const& row) { return std::string(row.param.name); });

TEST(Explanation, AnUnknownSystemIgnoresBounds)
{
    QByteArray const item =
        QByteArray("<item><s:minimumSystemVersion>99</s:minimumSystemVersion>") + ENCLOSURE + "</item>";
    ExplainedFeed const feed(item, {Core::Version(5, 0), Core::Version()});
    EXPECT_EQ(Said(feed.Item(0)), "valid: chosen");
}

struct LossRow
{
    char const* name;
    QByteArray winner;
    QByteArray loser;
    char const* said; ///< about the loser if the winner comes first
};

class LostItem : public ::testing::TestWithParam<LossRow>
{
};

TEST_P(LostItem, SaysToWhomAndWhy)
{
    ExplainedFeed const feed(GetParam().winner + GetParam().loser);
    EXPECT_EQ(Said(feed.Item(0)), "valid: chosen");
    EXPECT_EQ(Said(feed.Item(1)), std::string("valid: lost to item 0: ") + GetParam().said);
    EXPECT_EQ(feed.Item(1).standing, Standing::Lost);
    EXPECT_EQ(feed.Get().choice.chosen, feed.Item(0).item);
}

INSTANTIATE_TEST_SUITE_P(
    , LostItem,
    ::testing::Values(
        LossRow{"NewerVersion", Full("5.2", "a.zip", "1"), Full("5.1", "b.zip", "1"), "newer version, 5.2 > 5.1"},
        LossRow{"MinorWantsBundle", Full("5.1", "a.zip", "9"), Full("5.1", "b.sparkle_guided.pkg", "1"),
                "kind, BUNDLE is preferred to INSTALLER"},
        LossRow{"MajorWantsInstaller", Full("6", "a.sparkle_guided.pkg", "9"), Full("6", "b.zip", "1"),
                "kind, INSTALLER is preferred to BUNDLE"},
        LossRow{"SameAddress", Full("6", "a.zip", "9"), Full("6.0", "a.zip", "1"), "same address, and it comes first"},
        LossRow{"Smaller", Full("6", "a.zip", "8"), Full("6", "b.zip", "9"), "smaller size, 8 < 9 bytes"},
        LossRow{"SameSize", Full("6", "a.zip", "9"), Full("6", "b.zip", "9"),
                "same size of 9 bytes, and it comes first"}),
    [](auto const& row) { return std::string(row.param.name); });

TEST(Explanation, ALaterItemCanWin)
{
    ExplainedFeed const feed(Full("5.1", "a.zip", "1") + Full("5.2", "b.zip", "1") + Full("5.3", "c.zip", "1"));
    EXPECT_EQ(Said(feed.Item(0)), "valid: lost to item 1: newer version, 5.2 > 5.1");
    EXPECT_EQ(Said(feed.Item(1)), "valid: lost to item 2: newer version, 5.3 > 5.2");
    EXPECT_EQ(Said(feed.Item(2)), "valid: chosen");
    EXPECT_EQ(feed.Get().chosenIndex, 2);
}

namespace
{

QByteArray DeltaFrom(char const* version, char const* length)
{
    return QByteArray("<enclosure url='") + version + ".delta' length='" + length + "' s:deltaFrom='" + version + "'/>";
}

QByteArray ItemWithDeltas(QByteArray const& deltas)
{
    return QByteArray("<item>") + ENCLOSURE + "<s:deltas>" + deltas + "</s:deltas></item>";
}

} // namespace

TEST(ExplainedDelta, OfTheInstalledVersionIsChosen)
{
    ExplainedFeed const feed(ItemWithDeltas(DeltaFrom("4.9", "1") + DeltaFrom("5.0.0", "1")));
    EXPECT_EQ(Said(feed.Item(0)), "valid: lost to the delta from 5.0.0: kind, DELTA is preferred to BUNDLE");
    EXPECT_EQ(Said(feed.Delta(0, 0)), "valid: not considered: starts from 4.9, installed is 5.0");
    EXPECT_EQ(feed.Delta(0, 0).standing, Standing::NotAsked);
    EXPECT_EQ(Said(feed.Delta(0, 1)), "valid: chosen");
    EXPECT_EQ(feed.Get().choice.chosen, feed.Delta(0, 1).item);
    EXPECT_EQ(feed.Get().chosenIndex, 0);
}

TEST(ExplainedDelta, DoesNotCountAfterADeltaAnswer)
{
    ExplainedFeed const feed(ItemWithDeltas(DeltaFrom("5.0", "1")),
                             {Core::Version(5, 0), Core::Version(12, 3), PreviousAnswer::DELTA});
    EXPECT_EQ(Said(feed.Item(0)), "valid: chosen");
    EXPECT_EQ(Said(feed.Delta(0, 0)), "valid: not considered: the previous answer was a delta");
}

TEST(ExplainedDelta, OfALesserItemDoesNotCount)
{
    ExplainedFeed const feed(ItemWithDeltas(DeltaFrom("5.0", "1")) + Full("5.2", "b.zip", "1"));
    EXPECT_EQ(Said(feed.Delta(0, 0)), "valid: not considered: item is not the best full one");
    EXPECT_EQ(feed.Get().chosenIndex, 1);
}

TEST(ExplainedDelta, IsHiddenByALaterOneFromTheSameVersion)
{
    ExplainedFeed const feed(ItemWithDeltas(DeltaFrom("5.0", "1") + DeltaFrom("5.0", "2")));
    EXPECT_EQ(Said(feed.Delta(0, 0)), "valid: not considered: a later delta starts from 5.0 too");
    EXPECT_EQ(Said(feed.Delta(0, 1)), "valid: chosen");
}

TEST(ExplainedDelta, WithoutALengthIsRefused)
{
    ExplainedFeed const feed(ItemWithDeltas(DeltaFrom("5.0", "0") + DeltaFrom("4.0", "0")));
    EXPECT_EQ(Said(feed.Item(0)), "valid: chosen");
    EXPECT_EQ(Said(feed.Delta(0, 0)), "length-zero: length is 0, missing or not a number");
    EXPECT_EQ(Said(feed.Delta(0, 1)), "length-zero: not considered: starts from 4.0, installed is 5.0; "
                                      "length is 0, missing or not a number");
}

TEST(Explanation, GivesTheExtensionsThatTheHostIsHanded)
{
    ExplainedFeed const feed(
        "<item><pelnar1_Channel>beta</pelnar1_Channel><pelnar1_Odd a='b'/><pelnar2_No>x</pelnar2_No>"
        "<enclosure url='a.zip' length='9' s:version='5.1'/><s:deltas>"
        "<enclosure url='d' length='1' s:deltaFrom='5.0' pelnar1_Channel='delta'/></s:deltas></item>");
    EXPECT_EQ(feed.Item(0).extensions.keys(),
              (QStringList{QStringLiteral("PELNAR1_CHANNEL"), QStringLiteral("PELNAR1_ODD")}));
    EXPECT_EQ(feed.Item(0).extensions.value(QStringLiteral("PELNAR1_CHANNEL")).toString().toStdString(), "beta");
    EXPECT_FALSE(feed.Item(0).extensions.value(QStringLiteral("PELNAR1_ODD")).isValid());
    EXPECT_EQ(feed.Delta(0, 0).extensions.value(QStringLiteral("PELNAR1_CHANNEL")).toString().toStdString(), "delta");
}

namespace
{

struct PolicyRow
{
    char const* name;
    char const* elements;
    char const* said;
    Standing standing;
};

class PolicyOfAnItem : public ::testing::TestWithParam<PolicyRow>
{
};

/// Automatic checks of the second group at the time of the item's date.
Engine::Installation StagedInstallation()
{
    Engine::Installation installation;
    installation.machine = QStringLiteral("x86_64");
    installation.channels = QStringList{QStringLiteral("nightly")};
    installation.rolloutGroup = [](QString const&) { return 1; };
    installation.now = QDateTime(QDate(2030, 1, 7), QTime(12, 0), Qt::UTC);
    return installation;
}

} // namespace

TEST_P(PolicyOfAnItem, IsTheVerdictBeforeTheSessionsOwn)
{
    QByteArray const item = QByteArray("<item><pubDate>Mon, 07 Jan 2030 10:00:00 +0000</pubDate>") +
                            GetParam().elements + "<enclosure url='b.zip' length='9' s:version='5.2'/></item>";
    ExplainedFeed const feed(QByteArray("<item>") + ENCLOSURE + "</item>" + item,
                             {Core::Version(5, 0), Core::Version(12, 3)}, StagedInstallation());
    EXPECT_EQ(Said(feed.Item(1)), GetParam().said);
    EXPECT_EQ(feed.Item(1).standing, GetParam().standing);
    int const chosen = GetParam().standing == Standing::Chosen ? 1 : 0;
    EXPECT_EQ(feed.Get().chosenIndex, chosen);
    EXPECT_EQ(feed.Get().choice.chosen, feed.Item(chosen).item);
}

INSTANTIATE_TEST_SUITE_P(
    , PolicyOfAnItem,
    ::testing::Values(
        PolicyRow{"Withdrawn", "<p:withdrawn/>", "withdrawn: the publisher has withdrawn it", Standing::LeftOut},
        PolicyRow{"OtherChannel", "<s:channel>beta</s:channel>", "other-channel: channel beta, listed: nightly",
                  Standing::LeftOut},
        PolicyRow{"OwnChannel", "<s:channel>nightly</s:channel>", "valid: chosen", Standing::Chosen},
        PolicyRow{"OtherArchitecture", "<s:hardwareRequirements>arm64</s:hardwareRequirements>",
                  "other-architecture: it is for arm64, this is x86_64", Standing::LeftOut},
        PolicyRow{"NeedsAnother", "<s:minimumUpdateVersion>5.1</s:minimumUpdateVersion>",
                  "needs-another-version-first: installed 5.0 < 5.1, from which it can be updated", Standing::LeftOut},
        PolicyRow{"NotYetRolledOut", "<s:phasedRolloutInterval>86400</s:phasedRolloutInterval>",
                  "not-yet-rolled-out: group 2 of 7 gets it at 2030-01-08T10:00:00Z", Standing::LeftOut},
        PolicyRow{"Informational", "<s:informationalUpdate/>",
                  "informational: chosen: a link is shown, and nothing is downloaded", Standing::Chosen}),
    [](auto const& info) { return std::string(info.param.name); });

TEST(Explanation, DeltaOfAnotherMachineIsLeftOutAndTheOneBeforeItCounts)
{
    ExplainedFeed const feed("<item><enclosure url='a.zip' length='9' s:version='5.1'/><s:deltas>"
                             "<enclosure url='d1' length='2' s:version='5.1' s:deltaFrom='5.0'/>"
                             "<enclosure url='d2' length='1' s:version='5.1' s:deltaFrom='5.0' p:machine='aarch64'/>"
                             "</s:deltas></item>",
                             {Core::Version(5, 0), Core::Version(12, 3)}, StagedInstallation());
    EXPECT_EQ(feed.Get().choice.chosen, feed.Delta(0, 0).item);
    EXPECT_EQ(Said(feed.Delta(0, 1)), "other-architecture: it is for aarch64, this is x86_64");
}

} // namespace Pelnar::Publisher
