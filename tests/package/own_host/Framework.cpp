// Framework.cpp: the operations that the update checker asks of a host framework, in the family's own way.
#include "HostFramework/AlertBox.h"
#include "HostFramework/Application.h"
#include "HostFramework/NagScreenManager.h"
#include "HostFramework/OSVersion.h"
#include "HostFramework/SpontaneousDialog.h"
#include "HostFramework/VersionText.h"

#include <QStringList>
#include <QSysInfo>

#include <stdexcept>

namespace Pelnar::App
{

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {}
Application::~Application() = default;

NagScreen::Manager::Manager(QObject* parent) : QObject(parent) {}
NagScreen::Manager::~Manager() = default;

} // namespace Pelnar::App

namespace Pelnar::Util
{

AlertBox::AlertBox(Level level, QString const& title, QString const& text, StandardButtons buttons, QWidget* parent,
                   Qt::WindowFlags flags)
    : QMessageBox(level == Critical ? QMessageBox::Critical : QMessageBox::Information, title, text, buttons, parent,
                  flags)
{
    setTextFormat(Qt::PlainText); // the text comes from a server
}

int AlertBox::Exec()
{
    return exec();
}

QWidget* SpontaneousDialog::findParent()
{
    return QApplication::activeWindow();
}

QString OSVersion()
{
    return QSysInfo::productVersion();
}

Core::Version VersionFromString(QString const& text, QString const& separator)
{
    std::int32_t components[] = {Core::Version::ABSENT, Core::Version::ABSENT, Core::Version::ABSENT,
                                 Core::Version::ABSENT};
    QStringList const parts = text.split(separator);
    bool isVersion = parts.size() <= Core::Version::COMPONENT_COUNT;
    for (int i = 0; isVersion && i < parts.size(); ++i)
    {
        components[i] = parts[i].toInt(&isVersion);
        isVersion = isVersion && components[i] >= 0;
    }
    if (!isVersion)
    {
        throw std::invalid_argument("\"" + text.toStdString() + "\" is not a version");
    }
    return Core::Version(components[0], components[1], components[2], components[3]);
}

QString VersionToString(Core::Version const& version, VersionToStringDetail, QString const& separator)
{
    QStringList parts;
    for (std::int32_t const component : version.Components())
    {
        if (component == Core::Version::ABSENT)
        {
            break;
        }
        parts.append(QString::number(component));
    }
    return parts.join(separator);
}

} // namespace Pelnar::Util
