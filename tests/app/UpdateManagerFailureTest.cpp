// Construction that throws. No later check is possible in the process, so each of these tests needs its own process.
#include "tests/app/TestHost.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{

using namespace Pelnar::App;
using namespace Pelnar::Testing;
using Pelnar::Core::Version;

class UpdateManagerFailure : public HostTest
{
protected:
    UpdateManagerFailure() { leavesManagerSet = true; }

    std::string TextThrownByCheck(UpdateCheckMode mode)
    {
        try
        {
            Start(mode);
        }
        catch (std::logic_error const& error)
        {
            return error.what();
        }
        return "nothing was thrown";
    }

    void ExpectFurtherChecksDropped()
    {
        auto const callsSoFar = session.calls;
        auto const askedSoFar = application.askedServices;
        EXPECT_NE(Current(), nullptr) << "deliberate: a value that was set stays";
        Start(UpdateCheckMode::Automatic);
        UpdateManager::CheckForUpdates(parent.get(), false, nullptr, {});
        EXPECT_EQ(session.calls, callsSoFar);
        EXPECT_EQ(application.askedServices, askedSoFar);
        EXPECT_TRUE(parent->children().isEmpty()) << "the memory of the manager is freed";
        Turn();
    }
};

TEST_F(UpdateManagerFailure, MissingLinksServiceThrowsAndFurtherChecksAreDropped)
{
    application.linksManager.reset();
    EXPECT_EQ(TextThrownByCheck(UpdateCheckMode::Automatic), "NotNull can not initialized by null");
    EXPECT_TRUE(session.calls.empty()) << "the session was not asked";
    application.linksManager = std::make_shared<ScriptedLinksManager>();
    ExpectFurtherChecksDropped();
    EXPECT_EQ(application.nagScreenManager.use_count(), 1) << "the flow is freed";
}

TEST_F(UpdateManagerFailure, MissingCustomizationServiceThrowsFromTheBackEnd)
{
    application.customizationManager.reset();
    EXPECT_EQ(TextThrownByCheck(UpdateCheckMode::UserInitiated), "NotNull can not initialized by null");
    EXPECT_TRUE(session.calls.empty());
    application.customizationManager = std::make_shared<ScriptedCustomizationManager>();
    ExpectFurtherChecksDropped();
}

TEST_F(UpdateManagerFailure, RefusedLockThatThrowsLeavesTheEntryPoint)
{
    session.onLock = [] { throw std::logic_error("no lock"); };
    EXPECT_EQ(TextThrownByCheck(UpdateCheckMode::Automatic), "no lock");
    EXPECT_EQ(session.Count("UnlockUpdaterWhenPossible"), 0) << "nothing was locked";
    ExpectFurtherChecksDropped();
}

TEST_F(UpdateManagerFailure, CheckThatThrowsGivesTheSessionBack)
{
    session.onCheck = [] { throw std::logic_error("no check"); };
    EXPECT_EQ(TextThrownByCheck(UpdateCheckMode::Automatic), "no check");
    EXPECT_EQ(session.calls, (std::vector<std::string>{"LockUpdater", "CheckForUpdates", "UnlockUpdaterWhenPossible"}));
    ExpectFurtherChecksDropped();
}

class ThrowingHost : public UpdateManagerFailure, public ::testing::WithParamInterface<char const*>
{
};

TEST_P(ThrowingHost, ReachesTheCallerOfTheCheckAndFurtherChecksAreDropped)
{
    TheHostHook() = [](std::string const& place)
    {
        if (place == GetParam())
        {
            throw std::logic_error("host");
        }
    };
    EXPECT_EQ(TextThrownByCheck(UpdateCheckMode::Automatic), "host");
    TheHostHook() = nullptr;
    EXPECT_TRUE(session.calls.empty()) << "the session was not asked";
    ExpectFurtherChecksDropped();
}

INSTANTIATE_TEST_SUITE_P(Construction, ThrowingHost,
                         ::testing::Values("nag service", "customization service", "links service", "display name",
                                           "link", "version"));

TEST_F(UpdateManagerFailure, ObserverThatThrowsDuringASynchronousResultLeavesTheEntryPoint)
{
    session.grantsLock = false;
    observer.onFound = [] { throw std::logic_error("observer"); };
    EXPECT_EQ(TextThrownByCheck(UpdateCheckMode::UserInitiated), "observer");
    EXPECT_EQ(journal, (Journal{"found 5.9 none"}));
    ExpectFurtherChecksDropped();
}

} // namespace
