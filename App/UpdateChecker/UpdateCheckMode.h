// UpdateCheckMode.h: who started a check, and so how much of it the user sees.
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
    UserInitiated = 0, ///< the user requested it: every result leads to the update dialog
    Automatic = 1,     ///< the application started it: dialogs appear only if there is an update
    Silent = 2,        ///< observers are notified, no dialog appears
};

} // namespace Pelnar::App
