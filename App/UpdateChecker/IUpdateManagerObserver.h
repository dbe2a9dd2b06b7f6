// IUpdateManagerObserver.h: what the host's observers of a check are told.
//
//     class FoundVersion : public Pelnar::App::IUpdateManagerObserver
//     {
//     public:
//         void OnUpdateFound(Pelnar::Core::Version const&, Pelnar::Core::Version const& remote) override
//         {
//             version = remote;
//         }
//         void OnUpdateAccepted(Pelnar::Core::Version const&, Pelnar::Core::Version const&) override {}
//         void OnUpdateDialogOpening() override {}
//         void OnUpdateDialogClosed() override {}
//
//         Pelnar::Core::Version version;
//     };
//
// Thread: the Qt main thread. Ownership: the host's; an observer is unregistered, or its manager is gone, before it
// dies. One that is unregistered by another within a notification is still called in it.
#pragma once

#include "HostFramework/Version.h"
#include "common/Export.h"

namespace Pelnar::App
{

/// In each of these the observer may register and unregister observers, call the manager, start dialogs of its own and
/// destroy the manager's Qt parent, and the manager with it: nobody is called after that. An exception ends the
/// notification and the check, and propagates to the caller of the dialog.
class PELNAR_EXPORT IUpdateManagerObserver
{
public:
    /// The update dialog is about to be proposed; also in a silent check, and also when a check that the user asked for
    /// found nothing newer. \a current is the running application's version, \a remote the one that the check reports.
    virtual void OnUpdateFound(Core::Version const& current, Core::Version const& remote) = 0;
    /// The user accepted the update in the dialog. No back end announces this today: an update is accepted in the
    /// windows of the update framework, which tells its delegate of no such moment. What it throws ends no check.
    virtual void OnUpdateAccepted(Core::Version const& current, Core::Version const& remote) = 0;
    /// The update dialog is about to be executed.
    virtual void OnUpdateDialogOpening() = 0;
    /// The update dialog has returned.
    virtual void OnUpdateDialogClosed() = 0;

    virtual ~IUpdateManagerObserver() = default;
};

} // namespace Pelnar::App
