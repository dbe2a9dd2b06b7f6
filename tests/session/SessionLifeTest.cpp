// The start of the session and its end at process exit. Each test has a process of its own.

#include "tests/session/SessionFixture.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace
{

using namespace Pelnar::Testing;
using Pelnar::App::SparkleManager;

std::string const GET_INSTANCE = "static Pelnar::App::SparkleManager &Pelnar::App::SparkleManager::GetInstance(): ";
std::string const CREATE = "void Pelnar::App::SparkleManager::Impl::CreateUpdater(): ";

LogCapture* exitLog = nullptr;
std::weak_ptr<Pelnar::App::SparkleUpdateContext>* exitContext = nullptr;

/// Runs after the session's end, because it was registered before the session was created.
void ReportEnd()
{
    for (LogRecord const& record : exitLog->Records())
    {
        std::fprintf(stderr, "<%s:%d %s>", google::GetLogSeverityName(record.severity), record.line,
                     record.text.c_str());
    }
    for (std::string const& call : Updater().calls)
    {
        std::fprintf(stderr, "<call %s>", call.c_str());
    }
    std::fprintf(stderr, "<context %s>", exitContext->expired() ? "released" : "kept");
}

[[noreturn]] void UseTheSessionAndExit(State state)
{
    // Deliberate: neither is freed. They are read after all other objects are destroyed.
    exitLog = new LogCapture();
    exitContext = new std::weak_ptr<Pelnar::App::SparkleUpdateContext>();
    (void)Updater();
    std::atexit(ReportEnd);
    LentContext lent;
    if (!SparkleManager::GetInstance().LockUpdater(lent.context))
    {
        std::_Exit(3);
    }
    *exitContext = lent.context;
    lent.context.reset();
    SetState(state);
    exitLog->Clear();
    Updater().calls.clear();
    std::exit(0);
}

TEST(SessionEndDeathTest, AtProcessExitTheSessionGoesIdleUnlocksAndDetaches)
{
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    std::string const end =
        "<INFO:318 void Pelnar::App::SparkleManager::Impl::SetState\\(\\(anonymous namespace\\)::State\\): Switch from "
        "SILENT_DOWNLOADING to WAITING>"
        "<INFO:292 void Pelnar::App::SparkleManager::Impl::Unlock\\(\\): Current state = WAITING>"
        "<INFO:259 void Pelnar::App::SparkleManager::Impl::DestroyUpdater\\(\\): >"
        "<call setDelegate:nil><context released>";
    EXPECT_EXIT(UseTheSessionAndExit(State::SILENT_DOWNLOADING), ::testing::ExitedWithCode(0), end);
}

TEST(SessionEndDeathTest, AtProcessExitAnIdleSessionStillRecordsTheSwitch)
{
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(UseTheSessionAndExit(State::WAITING), ::testing::ExitedWithCode(0), "Switch from WAITING to WAITING>");
}

TEST(SessionBeginning, FirstUseMakesTheFrameworksObjectsInTheirOrder)
{
    LogCapture log;
    SparkleManager& session = SparkleManager::GetInstance();
    EXPECT_EQ(log.Records(), (std::vector<LogRecord>{Progress(560, GET_INSTANCE), Progress(243, CREATE)}));
    EXPECT_EQ(Updater().calls, (std::vector<std::string>{"setDelegate:", "setAutomaticallyChecksForUpdates:NO",
                                                         "setSendsSystemProfile:NO"}));
    log.Clear();
    EXPECT_EQ(&SparkleManager::GetInstance(), &session);
    EXPECT_EQ(log.Records(), (std::vector<LogRecord>{Progress(560, GET_INSTANCE)})) << "recorded at every call";

    SessionFields const fields = GetFields();
    EXPECT_EQ(fields.context, nullptr);
    EXPECT_FALSE(fields.locked);
    EXPECT_FALSE(fields.unlockRequested);
    EXPECT_EQ(fields.state, State::WAITING);
    EXPECT_EQ(fields.updateType, UpdateType::UNKNOWN);
    EXPECT_TRUE(fields.extensions.isEmpty());
    EXPECT_FALSE(fields.bestItemIsDelta);
    EXPECT_FALSE(IsDialogClosable());
}

TEST(SessionBeginning, FirstUseThatFailsLeavesTheFrameworkNoDelegateAndCanBeRepeated)
{
    Updater().onSetAutomaticChecks = [] { throw std::runtime_error("no updater"); };
    EXPECT_THROW((void)SparkleManager::GetInstance(), std::runtime_error);
    EXPECT_FALSE(Updater().hasDelegate) << "the delegate is gone";
    Updater().onSetAutomaticChecks = nullptr;
    LentContext lent;
    EXPECT_TRUE(SparkleManager::GetInstance().LockUpdater(lent.context));
    EXPECT_TRUE(Updater().hasDelegate);
    SetFields({});
}

} // namespace
