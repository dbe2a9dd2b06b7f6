#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/RelaunchPath_p.h"

namespace Pelnar::App
{
namespace
{

constexpr std::int32_t FIRST_NUMBERED_MAJOR = 2;

} // namespace

ioPath RelaunchPathFor(std::string const& bundleNameFirstPart, std::string const& bundleNameSecondPart,
                       Core::Version const& version)
{
    std::string suffix;
    if (version.Major() >= FIRST_NUMBERED_MAJOR)
    {
        suffix = " " + std::to_string(version.Major());
    }
    return ioPath("/Applications/" + bundleNameFirstPart + " " + bundleNameSecondPart + suffix + ".app");
}

} // namespace Pelnar::App
