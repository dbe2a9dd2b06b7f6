// Every place where a check calls its host. In each of them the host destroys the manager through its Qt parent,
// throws, or calls back.
#include "tests/app/TestHost.h"
#include "tests/app/UpdateManagerTestAccess.h"

#include <QTimer>

#include <algorithm>
#include <functional>
#include <stdexcept>

namespace
{

using namespace Pelnar::App;
using namespace Pelnar::Testing;
using Places = std::vector<std::string>;

bool IsGetter(std::string const& place)
{
    Places const getters = {"nag service", "customization service", "links service", "display name", "link", "version"};
    return std::find(getters.begin(), getters.end(), place) != getters.end();
}

class HostCallback;

/// One way through a check.
struct Route
{
    char const* name;
    void (HostCallback::*run)();
    Places places; ///< where the host is called, in order
};

std::ostream& operator<<(std::ostream& out, Route const& route)
{
    return out << route.name;
}

class HostCallback : public HostTest, public ::testing::WithParamInterface<Route>
{
public:
    void RefusedLock()
    {
        session.grantsLock = false;
        // Closes the alert. An interrupted check does not show it.
        QTimer closer;
        QObject::connect(&closer, &QTimer::timeout, [] { QApplication::closeAllWindows(); });
        closer.start(0);
        Start(UpdateCheckMode::UserInitiated);
    }
    void RefusedLockWithHostsParent()
    {
        parentWidgetGetter = []() -> QWidget*
        {
            TheHostHook()("parent getter");
            return nullptr;
        };
        RefusedLock();
    }
    void Dialog() { StartAndReport(UpdateCheckResult::UpdateAvailable); }
    void SilentUpdate()
    {
        Start(UpdateCheckMode::Silent);
        ReportIfAlive(UpdateCheckResult::UpdateAvailable);
    }
    void DeferredDialog()
    {
        auto const deferring = std::make_shared<DeferringGateway>();
        gateway = deferring;
        Dialog();
        while (!deferring->actions.empty())
        {
            deferring->RunOne();
        }
    }
    void DialogOfAnUntrustyGateway()
    {
        gateway = std::make_shared<RepeatingGateway>();
        Dialog();
    }
    void Nag()
    {
        application.nagScreenManager->state = NagScreen::CONTENT_AVAILABLE;
        StartAndReport(UpdateCheckResult::MajorUpdateAvailable);
    }
    void NagThatIsAnnounced() { AnnounceNag(true); }
    void NagThatIsAnnouncedAsMissing() { AnnounceNag(false); }
    void Accepted()
    {
        Start(UpdateCheckMode::Automatic);
        if (Current())
        {
            session.contexts.back()->remoteVersion = Pelnar::Core::Version(6, 0);
            Q_EMIT UpdateManagerTestAccess::Updater().NotifyUserAcceptUpdate();
        }
    }

protected:
    /// Runs its action three times and checks its own state in between: it dies with its last owner.
    class RepeatingGateway : public Pelnar::ExternalStimulus::IGateway
    {
    public:
        void ProposeAction(Pelnar::ExternalStimulus::Action const& action) override
        {
            for (m_runs = 0; m_runs < 3; ++m_runs)
            {
                action.callback();
            }
        }
        void CancelActions(std::string const&) override {}

    private:
        int m_runs = 0;
    };

    void StartAndReport(UpdateCheckResult result)
    {
        Start(UpdateCheckMode::Automatic);
        ReportIfAlive(result);
    }
    void ReportIfAlive(UpdateCheckResult result)
    {
        gateway.reset(); // the manager is the last owner of the services
        if (Current())
        {
            Report(result);
        }
    }
    void AnnounceNag(bool isAvailable)
    {
        application.nagScreenManager->state = NagScreen::CONTENT_UNKNOWN;
        StartAndReport(UpdateCheckResult::MajorUpdateAvailable);
        Q_EMIT application.nagScreenManager->NagAvailable(NagScreen::MajorUpdate, isAvailable);
    }

    /// Runs the route once, with \a act at the place \a at. Returns the names of the places that were reached.
    Places Run(std::size_t at, std::function<void()> const& act)
    {
        Places reached;
        session.calls.clear();
        session.contexts.clear();
        gateway.reset();
        TheHostHook() = [&](std::string const& place)
        {
            reached.push_back(place);
            if (reached.size() == at + 1)
            {
                act();
            }
        };
        try
        {
            (this->*GetParam().run)();
        }
        catch (...)
        {
            TheHostHook() = nullptr;
            throw;
        }
        TheHostHook() = nullptr;
        return reached;
    }
    void ExpectSessionGivenBack()
    {
        // The session is given back only if it was granted.
        EXPECT_EQ(session.Count("UnlockUpdaterWhenPossible"), session.grantsLock ? session.Count("LockUpdater") : 0);
    }
};

TEST_P(HostCallback, PlacesAreKnown)
{
    EXPECT_EQ(Run(GetParam().places.size(), [] {}), GetParam().places);
    Turn();
}

TEST_P(HostCallback, MayDestroyTheManagersParent)
{
    for (std::size_t at = 0; at < GetParam().places.size(); ++at)
    {
        SCOPED_TRACE(GetParam().places[at]);
        parent = std::make_unique<QObject>();
        Places const reached = Run(at,
                                   [this]
                                   {
                                       parent.reset();
                                       EXPECT_EQ(Current(), nullptr);
                                   });
        ASSERT_GT(reached.size(), at);
        EXPECT_EQ(Current(), nullptr);
        // A running fetch ends, but nobody is notified and nothing is shown.
        for (std::size_t later = at + 1; later < reached.size(); ++later)
        {
            EXPECT_TRUE(IsGetter(reached[later])) << reached[later];
        }
        ExpectSessionGivenBack();
        Turn();
        EXPECT_EQ(Current(), nullptr);
    }
}

TEST_P(HostCallback, MayDestroyTheManagersParentAndThrow)
{
    for (std::size_t at = 0; at < GetParam().places.size(); ++at)
    {
        SCOPED_TRACE(GetParam().places[at]);
        parent = std::make_unique<QObject>();
        EXPECT_THROW(Run(at,
                         [this]
                         {
                             parent.reset();
                             throw std::runtime_error("host");
                         }),
                     std::runtime_error);
        EXPECT_EQ(Current(), nullptr);
        ExpectSessionGivenBack();
        Turn();
    }
}

TEST_P(HostCallback, MayCallBack)
{
    RecordingObserver second(journal, "second ");
    for (std::size_t at = 0; at < GetParam().places.size(); ++at)
    {
        SCOPED_TRACE(GetParam().places[at]);
        parent = std::make_unique<QObject>();
        Places const reached = Run(at,
                                   [&]
                                   {
                                       ASSERT_NE(Current(), nullptr);
                                       int const locks = session.Count("LockUpdater");
                                       Start(UpdateCheckMode::Automatic);
                                       EXPECT_EQ(session.Count("LockUpdater"), locks) << "dropped";
                                       Current()->RegisterObserver(&second);
                                       Current()->UnregisterObserver(&second);
                                       Current()->RejectUpdateAndHideDialog();
                                   });
        // A dialog that is rejected before it is shown still appears.
        EXPECT_EQ(reached, GetParam().places);
        Turn();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Every, HostCallback,
    ::testing::Values(Route{"RefusedLock",
                            &HostCallback::RefusedLock,
                            {"nag service", "customization service", "links service", "display name", "link", "version",
                             "version", "found", "opening", "spontaneous parent", "closed"}},
                      Route{"RefusedLockWithHostsParent",
                            &HostCallback::RefusedLockWithHostsParent,
                            {"nag service", "customization service", "links service", "display name", "link", "version",
                             "version", "found", "opening", "parent getter", "closed"}},
                      Route{"Dialog",
                            &HostCallback::Dialog,
                            {"nag service", "customization service", "links service", "display name", "link", "version",
                             "version", "found", "opening", "closed"}},
                      Route{"SilentUpdate",
                            &HostCallback::SilentUpdate,
                            {"nag service", "customization service", "links service", "display name", "link", "version",
                             "version", "found"}},
                      Route{"DeferredDialog",
                            &HostCallback::DeferredDialog,
                            {"nag service", "customization service", "links service", "display name", "link", "version",
                             "version", "found", "opening", "closed"}},
                      Route{"DialogOfAnUntrustyGateway",
                            &HostCallback::DialogOfAnUntrustyGateway,
                            {"nag service", "customization service", "links service", "display name", "link", "version",
                             "version", "found", "opening", "closed", "version", "found", "opening", "closed",
                             "version", "found", "opening", "closed"}},
                      Route{"Nag",
                            &HostCallback::Nag,
                            {"nag service", "customization service", "links service", "display name", "link", "version",
                             "nag state", "nag shown"}},
                      Route{"NagThatIsAnnounced",
                            &HostCallback::NagThatIsAnnounced,
                            {"nag service", "customization service", "links service", "display name", "link", "version",
                             "nag state", "nag shown"}},
                      Route{"NagThatIsAnnouncedAsMissing",
                            &HostCallback::NagThatIsAnnouncedAsMissing,
                            {"nag service", "customization service", "links service", "display name", "link", "version",
                             "nag state", "version", "found", "opening", "closed"}},
                      Route{"Accepted",
                            &HostCallback::Accepted,
                            {"nag service", "customization service", "links service", "display name", "link", "version",
                             "version", "accepted"}}),
    [](auto const& info) { return info.param.name; });

// The services and the gateway may live only as long as the manager.

class LastOwner : public HostTest
{
};

TEST_F(LastOwner, NagServiceOutlivesTheCallThatDestroysTheManager)
{
    application.nagScreenManager->state = NagScreen::CONTENT_AVAILABLE;
    Start(UpdateCheckMode::Automatic);
    std::weak_ptr<ScriptedNagScreenManager> const watch = application.nagScreenManager;
    application.nagScreenManager->onShow = [&]
    {
        parent.reset();
        EXPECT_FALSE(watch.expired()) << "its own call is still running";
    };
    application.nagScreenManager.reset();
    Report(UpdateCheckResult::MajorUpdateAvailable);
    EXPECT_TRUE(watch.expired());
    EXPECT_EQ(Current(), nullptr);
}

/// Runs its pending action when it is destroyed.
class FlushingGateway : public Pelnar::ExternalStimulus::IGateway
{
public:
    ~FlushingGateway() override { m_action.callback(); }
    void ProposeAction(Pelnar::ExternalStimulus::Action const& action) override { m_action = action; }
    void CancelActions(std::string const&) override {}

private:
    Pelnar::ExternalStimulus::Action m_action;
};

TEST_F(LastOwner, GatewayThatRunsItsActionInItsDestructionFindsNobody)
{
    gateway = std::make_shared<FlushingGateway>();
    Start(UpdateCheckMode::Automatic);
    gateway.reset();
    Report(UpdateCheckResult::UpdateAvailable);
    parent.reset();
    EXPECT_EQ(journal, Journal()) << "the flow is on its way out";
    EXPECT_EQ(session.Count("ShowUpdateDialog"), 0);
}

/// Announces the end of its content when it is destroyed.
class LeavingNagScreenManager : public ScriptedNagScreenManager
{
public:
    using ScriptedNagScreenManager::ScriptedNagScreenManager;
    ~LeavingNagScreenManager() override { Q_EMIT NagAvailable(NagScreen::MajorUpdate, false); }
};

TEST_F(LastOwner, NagServiceThatAnnouncesInItsDestructionFindsNobody)
{
    application.nagScreenManager = std::make_shared<LeavingNagScreenManager>(journal);
    application.nagScreenManager->state = NagScreen::CONTENT_UNKNOWN;
    Start(UpdateCheckMode::Automatic);
    application.nagScreenManager.reset();
    Report(UpdateCheckResult::MajorUpdateAvailable);
    parent.reset();
    EXPECT_EQ(journal, (Journal{"state of major_update"}));
    EXPECT_EQ(session.Count("ShowUpdateDialog"), 0);
}

TEST_F(LastOwner, ObserverThatGoesWithTheManagersParentIsNotCalledAfterwards)
{
    auto second = std::make_unique<RecordingObserver>(journal, "second ");
    Start(UpdateCheckMode::Automatic);
    Current()->RegisterObserver(second.get());
    observer.onFound = [&]
    {
        parent.reset();
        second.reset();
    };
    Report(UpdateCheckResult::UpdateAvailable);
    EXPECT_EQ(journal, (Journal{"found 5.9 6.0"}));
}

} // namespace
