#include "Demo/DialogGallery.h"

#include "App/UpdateChecker/SparkleImpl/SparkleManager/SessionDialogs.h"
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/UpdaterSparkle.h"
#include "HostFramework/ICustomizationManager.h"
#include "HostFramework/ILinksManager.h"
#include "HostFramework/NagScreenManager.h"

namespace Pelnar::Demo
{
namespace
{

/// Two updaters at the same time: the session refuses the second one.
void ShowAlreadyRunning(App::ReferenceApplication const& application, QWidget* parent)
{
    auto const makeUpdater = [&]
    {
        return std::make_unique<App::UpdaterSparkle>(application.GetCustomizationManager(),
                                                     application.GetLinksManager(), false);
    };
    auto const holder = makeUpdater();
    auto const refused = makeUpdater();
    refused->ExecUpdateDialog([parent] { return parent; });
}

} // namespace

void ShowEveryDialog(App::ReferenceApplication const& application, QWidget* parent)
{
    ShowAlreadyRunning(application, parent);

    std::shared_ptr<App::ICustomizationManager> const customization = application.GetCustomizationManager();
    Core::Version const current = customization->GetApplicationVersion();
    std::function<void()> closeDialog;
    (void)App::Session::AskReadyToInstall(QString::fromStdString(customization->GetDisplayName()),
                                          Core::Version(current.Major() + 1, 0, 2), parent, closeDialog);
    App::Session::ShowUpdateError(
        QStringLiteral("The update could not be installed because its folder cannot be written to. Move the "
                       "application to a folder of your own and try again."),
        parent, closeDialog);

    application.GetNagScreenManager()->Show(App::NagScreen::MajorUpdate);
}

} // namespace Pelnar::Demo
