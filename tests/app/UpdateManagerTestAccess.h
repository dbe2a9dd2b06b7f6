// UpdateManagerTestAccess.h: gives tests access to the flow and the back end of the current manager.
// Thread: the Qt main thread.
#pragma once

#include "App/UpdateChecker/UpdateManagerImpl_p.h"

namespace Pelnar::App
{

class UpdateManagerTestAccess
{
public:
    /// REQUIRES: there is a current manager.
    static UpdateManager& Manager() { return dynamic_cast<UpdateManager&>(*UpdateManager::GetCurrentUpdateManager()); }
    static UpdateCheckMode CheckMode() { return Manager().impl->checkMode; }
    static AbstractUpdaterImpl& Updater() { return *Manager().impl->updater; }
    static QObject& Flow() { return *Manager().impl; }
};

} // namespace Pelnar::App
