// Framework.cpp: the operations that the update checker asks of a host framework, in the family's own way.
#include "HostFramework/AlertBox.h"
#include "HostFramework/Application.h"
#include "HostFramework/NagScreenManager.h"
#include "HostFramework/OSVersion.h"
#include "HostFramework/SpontaneousDialog.h"
#include "HostFramework/VersionText.h"

#include <QRegularExpression>
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
    QRegularExpression const shape(
        QStringLiteral("^\\d{1,9}(%1\\d{1,9}){0,3}\\z").arg(QRegularExpression::escape(separator)));
    if (!shape.match(text).hasMatch())
    {
        throw std::invalid_argument("\"" + text.toStdString() + "\" is not a version");
    }
    QStringList const parts = text.split(separator);
    auto const part = [&parts](int i) { return i < parts.size() ? parts[i].toInt() : Core::Version::ABSENT; };
    return Core::Version(part(0), part(1), part(2), part(3));
}

QString VersionToString(Core::Version const& version, VersionToStringDetail, QString const& separator)
{
    QStringList parts;
    for (std::int32_t const component : version.Components())
    {
        if (component != Core::Version::ABSENT)
        {
            parts.append(QString::number(component));
        }
    }
    return parts.join(separator);
}

} // namespace Pelnar::Util
