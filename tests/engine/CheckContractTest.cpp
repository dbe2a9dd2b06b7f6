// CheckContractTest.cpp: what the session expects of the engine's updater in a check: how it starts, which item it
// chooses, the order of the notifications, and when the updater is idle.
#include "tests/engine/CheckFixture.h"
#include "tests/engine/StoredDefaults.h"
#include "tests/support/TaggedFeed.h"

#include <QTimer>
#include <QTranslator>

#include <optional>

namespace
{

using namespace Pelnar::Testing;
using Start = void (UpdaterDriver::*)();

struct Kind
{
    char const* name;
    Start start;
    Events notFound;   ///< the notifications if the choice is nil
    Events afterFound; ///< and after an update was found, in a program without a public key
};

void PrintTo(Kind const& kind, std::ostream* out)
{
    *out << kind.name;
}

class EveryCheck : public CheckContract, public ::testing::WithParamInterface<Kind>
{
};

INSTANTIATE_TEST_SUITE_P(Kinds, EveryCheck,
                         ::testing::Values(Kind{"Probe", &UpdaterDriver::Probe, {"asked", "not found"}, {}},
                                           Kind{"Background",
                                                &UpdaterDriver::CheckInBackground,
                                                {"asked", "not found", "aborted 1001"},
                                                {"aborted 3001"}},
                                           Kind{"Interactive",
                                                &UpdaterDriver::CheckInteractively,
                                                {"asked", "not found", "aborted 1001"},
                                                {"aborted 3001"}}),
                         [](auto const& row) { return row.param.name; });

Events Joined(Events first, Events const& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

TEST_P(EveryCheck, ReturnsAtOnceAndAnswersFromTheEventLoop)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
    driver.SetFeed(server.Url());
    (driver.*GetParam().start)();
    EXPECT_TRUE(driver.IsInProgress());
    EXPECT_EQ(driver.Events(), Events{});
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), Joined({"asked", "found 5.1"}, GetParam().afterFound));
    EXPECT_TRUE(WaitFor([] { return IsRecentDateDefault("SULastCheckTime"); }));
}

TEST_P(EveryCheck, BehindAProbeAsksOnlyWhetherTheFeedHasChanged)
{
    TaggedFeed feed{FeedWith(ItemOf("5.1"))};
    LoopbackServer server(feed.Script());
    for (Start const start : {&UpdaterDriver::Probe, GetParam().start})
    {
        UpdaterDriver driver({&ChooseNone, &CompareNumbers, {}, {}});
        driver.SetFeed(server.Url());
        (driver.*start)();
        ASSERT_TRUE(driver.WaitForEnd());
    }
    EXPECT_EQ(feed.wholes, 1);
    EXPECT_EQ(feed.unchanged, 1);
    EXPECT_EQ(server.Connections(), 1);
}

TEST_P(EveryCheck, NilIsNoUpdate)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    UpdaterDriver driver({&ChooseNone, &CompareNumbers, {}, {}});
    driver.SetFeed(server.Url());
    (driver.*GetParam().start)();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), GetParam().notFound);
    if (!driver.Errors().empty())
    {
        ToldError const& error = driver.Errors().front();
        EXPECT_EQ(error.domain, "SUSparkleErrorDomain");
        EXPECT_EQ(error.sentence, "You are running the newest version.");
        EXPECT_EQ(error.underlyingDomain, "");
    }
}

TEST_P(EveryCheck, NoUpdateIsToldWholeInOneTurnOfTheLoop)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    Events seen;
    DelegateScript script{&ChooseNone, &CompareNumbers, {}, {}};
    QObject context;
    script.onEvent = [&seen, &context](std::string const& event)
    {
        seen.push_back(event);
        if (event == "not found")
        {
            QTimer::singleShot(0, &context, [&seen] { seen.push_back("next turn"); });
        }
    };
    UpdaterDriver driver(script);
    driver.SetFeed(server.Url());
    (driver.*GetParam().start)();
    ASSERT_TRUE(WaitFor([&seen] { return !seen.empty() && seen.back() == "next turn"; }));
    Events expected = GetParam().notFound;
    expected.push_back("next turn");
    EXPECT_EQ(seen, expected);
}

TEST_P(EveryCheck, CheckStartedFromATimerOfTheLastCallbackIsAccepted)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    DelegateScript script{&ChooseNone, &CompareNumbers, {}, {}};
    QObject context;
    UpdaterDriver* started = nullptr;
    std::optional<bool> wasIdle;
    std::string const last = GetParam().notFound.back();
    script.onEvent = [&](std::string const& event)
    {
        if (event == last && !wasIdle)
        {
            QTimer::singleShot(0, &context,
                               [&]
                               {
                                   wasIdle = !started->IsInProgress();
                                   (started->*GetParam().start)();
                               });
        }
    };
    UpdaterDriver driver(script);
    started = &driver;
    driver.SetFeed(server.Url());
    (driver.*GetParam().start)();
    Events twice = GetParam().notFound;
    twice.insert(twice.end(), GetParam().notFound.begin(), GetParam().notFound.end());
    ASSERT_TRUE(WaitFor([&] { return driver.Events().size() == twice.size(); }));
    EXPECT_EQ(wasIdle, true);
    EXPECT_EQ(driver.Events(), twice);
}

TEST_P(EveryCheck, SecondCheckWhileOneRunsIsIgnoredWithALogLine)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
    driver.SetFeed(server.Url());
    driver.Probe();
    LogCapture log;
    (driver.*GetParam().start)();
    EXPECT_TRUE(HasLog(log, google::GLOG_WARNING, "A check for updates is already running; the new one is ignored"));
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), (Events{"asked", "found 5.1"}));
    EXPECT_EQ(server.Requests().size(), 1u);
}
TEST_P(EveryCheck, FoundWithoutAKeyInTheBundleFetchesNothingAndEndsIdle)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
    driver.SetFeed(server.Url());
    (driver.*GetParam().start)();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), Joined({"asked", "found 5.1"}, GetParam().afterFound));
    EXPECT_EQ(server.Requests().size(), 1u) << "nothing but the feed is fetched";
    for (ToldError const& error : driver.Errors())
    {
        EXPECT_EQ(error.sentence, "This application has no public key (SUPublicEDKey), so updates cannot be verified. "
                                  "Reinstall it from its publisher.");
    }
}

TEST_P(EveryCheck, DeltaIsAskedAboutOnceMoreAndIsWhatIsFound)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1", DeltaOf("5.1", "5.0"))))));
    std::vector<int> questions;
    DelegateScript script;
    script.compare = &CompareNumbers;
    script.choose = [&questions](int question, std::vector<QString> const&)
    {
        questions.push_back(question);
        return question == 0 ? ScriptedChoice{ScriptedChoice::Kind::Delta, 0, QStringLiteral("5.0")}
                             : ScriptedChoice{ScriptedChoice::Kind::Item, 0, {}};
    };
    UpdaterDriver driver(script);
    driver.SetFeed(server.Url());
    (driver.*GetParam().start)();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(questions, (std::vector<int>{0, 1}));
    EXPECT_EQ(driver.Events(), Joined({"asked", "asked", "found 5.1"}, GetParam().afterFound));
    ASSERT_TRUE(driver.Found());
    EXPECT_TRUE(driver.Found()->isDelta);
    EXPECT_EQ(driver.Found()->length, 100);
}

/// Only for errors of the engine.
class BracketTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(char const* context, char const* source, char const*, int) const override
    {
        return qstrcmp(context, "PelnarEngine_Errors") == 0 ? QStringLiteral("[%1]").arg(QString::fromLatin1(source))
                                                            : QString();
    }
};

TEST_P(EveryCheck, FailureIsToldInThePersonsLanguageAndLoggedInEnglish)
{
    BracketTranslator translator;
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    LoopbackServer server(Answering("HTTP/1.1 500 Broken\r\n\r\n"));
    UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
    driver.SetFeed(server.Url());
    (driver.*GetParam().start)();
    ASSERT_TRUE(driver.WaitForEnd());
    ASSERT_EQ(driver.Errors().size(), 1u);
    EXPECT_EQ(driver.Errors()[0].sentence, "[The update server responded with status 500. Try again later.]");
    EXPECT_EQ(driver.Errors()[0].description, "The update server responded with status 500. Try again later.");
}

TEST_P(EveryCheck, FeedThatCannotBeFetchedAbortsOnceAndEndsIdle)
{
    LoopbackServer server(Answering("HTTP/1.1 500 Broken\r\n\r\n"));
    UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
    driver.SetFeed(server.Url());
    (driver.*GetParam().start)();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), Events{"aborted 1002"});
    ASSERT_EQ(driver.Errors().size(), 1u);
    EXPECT_EQ(driver.Errors()[0].domain, "SUSparkleErrorDomain");
    EXPECT_EQ(driver.Errors()[0].sentence, "The update server responded with status 500. Try again later.");
    EXPECT_EQ(driver.Errors()[0].underlyingDomain, "PelnarHTTPStatusErrorDomain");
    EXPECT_EQ(driver.Errors()[0].underlyingCode, 500);
    EXPECT_TRUE(WaitFor([] { return IsRecentDateDefault("SULastCheckTime"); }));
}

TEST_P(EveryCheck, MalformedFeedIsAnErrorAndNeverNoUpdate)
{
    LoopbackServer server(Answering(OkAnswer("<rss><channel><item>")));
    UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
    driver.SetFeed(server.Url());
    (driver.*GetParam().start)();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), Events{"aborted 1000"});
    EXPECT_EQ(driver.Errors()[0].underlyingDomain, "PelnarUpdateCheckErrorDomain");
    EXPECT_EQ(driver.Errors()[0].underlyingCode, 700);
}

} // namespace
