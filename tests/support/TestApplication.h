// TestApplication.h: the application object for a test's event loop, and its command line.
// Thread: main. Ownership: a member of a fixture, before all members that need an event loop.
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
