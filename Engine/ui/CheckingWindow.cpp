#include "Engine/ui/CheckingWindow.h"

#include <QCoreApplication>
#include <QProgressBar>
#include <QPushButton>

namespace Pelnar::Engine
{

CheckingWindow::CheckingWindow() : EngineWindow(QStringLiteral("PelnarEngine_checkingWindow"), CheckOrigin::User)
{
    auto const cancel = [this] { Q_EMIT Cancelled(); };
    AddHeading(QStringLiteral("PelnarEngine_heading"),
               QCoreApplication::translate("PelnarEngine_CheckingWindow", "Checking for updates…"));
    AddProgressBar(QStringLiteral("PelnarEngine_progressBar"),
                   QCoreApplication::translate("PelnarEngine_CheckingWindow", "Checking for updates…"));
    // Enter does not cancel: no person intends that.
    AddAnswer(QStringLiteral("PelnarEngine_cancelButton"),
              QCoreApplication::translate("PelnarEngine_EngineWindow", "&Cancel"), ButtonPlace::End, cancel)
        ->setFocus();
    SetDismissal(cancel);
}

} // namespace Pelnar::Engine
