// IUpdateManagerObserver.h: the notifications that a host gets about a check.
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
// Thread: the Qt main thread. Ownership: the host owns the observer. It must live until it is unregistered or its
// manager is destroyed. If one observer unregisters another during a notification, the other still receives this
// notification.
#pragma once

#include "HostFramework/Version.h"
#include "common/Export.h"

namespace Pelnar::App
{

/// In each of these calls the observer may register and unregister observers, call the manager and open its own
/// dialogs. It may also destroy the manager's Qt parent, and the manager with it; no further observer is called then.
/// An exception ends the notification and the check, and propagates to the caller of the dialog.
class PELNAR_EXPORT IUpdateManagerObserver
{
public:
    /// The update dialog will be proposed next. This is also called in a silent check, and when a check that the user
    /// requested found nothing newer. \a current is the running application's version, \a remote the version that the
    /// check reports.
    virtual void OnUpdateFound(Core::Version const& current, Core::Version const& remote) = 0;
    /// The user accepted the update in the dialog. No back end calls this today: the user accepts an update in the
    /// windows of the update framework, and the framework does not report this to its delegate. An exception from here
    /// ends no check.
    virtual void OnUpdateAccepted(Core::Version const& current, Core::Version const& remote) = 0;
    /// The update dialog opens next.
    virtual void OnUpdateDialogOpening() = 0;
    /// The update dialog has returned.
    virtual void OnUpdateDialogClosed() = 0;

    virtual ~IUpdateManagerObserver() = default;
};

} // namespace Pelnar::App
