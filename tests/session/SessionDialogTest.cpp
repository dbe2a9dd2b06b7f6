// The session's two dialogs: their content, the effect of each answer, and closing them from other code.

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

TEST_F(SessionDialog, ReadyToInstallShowsItsTextsAndButtons)
{
    OfferAnd(
        [](QMessageBox* box)
        {
            EXPECT_EQ(box->text(), QStringLiteral("A new version of Pelnar Studio 6 is ready to install"));
            EXPECT_EQ(box->informativeText(),
                      QStringLiteral("The Pelnar Studio 6.1.2 update has been downloaded and is waiting for your "
                                     "approval. Would you like to install the update and relaunch Pelnar Studio "
                                     "now?<br>"));
            EXPECT_TRUE(box->windowTitle().isEmpty());
            EXPECT_EQ(box->icon(), QMessageBox::Question) << "level 2";
            EXPECT_EQ(box->windowFlags() & Qt::Dialog, Qt::Dialog);
            EXPECT_TRUE(box->windowFlags() & Qt::MSWindowsFixedSizeDialogHint);
            EXPECT_EQ(box->standardButtons(), QMessageBox::NoButton);
            EXPECT_TRUE(box->isModal());
            EXPECT_TRUE(IsDialogClosable());
            QStringList added;
            for (QAbstractButton* const button : box->buttons())
            {
                added << button->text().remove(QLatin1Char('&')) + QString::number(box->buttonRole(button));
            }
            added.sort();
            EXPECT_EQ(added, (QStringList{QStringLiteral("Install and Relaunch%1").arg(QMessageBox::AcceptRole),
                                          QStringLiteral("Remind Me Later%1").arg(QMessageBox::RejectRole),
                                          QStringLiteral("Skip This Version%1").arg(QMessageBox::DestructiveRole)}));
            // In the order of the children.
            QStringList order;
            for (QPushButton* const button : box->findChildren<QPushButton*>())
            {
                order << button->text().remove(QLatin1Char('&'));
            }
            EXPECT_EQ(order, (QStringList{QStringLiteral("Skip This Version"), QStringLiteral("Remind Me Later"),
                                          QStringLiteral("Install and Relaunch")}));
            Picture(box, QStringLiteral("ready-to-install"));
            box->close();
        });
}

TEST_F(SessionDialog, ReadyToInstallEscapesNamesInMarkupOnly)
{
    Context().applicationName = QStringLiteral("A<b>%2</b> & %1");
    OfferAnd(
        [](QMessageBox* box)
        {
            EXPECT_EQ(box->text(), QStringLiteral("A new version of A<b>%2</b> & %1 6 is ready to install"));
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            EXPECT_EQ(box->informativeText(),
                      QStringLiteral("The A&lt;b&gt;%2&lt;/b&gt; &amp; %1 6.1.2 update has been downloaded and is "
                                     "waiting for your approval. Would you like to install the update and relaunch "
                                     "A&lt;b&gt;%2&lt;/b&gt; &amp; %1 now?<br>"));
            box->close();
        });
}

class UpperCaseTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(char const* context, char const* text, char const*, int) const override
    {
        return qstrcmp(context, "SparkleUpdater") == 0 ? QString::fromLatin1(text).toUpper() : QString();
    }
};

TEST_F(SessionDialog, ReadyToInstallIsTranslated)
{
    UpperCaseTranslator translator;
    QCoreApplication::installTranslator(&translator);
    OfferAnd(
        [](QMessageBox* box)
        {
            EXPECT_EQ(box->text(), QStringLiteral("A NEW VERSION OF Pelnar Studio 6 IS READY TO INSTALL"));
            EXPECT_EQ(box->informativeText(),
                      QStringLiteral("THE Pelnar Studio 6.1.2 UPDATE HAS BEEN DOWNLOADED AND IS WAITING FOR YOUR "
                                     "APPROVAL. WOULD YOU LIKE TO INSTALL THE UPDATE AND RELAUNCH Pelnar Studio "
                                     "NOW?<br>"));
            ClickButton(box, QStringLiteral("INSTALL AND RELAUNCH"));
        });
    QCoreApplication::removeTranslator(&translator);
    EXPECT_EQ(GetFields().state, State::SILENT_INSTALLING);
}

TEST_F(SessionDialog, InstallAndRelaunchSetsArgumentThree)
{
    m_invocation.OnInvoke([] { EXPECT_EQ(GetFields().state, State::SILENT_INSTALLING) << "set before"; });
    OfferAndClick("Install and Relaunch");
    EXPECT_EQ(GetFields().state, State::SILENT_INSTALLING);
    EXPECT_EQ(m_invocation.Calls(), (Calls{{true, true}}));
    EXPECT_EQ(UserDefault(SKIPPED_KEY), std::nullopt);
}

TEST_F(SessionDialog, InstallAndRelaunchLeavesArgumentTwoAsItIs)
{
    m_invocation = ScriptedInvocation(false, false);
    OfferAndClick("Install and Relaunch");
    EXPECT_EQ(m_invocation.Calls(), (Calls{{false, true}}));
}

TEST_F(SessionDialog, SkipStoresTheVersionBeforeTheInvocationRuns)
{
    std::optional<QString> storedAtInvocation;
    m_invocation.OnInvoke(
        [&storedAtInvocation]
        {
            storedAtInvocation = StoredUserDefault(SKIPPED_KEY);
            EXPECT_EQ(GetFields().state, State::SILENT_ABORTING);
        });
    OfferAndClick("Skip This Version");
    EXPECT_EQ(storedAtInvocation, QStringLiteral("6.1.2")) << "synchronized";
    EXPECT_EQ(UserDefault(SKIPPED_KEY), QStringLiteral("6.1.2"));
    EXPECT_EQ(m_invocation.Calls(), (Calls{{false, false}}));
    EXPECT_EQ(GetFields().state, State::SILENT_ABORTING);
}

TEST_F(SessionDialog, WhatTheFrameworkLetsGoOfMeanwhileIsStillThereAfterwards)
{
    ScriptedItem const item = MakeItem(QStringLiteral("6.1.2"));
    int const ofItem = item.References();
    int const ofInvocation = m_invocation.References();
    LendWithRemote(State::SILENT_DOWNLOADING, Version(6, 1, 2));
    DialogDriver driver(READY,
                        [&](QWidget* widget)
                        {
                            EXPECT_GT(item.References(), ofItem);
                            EXPECT_GT(m_invocation.References(), ofInvocation);
                            if (!HasFailure())
                            {
                                item.LetGo();
                                m_invocation.LetGo();
                            }
                            ClickButton(qobject_cast<QMessageBox*>(widget), QStringLiteral("Skip This Version"));
                        });
    Callbacks::WillInstallOnQuit(item, m_invocation);
    EXPECT_EQ(UserDefault(SKIPPED_KEY), QStringLiteral("6.1.2"));
    EXPECT_EQ(m_invocation.Calls(), (Calls{{false, false}}));
    EXPECT_TRUE(item.IsGone()) << "and it is given back";
}

TEST_F(SessionDialog, SkippedVersionIsStoredInTheTestsOwnDefaults)
{
    EXPECT_TRUE(HasUserDefaultsOfItsOwn());
}

TEST_F(SessionDialog, SkipLeavesArgumentThreeAsItIs)
{
    m_invocation = ScriptedInvocation(true, true);
    OfferAndClick("Skip This Version");
    EXPECT_EQ(m_invocation.Calls(), (Calls{{false, true}}));
}

TEST_F(SessionDialog, SkipOfAnItemWithoutVersionStoresNothing)
{
    LendWithRemote(State::SILENT_DOWNLOADING);
    DialogDriver driver(READY, [](QWidget* box) { ClickButton(box, QStringLiteral("Skip This Version")); });
    Callbacks::WillInstallOnQuit(MakeItem(QString()), m_invocation);
    EXPECT_EQ(UserDefault(SKIPPED_KEY), std::nullopt);
    EXPECT_EQ(m_invocation.Calls(), (Calls{{false, false}}));
}

TEST_F(SessionDialog, RemindMeLaterDeclines)
{
    OfferAndClick("Remind Me Later");
    ExpectRemindedLater();
}

TEST_F(SessionDialog, ClosingTheWindowDeclines)
{
    OfferAnd([](QMessageBox* box) { box->close(); });
    ExpectRemindedLater();
}

TEST_F(SessionDialog, RejectClosesReadyToInstall)
{
    OfferAnd([this](QMessageBox*) { Session().RejectUpdateAndHideDialog(); });
    ExpectRemindedLater();
    EXPECT_TRUE(Log().Has(Progress(665, "void Pelnar::App::SparkleManager::RejectUpdateAndHideDialog(): Current state "
                                        "= SILENT_DOWNLOADING")));
}

TEST_F(SessionDialog, RejectTwiceClosesReadyToInstallOnce)
{
    OfferAnd(
        [this](QMessageBox*)
        {
            Session().RejectUpdateAndHideDialog();
            Session().RejectUpdateAndHideDialog();
        });
    ExpectRemindedLater();
    Session().RejectUpdateAndHideDialog();
    EXPECT_EQ(m_invocation.Calls().size(), 1U);
}

TEST_F(SessionDialog, RejectAfterTheHolderLeftClosesReadyToInstall)
{
    OfferAnd(
        [this](QMessageBox*)
        {
            Session().UnlockUpdaterWhenPossible();
            Context().checkFinishedCallback = nullptr;
            Session().RejectUpdateAndHideDialog();
        });
    ExpectRemindedLater();
    EXPECT_TRUE(GetFields().locked);
    Callbacks::DidCancelInstall(MakeItem(QStringLiteral("6.1.2")));
    EXPECT_FALSE(GetFields().locked) << "the deferred unlock";
    EXPECT_EQ(GetFields().state, State::WAITING);
}

TEST_F(SessionDialog, ReadyToInstallSurvivesTheDeathOfItsParent)
{
    auto parent = std::make_unique<QWidget>();
    Context().parentWidgetGetter = [&parent] { return parent.get(); };
    OfferAnd([&parent](QMessageBox*) { parent.reset(); });
    ExpectRemindedLater();
}

TEST_F(SessionDialog, SkipOfAnItemThatRaisesStillInvokes)
{
    LendWithRemote(State::SILENT_DOWNLOADING);
    DialogDriver driver(READY, [](QWidget* box) { ClickButton(box, QStringLiteral("Skip This Version")); });
    ScriptedItem const item = MakeItem(QStringLiteral("6.1"));
    item.Properties().onRead["versionString"] = [] { RaiseException(QStringLiteral("no version")); };
    Callbacks::WillInstallOnQuit(item, m_invocation);
    EXPECT_EQ(m_invocation.Calls(), (Calls{{false, false}}));
    EXPECT_EQ(GetFields().state, State::SILENT_ABORTING);
    EXPECT_EQ(UserDefault(SKIPPED_KEY), std::nullopt);
}

TEST_F(SessionDialog, OfferThatCannotBeShownIsDeclined)
{
    class Refusing : public QObject
    {
    public:
        bool eventFilter(QObject* object, QEvent* event) override
        {
            if (event->type() == QEvent::Show && object->objectName() == READY)
            {
                throw std::runtime_error("no dialog");
            }
            return false;
        }
    } refusing;
    qApp->installEventFilter(&refusing);
    LendWithRemote(State::SILENT_DOWNLOADING);
    Callbacks::WillInstallOnQuit(MakeItem(QStringLiteral("6.1")), m_invocation);
    ExpectRemindedLater();
    EXPECT_FALSE(IsDialogClosable());
    EXPECT_EQ(Log().Of(google::GLOG_ERROR).size(), 1U);
}

} // namespace
