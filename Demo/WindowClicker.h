// WindowClicker.h: answers windows in the place of a person: one click in each window of a list, in its order.
// Thread: the Qt main thread. Ownership: the caller's; the windows are only looked at.
#pragma once

#include <QObject>
#include <QString>

#include <vector>

QT_BEGIN_NAMESPACE
class QAbstractButton;
class QWidget;
QT_END_NAMESPACE

namespace Pelnar::Demo
{

/// A button, by its object name or its text without mnemonic mark, in a window, by its object name.
struct Click
{
    QString window;
    QString button;
};

class WindowClicker : public QObject
{
    Q_OBJECT

public:
    explicit WindowClicker(std::vector<Click> clicks);

    /// Clicks in \a window, which has just been shown, if it is the next one's turn. A window that tells of an error is
    /// a failure when it is not its turn.
    void Take(QWidget& window);

    /// What is still waited for, as "WINDOW/BUTTON"; empty when every click was made.
    QString Pending() const;

Q_SIGNALS:
    /// Just before a click.
    void Clicking(QString const& what);
    /// After the last click has done its work.
    void Done();
    /// Nothing is clicked any more.
    void Failed(QString const& sentence);

private:
    std::vector<Click> m_clicks;
    std::size_t m_next = 0;
};

/// The texts of \a window's labels, joined; for a report.
QString LabelTexts(QWidget const& window);

} // namespace Pelnar::Demo
