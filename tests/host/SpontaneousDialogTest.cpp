// SpontaneousDialogTest.cpp: which window parents a dialog that the user did not open.

#include "HostFramework/SpontaneousDialog.h"

#include "tests/host/TestHost.h"
#include "tests/support/DialogDriver.h"

#include <gtest/gtest.h>

#include <QWidget>

namespace Pelnar::Util
{
namespace
{

class SpontaneousDialogTest : public testing::Test
{
private:
    Testing::TestHost m_host;
};

TEST_F(SpontaneousDialogTest, NoneWithoutAWindow)
{
    EXPECT_EQ(SpontaneousDialog::findParent(), nullptr);
}

TEST_F(SpontaneousDialogTest, TheActiveWindowBeforeAnyOther)
{
    QWidget first;
    QWidget second;
    for (QWidget* const window : {&first, &second, &first})
    {
        window->show();
        window->activateWindow();
        ASSERT_TRUE(Testing::WaitFor([&] { return window->isActiveWindow(); }));
        EXPECT_EQ(SpontaneousDialog::findParent(), window);
    }
}

TEST_F(SpontaneousDialogTest, AVisibleTopLevelWindowWhenNoneIsActive)
{
    QWidget hidden;
    QWidget toolTip(nullptr, Qt::ToolTip);
    toolTip.setAttribute(Qt::WA_ShowWithoutActivating);
    toolTip.show();
    QWidget visible;
    visible.setAttribute(Qt::WA_ShowWithoutActivating);
    visible.show();
    QApplication::setActiveWindow(nullptr);
    ASSERT_EQ(QApplication::activeWindow(), nullptr);
    EXPECT_EQ(SpontaneousDialog::findParent(), &visible);
    visible.hide();
    EXPECT_EQ(SpontaneousDialog::findParent(), nullptr) << "neither a hidden window nor a tool tip";
}

} // namespace
} // namespace Pelnar::Util
