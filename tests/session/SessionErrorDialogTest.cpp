// The parents of the session's dialogs, and its dialog about an error.

#include "tests/session/SessionDialogFixture.h"
#include "tests/session/SessionFixture.h"
#include "tests/support/DialogDriver.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <QTranslator>

#include <stdexcept>

namespace
{

using namespace Pelnar::Testing;
using Records = std::vector<LogRecord>;

TEST_F(SessionDialog, DialogsHaveTheContextsParent)
{
    QWidget parent;
    Context().parentWidgetGetter = [&parent] { return &parent; };
    OfferAnd(
        [&parent](QMessageBox* box)
        {
            EXPECT_EQ(box->parentWidget(), &parent);
            box->close();
        });
    FailAnd(
        [&parent](QMessageBox* box)
        {
            EXPECT_EQ(box->parentWidget(), &parent);
            box->close();
        });
    EXPECT_TRUE(parent.children().isEmpty()) << "the dialogs are gone";
}

struct FailingGetter
{
    char const* name;
    std::function<QWidget*()> getter;
};

void PrintTo(FailingGetter const& row, std::ostream* out)
{
    *out << row.name;
}

class FailingParentGetter : public SessionDialog, public ::testing::WithParamInterface<FailingGetter>
{
protected:
    void ExpectRecord()
    {
        ASSERT_EQ(Log().Of(google::GLOG_ERROR).size(), m_errors);
        EXPECT_EQ(Log().Of(google::GLOG_ERROR).back().line, 466);
        EXPECT_EQ(Log()
                      .Of(google::GLOG_ERROR)
                      .back()
                      .text.find("QWidget *Pelnar::App::SparkleManager::Impl::DialogParent() const: "),
                  0U);
    }
    std::size_t m_errors = 1;
};

TEST_P(FailingParentGetter, CountsAsNoParentOfReadyToInstall)
{
    Context().parentWidgetGetter = GetParam().getter;
    OfferAnd(
        [](QMessageBox* box)
        {
            EXPECT_EQ(box->parentWidget(), nullptr);
            ClickButton(box, QStringLiteral("Install and Relaunch"));
        });
    EXPECT_EQ(m_invocation.Calls(), (Calls{{true, true}})) << "once";
    EXPECT_EQ(GetFields().state, State::SILENT_INSTALLING);
    ExpectRecord();
}

TEST_P(FailingParentGetter, CountsAsNoParentOfTheError)
{
    Context().parentWidgetGetter = GetParam().getter;
    m_errors = 2; // the aborted installation is recorded first
    FailAnd(
        [](QMessageBox* box)
        {
            EXPECT_EQ(box->parentWidget(), nullptr);
            box->close();
        });
    ExpectRecord();
}

INSTANTIATE_TEST_SUITE_P(
    Table, FailingParentGetter,
    ::testing::Values(FailingGetter{"Throws", []() -> QWidget* { throw std::runtime_error("no parent"); }},
                      FailingGetter{"ThrowsNoStandardException", []() -> QWidget* { throw 7; }},
                      FailingGetter{"Raises", []() -> QWidget* { RaiseException(QStringLiteral("raised")); }}),
    [](auto const& info) { return std::string(info.param.name); });

TEST_F(SessionDialog, ParentGetterMayReplaceItsOwnContext)
{
    auto own = std::make_shared<Pelnar::App::SparkleUpdateContext>(Context());
    own->remoteVersion = Version(6, 1, 2);
    own->parentWidgetGetter = [this, sentinel = std::make_shared<int>(7)]() -> QWidget*
    {
        Session().UnlockUpdaterWhenPossible();
        EXPECT_TRUE(Session().LockUpdater(SharedContext()));
        EXPECT_EQ(*sentinel, 7);
        return nullptr;
    };
    SetFields({own, true, false, State::WAITING, UpdateType::UNKNOWN, {}, false});
    own.reset();
    DialogDriver driver(READY,
                        [](QWidget* box)
                        {
                            EXPECT_EQ(qobject_cast<QMessageBox*>(box)->text(),
                                      QStringLiteral("A new version of Pelnar Studio 6 is ready to install"));
                            ClickButton(box, QStringLiteral("Remind Me Later"));
                        });
    Callbacks::WillInstallOnQuit(MakeItem(QStringLiteral("6.1.2")), m_invocation);
    ExpectRemindedLater();
}

TEST_F(SessionDialog, ParentGetterMayBeReplacedByItsOwnCall)
{
    Context().parentWidgetGetter = [this, sentinel = std::make_shared<int>(7)]() -> QWidget*
    {
        Context().parentWidgetGetter = nullptr;
        EXPECT_EQ(*sentinel, 7);
        return nullptr;
    };
    OfferAnd([](QMessageBox* box) { box->close(); });
    ExpectRemindedLater();
}

TEST_F(SessionDialog, DialogsWithoutGetterHaveNoParent)
{
    OfferAnd(
        [](QMessageBox* box)
        {
            EXPECT_EQ(box->parentWidget(), nullptr);
            box->close();
        });
}

TEST_F(SessionDialog, ErrorShowsItsTextAndOneButton)
{
    FailAnd(
        [](QMessageBox* box)
        {
            EXPECT_EQ(box->text(), QStringLiteral("The <b>disk</b> is full & \u00e9."));
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            EXPECT_TRUE(box->informativeText().isEmpty());
            EXPECT_TRUE(box->windowTitle().isEmpty());
            EXPECT_EQ(box->icon(), QMessageBox::Critical) << "level 1";
            EXPECT_EQ(box->standardButtons(), QMessageBox::Ok);
            EXPECT_EQ(box->buttons().size(), 1);
            EXPECT_EQ(box->windowFlags() & Qt::Dialog, Qt::Dialog);
            EXPECT_TRUE(box->windowFlags() & Qt::MSWindowsFixedSizeDialogHint);
            EXPECT_EQ(box->parentWidget(), nullptr);
            EXPECT_TRUE(IsDialogClosable());
            EXPECT_EQ(GetFields().state, State::SILENT_INSTALLING) << "until the dialog is closed";
            Picture(box, QStringLiteral("update-error"));
            ClickButton(box, QStringLiteral("OK"));
        });
    EXPECT_TRUE(GetFields().locked);
}

TEST_F(SessionDialog, ErrorThatCannotBeShownLeavesTheSessionUnlocked)
{
    LendIn(State::SILENT_INSTALLING);
    Session().UnlockUpdaterWhenPossible();
    // The actions of a host's own dialog while it is shown.
    class Refusing : public QObject
    {
    public:
        bool eventFilter(QObject* object, QEvent* event) override
        {
            if (event->type() == QEvent::Show && object->objectName() == FAILED)
            {
                throw std::runtime_error("no dialog");
            }
            return false;
        }
    } refusing;
    qApp->installEventFilter(&refusing);
    EXPECT_THROW(Callbacks::DidAbort({QStringLiteral("D"), 4005, QStringLiteral("text")}), std::runtime_error);
    EXPECT_EQ(GetFields().state, State::WAITING);
    EXPECT_FALSE(GetFields().locked);
    EXPECT_FALSE(IsDialogClosable());
}

TEST_F(SessionDialog, RejectClosesTheError)
{
    FailAnd([this](QMessageBox*) { Session().RejectUpdateAndHideDialog(); });
}

TEST_F(SessionDialog, RejectTwiceClosesTheErrorOnce)
{
    FailAnd(
        [this](QMessageBox*)
        {
            Session().RejectUpdateAndHideDialog();
            Session().RejectUpdateAndHideDialog();
        });
    Session().RejectUpdateAndHideDialog();
}

TEST_F(SessionDialog, RejectAfterTheHolderLeftClosesTheErrorAndUnlocks)
{
    FailAnd(
        [this](QMessageBox*)
        {
            Session().UnlockUpdaterWhenPossible();
            Session().RejectUpdateAndHideDialog();
        });
    EXPECT_FALSE(GetFields().locked);
}

TEST_F(SessionDialog, ErrorSurvivesTheDeathOfItsParent)
{
    auto parent = std::make_unique<QWidget>();
    Context().parentWidgetGetter = [&parent] { return parent.get(); };
    FailAnd([&parent](QMessageBox*) { parent.reset(); });
}

TEST_F(SessionDialog, ErrorOverReadyToInstallGivesTheFirstDialogItsClosingBack)
{
    OfferAnd(
        [this](QMessageBox* ready)
        {
            SetState(State::SILENT_INSTALLING);
            DialogDriver driver(FAILED,
                                [this, ready](QWidget*)
                                {
                                    Session().RejectUpdateAndHideDialog();
                                    EXPECT_TRUE(ready->isVisible()) << "only the dialog on top";
                                });
            Callbacks::DidAbort({QStringLiteral("D"), 1, QStringLiteral("e")});
            EXPECT_TRUE(IsDialogClosable());
            Session().RejectUpdateAndHideDialog();
        });
    ExpectRemindedLater();
}

} // namespace
