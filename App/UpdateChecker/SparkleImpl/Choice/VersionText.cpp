#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"

#include "HostFramework/VersionText.h"

namespace Pelnar::App::Session
{

Core::Version VersionFromStringNoexcept(QString const& text) noexcept
{
    if (text.isEmpty())
    {
        return {};
    }
    try
    {
        return Util::VersionFromString(text, QStringLiteral("."));
    }
    catch (...)
    {
        return {};
    }
}

} // namespace Pelnar::App::Session
