// MinimalHost.cpp: a host framework with only the operations that the update checker calls. Its versions begin with a
// "v", which no other parser accepts.
#include "tests/minimal_host/MinimalHost.h"

#include "HostFramework/AlertBox.h"
#include "HostFramework/Application.h"
#include "HostFramework/NagScreenManager.h"
#include "HostFramework/OSVersion.h"
#include "HostFramework/SpontaneousDialog.h"
#include "HostFramework/VersionText.h"

#include <QStringList>

#include <stdexcept>

namespace Pelnar::Testing
{

std::vector<QString>& AskedVersions()
{
    static std::vector<QString> texts;
    return texts;
}

} // namespace Pelnar::Testing

namespace Pelnar::Util
{

AlertBox::AlertBox(Level, QString const& title, QString const& text, StandardButtons buttons, QWidget* parent,
                   Qt::WindowFlags flags)
    : QMessageBox(NoIcon, title, text, buttons, parent, flags)
{
}

int AlertBox::Exec()
{
    return exec();
}

QWidget* SpontaneousDialog::findParent()
{
    return nullptr;
}

QString OSVersion()
{
    return QStringLiteral("v11.2");
}

Core::Version VersionFromString(QString const& text, QString const& separator)
{
    Testing::AskedVersions().push_back(text);
    QStringList const parts = text.mid(1).split(separator);
    if (!text.startsWith(QLatin1Char('v')) || parts.size() != 2)
    {
        throw std::runtime_error("no version of this family");
    }
    return Core::Version(parts[0].toInt(), parts[1].toInt());
}

QString VersionToString(Core::Version const& version, VersionToStringDetail, QString const& separator)
{
    return QString::number(version.Major()) + separator + QString::number(version.Minor());
}

} // namespace Pelnar::Util

namespace Pelnar::App
{

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {}
Application::~Application() = default;

namespace NagScreen
{

Manager::Manager(QObject* parent) : QObject(parent) {}
Manager::~Manager() = default;

} // namespace NagScreen
} // namespace Pelnar::App
