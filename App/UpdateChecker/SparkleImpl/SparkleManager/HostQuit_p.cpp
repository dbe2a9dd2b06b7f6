#include "App/UpdateChecker/SparkleImpl/SparkleManager/HostQuit_p.h"

#include "HostFramework/Application.h"

#include <QTimer>

namespace Pelnar::App::Session
{

void PostTryToQuit()
{
    Application* const application = Application::Instance();
    QTimer::singleShot(0, Qt::PreciseTimer, application, [application] { (void)application->TryToQuit(); });
}

} // namespace Pelnar::App::Session
