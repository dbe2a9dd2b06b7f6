#include "Engine/ui/ReadyWindow.h"

#include "Engine/ui/ServerText.h"

#include <QCoreApplication>
#include <QPushButton>

namespace Pelnar::Engine
{

ReadyWindow::ReadyWindow(NamedVersion const& update, CheckOrigin origin)
    : EngineWindow(QStringLiteral("PelnarEngine_readyWindow"), origin)
{
    QString const name = ShownName(update.applicationName);
    auto const later = [this] { Q_EMIT Chosen(ReadyChoice::Later); };
    AddHeading(QStringLiteral("PelnarEngine_heading"),
               QCoreApplication::translate("PelnarEngine_ReadyWindow", "Ready to install"));
    AddText(QStringLiteral("PelnarEngine_detail"),
            QCoreApplication::translate("PelnarEngine_ReadyWindow",
                                        "%1 %2 has been downloaded and verified. To install it, %1 will be closed and "
                                        "opened again.",
                                        "%1 is the application's name, %2 the new version")
                .arg(name, ShownVersion(update.version)));
    QPushButton* const laterButton =
        AddAnswer(QStringLiteral("PelnarEngine_laterButton"),
                  QCoreApplication::translate("PelnarEngine_ReadyWindow", "&Later"), ButtonPlace::End, later);
    QPushButton* const installButton =
        AddAnswer(QStringLiteral("PelnarEngine_installAndRelaunchButton"),
                  QCoreApplication::translate("PelnarEngine_ReadyWindow", "&Install and Relaunch"), ButtonPlace::End,
                  [this] { Q_EMIT Chosen(ReadyChoice::InstallAndRelaunch); });
    SetDefaultAnswer(installButton, laterButton);
    SetDismissal(later);
}

} // namespace Pelnar::Engine
