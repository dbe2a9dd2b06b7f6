// CheckFailureTest.cpp: a check whose delegate misbehaves, disappears or implements little; settings of the wrong kind;
// hostile text.

#include "tests/engine/CheckFixture.h"
#include "tests/engine/StoredDefaults.h"
#include "tests/support/ProcessFootprint.h"

#include <QDir>
#include <QFile>

#include <functional>
#include <stdexcept>

namespace
{

using namespace Pelnar::Testing;

TEST_F(CheckContract, ItemOfAnotherFeedIsRefused)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    int checks = 0;
    DelegateScript script;
    script.compare = &CompareNumbers;
    script.choose = [&checks](int, std::vector<QString> const&) {
        return ScriptedChoice{checks == 0 ? ScriptedChoice::Kind::Item : ScriptedChoice::Kind::Foreign, 0, {}};
    };
    UpdaterDriver driver(script);
    driver.SetFeed(server.Url());
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    ++checks; // now the delegate answers with objects that it kept from the first feed
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), (Events{"asked", "found 5.1", "asked", "aborted 1002"}));
    EXPECT_EQ(driver.Errors()[0].underlyingCode, 800);
}

TEST_F(CheckContract, AddressWithoutAnObjectIsRefusedUntouched)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    DelegateScript script;
    script.compare = &CompareNumbers;
    script.choose = [](int, std::vector<QString> const&) {
        return ScriptedChoice{ScriptedChoice::Kind::Dangling, 0, {}};
    };
    UpdaterDriver driver(script);
    driver.SetFeed(server.Url());
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), (Events{"asked", "aborted 1002"}));
}

struct Fallback
{
    char const* name;
    ScriptedChoice second;
    Events expected;
};

void PrintTo(Fallback const& row, std::ostream* out)
{
    *out << row.name;
}

class DeltaFallback : public CheckContract, public ::testing::WithParamInterface<Fallback>
{
};

INSTANTIATE_TEST_SUITE_P(
    Second, DeltaFallback,
    ::testing::Values(
        Fallback{"None", {}, {"asked", "asked", "found 5.1"}},
        Fallback{"SameDelta", {ScriptedChoice::Kind::Delta, 0, QStringLiteral("5.0")}, {"asked", "asked", "found 5.1"}},
        Fallback{"Nothing", {ScriptedChoice::Kind::Dangling, 0, {}}, {"asked", "asked", "aborted 1002"}}),
    [](auto const& row) { return row.param.name; });

TEST_P(DeltaFallback, IsAskedForOnceForEveryAnswer)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1", DeltaOf("5.1", "5.0"))))));
    DelegateScript script;
    script.compare = &CompareNumbers;
    script.choose = [](int question, std::vector<QString> const&) {
        return question == 0 ? ScriptedChoice{ScriptedChoice::Kind::Delta, 0, QStringLiteral("5.0")}
                             : GetParam().second;
    };
    UpdaterDriver driver(script);
    driver.SetFeed(server.Url());
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), GetParam().expected);
}

struct Failure
{
    char const* name;
    std::function<void()> fail;
    char const* reason;
};

void PrintTo(Failure const& row, std::ostream* out)
{
    *out << row.name;
}

class FailingDelegate : public CheckContract, public ::testing::WithParamInterface<Failure>
{
protected:
    void ExpectReason(UpdaterDriver const& driver)
    {
        ASSERT_FALSE(driver.Errors().empty());
        EXPECT_EQ(driver.Errors()[0].underlyingDomain, "PelnarUpdateCheckErrorDomain");
        EXPECT_EQ(driver.Errors()[0].underlyingCode, 801);
        EXPECT_EQ(driver.Errors()[0].underlyingText, GetParam().reason);
        EXPECT_FALSE(driver.IsInProgress());
    }
};

INSTANTIATE_TEST_SUITE_P(
    Kinds, FailingDelegate,
    ::testing::Values(Failure{"FoundationException", [] { RaiseInFoundation("no <disk>"); }, "no &lt;disk&gt;"},
                      Failure{"StandardException", [] { throw std::invalid_argument("bad version"); }, "bad version"},
                      Failure{"OtherException", [] { throw 42; }, "an exception of an unknown type"}),
    [](auto const& row) { return row.param.name; });

TEST_P(FailingDelegate, ChoiceThatFailsAbortsAndTheNextCheckRuns)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    bool fails = true;
    DelegateScript script;
    script.compare = &CompareNumbers;
    script.choose = [&fails](int, std::vector<QString> const&)
    {
        if (fails)
        {
            GetParam().fail();
        }
        return ScriptedChoice{ScriptedChoice::Kind::Item, 0, {}};
    };
    UpdaterDriver driver(script);
    driver.SetFeed(server.Url());
    LogCapture log;
    driver.CheckInteractively();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), (Events{"asked", "aborted 1002"}));
    ExpectReason(driver);
    EXPECT_TRUE(HasLog(log, google::GLOG_ERROR, std::string("in choosing an update: ") + GetParam().reason));
    fails = false;
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), (Events{"asked", "aborted 1002", "asked", "found 5.1"}));
}

TEST_P(FailingDelegate, ComparatorThatFailsAborts)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    SetTextDefault("SUSkippedVersion", "5.0");
    DelegateScript script;
    script.choose = &ChooseFirst;
    script.compare = [](QString const&, QString const&)
    {
        GetParam().fail();
        return 0;
    };
    UpdaterDriver driver(script);
    driver.SetFeed(server.Url());
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), (Events{"asked", "aborted 1002"}));
    ExpectReason(driver);
}

TEST_P(FailingDelegate, ReportOfAnUpdateThatFailsEndsAsAnAbort)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    DelegateScript script;
    script.choose = &ChooseFirst;
    script.onEvent = [](std::string const& event)
    {
        if (event == "found 5.1")
        {
            GetParam().fail();
        }
    };
    UpdaterDriver driver(script);
    driver.SetFeed(server.Url());
    driver.CheckInBackground();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), (Events{"asked", "found 5.1", "aborted 1002"}));
    ExpectReason(driver);
}

TEST_P(FailingDelegate, ReportOfNoUpdateThatFailsEndsAsAnAbort)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith({}))));
    DelegateScript script;
    script.onEvent = [](std::string const& event)
    {
        if (event == "not found")
        {
            GetParam().fail();
        }
    };
    UpdaterDriver driver(script);
    driver.SetFeed(server.Url());
    driver.CheckInBackground();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), (Events{"asked", "not found", "aborted 1002"})) << "one abort, not two";
    ExpectReason(driver);
}

TEST_P(FailingDelegate, AbortThatFailsIsLoggedAndTheUpdaterIsIdle)
{
    LoopbackServer server(Answering("HTTP/1.1 404 Not Found\r\n\r\n"));
    DelegateScript script;
    script.onEvent = [](std::string const&) { GetParam().fail(); };
    LogCapture log;
    UpdaterDriver driver(script);
    driver.SetFeed(server.Url());
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), Events{"aborted 1002"});
    EXPECT_TRUE(HasLog(log, google::GLOG_ERROR, "in updater:didAbortWithError:"));
}

TEST_F(CheckContract, MethodsThatTheDelegateLacksAreNotCalled)
{
    LoopbackServer found(Answering(OkAnswer(FeedWith(ItemOf("5.1") + ItemOf("5.2") + ItemOf("5.0")))));
    LoopbackServer empty(Answering(OkAnswer(FeedWith({}))));
    LoopbackServer broken(Answering("HTTP/1.1 404 Not Found\r\n\r\n"));
    DelegateScript script;
    script.hidden = CHECK_METHODS;
    UpdaterDriver driver(script);
    for (LoopbackServer* const server : {&found, &empty, &broken})
    {
        driver.SetFeed(server->Url());
        for (void (UpdaterDriver::*start)() : {&UpdaterDriver::Probe, &UpdaterDriver::CheckInBackground})
        {
            (driver.*start)();
            ASSERT_TRUE(driver.WaitForEnd());
        }
        EXPECT_EQ(server->Requests().size(), 2u);
    }
    EXPECT_EQ(driver.Events(), Events{});
}

TEST_F(CheckContract, DelegateThatDoesNotChooseGetsTheNewestItem)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1") + ItemOf("5.10") + ItemOf("5.2")))));
    DelegateScript script;
    script.hidden = {"bestValidUpdateInAppcast:forUpdater:", "versionComparatorForUpdater:"};
    UpdaterDriver driver(script);
    driver.SetFeed(server.Url());
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), Events{"found 5.10"});
}

TEST_F(CheckContract, WithoutADelegateACheckEndsInSilence)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
    driver.SetFeed(server.Url());
    driver.CheckInteractively();
    driver.RemoveDelegate();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), Events{});
}

TEST_F(CheckContract, NothingIsToldWhenTheApplicationEndsMeanwhile)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
    driver.SetFeed(server.Url());
    driver.Probe();
    application.reset();
    EXPECT_FALSE(driver.IsInProgress());
    LogCapture log;
    driver.Probe();
    EXPECT_TRUE(
        HasLog(log, google::GLOG_ERROR, "A check for updates needs Qt's application object; it is not started"));
    EXPECT_FALSE(driver.IsInProgress());
    EXPECT_EQ(driver.Events(), Events{});
}

// Only if the process has a version; the tests of the bundle check the rest.
TEST_F(CheckContract, WithoutABundleVersionTheChoiceStands)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("0.1")))));
    UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
    driver.SetFeed(server.Url());
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), (Events{"asked", "found 0.1"}));
}

TEST_F(CheckContract, EmptyFeedIsAnErrorOfItsOwn)
{
    for (char const* const body : {"", " \r\n"})
    {
        LoopbackServer server(Answering(OkAnswer(body)));
        UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
        driver.SetFeed(server.Url());
        driver.Probe();
        ASSERT_TRUE(driver.WaitForEnd());
        EXPECT_EQ(driver.Events(), Events{"aborted 1000"});
        EXPECT_EQ(driver.Errors()[0].underlyingCode, 709);
    }
}

// The login page of a hotel's network.
TEST_F(CheckContract, WebPageInTheFeedsPlaceIsAnErrorOfItsOwn)
{
    LoopbackServer server(Answering(OkAnswer("<!DOCTYPE html><html><head><title>Login</title></head><body/></html>")));
    UpdaterDriver driver({&ChooseFirst, &CompareNumbers, {}, {}});
    driver.SetFeed(server.Url());
    driver.Probe();
    ASSERT_TRUE(driver.WaitForEnd());
    EXPECT_EQ(driver.Events(), Events{"aborted 1000"});
    EXPECT_EQ(driver.Errors()[0].underlyingCode, 707);
}

TEST(StandardComparator, OrdersVersionTexts)
{
    EXPECT_EQ(CompareByStandard(QStringLiteral("1.2"), QStringLiteral("1.10")), -1);
    EXPECT_EQ(CompareByStandard(QStringLiteral("1.10"), QStringLiteral("1.2")), 1);
    EXPECT_EQ(CompareByStandard(QStringLiteral("1.2"), QStringLiteral("1.2")), 0);
}

} // namespace
