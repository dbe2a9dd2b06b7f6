// Entry points and lifecycle of the manager.
#include "common/DirectCallGateway.h"
#include "tests/app/TestHost.h"
#include "tests/app/UpdateManagerTestAccess.h"

#include <QMetaMethod>
#include <QPointer>

namespace
{

using namespace Pelnar::App;
using namespace Pelnar::Testing;
using Pelnar::Core::Version;

class UpdateManagerEntry : public HostTest
{
};

TEST_F(UpdateManagerEntry, InitializerHasItsDefaults)
{
    UpdateManager::Initializer const initializer(parent.get());
    EXPECT_EQ(initializer.parent, parent.get());
    EXPECT_EQ(initializer.checkMode, UpdateCheckMode::UserInitiated);
    EXPECT_FALSE(initializer.parentWidgetGetter);
    EXPECT_TRUE(initializer.observers.isEmpty());
    EXPECT_TRUE(std::dynamic_pointer_cast<Pelnar::ExternalStimulus::DirectCallGateway>(initializer.gateway));
    EXPECT_EQ(initializer.gateway.use_count(), 1);
}

TEST_F(UpdateManagerEntry, ModesHaveTheirNumbers)
{
    EXPECT_EQ(static_cast<int>(UpdateCheckMode::UserInitiated), 0);
    EXPECT_EQ(static_cast<int>(UpdateCheckMode::Automatic), 1);
    EXPECT_EQ(static_cast<int>(UpdateCheckMode::Silent), 2);
    EXPECT_EQ(sizeof(UpdateCheckMode), 4u);
}

TEST_F(UpdateManagerEntry, AutomaticFlagIsWidenedToTheMode)
{
    for (bool const automatic : {true, false})
    {
        UpdateManager::CheckForUpdates(parent.get(), automatic, nullptr, {});
        EXPECT_EQ(static_cast<int>(UpdateManagerTestAccess::CheckMode()), automatic ? 1 : 0);
        EXPECT_EQ(session.contexts.back()->inBackground, automatic);
        parent = std::make_unique<QObject>();

        UpdateManager::CheckForUpdates(std::make_shared<DeferringGateway>(), parent.get(), automatic, nullptr, {});
        EXPECT_EQ(static_cast<int>(UpdateManagerTestAccess::CheckMode()), automatic ? 1 : 0);
        parent = std::make_unique<QObject>();
    }
}

TEST_F(UpdateManagerEntry, SilentModeRunsInBackground)
{
    Start(UpdateCheckMode::Silent);
    EXPECT_EQ(UpdateManagerTestAccess::CheckMode(), UpdateCheckMode::Silent);
    EXPECT_TRUE(session.contexts.back()->inBackground);
}

TEST_F(UpdateManagerEntry, FirstOverloadRunsTheDialogAtOnceAndHandsEverythingOn)
{
    QWidget widget;
    UpdateManager::CheckForUpdates(parent.get(), true, [&widget] { return &widget; }, {&observer});
    session.FinishCheck(Version(5, 10));
    Turn();
    EXPECT_EQ(journal, (Journal{"found 5.9 5.10", "opening", "dialog", "closed"}));
    EXPECT_EQ(session.contexts.back()->parentWidgetGetter(), &widget);
    EXPECT_EQ(Current(), nullptr);
}

TEST_F(UpdateManagerEntry, GatewayOverloadProposesToTheGivenGateway)
{
    auto const deferring = std::make_shared<DeferringGateway>();
    QWidget widget;
    UpdateManager::CheckForUpdates(deferring, parent.get(), true, [&widget] { return &widget; }, {&observer});
    session.FinishCheck(Version(5, 10));
    Turn();
    EXPECT_TRUE(journal.empty());
    ASSERT_EQ(deferring->actions.size(), 1u);
    deferring->RunOne();
    EXPECT_EQ(journal, (Journal{"found 5.9 5.10", "opening", "dialog", "closed"}));
    EXPECT_EQ(session.contexts.back()->parentWidgetGetter(), &widget);
    Turn();
}

TEST_F(UpdateManagerEntry, CheckWhileAManagerLivesDoesNothing)
{
    Start(UpdateCheckMode::Automatic);
    IUpdateManager* const first = Current();
    RecordingObserver late(journal, "late ");
    auto const deferring = std::make_shared<DeferringGateway>();

    UpdateManager::CheckForUpdates(parent.get(), false, nullptr, {&late});
    UpdateManager::CheckForUpdates(deferring, parent.get(), false, nullptr, {&late});
    UpdateManager::Initializer initializer(parent.get());
    initializer.observers = {&late};
    UpdateManager::CheckForUpdates(initializer);

    EXPECT_EQ(Current(), first);
    EXPECT_EQ(parent->children().size(), 1);
    EXPECT_EQ(session.calls, (std::vector<std::string>{"LockUpdater", "CheckForUpdates"}));
    EXPECT_EQ(application.askedServices.size(), 3u);
    session.FinishCheck(Version(5, 10));
    Turn();
    EXPECT_EQ(journal, (Journal{"found 5.9 5.10", "opening", "dialog", "closed"}));
    EXPECT_EQ(deferring.use_count(), 1);
}

TEST_F(UpdateManagerEntry, CheckFromInsideANotificationDoesNothing)
{
    observer.onFound = observer.onClosed = [this] { Start(UpdateCheckMode::UserInitiated); };
    Check(UpdateCheckMode::Automatic, Version(5, 10));
    EXPECT_EQ(session.Count("LockUpdater"), 1);
    EXPECT_EQ(Current(), nullptr);
}

TEST_F(UpdateManagerEntry, NextCheckStartsOnceTheManagerIsDestroyed)
{
    for (int round = 0; round < 3; ++round)
    {
        Check(UpdateCheckMode::Automatic, Version(5, 9));
        EXPECT_EQ(Current(), nullptr);
        EXPECT_EQ(session.Count("CheckForUpdates"), round + 1);
        EXPECT_EQ(session.Count("UnlockUpdaterWhenPossible"), round + 1);
    }
}

TEST_F(UpdateManagerEntry, CurrentManagerIsNullBeforeTheFirstCheckAndAfterTheDeferredDeletion)
{
    EXPECT_EQ(Current(), nullptr);
    session.grantsLock = false;
    Start(UpdateCheckMode::Automatic); // ends synchronously
    EXPECT_NE(Current(), nullptr) << "the deletion is deferred";
    Turn();
    EXPECT_EQ(Current(), nullptr);
}

TEST_F(UpdateManagerEntry, CurrentManagerIsSetFromInsideTheConstructionOn)
{
    std::vector<IUpdateManager*> seen;
    auto const note = [&seen] { seen.push_back(UpdateManager::GetCurrentUpdateManager()); };
    session.onLock = note;
    session.onCheck = note;
    observer.onFound = note;
    observer.onClosed = note;
    Start(UpdateCheckMode::Automatic);
    IUpdateManager* const current = Current();
    session.FinishCheck(Version(5, 10));
    Turn();
    EXPECT_EQ(seen, (std::vector<IUpdateManager*>(4, current)));
    EXPECT_NE(current, nullptr);
}

TEST_F(UpdateManagerEntry, ObserversGivenTwiceAreRegisteredOnceAndNullsAreSkipped)
{
    RecordingObserver second(journal, "second ");
    UpdateManager::Initializer initializer(parent.get());
    initializer.checkMode = UpdateCheckMode::Silent;
    initializer.observers = {nullptr, &second, &observer, &second, nullptr, &observer};
    UpdateManager::CheckForUpdates(initializer);
    session.FinishCheck(Version(5, 10));
    Turn();
    EXPECT_EQ(journal, (Journal{"second found 5.9 5.10", "found 5.9 5.10"}));
}

TEST_F(UpdateManagerEntry, ObserversComeAndGoThroughTheCurrentManager)
{
    Start(UpdateCheckMode::Silent);
    RecordingObserver added(journal, "added ");
    Current()->RegisterObserver(&added);
    Current()->RegisterObserver(&added);
    Current()->RegisterObserver(nullptr);
    Current()->UnregisterObserver(&observer);
    Current()->UnregisterObserver(&observer);
    Current()->UnregisterObserver(nullptr);
    session.FinishCheck(Version(5, 10));
    Turn();
    EXPECT_EQ(journal, (Journal{"added found 5.9 5.10"}));
}

TEST_F(UpdateManagerEntry, ServicesAreTakenOnceInTheirOrder)
{
    Check(UpdateCheckMode::Automatic, Version(5, 10));
    EXPECT_EQ(application.askedServices, (Journal{"nag", "customization", "links"}));
}

TEST_F(UpdateManagerEntry, ServicesAreReleasedWithTheManager)
{
    Check(UpdateCheckMode::Automatic, Version(5, 10));
    session.contexts.clear(); // their relaunch rules keep the customization service
    EXPECT_EQ(application.nagScreenManager.use_count(), 1);
    EXPECT_EQ(application.customizationManager.use_count(), 1);
    EXPECT_EQ(application.linksManager.use_count(), 1);
}

TEST_F(UpdateManagerEntry, RejectIsForwardedToTheBackEndAndNothingElse)
{
    Start(UpdateCheckMode::Automatic);
    Current()->RejectUpdateAndHideDialog();
    EXPECT_EQ(session.calls, (std::vector<std::string>{"LockUpdater", "CheckForUpdates", "RejectUpdateAndHideDialog"}));
    EXPECT_TRUE(journal.empty());
    EXPECT_NE(Current(), nullptr);
}

TEST_F(UpdateManagerEntry, AnswersToBothOfItsNames)
{
    Start(UpdateCheckMode::Automatic);
    UpdateManager& manager = UpdateManagerTestAccess::Manager();
    QObject* const object = &manager;
    EXPECT_EQ(object->qt_metacast("Pelnar::App::UpdateManager"), static_cast<void*>(&manager));
    EXPECT_EQ(object->qt_metacast("IUpdateManager"), static_cast<void*>(static_cast<IUpdateManager*>(&manager)));
    EXPECT_EQ(object->qt_metacast("Pelnar::App::IUpdateManager"), nullptr);
    EXPECT_EQ(qobject_cast<IUpdateManager*>(object), Current());
    EXPECT_STREQ(qobject_interface_iid<IUpdateManager*>(), "IUpdateManager");
    EXPECT_EQ(dynamic_cast<UpdateManager*>(Current()), &manager);
}

TEST_F(UpdateManagerEntry, MetaObjectsCarryTheirNamesAndNoMembersOfTheirOwn)
{
    Start(UpdateCheckMode::Automatic);
    QMetaObject const& manager = UpdateManager::staticMetaObject;
    EXPECT_STREQ(manager.className(), "Pelnar::App::UpdateManager");
    EXPECT_EQ(manager.superClass(), &QObject::staticMetaObject);
    EXPECT_EQ(manager.methodCount(), manager.methodOffset());
    EXPECT_EQ(manager.propertyCount(), manager.propertyOffset());
    QMetaObject const& flow = *UpdateManagerTestAccess::Flow().metaObject();
    EXPECT_STREQ(flow.className(), "Pelnar::App::UpdateManager::Impl");
    EXPECT_EQ(flow.methodCount(), flow.methodOffset());
    EXPECT_EQ(UpdateManagerTestAccess::Flow().parent(), &UpdateManagerTestAccess::Manager());
    EXPECT_EQ(UpdateManagerTestAccess::Manager().parent(), parent.get());
    EXPECT_EQ(UpdateManagerTestAccess::Updater().parent(), nullptr);
}

TEST_F(UpdateManagerEntry, ManagerWithoutParentDeletesItselfToo)
{
    UpdateManager::CheckForUpdates(nullptr, true, nullptr, {&observer});
    QPointer<QObject> const manager(&UpdateManagerTestAccess::Manager());
    session.FinishCheck(Version(5, 10));
    Turn();
    EXPECT_TRUE(manager.isNull());
    EXPECT_EQ(Current(), nullptr);
}

TEST_F(UpdateManagerEntry, ObserversAreUnregisteredBeforeTheBackEndIsDestroyed)
{
    Start(UpdateCheckMode::Automatic);
    AbstractUpdaterImpl& updater = UpdateManagerTestAccess::Updater();
    bool destroyed = false;
    session.onUnlock = [&]
    {
        destroyed = true;
        EXPECT_EQ(Current(), nullptr);
        Q_EMIT updater.NotifyUserAcceptUpdate();
        Q_EMIT updater.NotifyCheckFinished(UpdateCheckResult::UpdateAvailable);
    };
    parent.reset();
    EXPECT_TRUE(destroyed);
    EXPECT_TRUE(journal.empty());
}

TEST_F(UpdateManagerEntry, CheckStartedWhileTheBackEndIsDestroyedMakesAManagerOfItsOwn)
{
    Start(UpdateCheckMode::Automatic);
    QObject next;
    session.onUnlock = [&]
    {
        session.onUnlock = nullptr;
        UpdateManager::CheckForUpdates(&next, true, nullptr, {&observer});
    };
    parent.reset();
    EXPECT_NE(Current(), nullptr);
    EXPECT_EQ(next.children().size(), 1);
}

} // namespace
