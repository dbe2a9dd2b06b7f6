// The flow from a check's result to the end of its manager.
#include "tests/app/TestHost.h"
#include "tests/app/UpdateManagerTestAccess.h"

#include <thread>

namespace
{

using namespace Pelnar::App;
using namespace Pelnar::Testing;
using Pelnar::Core::Version;

constexpr auto USER = UpdateCheckMode::UserInitiated;
constexpr auto AUTOMATIC = UpdateCheckMode::Automatic;
constexpr auto SILENT = UpdateCheckMode::Silent;

constexpr auto NONE = UpdateCheckResult::None;
constexpr auto NO_UPDATE = UpdateCheckResult::NoUpdate;
constexpr auto UPDATE = UpdateCheckResult::UpdateAvailable;
constexpr auto MAJOR = UpdateCheckResult::MajorUpdateAvailable;
constexpr auto FOREIGN = static_cast<UpdateCheckResult>(4);
constexpr auto BELOW_NONE = static_cast<UpdateCheckResult>(-1);

constexpr int UNKNOWN = NagScreen::CONTENT_UNKNOWN;
constexpr int UNAVAILABLE = NagScreen::CONTENT_UNAVAILABLE;
constexpr int AVAILABLE = NagScreen::CONTENT_AVAILABLE;
constexpr int HOSTS_OWN = 3;

enum Manager
{
    ENDS,
    STAYS,
};

Journal const NOTHING;
Journal const DIALOG = {"found 5.9 6.0", "opening", "dialog", "closed"};
Journal const FOUND_ONLY = {"found 5.9 6.0"};
Journal const ASKED = {"state of major_update"};
Journal const NAG = {"state of major_update", "show major_update"};
Journal const ASKED_THEN_DIALOG = {"state of major_update", "found 5.9 6.0", "opening", "dialog", "closed"};
Journal const ASKED_THEN_FOUND = {"state of major_update", "found 5.9 6.0"};

struct Row
{
    char const* name;
    UpdateCheckMode mode;
    UpdateCheckResult result;
    int nagState;
    Journal const* expected;
    Manager manager;
};

std::ostream& operator<<(std::ostream& out, Row const& row)
{
    return out << row.name;
}

Row const ROWS[] = {
    {"UserBelowNone", USER, BELOW_NONE, AVAILABLE, &DIALOG, ENDS},
    {"UserNone", USER, NONE, AVAILABLE, &DIALOG, ENDS},
    {"UserNoUpdate", USER, NO_UPDATE, AVAILABLE, &DIALOG, ENDS},
    {"UserUpdate", USER, UPDATE, AVAILABLE, &DIALOG, ENDS},
    {"UserMajorNagUnknown", USER, MAJOR, UNKNOWN, &ASKED, STAYS},
    {"UserMajorNagUnavailable", USER, MAJOR, UNAVAILABLE, &ASKED_THEN_DIALOG, ENDS},
    {"UserMajorNagAvailable", USER, MAJOR, AVAILABLE, &NAG, ENDS},
    {"UserMajorNagOther", USER, MAJOR, HOSTS_OWN, &ASKED, STAYS},
    {"UserForeignResult", USER, FOREIGN, AVAILABLE, &NOTHING, STAYS},
    {"AutomaticBelowNone", AUTOMATIC, BELOW_NONE, AVAILABLE, &NOTHING, ENDS},
    {"AutomaticNone", AUTOMATIC, NONE, AVAILABLE, &NOTHING, ENDS},
    {"AutomaticNoUpdate", AUTOMATIC, NO_UPDATE, AVAILABLE, &NOTHING, ENDS},
    {"AutomaticUpdate", AUTOMATIC, UPDATE, AVAILABLE, &DIALOG, ENDS},
    {"AutomaticMajorNagUnknown", AUTOMATIC, MAJOR, UNKNOWN, &ASKED, STAYS},
    {"AutomaticMajorNagUnavailable", AUTOMATIC, MAJOR, UNAVAILABLE, &ASKED_THEN_DIALOG, ENDS},
    {"AutomaticMajorNagAvailable", AUTOMATIC, MAJOR, AVAILABLE, &NAG, ENDS},
    {"AutomaticMajorNagOther", AUTOMATIC, MAJOR, HOSTS_OWN, &ASKED, STAYS},
    {"AutomaticForeignResult", AUTOMATIC, FOREIGN, AVAILABLE, &NOTHING, STAYS},
    {"SilentBelowNone", SILENT, BELOW_NONE, AVAILABLE, &NOTHING, ENDS},
    {"SilentNone", SILENT, NONE, AVAILABLE, &NOTHING, ENDS},
    {"SilentNoUpdate", SILENT, NO_UPDATE, AVAILABLE, &NOTHING, ENDS},
    {"SilentUpdate", SILENT, UPDATE, AVAILABLE, &FOUND_ONLY, ENDS},
    {"SilentMajorNagUnknown", SILENT, MAJOR, UNKNOWN, &ASKED, STAYS},
    {"SilentMajorNagUnavailable", SILENT, MAJOR, UNAVAILABLE, &ASKED_THEN_FOUND, ENDS},
    {"SilentMajorNagAvailable", SILENT, MAJOR, AVAILABLE, &ASKED, ENDS},
    {"SilentMajorNagOther", SILENT, MAJOR, HOSTS_OWN, &ASKED, STAYS},
    {"SilentForeignResult", SILENT, FOREIGN, AVAILABLE, &NOTHING, STAYS},
};

class UpdateFlowTable : public HostTest, public ::testing::WithParamInterface<Row>
{
};

TEST_P(UpdateFlowTable, ResultLeadsTo)
{
    Row const& row = GetParam();
    application.nagScreenManager->state = row.nagState;
    Start(row.mode);
    Report(row.result);
    EXPECT_EQ(journal, *row.expected);
    EXPECT_NE(Current(), nullptr) << "a deletion is deferred";
    Turn();
    EXPECT_EQ(Current() != nullptr, row.manager == STAYS);
    EXPECT_EQ(journal, *row.expected);
}

INSTANTIATE_TEST_SUITE_P(Every, UpdateFlowTable, ::testing::ValuesIn(ROWS),
                         [](auto const& info) { return info.param.name; });

class UpdateFlow : public HostTest
{
protected:
    void WaitForNag(UpdateCheckMode mode)
    {
        application.nagScreenManager->state = UNKNOWN;
        Start(mode);
        Report(MAJOR);
        journal.clear();
    }
    void Announce(char const* name, bool available)
    {
        Q_EMIT application.nagScreenManager->NagAvailable(QString::fromLatin1(name), available);
    }
};

TEST_F(UpdateFlow, ResultsHaveTheirNumbers)
{
    EXPECT_EQ(static_cast<int>(NONE), 0);
    EXPECT_EQ(static_cast<int>(NO_UPDATE), 1);
    EXPECT_EQ(static_cast<int>(UPDATE), 2);
    EXPECT_EQ(static_cast<int>(MAJOR), 3);
    EXPECT_EQ(sizeof(UpdateCheckResult), 4u);
}

TEST_F(UpdateFlow, ResultOfAnotherThreadRunsTheFlowOnItsOwn)
{
    Start(UpdateCheckMode::Automatic);
    session.contexts.back()->remoteVersion = Version(6, 0);
    std::thread([]
                { Q_EMIT UpdateManagerTestAccess::Updater().NotifyCheckFinished(UpdateCheckResult::UpdateAvailable); })
        .join();
    EXPECT_EQ(journal, Journal());
    QCoreApplication::processEvents();
    EXPECT_EQ(journal, DIALOG);
    Turn();
    EXPECT_EQ(Current(), nullptr);
}

TEST_F(UpdateFlow, UserCheckWithoutUpdateShowsTheDialogWithTheReportedVersion)
{
    Check(USER, Version(5, 9));
    EXPECT_EQ(journal, (Journal{"found 5.9 5.9", "opening", "dialog", "closed"}));
    EXPECT_EQ(Current(), nullptr);
}

TEST_F(UpdateFlow, AutomaticCheckWithoutUpdateEndsInSilence)
{
    Check(AUTOMATIC, Version(5, 8));
    EXPECT_EQ(journal, NOTHING);
    EXPECT_EQ(Current(), nullptr);
}

TEST_F(UpdateFlow, RefusedLockEndsABackgroundCheckInsideItsConstruction)
{
    session.grantsLock = false;
    for (UpdateCheckMode const mode : {AUTOMATIC, SILENT})
    {
        Start(mode);
        Turn();
        EXPECT_EQ(Current(), nullptr);
    }
    EXPECT_EQ(journal, NOTHING);
    EXPECT_EQ(session.calls, (std::vector<std::string>{"LockUpdater", "LockUpdater"}));
}

TEST_F(UpdateFlow, VersionsAreReadWhenTheDialogRuns)
{
    auto const deferring = std::make_shared<DeferringGateway>();
    gateway = deferring;
    Start(AUTOMATIC);
    Report(UPDATE);
    application.customizationManager->version = Version(5, 95);
    session.contexts.back()->remoteVersion = Version(6, 1);
    deferring->RunOne();
    EXPECT_EQ(journal.front(), "found 5.95 6.1");
    Turn();
}

// The nag screen.

TEST_F(UpdateFlow, WaitingFlowIgnoresOtherNames)
{
    WaitForNag(AUTOMATIC);
    for (char const* name : {"", "other", "MAJOR_UPDATE", "major_update ", "major_updat"})
    {
        Announce(name, true);
        Announce(name, false);
    }
    Turn();
    EXPECT_EQ(journal, NOTHING);
    EXPECT_NE(Current(), nullptr);
    Announce("major_update", false);
    Turn();
    EXPECT_EQ(journal, DIALOG);
    EXPECT_EQ(Current(), nullptr);
}

TEST_F(UpdateFlow, AnnouncedNagIsShownAndEndsTheFlow)
{
    for (UpdateCheckMode const mode : {USER, AUTOMATIC})
    {
        WaitForNag(mode);
        Announce("major_update", true);
        EXPECT_EQ(journal, (Journal{"show major_update"}));
        Turn();
        EXPECT_EQ(Current(), nullptr);
    }
}

TEST_F(UpdateFlow, AnnouncedNagIsNotShownInASilentCheck)
{
    WaitForNag(SILENT);
    Announce("major_update", true);
    Turn();
    EXPECT_EQ(journal, NOTHING);
    EXPECT_EQ(Current(), nullptr);
}

TEST_F(UpdateFlow, MissingNagOfASilentCheckTellsTheObserversOnly)
{
    WaitForNag(SILENT);
    Announce("major_update", false);
    Turn();
    EXPECT_EQ(journal, FOUND_ONLY);
    EXPECT_EQ(Current(), nullptr);
}

TEST_F(UpdateFlow, WithoutANagServiceAMajorUpdateTakesTheWayOfAnyOther)
{
    application.nagScreenManager.reset();
    Check(AUTOMATIC, Version(6, 0));
    EXPECT_EQ(journal, DIALOG);
    EXPECT_EQ(Current(), nullptr) << "later checks are not dropped";
    journal.clear();
    Check(SILENT, Version(6, 0));
    EXPECT_EQ(journal, FOUND_ONLY);
}

TEST_F(UpdateFlow, EachAnnouncementBeforeTheDeletionIsFollowed)
{
    WaitForNag(AUTOMATIC);
    Announce("major_update", true);
    Announce("major_update", true); // the connection stays until the flow is destroyed
    EXPECT_EQ(journal, (Journal{"show major_update", "show major_update"}));
    Turn();
    EXPECT_EQ(Current(), nullptr) << "scheduling the deletion twice is harmless";
}

TEST_F(UpdateFlow, EachResultOfAMajorUpdateWaitsForTheNagOnItsOwn)
{
    WaitForNag(AUTOMATIC);
    Report(MAJOR);
    journal.clear();
    Announce("major_update", true);
    EXPECT_EQ(journal, (Journal{"show major_update", "show major_update"}));
    Turn();
    EXPECT_EQ(Current(), nullptr);
}

TEST_F(UpdateFlow, AnnouncementAfterTheManagerIsGoneDoesNothing)
{
    WaitForNag(AUTOMATIC);
    parent.reset();
    EXPECT_EQ(Current(), nullptr);
    Announce("major_update", true);
    Announce("major_update", false);
    EXPECT_EQ(journal, NOTHING);
}

TEST_F(UpdateFlow, StuckFlowBlocksFurtherChecksUntilItsParentIsGone)
{
    application.nagScreenManager->state = HOSTS_OWN;
    Check(AUTOMATIC, Version(6, 0));
    Announce("major_update", true);
    Start(AUTOMATIC);
    EXPECT_EQ(session.Count("LockUpdater"), 1);
    parent = std::make_unique<QObject>();
    Start(AUTOMATIC);
    EXPECT_EQ(session.Count("LockUpdater"), 2);
}

// The gateway.

TEST_F(UpdateFlow, ProposedActionHasItsIdAndIsNeverCancelled)
{
    auto const deferring = std::make_shared<DeferringGateway>();
    gateway = deferring;
    Start(AUTOMATIC);
    Report(UPDATE);
    ASSERT_EQ(deferring->actions.size(), 1u);
    EXPECT_EQ(deferring->actions[0].id, "REQUEST_CHECK_AUTO_UPDATE");
    EXPECT_EQ(journal, NOTHING);
    deferring->RunOne();
    EXPECT_EQ(journal, DIALOG);
    Turn();
    EXPECT_EQ(Current(), nullptr);
    EXPECT_TRUE(deferring->cancelled.empty());
}

TEST_F(UpdateFlow, GatewayThatNeverRunsTheActionKeepsTheManager)
{
    gateway = std::make_shared<DeferringGateway>();
    Check(AUTOMATIC, Version(5, 10));
    IUpdateManager* const first = Current();
    EXPECT_NE(first, nullptr);
    Start(USER);
    Turn();
    EXPECT_EQ(Current(), first);
    EXPECT_EQ(session.Count("LockUpdater"), 1);
}

TEST_F(UpdateFlow, ActionRunAfterTheManagerIsGoneDoesNothing)
{
    auto const deferring = std::make_shared<DeferringGateway>();
    gateway = deferring;
    Check(AUTOMATIC, Version(5, 10));
    parent.reset();
    deferring->RunOne();
    Turn();
    EXPECT_EQ(journal, NOTHING);
    EXPECT_EQ(session.Count("ShowUpdateDialog"), 0);
}

TEST_F(UpdateFlow, LateActionOfAnEarlierCheckLeavesTheCurrentOneAlone)
{
    auto const deferring = std::make_shared<DeferringGateway>();
    gateway = deferring;
    Check(AUTOMATIC, Version(5, 10));
    parent = std::make_unique<QObject>();
    Start(AUTOMATIC);
    IUpdateManager* const second = Current();
    deferring->RunOne();
    Turn();
    EXPECT_EQ(journal, NOTHING);
    EXPECT_EQ(Current(), second);
}

// The dialog.

TEST_F(UpdateFlow, AcceptedUpdateIsToldInsideTheDialogAndChangesNothing)
{
    session.onShowDialog = [this]
    {
        journal.emplace_back("dialog");
        Q_EMIT UpdateManagerTestAccess::Updater().NotifyUserAcceptUpdate();
    };
    Check(AUTOMATIC, Version(6, 0, 1));
    EXPECT_EQ(journal, (Journal{"state of major_update", "found 5.9 6.0.1", "opening", "dialog", "accepted 5.9 6.0.1",
                                "closed"}));
    EXPECT_EQ(Current(), nullptr);
}

TEST_F(UpdateFlow, AcceptedUpdateIsToldInASilentCheckToo)
{
    Start(SILENT);
    Q_EMIT UpdateManagerTestAccess::Updater().NotifyUserAcceptUpdate();
    EXPECT_EQ(journal, (Journal{"accepted 5.9 none"}));
    EXPECT_NE(Current(), nullptr);
}

TEST_F(UpdateFlow, HostsParentGetterIsHandedOnAndNotCalledByTheFlow)
{
    QWidget widget;
    int calls = 0;
    parentWidgetGetter = [&]
    {
        ++calls;
        return &widget;
    };
    Check(AUTOMATIC, Version(5, 10));
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(session.contexts.back()->parentWidgetGetter(), &widget) << "also once the flow is gone";
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(TheSpontaneousParent().asked, 0);
}

TEST_F(UpdateFlow, HostsParentGetterMayAnswerNull)
{
    parentWidgetGetter = [] { return nullptr; };
    Check(AUTOMATIC, Version(5, 10));
    EXPECT_EQ(session.contexts.back()->parentWidgetGetter(), nullptr);
    EXPECT_EQ(TheSpontaneousParent().asked, 0);
}

TEST_F(UpdateFlow, WithoutAParentGetterTheHostsSpontaneousParentIsTaken)
{
    QWidget widget;
    TheSpontaneousParent().widget = &widget;
    Check(AUTOMATIC, Version(5, 10));
    EXPECT_EQ(TheSpontaneousParent().asked, 0);
    ASSERT_TRUE(session.contexts.back()->parentWidgetGetter);
    EXPECT_EQ(session.contexts.back()->parentWidgetGetter(), &widget);
    EXPECT_EQ(TheSpontaneousParent().asked, 1);
}

TEST_F(UpdateFlow, ObserverMayRejectInEveryNotification)
{
    observer.onFound = observer.onOpening =
        observer.onClosed = [] { UpdateManager::GetCurrentUpdateManager()->RejectUpdateAndHideDialog(); };
    Check(AUTOMATIC, Version(5, 10));
    EXPECT_EQ(session.calls, (std::vector<std::string>{"LockUpdater", "CheckForUpdates", "RejectUpdateAndHideDialog",
                                                       "RejectUpdateAndHideDialog", "ShowUpdateDialog",
                                                       "RejectUpdateAndHideDialog", "UnlockUpdaterWhenPossible"}));
}

TEST_F(UpdateFlow, ObserverThatUnregistersItselfIsNotCalledInLaterPasses)
{
    RecordingObserver second(journal, "second ");
    observer.onFound = [this] { Current()->UnregisterObserver(&observer); };
    Start(AUTOMATIC);
    Current()->RegisterObserver(&second);
    Report(UPDATE);
    EXPECT_EQ(journal, (Journal{"found 5.9 6.0", "second found 5.9 6.0", "second opening", "dialog", "second closed"}));
    Turn();
}

TEST_F(UpdateFlow, ObserverAddedInANotificationHearsTheNextOne)
{
    RecordingObserver added(journal, "added ");
    observer.onFound = [&] { Current()->RegisterObserver(&added); };
    Start(AUTOMATIC);
    Report(UPDATE);
    EXPECT_EQ(journal, (Journal{"found 5.9 6.0", "opening", "added opening", "dialog", "closed", "added closed"}));
    Turn();
}

TEST_F(UpdateFlow, SecondResultBeforeTheDeletionRunsTheFlowAgain)
{
    Start(SILENT);
    Report(UPDATE);
    Report(UPDATE);
    EXPECT_EQ(journal, (Journal{"found 5.9 6.0", "found 5.9 6.0"}));
    Turn();
    EXPECT_EQ(Current(), nullptr);
}

} // namespace
