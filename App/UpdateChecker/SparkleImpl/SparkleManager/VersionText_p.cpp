#include "App/UpdateChecker/SparkleImpl/SparkleManager/VersionText_p.h"

#include "HostFramework/VersionText.h"

namespace Pelnar::App::Session
{

Core::Version VersionFromStringNoexcept(QString const& text) noexcept
{
    if (text.isEmpty())
    {
        return {};
    }
    return Util::TryVersionFromString(text, QStringLiteral(".")).value_or(Core::Version());
}

} // namespace Pelnar::App::Session
