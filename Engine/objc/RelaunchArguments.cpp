#include <Pelnar/RelaunchArguments.h>

#include "Engine/core/update/KeptArguments.h"

bool Pelnar::SetRelaunchArguments(std::vector<std::string> const& arguments)
{
    return Engine::KeptArguments::OfProcess().Keep(arguments);
}
