// TestHost.h: the application object of a widget test. One test runs in one process, so each makes its own.
#pragma once

#include "HostFramework/Reference/ReferenceApplication.h"

namespace Pelnar::Testing
{

class TestHost
{
public:
    App::ReferenceApplication& Application() { return m_application; }

private:
    char m_name[10] = "test-host";
    char* m_arguments[2] = {m_name, nullptr};
    int m_argumentCount = 1;
    App::ReferenceApplication m_application{m_argumentCount, m_arguments};
};

} // namespace Pelnar::Testing
