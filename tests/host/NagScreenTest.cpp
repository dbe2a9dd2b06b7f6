// NagScreenTest.cpp: the states of a nag screen, the signal that ends the unknown one, and the window.

#include "HostFramework/Reference/ReferenceNagScreenManager.h"
#include "tests/host/TestHost.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/LogCapture.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>

#include <utility>
#include <vector>

namespace Pelnar::App::NagScreen
{
namespace
{

Content const CONTENT{QStringLiteral("Pelnar 6 is here"), QStringLiteral("<b>Faster</b> & nicer."),
                      QStringLiteral("See what is new"), QUrl(QStringLiteral("https://localhost/six"))};
QString const OTHER = QStringLiteral("other");

class NagScreenTest : public testing::Test
{
protected:
    NagScreenTest()
    {
        QObject::connect(&m_manager, &Manager::NagAvailable, &m_manager,
                         [this](QString const& name, bool available) { m_signals.emplace_back(name, available); });
    }

    QLabel* Label(char const* name) const
    {
        return m_manager.Window(MajorUpdate)->findChild<QLabel*>(QString::fromLatin1(name));
    }
    QPushButton* Button(char const* name) const
    {
        return m_manager.Window(MajorUpdate)->findChild<QPushButton*>(QString::fromLatin1(name));
    }

    using Signals = std::vector<std::pair<QString, bool>>;

    Testing::TestHost m_host;
    ReferenceManager m_manager;
    Signals m_signals;
};

TEST_F(NagScreenTest, TheNameOfTheMajorUpdateIsFixed)
{
    EXPECT_EQ(MajorUpdate, QStringLiteral("major_update"));
}

TEST_F(NagScreenTest, NameOfWhichTheHostHasSaidNothingHasNoScreen)
{
    EXPECT_EQ(m_manager.GetContentState(MajorUpdate), 1);
    m_manager.SetContent(OTHER, CONTENT);
    EXPECT_EQ(m_manager.GetContentState(MajorUpdate), 1);
    EXPECT_TRUE(m_signals.empty()) << "nobody had to wait";
}

TEST_F(NagScreenTest, ContentThatIsExpectedIsUnknownUntilItIsThere)
{
    m_manager.ExpectContent(MajorUpdate);
    EXPECT_EQ(m_manager.GetContentState(MajorUpdate), 0);
    m_manager.ExpectContent(MajorUpdate);
    EXPECT_EQ(m_manager.GetContentState(MajorUpdate), 0);
    EXPECT_TRUE(m_signals.empty());
    m_manager.SetContent(MajorUpdate, CONTENT);
    EXPECT_EQ(m_signals, (Signals{{MajorUpdate, true}}));
    m_manager.ExpectContent(MajorUpdate);
    EXPECT_EQ(m_manager.GetContentState(MajorUpdate), 2) << "existing files stay";
}

TEST_F(NagScreenTest, ContentThatWasTakenAwayMayBeExpected)
{
    m_manager.SetUnavailable(MajorUpdate);
    m_manager.ExpectContent(MajorUpdate);
    EXPECT_EQ(m_manager.GetContentState(MajorUpdate), 0);
    m_manager.SetUnavailable(MajorUpdate);
    EXPECT_EQ(m_signals, (Signals{{MajorUpdate, false}}));
}

TEST_F(NagScreenTest, ContentLoadedLaterEndsTheUnknownStateWithTheSignal)
{
    m_manager.ExpectContent(MajorUpdate);
    m_manager.SetContent(MajorUpdate, CONTENT);
    EXPECT_EQ(m_manager.GetContentState(MajorUpdate), 2);
    EXPECT_EQ(m_manager.GetContentState(OTHER), 1);
    EXPECT_EQ(m_signals, (Signals{{MajorUpdate, true}}));
}

TEST_F(NagScreenTest, UnavailableContentEndsTheUnknownStateToo)
{
    m_manager.ExpectContent(MajorUpdate);
    m_manager.SetUnavailable(MajorUpdate);
    EXPECT_EQ(m_manager.GetContentState(MajorUpdate), 1);
    EXPECT_EQ(m_signals, (Signals{{MajorUpdate, false}}));
}

TEST_F(NagScreenTest, TheStateIsRightWhenTheSignalArrives)
{
    m_manager.ExpectContent(MajorUpdate);
    int state = -1;
    QObject::connect(&m_manager, &Manager::NagAvailable, &m_manager,
                     [&](QString const& name, bool) { state = m_manager.GetContentState(name); });
    m_manager.SetContent(MajorUpdate, CONTENT);
    EXPECT_EQ(state, 2);
}

TEST_F(NagScreenTest, LaterChangesAreNotAnnounced)
{
    m_manager.ExpectContent(MajorUpdate);
    m_manager.SetUnavailable(MajorUpdate);
    m_manager.SetContent(MajorUpdate, CONTENT);
    EXPECT_EQ(m_manager.GetContentState(MajorUpdate), 2);
    m_manager.SetUnavailable(MajorUpdate);
    EXPECT_EQ(m_manager.GetContentState(MajorUpdate), 1);
    EXPECT_EQ(m_signals.size(), 1U);
}

TEST_F(NagScreenTest, ShowOpensAWindowWithTheContentAsPlainText)
{
    m_manager.SetContent(MajorUpdate, CONTENT);
    m_manager.Show(MajorUpdate);
    QWidget* const window = m_manager.Window(MajorUpdate);
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(window->isWindow());
    EXPECT_FALSE(window->isModal());
    EXPECT_EQ(window->objectName(), QStringLiteral("NagScreen_major_update"));
    EXPECT_EQ(window->windowTitle(), CONTENT.title);
    EXPECT_EQ(Label("heading")->text(), CONTENT.title);
    EXPECT_EQ(Label("text")->text(), CONTENT.text);
    EXPECT_EQ(Label("heading")->textFormat(), Qt::PlainText);
    EXPECT_EQ(Label("text")->textFormat(), Qt::PlainText);
    EXPECT_EQ(Button("followLink")->text(), CONTENT.actionText);
    EXPECT_TRUE(window->grab().save(QStringLiteral("nag-screen.png")));
}

TEST_F(NagScreenTest, ShowTwiceKeepsOneWindow)
{
    m_manager.SetContent(MajorUpdate, CONTENT);
    m_manager.Show(MajorUpdate);
    QWidget* const window = m_manager.Window(MajorUpdate);
    m_manager.Show(MajorUpdate);
    EXPECT_EQ(m_manager.Window(MajorUpdate), window);
    EXPECT_EQ(QApplication::topLevelWidgets().size(), 1);
}

TEST_F(NagScreenTest, ShowWithoutContentOpensNothingAndWarns)
{
    Testing::LogCapture const log;
    m_manager.Show(MajorUpdate);
    m_manager.SetUnavailable(MajorUpdate);
    m_manager.Show(MajorUpdate);
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
    std::string const line = "no content for the nag screen \"major_update\"";
    EXPECT_EQ(log.Texts(), (std::vector<std::string>{line, line}));
    EXPECT_EQ(log.Of(google::GLOG_WARNING).size(), 2U);
}

TEST_F(NagScreenTest, FollowingTheLinkClosesTheWindowAndTellsTheHost)
{
    std::vector<std::pair<QString, QUrl>> requests;
    QObject::connect(&m_manager, &ReferenceManager::LinkRequested, &m_manager,
                     [&](QString const& name, QUrl const& link) { requests.emplace_back(name, link); });
    m_manager.SetContent(MajorUpdate, CONTENT);
    m_manager.Show(MajorUpdate);
    Button("followLink")->click();
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_EQ(requests[0].first, MajorUpdate);
    EXPECT_EQ(requests[0].second, CONTENT.link);
    EXPECT_EQ(m_manager.Window(MajorUpdate), nullptr);

    m_manager.Show(MajorUpdate);
    Button("notNow")->click();
    EXPECT_EQ(requests.size(), 1U);
    EXPECT_EQ(m_manager.Window(MajorUpdate), nullptr);
    EXPECT_TRUE(Testing::WaitFor([] { return QApplication::topLevelWidgets().isEmpty(); }));
}

TEST_F(NagScreenTest, WithoutActionTextThereIsNothingToFollow)
{
    m_manager.SetContent(MajorUpdate, {CONTENT.title, CONTENT.text, QString(), QUrl()});
    m_manager.Show(MajorUpdate);
    EXPECT_EQ(Button("followLink"), nullptr);
    EXPECT_NE(Button("notNow"), nullptr);
}

TEST_F(NagScreenTest, WindowsGoWithTheManager)
{
    {
        ReferenceManager manager;
        manager.SetContent(OTHER, CONTENT);
        manager.Show(OTHER);
        EXPECT_EQ(QApplication::topLevelWidgets().size(), 1);
    }
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

} // namespace
} // namespace Pelnar::App::NagScreen
