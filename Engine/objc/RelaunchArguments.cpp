#include <Pelnar/HostRequests_p.h>

#include "Engine/core/update/KeptArguments.h"

bool Pelnar::Engine::KeepRelaunchArguments(std::vector<std::string> const& arguments)
{
    return KeptArguments::OfProcess().Keep(arguments);
}
