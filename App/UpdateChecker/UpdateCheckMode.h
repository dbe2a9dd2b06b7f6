// UpdateCheckMode.h: how a check was started, and so how much of it the user may see.
//
//     Pelnar::App::UpdateManager::Initializer initializer(qApp);
//     initializer.checkMode = Pelnar::App::UpdateCheckMode::Silent;
//     Pelnar::App::UpdateManager::CheckForUpdates(initializer);
#pragma once

#include <cstdint>

namespace Pelnar::App
{

enum class UpdateCheckMode : std::int32_t
{
    UserInitiated = 0, ///< the user asked: every outcome leads to the update dialog
    Automatic = 1,     ///< the application started it: dialogs only when there is an update
    Silent = 2,        ///< observers are told, nothing is shown
};

} // namespace Pelnar::App
