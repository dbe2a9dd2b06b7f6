#include "App/UpdateChecker/SparkleImpl/Choice/SessionRecords.h"

#include <string>

namespace Pelnar::App::Session
{

void WriteCurrentState(Core::LogSite const& site, State state)
{
    if (Core::IsEnabled(site))
    {
        Core::Write(site, std::string("Current state = ") + StateName(state));
    }
}

void WriteUnspecifiedState(Core::LogSite const& site, State state)
{
    Core::Write(site, std::string("!!! ACHTUNG !!! This function is not specified for State = ") + StateName(state));
}

} // namespace Pelnar::App::Session
