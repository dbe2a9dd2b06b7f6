// DemoWindow.h: the window of a small host application: its version, "Check for Updates…", and the notifications of
// observers.
// Thread: the Qt main thread. Ownership: the main function creates and owns it; it owns its checks.
#pragma once

#include "Demo/DemoOptions.h"
#include "Demo/NotificationRecorder.h"

#include <QMainWindow>

QT_BEGIN_NAMESPACE
class QAction;
class QComboBox;
class QListWidget;
QT_END_NAMESPACE

namespace Pelnar::Demo
{

class DemoWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit DemoWindow(DemoOptions const& options);

    /// Starts a check in the chosen mode; does nothing while one runs.
    void CheckForUpdates();
    /// Adds a line to the list and prints it.
    void AddLine(QString const& line);

Q_SIGNALS:
    /// The manager of a check has been destroyed.
    void CheckEnded();

private:
    void EndCheck();

    NotificationRecorder m_recorder;
    QAction* m_checkAction;
    QComboBox* m_mode;
    QListWidget* m_lines;
};

} // namespace Pelnar::Demo
