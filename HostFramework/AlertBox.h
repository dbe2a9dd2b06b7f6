// AlertBox.h: the host framework's message dialog.
//
//     using Pelnar::Util::AlertBox;
//     AlertBox box(AlertBox::Question, QStringLiteral("Notes"), QStringLiteral("Save the text before the update?"),
//                  QMessageBox::Yes | QMessageBox::No, QApplication::activeWindow(), Qt::WindowFlags());
//     bool const isToBeSaved = box.Exec() == QMessageBox::Yes;
//
// Thread: the Qt main thread. Ownership: the caller or the Qt parent. The host framework provides the definitions.
#pragma once

#include "common/Export.h"

#include <QMessageBox>

namespace Pelnar::Util
{

/// A QMessageBox, so its operations (setInformativeText, addButton, clickedButton, setObjectName, close) apply. `text`
/// is always shown as plain text. The informative text may contain markup: callers escape inserted text.
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

    /// \a level selects the icon. \a buttons are the possible answers. \a parent may be null.
    AlertBox(Level level, QString const& title, QString const& text, StandardButtons buttons, QWidget* parent,
             Qt::WindowFlags flags);

    /// Shows the box modally until it is closed. Returns the result of QDialog::exec.
    int Exec();
};

} // namespace Pelnar::Util
