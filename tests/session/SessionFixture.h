// SessionFixture.h: a session with the scripted framework, a context for it and an application object. Plain C++.
// Thread: the Qt main thread. Every test starts with an idle, unlocked session without a context.
#pragma once

#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager.h"
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/SparkleUpdateContext.h"
#include "HostFramework/Application.h"
#include "tests/session/ScriptedSparkle.h"
#include "tests/session/SessionAccess.h"
#include "tests/support/LogCapture.h"

#include <gtest/gtest.h>

#include <array>

namespace Pelnar::Testing
{

using App::Session::State;
using App::Session::UpdateType;
using Core::Version;

/// The six states and one invalid value, with their names in records.
struct NamedState
{
    State state;
    char const* name;
};
constexpr std::array<NamedState, 7> ALL_STATES{{
    {State::WAITING, "WAITING"},
    {State::FETCHING_INFO, "FETCHING_INFO"},
    {State::PREPARING_TO_SHOW_CHANGELOG, "PREPARING_TO_SHOW_CHANGELOG"},
    {State::SILENT_DOWNLOADING, "SILENT_DOWNLOADING"},
    {State::SILENT_INSTALLING, "SILENT_INSTALLING"},
    {State::SILENT_ABORTING, "SILENT_ABORTING"},
    {static_cast<State>(17), "Unknown State"},
}};
std::string NameOf(State state);
/// The form of a parameter in test listings.
void PrintTo(NamedState const& named, std::ostream* out);
/// The name, without characters that a test's name must not have.
std::string TestNameOf(State state);

// Records of the session's file.
LogRecord Progress(int line, std::string const& text);
LogRecord Error(int line, std::string const& text);
/// The record of a state switch.
LogRecord Switch(State from, State to);
/// The records of a deferred unlock in WAITING.
std::vector<LogRecord> RequestedUnlock();

class TestApplication : public App::Application
{
    Q_OBJECT

public:
    TestApplication(int& argc, char** argv) : Application(argc, argv) {}

    std::shared_ptr<App::NagScreen::Manager> GetNagScreenManager() const override { return nullptr; }
    std::shared_ptr<App::ICustomizationManager> GetCustomizationManager() const override { return nullptr; }
    std::shared_ptr<App::ILinksManager> GetLinksManager() const override { return nullptr; }
    bool TryToQuit() override
    {
        ++triesToQuit;
        return false;
    }

    int triesToQuit = 0;
};

/// Local 5.0, no remote version, operators over shrunk versions, a callback that counts, a path rule.
struct LentContext
{
    LentContext();

    std::shared_ptr<App::SparkleUpdateContext> context = std::make_shared<App::SparkleUpdateContext>();
    int notifications = 0;
};

class SessionTest : public ::testing::Test
{
protected:
    SessionTest();
    ~SessionTest() override;

    App::SparkleManager& Session() { return m_session; }
    App::SparkleUpdateContext& Context() { return *m_lent.context; }
    std::shared_ptr<App::SparkleUpdateContext> const& SharedContext() const { return m_lent.context; }
    int Notifications() const { return m_lent.notifications; }
    LogCapture& Log() { return m_log; }
    TestApplication& Host() { return *m_application; }

    /// Lends the context and puts the session into \a state. Earlier records are forgotten.
    void LendIn(State state);
    /// As LendIn, with a version for which an installation can be offered.
    void LendWithRemote(State state, Version const& remote = Version(6, 1));

    /// A bundle that is accepted as an update to \a version.
    static ScriptedItem MakeItem(QString const& version);

private:
    std::unique_ptr<TestApplication> m_application;
    App::SparkleManager& m_session;
    LentContext m_lent;
    LogCapture m_log;
};

} // namespace Pelnar::Testing
