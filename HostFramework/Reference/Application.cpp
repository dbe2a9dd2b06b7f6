#include "HostFramework/Application.h"

namespace Pelnar::App
{

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {}

Application::~Application() = default;

} // namespace Pelnar::App
