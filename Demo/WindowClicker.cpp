#include "Demo/WindowClicker.h"

#include <QAbstractButton>
#include <QLabel>
#include <QStringList>

#include <utility>

namespace Pelnar::Demo
{
namespace
{

bool TellsOfError(QWidget const& window)
{
    return window.objectName() == QLatin1String("PelnarEngine_errorWindow") ||
           window.objectName() == QLatin1String("SparkleUpdater_updateErrorDialog");
}

QAbstractButton* FindButton(QWidget const& window, QString const& name)
{
    for (QAbstractButton* const button : window.findChildren<QAbstractButton*>())
    {
        if (button->objectName() == name || button->text().remove(QLatin1Char('&')) == name)
        {
            return button;
        }
    }
    return nullptr;
}

} // namespace

WindowClicker::WindowClicker(std::vector<Click> clicks) : m_clicks(std::move(clicks)) {}

void WindowClicker::Take(QWidget& window)
{
    bool const isItsTurn = m_next < m_clicks.size() && window.objectName() == m_clicks[m_next].window;
    if (!isItsTurn)
    {
        if (TellsOfError(window))
        {
            m_next = m_clicks.size();
            Q_EMIT Failed(LabelTexts(window));
        }
        return;
    }
    QAbstractButton* const button = FindButton(window, m_clicks[m_next].button);
    if (!button || !button->isEnabled())
    {
        Q_EMIT Failed(QStringLiteral("%1 cannot be clicked").arg(Pending()));
        return;
    }
    Q_EMIT Clicking(Pending());
    ++m_next;
    // A click in a window with its own event loop ends that loop; what follows comes later.
    button->click();
    if (m_next == m_clicks.size())
    {
        Q_EMIT Done();
    }
}

QString WindowClicker::Pending() const
{
    return m_next < m_clicks.size() ? m_clicks[m_next].window + QLatin1Char('/') + m_clicks[m_next].button : QString();
}

QString LabelTexts(QWidget const& window)
{
    QStringList texts;
    for (QLabel const* const label : window.findChildren<QLabel*>())
    {
        if (!label->text().isEmpty())
        {
            texts.append(label->text());
        }
    }
    return texts.join(QLatin1Char(' '));
}

} // namespace Pelnar::Demo
