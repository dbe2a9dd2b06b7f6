// Scene.h: what the examples in public headers take for granted: Qt, and a host with a window.
#pragma once

#include <QApplication>
#include <QDesktopServices>
#include <QFile>
#include <QMessageBox>
#include <QTimer>

#include <memory>
#include <string>

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
