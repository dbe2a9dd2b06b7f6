#include "App/UpdateChecker/SparkleImpl/Choice/Extensions.h"

namespace Pelnar::App::Session
{

namespace Extensions
{

// Each is built from the previous one, at load time and in this order.
QString const VERSION = QStringLiteral("1");
QString const PREFIX = QStringLiteral("pelnar") + VERSION + QStringLiteral("_");
QString const KEY_OVERRIDE_PATH_TO_RELAUNCH = (PREFIX + QStringLiteral("OverridePathToRelaunch")).toUpper();

} // namespace Extensions

std::optional<QString> ExtensionKey(QString const& name)
{
    QString const key = name.toUpper();
    if (!key.startsWith(Extensions::PREFIX, Qt::CaseInsensitive))
    {
        return std::nullopt;
    }
    return key;
}

} // namespace Pelnar::App::Session
