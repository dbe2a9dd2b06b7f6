#include "Engine/ui/ErrorWindow.h"

#include "Engine/ui/ServerText.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>

namespace Pelnar::Engine
{

ErrorWindow::ErrorWindow(QString const& sentence)
    : EngineWindow(QStringLiteral("PelnarEngine_errorWindow"), CheckOrigin::User)
{
    auto const close = [this] { Q_EMIT Closed(); };
    ShowWarningIcon();
    AddHeading(QStringLiteral("PelnarEngine_heading"),
               QCoreApplication::translate("PelnarEngine_ErrorWindow", "The update could not be completed"));
    // The sentence may name a command to use.
    AddGivenText(QStringLiteral("PelnarEngine_detail"), ShownSentence(sentence))
        ->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QPushButton* const button =
        AddAnswer(QStringLiteral("PelnarEngine_okButton"),
                  QCoreApplication::translate("PelnarEngine_EngineWindow", "&OK"), ButtonPlace::End, close);
    SetDefaultAnswer(button, button);
    SetDismissal(close);
}

} // namespace Pelnar::Engine
