#include "App/UpdateChecker/SparkleImpl/Choice/RelaunchTarget.h"

#include "App/UpdateChecker/SparkleImpl/Choice/Extensions.h"
#include "App/UpdateChecker/SparkleImpl/Choice/LogSites.h"

#include <QFileInfo>

namespace Pelnar::App::Session
{

std::optional<QString> RelaunchPathAfter(UpdateType type, QVariantMap const& extensions,
                                         std::function<ioPath(Core::Version const&)> const& rule,
                                         Core::Version const& remoteVersion)
{
    if (type == UpdateType::UNKNOWN)
    {
        Core::Write(Sites::RELAUNCH_PATH_TYPE, "Invalid UpdateType");
    }
    if (type != UpdateType::INSTALLER || !rule)
    {
        return std::nullopt;
    }
    QString path = extensions.value(Extensions::KEY_OVERRIDE_PATH_TO_RELAUNCH).toString();
    if (path.isEmpty() || QFileInfo(path).isRelative())
    {
        path = QString::fromStdString(rule(remoteVersion).utf8string());
    }
    Core::Write(Sites::RELAUNCH_PATH_ANSWER, "Relaunch path = " + path.toStdString());
    return path;
}

} // namespace Pelnar::App::Session
