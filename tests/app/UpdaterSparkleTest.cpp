// The back end with a scripted session, and the context that it lends.
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/UpdaterSparkle.h"
#include "tests/app/TestHost.h"
#include "tests/support/LogCapture.h"

#include <QMetaMethod>
#include <QPointer>

#include <optional>
#include <stdexcept>
#include <thread>

namespace
{

using namespace Pelnar::App;
using namespace Pelnar::Testing;
using Pelnar::ioPath;
using Pelnar::NotNull;
using Pelnar::URLKeys;
using Pelnar::Core::Version;

class UpdaterSparkleTest : public HostTest
{
protected:
    std::unique_ptr<UpdaterSparkle> Make(bool inBackground = false)
    {
        auto updater = std::make_unique<UpdaterSparkle>(
            application.customizationManager, NotNull<std::shared_ptr<ILinksManager>>(application.linksManager),
            inBackground);
        QObject::connect(updater.get(), &AbstractUpdaterImpl::NotifyCheckFinished, &application,
                         [this](UpdateCheckResult result) { results.push_back(result); });
        return updater;
    }
    SparkleUpdateContext& Context() { return *session.contexts.back(); }

    std::vector<UpdateCheckResult> results;
};

TEST_F(UpdaterSparkleTest, LendsAFilledContextWithTheLockRequest)
{
    application.customizationManager->displayName = "N\xc3\xa4me";
    application.customizationManager->version = Version(5, 9, 1);
    session.onLock = [this]
    {
        SparkleUpdateContext const& context = Context();
        EXPECT_TRUE(context.inBackground);
        EXPECT_EQ(context.applicationName, QString::fromUtf8("N\xc3\xa4me"));
        EXPECT_EQ(context.feedUrl, QUrl(QStringLiteral("https://feeds.test/appcast.xml")));
        EXPECT_EQ(context.localVersion, Version(5, 9, 1));
        EXPECT_EQ(context.remoteVersion, Version());
        EXPECT_TRUE(context.versionLess);
        EXPECT_TRUE(context.versionEqual);
        EXPECT_FALSE(context.parentWidgetGetter);
        EXPECT_TRUE(context.checkFinishedCallback);
        EXPECT_TRUE(context.relaunchPathGetter);
    };
    auto const updater = Make(true);
    EXPECT_EQ(session.calls, (std::vector<std::string>{"LockUpdater"}));
    EXPECT_EQ(application.linksManager->askedKeys, (std::vector<URLKeys>{URLKeys::SPARKLE_APPCAST_URL}));
}

TEST_F(UpdaterSparkleTest, BackgroundFlagIsTheConstructors)
{
    auto const updater = Make(false);
    EXPECT_FALSE(Context().inBackground);
}

TEST_F(UpdaterSparkleTest, DefaultContextIsEmpty)
{
    SparkleUpdateContext const context;
    EXPECT_FALSE(context.inBackground);
    EXPECT_TRUE(context.applicationName.isEmpty());
    EXPECT_TRUE(context.feedUrl.isEmpty());
    EXPECT_EQ(context.localVersion, Version());
    EXPECT_EQ(context.remoteVersion, Version());
    EXPECT_FALSE(context.versionLess || context.versionEqual || context.parentWidgetGetter ||
                 context.checkFinishedCallback || context.relaunchPathGetter);
}

TEST_F(UpdaterSparkleTest, OperatorsCompareVersionsShrunkToFourComponents)
{
    auto const updater = Make();
    auto const& less = Context().versionLess;
    auto const& equal = Context().versionEqual;
    EXPECT_TRUE(equal(Version(5, 1), Version(5, 1, 0)));
    EXPECT_TRUE(equal(Version(5), Version(5, 0, 0, 0)));
    EXPECT_FALSE(less(Version(5, 1), Version(5, 1, 0))) << "the raw values would be less";
    EXPECT_FALSE(less(Version(5, 1, 0), Version(5, 1)));
    EXPECT_TRUE(less(Version(5, 9), Version(5, 10)));
    EXPECT_FALSE(less(Version(5, 10), Version(5, 9)));
    EXPECT_TRUE(less(Version(5, 1, 2, 3), Version(5, 1, 2, 4)));
    EXPECT_FALSE(equal(Version(5, 1, 2, 3), Version(5, 1, 2, 4)));
}

TEST_F(UpdaterSparkleTest, RelaunchRuleKeepsItsOwnCustomizationService)
{
    auto updater = Make();
    auto const getter = Context().relaunchPathGetter;
    updater.reset();
    application.customizationManager->secondPart = "Changed";
    application.customizationManager.reset();
    EXPECT_EQ(getter(Version(21)), ioPath("/Applications/First Changed 21.app"));
}

TEST_F(UpdaterSparkleTest, MissingCustomizationServiceThrows)
{
    try
    {
        UpdaterSparkle updater(nullptr, NotNull<std::shared_ptr<ILinksManager>>(application.linksManager), true);
        FAIL() << "nothing was thrown";
    }
    catch (std::logic_error const& error)
    {
        EXPECT_STREQ(error.what(), "NotNull can not initialized by null");
    }
    EXPECT_TRUE(session.calls.empty());
}

TEST_F(UpdaterSparkleTest, MetaObjectsCarryTheirNamesAndTheTwoSignals)
{
    auto const updater = Make();
    QMetaObject const& base = AbstractUpdaterImpl::staticMetaObject;
    EXPECT_STREQ(base.className(), "Pelnar::App::AbstractUpdaterImpl");
    ASSERT_EQ(base.methodCount(), base.methodOffset() + 2);
    QMetaMethod const finished = base.method(base.methodOffset());
    QMetaMethod const accepted = base.method(base.methodOffset() + 1);
    EXPECT_EQ(finished, QMetaMethod::fromSignal(&AbstractUpdaterImpl::NotifyCheckFinished));
    EXPECT_EQ(finished.name(), QByteArray("NotifyCheckFinished"));
    EXPECT_EQ(finished.parameterNames(), QList<QByteArray>{"result"});
    EXPECT_EQ(accepted, QMetaMethod::fromSignal(&AbstractUpdaterImpl::NotifyUserAcceptUpdate));
    EXPECT_EQ(accepted.methodSignature(), QByteArray("NotifyUserAcceptUpdate()"));
    EXPECT_EQ(base.enumeratorCount(), base.enumeratorOffset());

    QMetaObject const& derived = *static_cast<QObject&>(*updater).metaObject();
    EXPECT_STREQ(derived.className(), "Pelnar::App::UpdaterSparkle");
    EXPECT_EQ(derived.superClass(), &base);
    EXPECT_EQ(derived.methodCount(), derived.methodOffset());
    EXPECT_EQ(derived.propertyCount(), derived.propertyOffset());
    EXPECT_EQ(updater->parent(), nullptr);
}

TEST_F(UpdaterSparkleTest, ResultOfAnotherThreadIsQueuedForItsReceiver)
{
    auto const updater = Make();
    std::thread::id deliveredOn;
    QObject::connect(updater.get(), &AbstractUpdaterImpl::NotifyCheckFinished, &application,
                     [&deliveredOn] { deliveredOn = std::this_thread::get_id(); });
    std::thread([&updater] { Q_EMIT updater->NotifyCheckFinished(UpdateCheckResult::MajorUpdateAvailable); }).join();
    EXPECT_TRUE(results.empty()) << "the receiver's own thread delivers it";
    Turn();
    EXPECT_EQ(results, (std::vector<UpdateCheckResult>{UpdateCheckResult::MajorUpdateAvailable}));
    EXPECT_EQ(deliveredOn, std::this_thread::get_id());
}

// The holder of the session.

TEST_F(UpdaterSparkleTest, HoldersCheckIsTheSessions)
{
    auto const updater = Make();
    updater->CheckForUpdates();
    EXPECT_EQ(session.calls, (std::vector<std::string>{"LockUpdater", "CheckForUpdates"}));
    Turn();
    EXPECT_TRUE(results.empty());
}

TEST_F(UpdaterSparkleTest, HoldersDialogIsTheSessionsAndGetsTheParentFirst)
{
    QWidget widget;
    auto const updater = Make();
    session.onShowDialog = [&] { EXPECT_EQ(Context().parentWidgetGetter(), &widget); };
    updater->ExecUpdateDialog([&widget] { return &widget; });
    EXPECT_EQ(session.calls, (std::vector<std::string>{"LockUpdater", "ShowUpdateDialog"}));
    session.onShowDialog = nullptr;
    updater->ExecUpdateDialog(nullptr);
    EXPECT_FALSE(Context().parentWidgetGetter) << "stored at every call";
}

TEST_F(UpdaterSparkleTest, RemoteVersionIsTheContexts)
{
    auto const updater = Make();
    EXPECT_EQ(updater->GetRemoteVersion(), Version()) << "before any check has finished";
    Context().remoteVersion = Version(6, 0);
    EXPECT_EQ(updater->GetRemoteVersion(), Version(6, 0));
}

TEST_F(UpdaterSparkleTest, RejectIsForwardedInEveryCase)
{
    auto const holder = Make();
    holder->RejectUpdateAndHideDialog();
    session.grantsLock = false;
    auto const other = Make();
    other->RejectUpdateAndHideDialog();
    EXPECT_EQ(session.Count("RejectUpdateAndHideDialog"), 2);
}

TEST_F(UpdaterSparkleTest, DestroyedHolderUnlocksFirstAndThenEmptiesItsCallback)
{
    auto updater = Make();
    bool unlocked = false;
    session.onUnlock = [&]
    {
        unlocked = true;
        EXPECT_TRUE(Context().checkFinishedCallback);
    };
    updater.reset();
    EXPECT_TRUE(unlocked);
    EXPECT_FALSE(Context().checkFinishedCallback);
    EXPECT_TRUE(Context().relaunchPathGetter) << "the rest stays for the session";
    EXPECT_EQ(session.contexts.back().use_count(), 1) << "the session alone holds the context";
}

TEST_F(UpdaterSparkleTest, CallbackCalledInsideTheUnlockingIsDropped)
{
    LogCapture log;
    auto updater = Make();
    session.onUnlock = [this] { Context().checkFinishedCallback(); };
    updater.reset();
    Turn();
    EXPECT_TRUE(results.empty());
    EXPECT_TRUE(log.Records().empty());
}

TEST_F(UpdaterSparkleTest, UnlockingThatThrowsEndsTheProgram)
{
    auto updater = Make();
    EXPECT_DEATH(
        {
            session.onUnlock = [] { throw std::runtime_error("unlock"); };
            updater.reset();
        },
        "");
}

// Without the session.

TEST_F(UpdaterSparkleTest, SecondUpdatersCheckEndsInsideTheCall)
{
    auto const holder = Make();
    session.grantsLock = false;
    auto const second = Make();
    second->CheckForUpdates();
    EXPECT_EQ(results, (std::vector<UpdateCheckResult>{UpdateCheckResult::NoUpdate}));
    second->CheckForUpdates();
    EXPECT_EQ(results.size(), 2u);
    EXPECT_EQ(session.Count("CheckForUpdates"), 0);
}

TEST_F(UpdaterSparkleTest, LockIsNotRetried)
{
    session.grantsLock = false;
    auto const updater = Make();
    session.grantsLock = true;
    updater->CheckForUpdates();
    EXPECT_EQ(session.calls, (std::vector<std::string>{"LockUpdater"}));
    EXPECT_EQ(results.size(), 1u);
}

TEST_F(UpdaterSparkleTest, DestroyedNonHolderDoesNotUnlockButEmptiesItsCallback)
{
    session.grantsLock = false;
    auto updater = Make();
    EXPECT_TRUE(Context().checkFinishedCallback);
    updater.reset();
    EXPECT_EQ(session.Count("UnlockUpdaterWhenPossible"), 0);
    EXPECT_FALSE(Context().checkFinishedCallback);
}

TEST_F(UpdaterSparkleTest, UpdaterDeletedByTheReceiverOfASynchronousResult)
{
    session.grantsLock = false;
    auto updater = Make();
    QObject::connect(updater.get(), &AbstractUpdaterImpl::NotifyCheckFinished, &application,
                     [&updater] { updater.reset(); });
    updater->CheckForUpdates();
    EXPECT_EQ(updater, nullptr);
    EXPECT_EQ(results.size(), 1u);
}

// The check-finished callback.

TEST_F(UpdaterSparkleTest, CallbackReturnsAtOnceAndTheResultComesWithALaterTurn)
{
    auto const updater = Make();
    session.FinishCheck(Version(5, 10));
    EXPECT_TRUE(results.empty());
    Turn();
    EXPECT_EQ(results, (std::vector<UpdateCheckResult>{UpdateCheckResult::UpdateAvailable}));
    Turn();
    EXPECT_EQ(results.size(), 1u);
}

TEST_F(UpdaterSparkleTest, ResultIsThatOfTheVersionsWhenTheTimerFires)
{
    auto const updater = Make();
    session.FinishCheck(Version(5, 10));
    Context().remoteVersion = Version(6, 0);
    Turn();
    EXPECT_EQ(results, (std::vector<UpdateCheckResult>{UpdateCheckResult::MajorUpdateAvailable}));
}

TEST_F(UpdaterSparkleTest, EachCallOfTheCallbackGivesAResult)
{
    auto const updater = Make();
    session.FinishCheck(Version(5, 9));
    session.FinishCheck(Version(5, 8));
    Turn();
    EXPECT_EQ(results, (std::vector<UpdateCheckResult>(2, UpdateCheckResult::NoUpdate)));
}

TEST_F(UpdaterSparkleTest, CallbackAfterTheUpdaterIsGoneLogsItsRecordAndEmitsNothing)
{
    LogCapture log;
    auto updater = Make();
    auto const callback = Context().checkFinishedCallback;
    updater.reset();
    callback();
    Turn();
    EXPECT_EQ(log.Records(),
              (std::vector<LogRecord>{
                  {google::GLOG_ERROR, "App/UpdateChecker/SparkleImpl/UpdaterSparkle", 49,
                   "Call SparkleUpdateContext::checkFinishedCallback without live AbstractUpdaterImpl!"}}));
    EXPECT_TRUE(results.empty());
}

TEST_F(UpdaterSparkleTest, UpdaterDestroyedBeforeTheTimerFiresEmitsAndLogsNothing)
{
    LogCapture log;
    auto updater = Make();
    session.FinishCheck(Version(6, 0));
    updater.reset();
    Turn();
    EXPECT_TRUE(results.empty());
    EXPECT_TRUE(log.Records().empty());
}

TEST_F(UpdaterSparkleTest, ReceiverMayDeleteTheUpdaterInsideTheResult)
{
    auto updater = Make();
    QObject::connect(updater.get(), &AbstractUpdaterImpl::NotifyCheckFinished, &application,
                     [&updater] { updater.reset(); });
    session.FinishCheck(Version(6, 0));
    Turn();
    EXPECT_EQ(updater, nullptr);
    EXPECT_EQ(results, (std::vector<UpdateCheckResult>{UpdateCheckResult::MajorUpdateAvailable}));
}

} // namespace
