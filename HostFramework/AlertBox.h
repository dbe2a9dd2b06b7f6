// AlertBox.h: the host framework's message dialog.
//
//     using Pelnar::Util::AlertBox;
//     AlertBox box(AlertBox::Question, QStringLiteral("Notes"), QStringLiteral("Save the text before the update?"),
//                  QMessageBox::Yes | QMessageBox::No, QApplication::activeWindow(), Qt::WindowFlags());
//     bool const isToBeSaved = box.Exec() == QMessageBox::Yes;
//
// Thread: the Qt main thread. Ownership: the caller's, or the Qt parent's. Declared here, provided by the host
// framework.
#pragma once

#include "common/Export.h"

#include <QMessageBox>

namespace Pelnar::Util
{

/// A QMessageBox, so that its operations (setInformativeText, addButton, clickedButton, setObjectName, close) apply.
/// `text` is shown as plain text, no matter what it contains. The informative text may carry markup: callers escape
/// what they insert into it.
class PELNAR_EXPORT AlertBox : public QMessageBox
{
    Q_OBJECT

public:
    enum Level
    {
        Information = 0,
        Critical = 1,
        Question = 2,
    };

    AlertBox(Level level, QString const& title, QString const& text, StandardButtons buttons, QWidget* parent,
             Qt::WindowFlags flags);

    /// Shows the box modally and returns when it is closed, with QDialog::exec's result.
    int Exec();
};

} // namespace Pelnar::Util
