#include "Demo/DemoBundle.h"

#include "Demo/EngineDefaults.h"
#include "Foundation/RunningBundle.h"
#include "HostFramework/VersionText.h"

#include <stdexcept>

namespace Pelnar::Demo
{

bool RunsFromBundle()
{
    return !Foundation::InformationFileOfRunningBundle().isEmpty();
}

std::optional<App::Customization> ReadBundle()
{
    if (!RunsFromBundle())
    {
        return std::nullopt;
    }
    QString const versionText = BundleText(QStringLiteral("CFBundleVersion"));
    App::Customization customization;
    try
    {
        customization.applicationVersion = Util::VersionFromString(versionText, QStringLiteral("."));
    }
    catch (std::invalid_argument const&)
    {
        throw std::runtime_error("the bundle's CFBundleVersion \"" + versionText.toStdString() + "\" is not a version");
    }
    customization.displayName = BundleText(QStringLiteral("CFBundleName")).toStdString();
    customization.bundleNameFirstPart = "Pelnar";
    customization.bundleNameSecondPart = "Demo";
    return customization;
}

} // namespace Pelnar::Demo
