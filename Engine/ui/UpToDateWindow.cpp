#include "Engine/ui/UpToDateWindow.h"

#include "Engine/ui/ServerText.h"

#include <QCoreApplication>

namespace Pelnar::Engine
{

UpToDateWindow::UpToDateWindow(NamedVersion const& installed)
    : EngineWindow(QStringLiteral("PelnarEngine_upToDateWindow"), CheckOrigin::User)
{
    AddHeading(QStringLiteral("PelnarEngine_heading"),
               QCoreApplication::translate("PelnarEngine_UpToDateWindow", "You're up to date!"));
    AddText(QStringLiteral("PelnarEngine_detail"),
            QCoreApplication::translate("PelnarEngine_UpToDateWindow",
                                        "%1 %2 is currently the newest version available.",
                                        "%1 is the application's name, %2 its version")
                .arg(ShownName(installed.applicationName), ShownVersion(installed.version)));
    AddOnlyAnswer([this] { Q_EMIT Closed(); });
}

} // namespace Pelnar::Engine
