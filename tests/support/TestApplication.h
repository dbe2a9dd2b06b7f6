// TestApplication.h: the application object that a test's event loop needs, with the command line that it keeps.
// Thread: main. Ownership: a member of a fixture, before everything that needs an event loop.
#pragma once

#include <QCoreApplication>

namespace Pelnar::Testing
{

template <typename Application = QCoreApplication>
class TestApplication
{
private:
    int m_argumentCount = 1;
    char m_name[5] = "test";
    char* m_arguments[2] = {m_name, nullptr};
    Application m_application{m_argumentCount, m_arguments};
};

} // namespace Pelnar::Testing
