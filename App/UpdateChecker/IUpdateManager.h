// IUpdateManager.h: the update manager of the running check, as the host sees it.
//
//     if (Pelnar::App::IUpdateManager* const manager = Pelnar::App::UpdateManager::GetCurrentUpdateManager())
//     {
//         manager->RejectUpdateAndHideDialog(); // the host needs the screen for itself
//     }
//
// Thread: the Qt main thread. Ownership: the manager deletes itself. Call UpdateManager::GetCurrentUpdateManager() each
// time and do not keep the pointer.
#pragma once

#include "common/Export.h"

#include <QtPlugin>

namespace Pelnar::App
{

class IUpdateManagerObserver;

class PELNAR_EXPORT IUpdateManager
{
public:
    /// Adds \a observer at the end. Null and an observer that is already registered are ignored.
    virtual void RegisterObserver(IUpdateManagerObserver* observer) = 0;
    /// Removes \a observer. Null and an unknown observer are ignored.
    virtual void UnregisterObserver(IUpdateManagerObserver* observer) = 0;
    /// Closes the dialog of the running check, as if the user had dismissed it. Without a dialog it does nothing.
    virtual void RejectUpdateAndHideDialog() = 0;
    virtual ~IUpdateManager() = default;
};

} // namespace Pelnar::App

Q_DECLARE_INTERFACE(Pelnar::App::IUpdateManager, "IUpdateManager")
