// WindowClicker.h: answers windows instead of a person: one click in each window of a list, in this order.
// Thread: the Qt main thread. Ownership: the caller's; it owns no window.
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

    /// Clicks in \a window, which has just been shown, if it is next in the list. An error window that is not next is a
    /// failure.
    void Take(QWidget& window);

    /// The remaining clicks, as "WINDOW/BUTTON"; empty after every click.
    QString Pending() const;

Q_SIGNALS:
    /// Emitted just before a click.
    void Clicking(QString const& what);
    /// Emitted after the last click has had its effect.
    void Done();
    /// No further click follows.
    void Failed(QString const& sentence);

private:
    std::vector<Click> m_clicks;
    std::size_t m_next = 0;
};

/// The texts of \a window's labels, joined; for a report.
QString LabelTexts(QWidget const& window);

} // namespace Pelnar::Demo
