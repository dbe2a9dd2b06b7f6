// The alert of an updater that does not hold the session, alone and in a whole check.
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/UpdaterSparkle.h"
#include "HostFramework/AlertBox.h"
#include "tests/app/TestHost.h"
#include "tests/support/DialogDriver.h"

#include <QAbstractButton>
#include <QPointer>

#include <stdexcept>

namespace
{

using namespace Pelnar::App;
using namespace Pelnar::Testing;
using Pelnar::NotNull;
using Pelnar::Util::AlertBox;

QString const ALERT = QStringLiteral("SparkleUpdater_updateIsAlreadyRunningDialog");

class AlreadyRunningAlert : public HostTest
{
protected:
    AlreadyRunningAlert()
    {
        session.grantsLock = false;
        updater = std::make_unique<UpdaterSparkle>(
            application.customizationManager, NotNull<std::shared_ptr<ILinksManager>>(application.linksManager), false);
    }

    std::unique_ptr<UpdaterSparkle> updater;
};

TEST_F(AlreadyRunningAlert, LooksAsItShould)
{
    AlertBox const reference(AlertBox::Information, QString(), QString(), QMessageBox::Ok, nullptr,
                             static_cast<Qt::WindowFlags>(0x103));
    QPointer<AlertBox> alert;
    DialogDriver const driver(ALERT,
                              [&reference, &alert](QWidget* widget)
                              {
                                  auto* const box = qobject_cast<AlertBox*>(widget);
                                  ASSERT_NE(box, nullptr);
                                  alert = box;
                                  EXPECT_EQ(box->text(),
                                            QStringLiteral("Update is already running. Please try later."));
                                  EXPECT_EQ(box->windowTitle(), QString());
                                  EXPECT_EQ(box->informativeText(), QString());
                                  EXPECT_EQ(box->icon(), reference.icon());
                                  EXPECT_EQ(box->windowFlags() & 0x103, 0x103);
                                  EXPECT_EQ(box->windowFlags(), reference.windowFlags());
                                  EXPECT_EQ(box->standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
                                  EXPECT_EQ(box->buttons().size(), 1);
                                  EXPECT_TRUE(box->isModal());
                                  EXPECT_EQ(box->parent(), nullptr);
                                  box->button(QMessageBox::Ok)->click();
                              });
    updater->ExecUpdateDialog(nullptr);
    EXPECT_TRUE(driver.HasActed()) << "the call returns when the alert is closed";
    EXPECT_EQ(session.Count("ShowUpdateDialog"), 0);
    EXPECT_TRUE(alert.isNull()) << "the box is destroyed";
}

TEST_F(AlreadyRunningAlert, AsksForItsParentOnceAndKeepsTheGetter)
{
    QWidget window;
    int asked = 0;
    DialogDriver const driver(ALERT,
                              [&window](QWidget* box)
                              {
                                  EXPECT_EQ(box->parent(), &window);
                                  box->close();
                              });
    updater->ExecUpdateDialog(
        [&]
        {
            ++asked;
            return &window;
        });
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(session.contexts.back()->parentWidgetGetter(), &window) << "stored without the session, too";
}

TEST_F(AlreadyRunningAlert, ParentGetterMayAnswerNull)
{
    DialogDriver const driver(ALERT,
                              [](QWidget* box)
                              {
                                  EXPECT_EQ(box->parent(), nullptr);
                                  box->close();
                              });
    updater->ExecUpdateDialog([] { return nullptr; });
}

TEST_F(AlreadyRunningAlert, ParentGetterThatThrowsShowsNothing)
{
    EXPECT_THROW(updater->ExecUpdateDialog([]() -> QWidget* { throw std::runtime_error("parent"); }),
                 std::runtime_error);
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
    updater->RejectUpdateAndHideDialog();
    EXPECT_EQ(session.Count("RejectUpdateAndHideDialog"), 1);
}

TEST_F(AlreadyRunningAlert, RejectClosesItAndIsForwarded)
{
    DialogDriver const driver(ALERT,
                              [this](QWidget* box)
                              {
                                  updater->RejectUpdateAndHideDialog();
                                  EXPECT_FALSE(box->isVisible());
                                  EXPECT_EQ(session.Count("RejectUpdateAndHideDialog"), 1);
                                  updater->RejectUpdateAndHideDialog();
                              });
    updater->ExecUpdateDialog(nullptr);
    EXPECT_EQ(session.Count("RejectUpdateAndHideDialog"), 2);
}

TEST_F(AlreadyRunningAlert, RejectAfterItIsClosedIsForwardedOnly)
{
    {
        DialogDriver const driver(ALERT, [](QWidget* box) { ClickButton(box, QStringLiteral("OK")); });
        updater->ExecUpdateDialog(nullptr);
    }
    updater->RejectUpdateAndHideDialog();
    EXPECT_EQ(session.Count("RejectUpdateAndHideDialog"), 1);
}

TEST_F(AlreadyRunningAlert, SecondRequestInsideTheFirstGivesTheFirstItsCloserBack)
{
    QPointer<QWidget> outer;
    DialogDriver const driver(ALERT,
                              [&](QWidget* box)
                              {
                                  outer = box;
                                  outer->setObjectName(QStringLiteral("outer"));
                                  {
                                      DialogDriver const innerDriver(ALERT,
                                                                     [&](QWidget* inner)
                                                                     {
                                                                         updater->RejectUpdateAndHideDialog();
                                                                         EXPECT_FALSE(inner->isVisible());
                                                                         EXPECT_TRUE(outer->isVisible());
                                                                     });
                                      updater->ExecUpdateDialog(nullptr);
                                  }
                                  updater->RejectUpdateAndHideDialog();
                                  EXPECT_FALSE(outer->isVisible());
                              });
    updater->ExecUpdateDialog(nullptr);
    EXPECT_TRUE(outer.isNull());
}

TEST_F(AlreadyRunningAlert, UpdaterMayDieWhileItIsOpen)
{
    DialogDriver const driver(ALERT,
                              [this](QWidget* box)
                              {
                                  updater.reset();
                                  EXPECT_TRUE(box->isVisible());
                                  box->close();
                              });
    updater->ExecUpdateDialog(nullptr);
    EXPECT_EQ(updater, nullptr);
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST_F(AlreadyRunningAlert, ParentMayDieWhileItIsOpen)
{
    auto window = std::make_unique<QWidget>();
    QPointer<QWidget> alert;
    DialogDriver const driver(ALERT,
                              [&](QWidget* box)
                              {
                                  alert = box;
                                  window.reset();
                                  updater->RejectUpdateAndHideDialog();
                              });
    updater->ExecUpdateDialog([&window] { return window.get(); });
    EXPECT_TRUE(alert.isNull());
    EXPECT_EQ(session.Count("RejectUpdateAndHideDialog"), 1);
}

/// A check that the user started while another updater holds the session. The whole check runs inside the entry point.
class CheckWithoutTheSession : public HostTest
{
protected:
    CheckWithoutTheSession() { session.grantsLock = false; }
};

TEST_F(CheckWithoutTheSession, RunsTheWholeFlowInsideTheConstruction)
{
    observer.onFound = [] { EXPECT_NE(Current(), nullptr); };
    DialogDriver const driver(ALERT,
                              [this](QWidget* box)
                              {
                                  journal.emplace_back("alert");
                                  box->close();
                              });
    Start(UpdateCheckMode::UserInitiated);
    EXPECT_EQ(journal, (Journal{"found 5.9 none", "opening", "alert", "closed"}));
    EXPECT_NE(Current(), nullptr);
    Turn();
    EXPECT_EQ(Current(), nullptr);
    EXPECT_EQ(session.calls, (std::vector<std::string>{"LockUpdater"}));
}

TEST_F(CheckWithoutTheSession, ManagerRejectsTheOpenAlert)
{
    DialogDriver const driver(ALERT,
                              [](QWidget*)
                              {
                                  Current()->RejectUpdateAndHideDialog();
                                  Current()->RejectUpdateAndHideDialog();
                              });
    Start(UpdateCheckMode::UserInitiated);
    EXPECT_EQ(journal, (Journal{"found 5.9 none", "opening", "closed"}));
    EXPECT_EQ(session.Count("RejectUpdateAndHideDialog"), 2);
    Turn();
}

TEST_F(CheckWithoutTheSession, FurtherChecksAreDroppedWhileTheAlertIsOpen)
{
    DialogDriver const driver(ALERT,
                              [this](QWidget* box)
                              {
                                  Start(UpdateCheckMode::Automatic);
                                  box->close();
                              });
    Start(UpdateCheckMode::UserInitiated);
    EXPECT_EQ(session.Count("LockUpdater"), 1);
    Turn();
}

TEST_F(CheckWithoutTheSession, HostsParentGetterIsCalledOnceForTheAlert)
{
    QWidget window;
    int asked = 0;
    parentWidgetGetter = [&]
    {
        ++asked;
        return &window;
    };
    DialogDriver const driver(ALERT,
                              [&window](QWidget* box)
                              {
                                  EXPECT_EQ(box->parent(), &window);
                                  box->close();
                              });
    Start(UpdateCheckMode::UserInitiated);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(TheSpontaneousParent().asked, 0);
    Turn();
}

TEST_F(CheckWithoutTheSession, SpontaneousParentIsAskedOnceForTheAlert)
{
    QWidget window;
    TheSpontaneousParent().widget = &window;
    DialogDriver const driver(ALERT,
                              [&window](QWidget* box)
                              {
                                  EXPECT_EQ(box->parent(), &window);
                                  box->close();
                              });
    Start(UpdateCheckMode::UserInitiated);
    EXPECT_EQ(TheSpontaneousParent().asked, 1);
    Turn();
}

TEST_F(CheckWithoutTheSession, ParentOfTheManagerMayDieWhileTheAlertIsOpen)
{
    DialogDriver const driver(ALERT,
                              [this](QWidget* box)
                              {
                                  parent.reset();
                                  EXPECT_EQ(Current(), nullptr);
                                  box->close();
                              });
    Start(UpdateCheckMode::UserInitiated);
    EXPECT_EQ(journal, (Journal{"found 5.9 none", "opening"}));
    EXPECT_EQ(Current(), nullptr);
}

} // namespace
