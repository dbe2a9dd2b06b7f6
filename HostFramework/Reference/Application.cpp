#include "HostFramework/Application.h"

namespace Pelnar::App
{

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {}

Application::~Application() = default;

Application* Application::Instance()
{
    return static_cast<Application*>(QCoreApplication::instance());
}

} // namespace Pelnar::App
