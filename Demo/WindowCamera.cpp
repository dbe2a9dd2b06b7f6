#include "Demo/WindowCamera.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QEvent>
#include <QPixmap>
#include <QPointer>
#include <QProgressBar>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <memory>

namespace Pelnar::Demo
{

WindowCamera::WindowCamera(QString const& folder, AfterPicture afterPicture)
    : m_folder(folder), m_afterPicture(afterPicture)
{
    qApp->installEventFilter(this);
}

void WindowCamera::TakePicture(QWidget& window) const
{
    if (m_folder.isEmpty() || window.objectName().isEmpty())
    {
        return;
    }
    QString const path = QDir(m_folder).filePath(window.objectName() + QStringLiteral(".png"));
    if (!QDir().mkpath(m_folder) || !window.grab().save(path))
    {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
        m_hasWrittenAll = false;
    }
}

bool WindowCamera::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && watched->isWidgetType())
    {
        auto* const widget = static_cast<QWidget*>(watched);
        if (widget->isWindow() && (widget->windowType() == Qt::Window || widget->windowType() == Qt::Dialog))
        {
            // Later, when the window has its size and, if it is a dialog, its event loop.
            QTimer::singleShot(0, widget, [this, widget] { HandleShown(*widget); });
        }
    }
    return QObject::eventFilter(watched, event);
}

void WindowCamera::HandleShown(QWidget& window)
{
    TakePicture(window);
    if (m_afterPicture == AfterPicture::DismissDialogs && qobject_cast<QDialog*>(&window))
    {
        window.close();
        return;
    }
    TakeAgainAtHalf(window);
    Q_EMIT WindowShown(&window);
}

void WindowCamera::TakeAgainAtHalf(QWidget& window)
{
    auto* const bar = window.findChild<QProgressBar*>();
    if (!bar)
    {
        return;
    }
    auto const connection = std::make_shared<QMetaObject::Connection>();
    *connection = connect(bar, &QProgressBar::valueChanged, this,
                          [this, bar, connection, shown = QPointer<QWidget>(&window)](int value)
                          {
                              if (bar->maximum() == 0 || value * 2 < bar->maximum())
                              {
                                  return;
                              }
                              disconnect(*connection);
                              // Later, when the texts next to the bar have changed too.
                              QTimer::singleShot(0, this,
                                                 [this, shown]
                                                 {
                                                     if (shown)
                                                     {
                                                         TakePicture(*shown);
                                                     }
                                                 });
                          });
}

} // namespace Pelnar::Demo
