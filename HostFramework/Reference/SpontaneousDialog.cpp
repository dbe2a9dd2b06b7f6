#include "HostFramework/SpontaneousDialog.h"

#include <QApplication>
#include <QWidget>

namespace Pelnar::Util
{
namespace
{

bool CanParentDialog(QWidget const& widget)
{
    Qt::WindowType const type = widget.windowType();
    return widget.isVisible() && (type == Qt::Window || type == Qt::Dialog || type == Qt::Sheet);
}

} // namespace

QWidget* SpontaneousDialog::findParent()
{
    if (QWidget* const active = QApplication::activeWindow())
    {
        return active;
    }
    for (QWidget* const widget : QApplication::topLevelWidgets())
    {
        if (CanParentDialog(*widget))
        {
            return widget;
        }
    }
    return nullptr;
}

} // namespace Pelnar::Util
