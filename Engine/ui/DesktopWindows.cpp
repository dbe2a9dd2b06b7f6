#include "Engine/ui/DesktopWindows.h"

#include "Engine/core/update/NoWindows.h"
#include "Engine/ui/SafeUrl.h"
#include "Engine/ui/Translations.h"
#include "Engine/ui/WidgetUserInterface.h"

#include <QApplication>
#include <QDesktopServices>
#include <QLocale>

#include <utility>

namespace Pelnar::Engine
{
namespace
{

void OpenLink(QUrl const& address)
{
    QUrl const safe = SafeUrl(address);
    if (!safe.isEmpty())
    {
        QDesktopServices::openUrl(safe);
    }
}

} // namespace

std::unique_ptr<IUserInterface> MakeDesktopWindows()
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
    {
        return std::make_unique<NoWindows>();
    }
    InstallTranslations(QLocale());
    return std::make_unique<WidgetUserInterface>(&OpenLink);
}

void WatchSessionEnd(std::function<void()> ended)
{
    if (auto* const application = qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
    {
        QObject::connect(
            application, &QGuiApplication::commitDataRequest, application,
            [ended = std::move(ended)](QSessionManager&) { ended(); }, Qt::DirectConnection);
    }
}

} // namespace Pelnar::Engine
