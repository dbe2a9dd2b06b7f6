#include "App/UpdateChecker/SparkleImpl/Choice/UpdateType.h"

namespace Pelnar::App::Session
{

QList<UpdateType> const UPDATE_TYPE_PRIORITIES_FOR_MAJOR_UPDATE = {UpdateType::INSTALLER, UpdateType::DELTA,
                                                                   UpdateType::BUNDLE, UpdateType::UNKNOWN};
QList<UpdateType> const UPDATE_TYPE_PRIORITIES_FOR_MINOR_UPDATE = {UpdateType::DELTA, UpdateType::BUNDLE,
                                                                   UpdateType::INSTALLER, UpdateType::UNKNOWN};

UpdateType DetectUpdateType(bool isDelta, QString const& fileName)
{
    if (isDelta)
    {
        return UpdateType::DELTA;
    }
    if (fileName.contains(QLatin1String(".sparkle_guided.")) || fileName.contains(QLatin1String(".sparkle_interactive.")))
    {
        return UpdateType::INSTALLER;
    }
    return UpdateType::BUNDLE;
}

} // namespace Pelnar::App::Session
