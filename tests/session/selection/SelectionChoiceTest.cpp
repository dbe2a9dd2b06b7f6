// SelectionChoiceTest.cpp: the session's choice between two items, and in a whole feed.

#include "Foundation/RaisedException.h"
#include "HostFramework/Reference/ReferenceOSVersion.h"
#include "tests/session/selection/SelectionFixture.h"
#include "tests/session/selection/SelectionSupport.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

namespace
{

using namespace Pelnar::Testing;
using Pelnar::App::SparkleUpdateContext;
using Pelnar::App::Session::State;
using Pelnar::Core::Version;
using Pelnar::Foundation::ReasonRaisedBy;

LogRecord const NOT_DETECTED{google::GLOG_INFO, SESSION_FILE, 1131,
                             "-[PelnarSparkleUpdaterDelegate bestValidUpdateInAppcast:forUpdater:]: "
                             "Best valid SUAppcastItem was NOT detected."};
LogRecord const DETECTED{google::GLOG_INFO, SESSION_FILE, 1125,
                         "-[PelnarSparkleUpdaterDelegate bestValidUpdateInAppcast:forUpdater:]: "
                         "Best valid SUAppcastItem was detected:"};

LogRecord StateRecord(std::string const& name)
{
    return {google::GLOG_INFO, SESSION_FILE, 1086,
            "-[PelnarSparkleUpdaterDelegate bestValidUpdateInAppcast:forUpdater:]: Current state = " + name};
}

class SelectionOfItems : public ::testing::Test
{
protected:
    SelectionOfItems()
    {
        Pelnar::Util::SetOSVersion(Latin1("12.3"));
        session.SetContext(context);
    }

    /// The first lines of the dumps, and no other record of level 30.
    std::vector<std::string> Dumped() const
    {
        std::vector<std::string> texts;
        for (LogRecord const& record : log.Records())
        {
            if (record.line == 544 || record.line == 552)
            {
                texts.push_back(record.text);
            }
        }
        return texts;
    }

    std::shared_ptr<SparkleUpdateContext> context = MakeContext();
    SelectionFixture session;
    LogCapture log;
};

class SelectionOfTwoItems : public SelectionOfItems
{
};

class SelectionOfAFeed : public SelectionOfItems
{
};

TEST_F(SelectionOfTwoItems, OnlyTheValidOneIsChosen)
{
    ScriptedItem const valid(OfferOf("5.1"));
    ScriptedItem const older(OfferOf("4.9"));
    EXPECT_EQ(session.SelectBest(valid, older), valid);
    EXPECT_EQ(session.SelectBest(older, valid), valid);
    EXPECT_EQ(session.SelectBest(valid, std::nullopt), valid);
    EXPECT_EQ(session.SelectBest(std::nullopt, valid), valid);
    EXPECT_EQ(session.SelectBest(older, std::nullopt), std::nullopt);
    EXPECT_EQ(session.SelectBest(std::nullopt, std::nullopt), std::nullopt);
    EXPECT_TRUE(log.Records().empty());
}

TEST_F(SelectionOfTwoItems, NewerOneIsChosen)
{
    ScriptedItem const newer(OfferOf("5.10"));
    ScriptedItem const older(OfferOf("5.9"));
    EXPECT_EQ(session.SelectBest(newer, older), newer);
    EXPECT_EQ(session.SelectBest(older, newer), newer);
    EXPECT_TRUE(log.Records().empty());
}

TEST_F(SelectionOfTwoItems, BothAreValidatedAtEveryCall)
{
    context->versionLess = nullptr;
    EXPECT_EQ(session.SelectBest(ScriptedItem(OfferOf("5.1")), std::nullopt), std::nullopt);
    EXPECT_EQ(log.Records(), (std::vector<LogRecord>{NoOperatorsRecord(), NoOperatorsRecord()}));
}

TEST_F(SelectionOfTwoItems, SmallerOfTwoEqualKindsIsChosenAndTheTieIsAnError)
{
    ScriptedItem const large(OfferOf("5.1", "https://a.example/App.zip", 1000));
    ScriptedItem const small(OfferOf("5.1", "https://b.example/App.zip", 999));
    EXPECT_EQ(session.SelectBest(large, small), small);
    EXPECT_EQ(session.SelectBest(small, large), small);
    EXPECT_EQ(log.Records(), (std::vector<LogRecord>{SamePrioritiesRecord(), SamePrioritiesRecord()}));
}

TEST_F(SelectionOfTwoItems, FirstOfTwoEqualKindsAndSizesIsChosenAndTheTieIsAnError)
{
    ScriptedItem const first(OfferOf("5.1", "https://a.example/App.zip"));
    ScriptedItem const second(OfferOf("5.1", "https://b.example/App.zip"));
    EXPECT_EQ(session.SelectBest(first, second), first);
    EXPECT_EQ(session.SelectBest(second, first), second);
    EXPECT_EQ(log.Records(), (std::vector<LogRecord>{SamePrioritiesRecord(), SamePrioritiesRecord()}));
}

TEST_F(SelectionOfTwoItems, PropertiesAreReadOnceEvenInATie)
{
    ScriptedItem const a(OfferOf("5.1", "https://a.example/App.zip"));
    EXPECT_EQ(session.SelectBest(a, ScriptedItem(OfferOf("5.1", "https://b.example/App.zip"))), a);
    for (char const* getter : {"versionString", "fileURL", "dateString", "contentLength", "isDeltaUpdate"})
    {
        EXPECT_EQ(a.Properties().reads[getter], 1) << getter;
    }
    EXPECT_EQ(log.Records(), (std::vector<LogRecord>{SamePrioritiesRecord()}));
}

TEST_F(SelectionOfTwoItems, ItemAgainstItselfIsATieThatKeepsIt)
{
    ScriptedItem const item(OfferOf("5.1"));
    EXPECT_EQ(session.SelectBest(item, item), item);
    EXPECT_EQ(log.Records(), (std::vector<LogRecord>{SamePrioritiesRecord()}));
}

TEST_F(SelectionOfAFeed, EmptyFeedHasNoBestItem)
{
    session.BestItemIsDelta() = true;
    EXPECT_EQ(session.SelectBestOfAppcast(std::vector<ScriptedItem>{}), std::nullopt);
    EXPECT_FALSE(session.BestItemIsDelta());
    EXPECT_EQ(log.Records(), (std::vector<LogRecord>{StateRecord("WAITING"), NOT_DETECTED}));
}

TEST_F(SelectionOfAFeed, NoListIsGivenUpBeforeTheGuards)
{
    session.BestItemIsDelta() = true;
    session.SetContext(nullptr);
    EXPECT_EQ(session.SelectBestOfAppcast(std::nullopt), std::nullopt);
    EXPECT_FALSE(session.BestItemIsDelta());
    EXPECT_EQ(log.Records(), (std::vector<LogRecord>{StateRecord("WAITING")}));
}

TEST_F(SelectionOfAFeed, EveryGuardGivesUpInItsOrder)
{
    std::vector<ScriptedItem> const items{ScriptedItem(OfferOf("5.1"))};
    session.BestItemIsDelta() = true;
    context->versionLess = nullptr;
    EXPECT_EQ(session.SelectBestOfAppcast(items), std::nullopt);
    EXPECT_FALSE(session.BestItemIsDelta());
    EXPECT_EQ(log.Records(), (std::vector<LogRecord>{StateRecord("WAITING"), NoOperatorsRecord()}));

    log.Clear();
    session.BestItemIsDelta() = true;
    context->localVersion = Version();
    EXPECT_EQ(session.SelectBestOfAppcast(items), std::nullopt);
    EXPECT_FALSE(session.BestItemIsDelta());
    EXPECT_EQ(log.Records(), (std::vector<LogRecord>{StateRecord("WAITING"), NoLocalVersionRecord()}));

    log.Clear();
    session.BestItemIsDelta() = true;
    session.SetContext(nullptr);
    EXPECT_EQ(session.SelectBestOfAppcast(items), std::nullopt);
    EXPECT_FALSE(session.BestItemIsDelta());
    EXPECT_EQ(log.Records(), (std::vector<LogRecord>{StateRecord("WAITING"), NoContextRecord()}));
    EXPECT_TRUE(items[0].Properties().reads.empty());
}

TEST_F(SelectionOfAFeed, EveryStateIsLogged)
{
    for (auto const& [state, name] : {std::make_pair(State::FETCHING_INFO, "FETCHING_INFO"),
                                      std::make_pair(State::SILENT_ABORTING, "SILENT_ABORTING"),
                                      std::make_pair(static_cast<State>(6), "Unknown State")})
    {
        log.Clear();
        session.SetState(state);
        EXPECT_EQ(session.SelectBestOfAppcast(std::vector<ScriptedItem>{}), std::nullopt);
        EXPECT_EQ(log.Records().front(), StateRecord(name));
    }
}

TEST_F(SelectionOfAFeed, NoValidItemIsNoBestItem)
{
    session.BestItemIsDelta() = true;
    EXPECT_EQ(session.SelectBestOfAppcast(
                  std::vector<ScriptedItem>{ScriptedItem(OfferOf("4.9")), ScriptedItem(OfferOf("5.0"))}),
              std::nullopt);
    EXPECT_FALSE(session.BestItemIsDelta());
    EXPECT_EQ(log.Records().back(), NOT_DETECTED);
    EXPECT_EQ(Dumped(), (std::vector<std::string>{"SUAppcastItem ", "  * versionString = 4.9", "SUAppcastItem ",
                                                  "  * versionString = 5.0"}));
}

TEST_F(SelectionOfAFeed, NewestItemIsChosenAtEveryPlace)
{
    ScriptedItem const newest(OfferOf("5.3"));
    for (int position = 0; position < 3; ++position)
    {
        std::vector<ScriptedItem> items{ScriptedItem(OfferOf("5.1")), ScriptedItem(OfferOf("5.2"))};
        items.insert(items.begin() + position, newest);
        EXPECT_EQ(session.SelectBestOfAppcast(items), newest) << position;
    }
}

struct TiedRow
{
    char const* name;
    std::vector<std::uint64_t> lengths; ///< of bundles of one version at different addresses, in the feed's order
    std::size_t chosen;
};

void PrintTo(TiedRow const& row, std::ostream* out)
{
    *out << row.name;
}

class TiedItemsOfAFeed : public SelectionOfItems, public ::testing::WithParamInterface<TiedRow>
{
};

TEST_P(TiedItemsOfAFeed, ChosenIsTheEarliestOfTheSmallest)
{
    std::vector<ScriptedItem> items;
    for (std::uint64_t const length : GetParam().lengths)
    {
        std::string const address = "https://" + std::to_string(items.size()) + ".example/App.zip";
        items.emplace_back(OfferOf("5.1", address.c_str(), length));
    }
    EXPECT_EQ(session.SelectBestOfAppcast(items), items[GetParam().chosen]);
    std::vector<LogRecord> const errors = log.Of(google::GLOG_ERROR);
    EXPECT_EQ(errors, std::vector<LogRecord>(items.size() - 1, SamePrioritiesRecord())) << "one for each tie";
}

INSTANTIATE_TEST_SUITE_P(Rows, TiedItemsOfAFeed,
                         ::testing::Values(TiedRow{"Two", {1000, 1000}, 0}, TiedRow{"TwoSmallerFirst", {999, 1000}, 0},
                                           TiedRow{"TwoSmallerSecond", {1000, 999}, 1},
                                           TiedRow{"Three", {1000, 1000, 1000}, 0},
                                           TiedRow{"ThreeTwoSmaller", {1000, 999, 999}, 1}),
                         [](auto const& row) { return std::string(row.param.name); });

TEST_F(SelectionOfAFeed, ItemsAreDumpedBeforeTheChoiceAndTheBestAfterIt)
{
    ScriptedItem const best(OfferOf("5.2"));
    EXPECT_EQ(session.SelectBestOfAppcast(std::vector<ScriptedItem>{best, ScriptedItem(OfferOf("5.1"))}), best);
    EXPECT_EQ(Dumped(),
              (std::vector<std::string>{"SUAppcastItem ", "  * versionString = 5.2", "SUAppcastItem ",
                                        "  * versionString = 5.1", "SUAppcastItem ", "  * versionString = 5.2"}));
    ASSERT_EQ(log.Records().size(), 32u);
    EXPECT_EQ(log.Records()[21], DETECTED);
}

TEST_F(SelectionOfAFeed, DeltaFromTheLocalVersionWinsOverItsBundle)
{
    ScriptedItem const delta(DeltaOf("5.1"));
    ItemProperties full = OfferOf("5.1");
    full.deltas = {{Latin1("5.0"), delta}};
    EXPECT_EQ(session.SelectBestOfAppcast(std::vector<ScriptedItem>{ScriptedItem(full)}), delta);
    EXPECT_TRUE(session.BestItemIsDelta());
    EXPECT_EQ(Dumped(),
              (std::vector<std::string>{"SUAppcastItem ", "  * versionString = 5.1", "SUAppcastItem delta from 5.0",
                                        "  * versionString = 5.1", "SUAppcastItem ", "  * versionString = 5.1"}));
    EXPECT_TRUE(log.Of(google::GLOG_ERROR).empty());
}

TEST_F(SelectionOfAFeed, DeltaThatOnlyItsDictionaryKeepsOutlivesTheAnswer)
{
    ScriptedItem const delta(DeltaOf("5.1"));
    // Read after the dictionary contains it.
    delta.Properties().onRead["versionString"] = [&delta] { delta.LetGo(); };
    ItemProperties full = OfferOf("5.1");
    full.deltas = {{Latin1("5.0"), delta}};
    EXPECT_TRUE(session.AnswersWithALivingItem(std::vector<ScriptedItem>{ScriptedItem(full)}, delta));
    EXPECT_TRUE(delta.IsGone()) << "with the caller's pool";
}

TEST_F(SelectionOfAFeed, SecondCallAfterADeltaConsidersFullItemsOnly)
{
    ScriptedItem const delta(DeltaOf("5.1"));
    ItemProperties properties = OfferOf("5.1");
    properties.deltas = {{Latin1("5.0"), delta}};
    ScriptedItem const full(properties);
    EXPECT_EQ(session.SelectBestOfAppcast(std::vector<ScriptedItem>{full}), delta);
    full.Properties().reads.clear();
    EXPECT_EQ(session.SelectBestOfAppcast(std::vector<ScriptedItem>{full}), full);
    EXPECT_FALSE(session.BestItemIsDelta());
    EXPECT_EQ(full.Properties().reads.count("deltaUpdates"), 0u);
    EXPECT_EQ(session.SelectBestOfAppcast(std::vector<ScriptedItem>{full}), delta) << "the third call is as the first";
}

TEST_F(SelectionOfAFeed, DeltaFromAnEqualVersionOnceShrunkCounts)
{
    ScriptedItem const delta(DeltaOf("5.1"));
    ItemProperties full = OfferOf("5.1");
    full.deltas = {{Latin1("5.0.0"), delta}};
    EXPECT_EQ(session.SelectBestOfAppcast(std::vector<ScriptedItem>{ScriptedItem(full)}), delta);
}

TEST_F(SelectionOfAFeed, DeltasFromOtherOrUnreadableVersionsAreDumpedAndIgnored)
{
    ItemProperties properties = OfferOf("5.1");
    properties.deltas = {{Latin1("4.9"), ScriptedItem(DeltaOf("5.1"))},
                         {Latin1("x"), ScriptedItem(DeltaOf("5.1"))},
                         {Latin1(""), ScriptedItem(DeltaOf("5.1"))}};
    ScriptedItem const full(properties);
    EXPECT_EQ(session.SelectBestOfAppcast(std::vector<ScriptedItem>{full}), full);
    EXPECT_FALSE(session.BestItemIsDelta());
    for (char const* text : {"SUAppcastItem delta from 4.9", "SUAppcastItem delta from x", "SUAppcastItem delta from "})
    {
        EXPECT_TRUE(log.Has({google::GLOG_INFO, SESSION_FILE, 544, text})) << text;
    }
}

TEST_F(SelectionOfAFeed, InvalidDeltaLeavesItsBundle)
{
    ItemProperties properties = OfferOf("5.1");
    properties.deltas = {{Latin1("5.0"), ScriptedItem(DeltaOf("5.1", 0))}};
    ScriptedItem const full(properties);
    EXPECT_EQ(session.SelectBestOfAppcast(std::vector<ScriptedItem>{full}), full);
    EXPECT_FALSE(session.BestItemIsDelta());
}

TEST_F(SelectionOfAFeed, DeltasOfTheBestItemOnlyAreLookedAt)
{
    ScriptedItem const delta(DeltaOf("5.1"));
    ItemProperties older = OfferOf("5.1");
    older.deltas = {{Latin1("5.0"), delta}};
    ScriptedItem const newest(OfferOf("5.2"));
    EXPECT_EQ(session.SelectBestOfAppcast(std::vector<ScriptedItem>{ScriptedItem(older), newest}), newest);
    EXPECT_TRUE(delta.Properties().reads.empty());
}

TEST_F(SelectionOfAFeed, LaterDeltaCanReplaceAnEarlierOne)
{
    // Two spellings of the local version. The smaller download wins in each order of the dictionary.
    ScriptedItem const large(DeltaOf("5.1", 20));
    ItemProperties other = DeltaOf("5.1", 10);
    other.fileUrl = Latin1("https://b.example/App.delta");
    ScriptedItem const small(other);
    for (bool const isLargeFirst : {true, false})
    {
        ItemProperties full = OfferOf("5.1");
        full.deltas = {{Latin1("5.0"), isLargeFirst ? large : small}, {Latin1("5.0.0"), isLargeFirst ? small : large}};
        session.BestItemIsDelta() = false;
        log.Clear();
        EXPECT_EQ(session.SelectBestOfAppcast(std::vector<ScriptedItem>{ScriptedItem(full)}), small);
        EXPECT_EQ(log.Of(google::GLOG_ERROR), std::vector<LogRecord>{SamePrioritiesRecord()});
    }
}

TEST_F(SelectionOfAFeed, DeltaOfAMajorUpdateLosesToItsInstaller)
{
    ItemProperties properties = OfferOf("6.0", "https://a.example/App.sparkle_guided.pkg");
    properties.deltas = {{Latin1("5.0"), ScriptedItem(DeltaOf("6.0"))}};
    ScriptedItem const installer(properties);
    EXPECT_EQ(session.SelectBestOfAppcast(std::vector<ScriptedItem>{installer}), installer);
    EXPECT_FALSE(session.BestItemIsDelta());
}

TEST_F(SelectionOfAFeed, InstallerOfAMajorUpdateWinsOverItsBundle)
{
    ScriptedItem const installer(OfferOf("6.0", "https://a.example/App.sparkle_guided.pkg"));
    ScriptedItem const bundle(OfferOf("6.0"));
    EXPECT_EQ(session.SelectBestOfAppcast(std::vector<ScriptedItem>{installer, bundle}), installer);
    EXPECT_EQ(session.SelectBestOfAppcast(std::vector<ScriptedItem>{bundle, installer}), installer);
}

TEST_F(SelectionOfAFeed, BundleOfAMinorUpdateWinsOverItsInstaller)
{
    ScriptedItem const installer(OfferOf("5.1", "https://a.example/App.sparkle_guided.pkg"));
    ScriptedItem const bundle(OfferOf("5.1"));
    EXPECT_EQ(session.SelectBestOfAppcast(std::vector<ScriptedItem>{installer, bundle}), bundle);
}

TEST_F(SelectionOfAFeed, ItemThatIsADeltaItselfIsRememberedAsOne)
{
    ScriptedItem const delta(DeltaOf("5.1"));
    EXPECT_EQ(session.SelectBestOfAppcast(std::vector<ScriptedItem>{delta}), delta);
    EXPECT_TRUE(session.BestItemIsDelta());
}

TEST_F(SelectionOfAFeed, EveryItemIsReadAndJudgedOnceHoweverLongTheFeed)
{
    LogCapture const quiet(LogCapture::Verbosity::Normal); // the dump reads the properties itself
    int comparisons = 0;
    context->versionEqual = [&comparisons](Version const& a, Version const& b)
    {
        ++comparisons;
        return Pelnar::Core::Util::ShrinkVersion(a, 4) == Pelnar::Core::Util::ShrinkVersion(b, 4);
    };
    std::vector<ScriptedItem> items{ScriptedItem(OfferOf("5.2"))};
    for (int i = 0; i < 20; ++i)
    {
        items.emplace_back(OfferOf("5.1"));
    }
    EXPECT_EQ(session.SelectBestOfAppcast(items), items[0]);
    for (ScriptedItem const& item : items)
    {
        EXPECT_EQ(item.Properties().reads["versionString"], 1);
        EXPECT_EQ(item.Properties().reads["fileURL"], 1);
        EXPECT_EQ(item.Properties().reads["dateString"], 1);
        EXPECT_EQ(item.Properties().reads["contentLength"], 1);
    }
    EXPECT_EQ(comparisons, 21);
}

TEST_F(SelectionOfAFeed, ThrowingOperatorLeavesAndKeepsWhatWasRemembered)
{
    session.BestItemIsDelta() = true;
    context->versionEqual = [](Version const&, Version const&) -> bool { throw std::runtime_error("no equality"); };
    EXPECT_THROW((void)session.SelectBestOfAppcast(std::vector<ScriptedItem>{ScriptedItem(OfferOf("5.1"))}),
                 std::runtime_error);
    EXPECT_TRUE(session.BestItemIsDelta());
}

TEST_F(SelectionOfAFeed, RaisingGetterLeaves)
{
    ItemProperties properties = OfferOf("5.1");
    properties.onRead["deltaUpdates"] = [] { RaiseException(Latin1("no deltas")); };
    EXPECT_EQ(
        ReasonRaisedBy([&] { (void)session.SelectBestOfAppcast(std::vector<ScriptedItem>{ScriptedItem(properties)}); }),
        "no deltas");
}

} // namespace
