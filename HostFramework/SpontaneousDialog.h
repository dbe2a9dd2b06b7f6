// SpontaneousDialog.h: the parent of a dialog that the user did not open directly.
//
//     QMessageBox box(Pelnar::Util::SpontaneousDialog::findParent());
//     box.exec();
//
// Thread: the Qt main thread. Ownership: none. Declared here, provided by the host framework.
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
    /// A widget to parent the dialog, or null when the application shows none.
    static QWidget* findParent();
};

} // namespace Pelnar::Util
