// DialogDriver.h: acts on a dialog that runs a nested event loop, once it is shown, found by its object name.
// Thread: the Qt main thread. Ownership: a scope object; what it was still waiting for when it dies is a test failure.
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
    /// Calls \a act with the visible top-level widget named \a objectName from the first pass of the event loop that
    /// finds it; fails the test and closes every top-level widget when none is found in time.
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

/// Clicks the button of \a box whose text (without mnemonic mark) is \a text; a test failure when there is none.
void ClickButton(QWidget* box, QString const& text);

/// Runs the event loop until \a condition holds or \a timeoutMs is over; true when it holds.
[[nodiscard]] bool WaitFor(std::function<bool()> const& condition, int timeoutMs = 10000);

} // namespace Pelnar::Testing
