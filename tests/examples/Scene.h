// Scene.h: what the examples of public headers use without declaring it: Qt, and a host with a window.
#pragma once

#include <QtWidgets>

#include <memory>
#include <string>

/// As QObject::tr().
inline QString tr(char const* text)
{
    return QCoreApplication::translate("Host", text);
}

struct HostWindow
{
    QString DocumentPath() const;
};

class Host : public QApplication
{
public:
    using QApplication::QApplication;
    bool TryToQuit();

private:
    HostWindow m_window;
};
