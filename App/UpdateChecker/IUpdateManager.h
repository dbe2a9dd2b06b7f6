// IUpdateManager.h: the live update manager, as the host sees it while a check runs.
//
//     if (Pelnar::App::IUpdateManager* const manager = Pelnar::App::UpdateManager::GetCurrentUpdateManager())
//     {
//         manager->RejectUpdateAndHideDialog(); // the host needs the screen for itself
//     }
//
// Thread: the Qt main thread. Ownership: the manager deletes itself; take the pointer from
// UpdateManager::GetCurrentUpdateManager() each time and do not keep it.
#pragma once

#include "common/Export.h"

#include <QtPlugin>

namespace Pelnar::App
{

class IUpdateManagerObserver;

class PELNAR_EXPORT IUpdateManager
{
public:
    /// Adds \a observer at the end; null and an observer that is registered already are ignored.
    virtual void RegisterObserver(IUpdateManagerObserver* observer) = 0;
    /// Removes \a observer; null and an unknown one are ignored.
    virtual void UnregisterObserver(IUpdateManagerObserver* observer) = 0;
    /// Closes the dialog that the running check shows, if any, as if the user had dismissed it.
    virtual void RejectUpdateAndHideDialog() = 0;
    virtual ~IUpdateManager() = default;
};

} // namespace Pelnar::App

Q_DECLARE_INTERFACE(Pelnar::App::IUpdateManager, "IUpdateManager")
