// AlertBoxTest.cpp: the levels and texts of the message dialog.

#include "HostFramework/AlertBox.h"

#include "tests/host/TestHost.h"
#include "tests/support/DialogDriver.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>

namespace Pelnar::Util
{
namespace
{

Qt::WindowFlags const FLAGS = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint;

class AlertBoxTest : public testing::Test
{
private:
    Testing::TestHost m_host;
};

TEST_F(AlertBoxTest, LevelsHaveTheirNumbersAndIcons)
{
    EXPECT_EQ(AlertBox::Information, 0);
    EXPECT_EQ(AlertBox::Critical, 1);
    EXPECT_EQ(AlertBox::Question, 2);
    auto const icon = [](AlertBox::Level level)
    { return AlertBox(level, QString(), QString(), QMessageBox::Ok, nullptr, FLAGS).icon(); };
    EXPECT_EQ(icon(AlertBox::Information), QMessageBox::Information);
    EXPECT_EQ(icon(AlertBox::Critical), QMessageBox::Critical);
    EXPECT_EQ(icon(AlertBox::Question), QMessageBox::Question);
    EXPECT_EQ(icon(static_cast<AlertBox::Level>(3)), QMessageBox::NoIcon);
}

TEST_F(AlertBoxTest, TakesTitleTextButtonsParentAndFlags)
{
    QWidget parent;
    AlertBox const box(AlertBox::Information, QStringLiteral("title"), QStringLiteral("text"), QMessageBox::Ok, &parent,
                       FLAGS);
    EXPECT_EQ(box.windowTitle(), QStringLiteral("title"));
    EXPECT_EQ(box.text(), QStringLiteral("text"));
    EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    EXPECT_EQ(box.parentWidget(), &parent);
    EXPECT_EQ(box.windowFlags() & FLAGS, FLAGS);
}

TEST_F(AlertBoxTest, TextIsAlwaysPlain)
{
    AlertBox const box(AlertBox::Critical, QString(), QStringLiteral("<b>bold</b> & <img src='file:/x'>"),
                       QMessageBox::Ok, nullptr, FLAGS);
    auto const* const label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_EQ(label->text(), QStringLiteral("<b>bold</b> & <img src='file:/x'>"));
}

TEST_F(AlertBoxTest, InformativeTextMayCarryMarkup)
{
    AlertBox box(AlertBox::Question, QString(), QStringLiteral("A new version of Pelnar <6> is ready to install"),
                 QMessageBox::NoButton, nullptr, FLAGS);
    box.setInformativeText(QStringLiteral("Would you like to install &lt;6&gt; now?<br>"));
    box.addButton(QStringLiteral("Skip This Version"), QMessageBox::DestructiveRole);
    box.addButton(QStringLiteral("Remind Me Later"), QMessageBox::RejectRole);
    box.addButton(QStringLiteral("Install and Relaunch"), QMessageBox::AcceptRole);
    auto const* const label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"));
    ASSERT_NE(label, nullptr);
    EXPECT_NE(label->textFormat(), Qt::PlainText);
    box.show();
    EXPECT_TRUE(box.grab().save(QStringLiteral("alert-box.png")));
}

TEST_F(AlertBoxTest, ExecIsModalAndEndsByAButtonOrByClose)
{
    AlertBox box(AlertBox::Question, QString(), QStringLiteral("text"), QMessageBox::Yes | QMessageBox::No, nullptr,
                 FLAGS);
    box.setObjectName(QStringLiteral("box"));
    {
        Testing::DialogDriver const driver(QStringLiteral("box"),
                                           [](QWidget* shown)
                                           {
                                               EXPECT_TRUE(shown->isModal());
                                               Testing::ClickButton(shown, QStringLiteral("Yes"));
                                           });
        EXPECT_EQ(box.Exec(), QMessageBox::Yes);
    }
    {
        Testing::DialogDriver const driver(QStringLiteral("box"), [](QWidget* shown) { shown->close(); });
        EXPECT_EQ(box.Exec(), QMessageBox::No);
    }
}

} // namespace
} // namespace Pelnar::Util
