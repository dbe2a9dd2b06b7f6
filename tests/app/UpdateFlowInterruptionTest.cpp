// Interruptions of the flow: exceptions of the host and of the back end, and the end of the manager's Qt parent.
#include "tests/app/TestHost.h"
#include "tests/app/UpdateManagerTestAccess.h"

#include <stdexcept>

namespace
{

using namespace Pelnar::App;
using namespace Pelnar::Testing;
using Pelnar::Core::Version;

class UpdateFlowInterruption : public HostTest
{
};

TEST_F(UpdateFlowInterruption, NagThatThrowsReachesTheReporterAndTheManagerStays)
{
    application.nagScreenManager->state = NagScreen::CONTENT_AVAILABLE;
    application.nagScreenManager->onShow = [] { throw std::runtime_error("nag"); };
    Start(UpdateCheckMode::Automatic);
    EXPECT_THROW(Report(UpdateCheckResult::MajorUpdateAvailable), std::runtime_error);
    Turn();
    EXPECT_NE(Current(), nullptr);
}

class ThrowingGateway : public Pelnar::ExternalStimulus::IGateway
{
public:
    void ProposeAction(Pelnar::ExternalStimulus::Action const&) override { throw std::runtime_error("gateway"); }
    void CancelActions(std::string const&) override {}
};

TEST_F(UpdateFlowInterruption, GatewayThatThrowsReachesTheReporterAndTheManagerStays)
{
    gateway = std::make_shared<ThrowingGateway>();
    Start(UpdateCheckMode::Automatic);
    EXPECT_THROW(Report(UpdateCheckResult::UpdateAvailable), std::runtime_error);
    Turn();
    EXPECT_EQ(journal, Journal());
    EXPECT_NE(Current(), nullptr);
}

// Exceptions out of the dialog callback.

struct ThrowingStep
{
    char const* name;
    std::function<void()> RecordingObserver::*hook; ///< null: the back end throws
    Journal expected;
};

std::ostream& operator<<(std::ostream& out, ThrowingStep const& row)
{
    return out << row.name;
}

class UpdateFlowException : public HostTest, public ::testing::WithParamInterface<ThrowingStep>
{
};

TEST_P(UpdateFlowException, ReachesTheGatewayAndTheDeletionIsScheduled)
{
    ThrowingStep const& step = GetParam();
    auto const deferring = std::make_shared<DeferringGateway>();
    gateway = deferring;
    auto const raise = [] { throw std::runtime_error("step"); };
    if (step.hook)
    {
        observer.*step.hook = raise;
    }
    else
    {
        session.onShowDialog = raise;
    }
    RecordingObserver second(journal, "second ");
    Start(UpdateCheckMode::Automatic);
    Current()->RegisterObserver(&second);
    Report(UpdateCheckResult::UpdateAvailable);
    EXPECT_THROW(deferring->RunOne(), std::runtime_error);
    EXPECT_EQ(journal, step.expected);
    EXPECT_NE(Current(), nullptr);
    Turn();
    EXPECT_EQ(Current(), nullptr);
    EXPECT_EQ(journal, step.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Every, UpdateFlowException,
    ::testing::Values(
        ThrowingStep{"Found", &RecordingObserver::onFound, {"found 5.9 6.0"}},
        ThrowingStep{"Opening", &RecordingObserver::onOpening, {"found 5.9 6.0", "second found 5.9 6.0", "opening"}},
        ThrowingStep{"BackEnd", nullptr, {"found 5.9 6.0", "second found 5.9 6.0", "opening", "second opening"}},
        ThrowingStep{"Closed",
                     &RecordingObserver::onClosed,
                     {"found 5.9 6.0", "second found 5.9 6.0", "opening", "second opening", "dialog", "closed"}}),
    [](auto const& info) { return info.param.name; });

TEST_F(UpdateFlowInterruption, ExceptionThroughTheDefaultGatewayReachesTheReporter)
{
    observer.onOpening = [] { throw std::runtime_error("observer"); };
    Start(UpdateCheckMode::Automatic);
    EXPECT_THROW(Report(UpdateCheckResult::UpdateAvailable), std::runtime_error);
    Turn();
    EXPECT_EQ(Current(), nullptr);
}

TEST_F(UpdateFlowInterruption, ExceptionOfAcceptedReachesTheBackEndAndEndsNothing)
{
    observer.onAccepted = [] { throw std::runtime_error("observer"); };
    Start(UpdateCheckMode::Automatic);
    EXPECT_THROW(Q_EMIT UpdateManagerTestAccess::Updater().NotifyUserAcceptUpdate(), std::runtime_error);
    Turn();
    EXPECT_NE(Current(), nullptr);
}

// The Qt parent destroys the manager.

TEST_F(UpdateFlowInterruption, ParentDestroyedWhileChecking)
{
    Start(UpdateCheckMode::Automatic);
    session.FinishCheck(Version(6, 0));
    parent.reset();
    Turn();
    EXPECT_EQ(Current(), nullptr);
    EXPECT_EQ(journal, Journal()) << "the pending result is dropped";
    EXPECT_EQ(session.calls.back(), "UnlockUpdaterWhenPossible");
}

TEST_F(UpdateFlowInterruption, ParentDestroyedInsideTheDialog)
{
    session.onShowDialog = [this]
    {
        journal.emplace_back("dialog");
        parent.reset();
        EXPECT_EQ(Current(), nullptr);
    };
    Start(UpdateCheckMode::Automatic);
    Report(UpdateCheckResult::UpdateAvailable);
    EXPECT_EQ(journal, (Journal{"found 5.9 6.0", "opening", "dialog"})) << "no listener is left";
    Turn();
    EXPECT_EQ(Current(), nullptr);
}

TEST_F(UpdateFlowInterruption, ParentDestroyedInsideADialogThatThrows)
{
    session.onShowDialog = [this]
    {
        parent.reset();
        throw std::runtime_error("dialog");
    };
    auto const deferring = std::make_shared<DeferringGateway>();
    gateway = deferring;
    Start(UpdateCheckMode::Automatic);
    Report(UpdateCheckResult::UpdateAvailable);
    EXPECT_THROW(deferring->RunOne(), std::runtime_error);
    EXPECT_EQ(journal, (Journal{"found 5.9 6.0", "opening"}));
}

TEST_F(UpdateFlowInterruption, ParentDestroyedAfterTheDeletionWasScheduled)
{
    Start(UpdateCheckMode::Automatic);
    Report(UpdateCheckResult::UpdateAvailable);
    parent.reset();
    EXPECT_EQ(Current(), nullptr);
    Turn();
    EXPECT_EQ(journal, (Journal{"found 5.9 6.0", "opening", "dialog", "closed"}));
}

} // namespace
