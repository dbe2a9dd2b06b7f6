// UpdateManagerTestAccess.h: the way of the tests to a live manager's flow and back end.
// Thread: the Qt main thread.
#pragma once

#include "App/UpdateChecker/UpdateManagerImpl_p.h"

namespace Pelnar::App
{

class UpdateManagerTestAccess
{
public:
    /// REQUIRES: a manager lives.
    static UpdateManager& Manager() { return dynamic_cast<UpdateManager&>(*UpdateManager::GetCurrentUpdateManager()); }
    static UpdateCheckMode CheckMode() { return Manager().impl->checkMode; }
    static AbstractUpdaterImpl& Updater() { return *Manager().impl->updater; }
    static QObject& Flow() { return *Manager().impl; }
};

} // namespace Pelnar::App
