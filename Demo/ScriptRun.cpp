#include "Demo/ScriptRun.h"

#include "Demo/DemoWindow.h"
#include "Demo/DialogGallery.h"
#include "Demo/WindowCamera.h"
#include "HostFramework/Reference/ReferenceApplication.h"

#include <QStringList>

#include <chrono>
#include <cstdio>

namespace Pelnar::Demo
{
namespace
{

/// For a whole update on a slow computer.
constexpr std::chrono::seconds PATIENCE(90);

QString VisibleWindows()
{
    QStringList windows;
    for (QWidget const* const window : QApplication::topLevelWidgets())
    {
        if (window->isVisible())
        {
            windows.append(QStringLiteral("%1 (%2)").arg(window->objectName(), LabelTexts(*window)));
        }
    }
    return windows.join(QStringLiteral(", "));
}

} // namespace

ScriptRun::ScriptRun(App::ReferenceApplication& application, DemoWindow& window, WindowCamera& camera,
                     DemoOptions const& options)
    : m_application(application)
    , m_window(window)
    , m_camera(camera)
    , m_script(options.script)
    , m_clicker(options.clicks)
{
    connect(&m_clicker, &WindowClicker::Clicking, &window,
            [&window](QString const& what) { window.AddLine(DemoWindow::tr("Clicking %1").arg(what)); });
    connect(&m_clicker, &WindowClicker::Failed, this, &ScriptRun::Fail);
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this,
            [this]
            {
                Fail(QStringLiteral("the script did not end; waiting for \"%1\"; open: %2")
                         .arg(m_clicker.Pending(), VisibleWindows()));
            });
}

void ScriptRun::Start()
{
    if (m_script != Script::None)
    {
        // The last picture of the window contains all notifications.
        connect(&m_application, &QCoreApplication::aboutToQuit, this, [this] { m_camera.TakePicture(m_window); });
    }
    QTimer::singleShot(0, this, &ScriptRun::Begin);
}

bool ScriptRun::IsComplete() const
{
    if (!m_hasFailed && !m_clicker.Pending().isEmpty())
    {
        std::fprintf(stderr, "the application ended before %s was clicked\n", qPrintable(m_clicker.Pending()));
        return false;
    }
    return !m_hasFailed;
}

void ScriptRun::Begin()
{
    switch (m_script)
    {
    case Script::None:
        break;
    case Script::CheckOnce:
        connect(&m_window, &DemoWindow::CheckEnded, this, &ScriptRun::FinishSoon);
        m_window.CheckForUpdates();
        break;
    case Script::ShowDialogs:
        ShowEveryDialog(m_application, &m_window);
        FinishSoon();
        break;
    case Script::Start:
        FinishSoon();
        break;
    case Script::Answer:
        connect(&m_clicker, &WindowClicker::Done, this, &ScriptRun::FinishSoon);
        MakeClicks();
        break;
    case Script::Update:
        MakeClicks();
        break;
    }
}

void ScriptRun::MakeClicks()
{
    connect(&m_camera, &WindowCamera::WindowShown, this, [this](QWidget* shown) { m_clicker.Take(*shown); });
    m_patience.start(PATIENCE);
    m_window.CheckForUpdates();
}

void ScriptRun::FinishSoon()
{
    // One more turn of the event loop, for the picture of a window that opened last.
    QTimer::singleShot(0, this, [this] { m_application.TryToQuit(); });
}

void ScriptRun::Fail(QString const& sentence)
{
    std::fprintf(stderr, "pelnar-demo: %s\n", qPrintable(sentence));
    m_hasFailed = true;
    QCoreApplication::exit(EXIT_FAILURE);
}

} // namespace Pelnar::Demo
