// ReferenceApplicationTest.cpp: the services, and quitting with the consent of the windows.

#include "HostFramework/Reference/ReferenceCustomizationManager.h"
#include "HostFramework/Reference/ReferenceLinksManager.h"
#include "HostFramework/Reference/ReferenceNagScreenManager.h"
#include "tests/host/TestHost.h"

#include <gtest/gtest.h>

#include <QCloseEvent>
#include <QDialog>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace Pelnar::App
{
namespace
{

class AskedWindow : public QWidget
{
public:
    explicit AskedWindow(bool accepts) : m_accepts(accepts) { show(); }

    int timesAsked = 0;
    std::function<void()> whenAsked;

private:
    void closeEvent(QCloseEvent* event) override
    {
        ++timesAsked;
        if (whenAsked)
        {
            whenAsked();
        }
        event->setAccepted(m_accepts);
    }

    bool m_accepts;
};

class ReferenceApplicationTest : public testing::Test
{
protected:
    /// Runs the event loop and calls TryToQuit in it. Returns whether this ended the loop.
    bool LoopEndsBy(bool expectedAnswer)
    {
        bool endedByBackstop = false;
        QTimer::singleShot(0, &App(),
                           [&]
                           {
                               EXPECT_EQ(App().TryToQuit(), expectedAnswer);
                               // Runs after all events that TryToQuit may have posted. No effect if the loop has ended.
                               QTimer::singleShot(0, &App(),
                                                  [&]
                                                  {
                                                      endedByBackstop = true;
                                                      QCoreApplication::exit();
                                                  });
                           });
        QCoreApplication::exec();
        return !endedByBackstop;
    }

    ReferenceApplication& App() { return m_host.Application(); }

private:
    Testing::TestHost m_host;
};

TEST_F(ReferenceApplicationTest, IsTheProcessesApplicationAndLendsItsServices)
{
    EXPECT_EQ(Application::Instance(), &App());
    ReferenceServices const services{std::make_shared<NagScreen::ReferenceManager>(),
                                     std::make_shared<ReferenceCustomizationManager>(Customization{}),
                                     std::make_shared<ReferenceLinksManager>(Links{})};
    App().SetServices(services);
    EXPECT_EQ(App().GetNagScreenManager(), services.nagScreenManager);
    EXPECT_EQ(App().GetCustomizationManager(), services.customizationManager);
    EXPECT_EQ(App().GetLinksManager(), services.linksManager);
}

TEST_F(ReferenceApplicationTest, SaysWhichServiceIsMissing)
{
    auto const missing = [](auto const& ask) -> std::string
    {
        try
        {
            (void)ask();
        }
        catch (std::logic_error const& error)
        {
            return error.what();
        }
        return "nothing was thrown";
    };
    std::string const advice = " service: give one to ReferenceApplication::SetServices() before the first check for "
                               "updates.";
    EXPECT_EQ(missing([this] { return App().GetCustomizationManager(); }),
              "The application has no customization" + advice);
    EXPECT_EQ(missing([this] { return App().GetLinksManager(); }), "The application has no links" + advice);
    App().SetServices({nullptr, std::make_shared<ReferenceCustomizationManager>(Customization{}), nullptr});
    EXPECT_NE(App().GetCustomizationManager(), nullptr);
    EXPECT_EQ(missing([this] { return App().GetLinksManager(); }), "The application has no links" + advice);
}

TEST_F(ReferenceApplicationTest, WithoutNagScreensNoneIsAvailable)
{
    auto const state = [this] { return App().GetNagScreenManager()->GetContentState(NagScreen::MajorUpdate); };
    EXPECT_EQ(state(), NagScreen::CONTENT_UNAVAILABLE);
    App().SetServices({});
    EXPECT_EQ(state(), NagScreen::CONTENT_UNAVAILABLE);
}

TEST_F(ReferenceApplicationTest, QuitsWithoutWindows)
{
    EXPECT_TRUE(LoopEndsBy(true));
}

TEST_F(ReferenceApplicationTest, QuitsWhenEveryWindowAcceptsAndAsksEachOnce)
{
    AskedWindow first(true);
    AskedWindow second(true);
    EXPECT_TRUE(LoopEndsBy(true));
    EXPECT_EQ(first.timesAsked, 1);
    EXPECT_EQ(second.timesAsked, 1);
}

TEST_F(ReferenceApplicationTest, OneRefusalKeepsTheApplicationAndEveryWindow)
{
    AskedWindow first(true);
    AskedWindow refusing(false);
    AskedWindow last(true);
    EXPECT_FALSE(LoopEndsBy(false));
    EXPECT_EQ(refusing.timesAsked, 1);
    EXPECT_TRUE(first.isVisible());
    EXPECT_TRUE(refusing.isVisible());
    EXPECT_TRUE(last.isVisible());
}

TEST_F(ReferenceApplicationTest, CanBeAskedAgainAfterARefusal)
{
    {
        AskedWindow refusing(false);
        EXPECT_FALSE(LoopEndsBy(false));
    }
    EXPECT_TRUE(LoopEndsBy(true));
}

TEST_F(ReferenceApplicationTest, DoesNotAskHiddenWindowsNorPopups)
{
    AskedWindow hidden(false);
    hidden.hide();
    AskedWindow popup(false);
    popup.setWindowFlags(Qt::ToolTip);
    popup.show();
    EXPECT_TRUE(LoopEndsBy(true));
    EXPECT_EQ(hidden.timesAsked, 0);
    EXPECT_EQ(popup.timesAsked, 0);
}

TEST_F(ReferenceApplicationTest, AsksModalWindowsFirst)
{
    AskedWindow refusing(false);
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    bool dialogWasOpen = true;
    refusing.whenAsked = [&] { dialogWasOpen = dialog.isVisible(); };
    EXPECT_FALSE(LoopEndsBy(false));
    EXPECT_FALSE(dialogWasOpen) << "a dialog counts as rejected";
}

TEST_F(ReferenceApplicationTest, IsNotAskedAgainWhileAWindowIsAsked)
{
    AskedWindow window(true);
    bool nestedAnswer = true;
    window.whenAsked = [&] { nestedAnswer = App().TryToQuit(); };
    EXPECT_TRUE(LoopEndsBy(true));
    EXPECT_FALSE(nestedAnswer);
    EXPECT_EQ(window.timesAsked, 1);
}

TEST_F(ReferenceApplicationTest, SurvivesAWindowThatDeletesAnother)
{
    auto* const first = new AskedWindow(true);
    auto* const second = new AskedWindow(true);
    int deletions = 0;
    first->whenAsked = [&] { delete second, ++deletions; };
    second->whenAsked = [&] { delete first, ++deletions; };
    EXPECT_TRUE(LoopEndsBy(true));
    ASSERT_EQ(deletions, 1);
    qDeleteAll(QApplication::topLevelWidgets());
}

} // namespace
} // namespace Pelnar::App
