#include "tests/support/DialogDriver.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>

#include <utility>

namespace Pelnar::Testing
{
namespace
{

constexpr int POLL_INTERVAL_MS = 5;
constexpr int MAX_POLLS = 2000;

} // namespace

DialogDriver::DialogDriver(QString const& objectName, std::function<void(QWidget*)> act)
    : m_objectName(objectName)
    , m_act(std::move(act))
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { Poll(); });
    m_timer.start(POLL_INTERVAL_MS);
}

DialogDriver::~DialogDriver()
{
    EXPECT_TRUE(m_acted) << "no dialog named " << qPrintable(m_objectName) << " was shown";
}

void DialogDriver::Poll()
{
    for (QWidget* const widget : QApplication::topLevelWidgets())
    {
        if (widget->isVisible() && widget->objectName() == m_objectName)
        {
            m_timer.stop();
            m_acted = true;
            m_act(widget);
            return;
        }
    }
    if (++m_polls == MAX_POLLS)
    {
        m_timer.stop();
        ADD_FAILURE() << "no dialog named " << qPrintable(m_objectName) << " appeared";
        for (QWidget* const widget : QApplication::topLevelWidgets())
        {
            widget->close();
        }
    }
}

void ClickButton(QWidget* box, QString const& text)
{
    for (QAbstractButton* const button : box->findChildren<QAbstractButton*>())
    {
        if (button->text().remove(QLatin1Char('&')) == text)
        {
            button->click();
            return;
        }
    }
    ADD_FAILURE() << "no button " << qPrintable(text) << " in " << qPrintable(box->objectName());
    box->close();
}

bool WaitFor(std::function<bool()> const& condition, int timeoutMs)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition())
    {
        if (timer.elapsed() > timeoutMs)
        {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

} // namespace Pelnar::Testing
