// ScriptRun.h: a demonstration without a person: the automatic actions of pelnar-demo.
// Thread: the Qt main thread. Ownership: the main function's; application, window and camera outlive it.
#pragma once

#include "Demo/DemoOptions.h"
#include "Demo/WindowClicker.h"

#include <QObject>
#include <QTimer>

namespace Pelnar::App
{
class ReferenceApplication;
}

namespace Pelnar::Demo
{

class DemoWindow;
class WindowCamera;

class ScriptRun : public QObject
{
    Q_OBJECT

public:
    ScriptRun(App::ReferenceApplication& application, DemoWindow& window, WindowCamera& camera,
              DemoOptions const& options);

    /// Begins with the next pass of the event loop; the script ends the application.
    void Start();
    /// False, with a message on standard error, if the application ends before its script.
    [[nodiscard]] bool IsComplete() const;

private:
    void Begin();
    void MakeClicks();
    void FinishSoon();
    void Fail(QString const& sentence);

    App::ReferenceApplication& m_application;
    DemoWindow& m_window;
    WindowCamera& m_camera;
    Script m_script;
    WindowClicker m_clicker;
    QTimer m_patience;
    bool m_hasFailed = false;
};

} // namespace Pelnar::Demo
