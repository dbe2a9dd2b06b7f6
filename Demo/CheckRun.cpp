#include "Demo/CheckRun.h"

#include "HostFramework/VersionText.h"

#include <QFileInfo>

namespace Pelnar::Demo
{

QUrl FeedAddress(QString const& text)
{
    bool const isAddress =
        text.contains(QLatin1String("://")) || text.startsWith(QLatin1String("file:"), Qt::CaseInsensitive);
    return isAddress ? QUrl(text) : QUrl::fromLocalFile(QFileInfo(text).absoluteFilePath());
}

QString TextOf(Core::Version const& version)
{
    QString const text =
        Util::VersionToString(version, Util::VersionToStringDetail::PresentComponents, QStringLiteral("."));
    return text.isEmpty() ? QStringLiteral("none") : text;
}

void StartCheck(App::UpdateManager::Initializer const& initializer, std::function<void()> const& whenOver)
{
    if (App::UpdateManager::GetCurrentUpdateManager())
    {
        whenOver();
        return;
    }
    App::UpdateManager::CheckForUpdates(initializer);
    // The manager deletes itself, from the event loop at the earliest.
    auto* const manager = initializer.parent->findChild<App::UpdateManager*>(QString(), Qt::FindDirectChildrenOnly);
    QObject::connect(manager, &QObject::destroyed, initializer.parent, whenOver);
}

} // namespace Pelnar::Demo
