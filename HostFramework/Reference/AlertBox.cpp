#include "HostFramework/AlertBox.h"

namespace Pelnar::Util
{
namespace
{

QMessageBox::Icon IconOf(AlertBox::Level level)
{
    switch (level)
    {
    case AlertBox::Information:
        return QMessageBox::Information;
    case AlertBox::Critical:
        return QMessageBox::Critical;
    case AlertBox::Question:
        return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

} // namespace

AlertBox::AlertBox(Level level, QString const& title, QString const& text, StandardButtons buttons, QWidget* parent,
                   Qt::WindowFlags flags)
    : QMessageBox(IconOf(level), title, text, buttons, parent, flags)
{
    setTextFormat(Qt::PlainText);
}

int AlertBox::Exec()
{
    return exec();
}

} // namespace Pelnar::Util
