// WindowsFixture.h: an application without a display, a user interface, and its answers.
// Thread: the Qt main thread. Ownership: the fixture owns the application.
#pragma once

#include "tests/engine_ui/WindowCases.h"
#include "tests/support/TestApplication.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QUrl>
#include <QWidget>

#include <memory>
#include <string>
#include <vector>

namespace Pelnar::Testing
{

class WindowsFixture : public ::testing::Test
{
protected:
    WindowsFixture() { QLocale::setDefault(QLocale::c()); }
    ~WindowsFixture() override
    {
        m_ui.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    Engine::IUserInterface& Ui() { return *m_ui; }
    void DestroyUi() { m_ui.reset(); }
    std::vector<std::string> const& Answers() const { return m_answers; }
    std::vector<QUrl> const& Links() const { return m_links; }

    void Show(WindowCase const& window)
    {
        window.show(Ui(), [this](std::string const& answer) { m_answers.push_back(answer); });
    }

    /// The visible window of that name, or null.
    static QWidget* Window(QString const& objectName)
    {
        for (QWidget* const widget : QApplication::topLevelWidgets())
        {
            if (widget->isVisible() && widget->objectName() == objectName)
            {
                return widget;
            }
        }
        return nullptr;
    }
    static QWidget* WindowOf(WindowCase const& window) { return Window(QString::fromLatin1(window.objectName)); }

    static std::vector<QWidget*> VisibleWindows()
    {
        std::vector<QWidget*> windows;
        for (QWidget* const widget : QApplication::topLevelWidgets())
        {
            if (widget->isVisible())
            {
                windows.push_back(widget);
            }
        }
        return windows;
    }

    /// The child with that name in the shown window. The test fails if there is none.
    template <typename Widget>
    static Widget* Part(char const* objectName)
    {
        for (QWidget* const window : VisibleWindows())
        {
            if (auto* const part = window->findChild<Widget*>(QString::fromLatin1(objectName)))
            {
                return part;
            }
        }
        ADD_FAILURE() << "no window shows " << objectName;
        return nullptr;
    }

private:
    TestApplication<QApplication> m_application;
    std::vector<std::string> m_answers;
    std::vector<QUrl> m_links;
    std::unique_ptr<Engine::IUserInterface> m_ui =
        std::make_unique<Engine::WidgetUserInterface>([this](QUrl const& address) { m_links.push_back(address); });
};

class EveryWindow : public WindowsFixture, public ::testing::WithParamInterface<WindowCase>
{
};

inline void PrintTo(WindowCase const& window, std::ostream* out)
{
    *out << window.name;
}

inline std::string WindowCaseName(::testing::TestParamInfo<WindowCase> const& info)
{
    return info.param.name;
}

} // namespace Pelnar::Testing
