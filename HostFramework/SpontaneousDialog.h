// SpontaneousDialog.h: the parent of a dialog that the user did not open directly.
//
//     QMessageBox box(Pelnar::Util::SpontaneousDialog::findParent());
//     box.exec();
//
// Thread: the Qt main thread. The host framework provides the definition.
#pragma once

#include "common/Export.h"

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Pelnar::Util
{

class PELNAR_EXPORT SpontaneousDialog
{
public:
    /// A widget as the dialog's parent, or null if the application shows none.
    static QWidget* findParent();
};

} // namespace Pelnar::Util
