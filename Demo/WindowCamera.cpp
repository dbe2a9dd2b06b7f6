#include "Demo/WindowCamera.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QPixmap>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <cstdio>

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

void WindowCamera::HandleShown(QWidget& window) const
{
    TakePicture(window);
    if (m_afterPicture == AfterPicture::DismissDialogs && qobject_cast<QDialog*>(&window))
    {
        window.close();
    }
}

} // namespace Pelnar::Demo
