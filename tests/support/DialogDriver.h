// DialogDriver.h: waits for a dialog that runs a nested event loop, finds it by its object name, and acts on it.
// Thread: the Qt main thread. Ownership: a scope object. If it still waits at its end, the test fails.
#pragma once

#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace Pelnar::Testing
{

class DialogDriver
{
public:
    /// Calls \a act with the visible top-level widget named \a objectName, in the first pass of the event loop that
    /// finds it. If none is found in time, the test fails and all top-level widgets are closed.
    DialogDriver(QString const& objectName, std::function<void(QWidget*)> act);
    ~DialogDriver();

    [[nodiscard]] bool HasActed() const { return m_acted; }

private:
    void Poll();

    QString m_objectName;
    std::function<void(QWidget*)> m_act;
    QTimer m_timer;
    int m_polls = 0;
    bool m_acted = false;
};

/// Clicks the button of \a box with the text \a text (without mnemonic mark). The test fails if there is none.
void ClickButton(QWidget* box, QString const& text);

/// Runs the event loop until \a condition is true or \a timeoutMs have passed. Returns the last value of \a condition.
[[nodiscard]] bool WaitFor(std::function<bool()> const& condition, int timeoutMs = 10000);

} // namespace Pelnar::Testing
