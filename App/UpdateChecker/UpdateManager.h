// UpdateManager.h: the public front: starts a check; one self-deleting manager lives for each.
//
//     using Pelnar::App::UpdateManager;
//     // The menu's "Check for Updates": the person sees every outcome.
//     UpdateManager::CheckForUpdates(qApp, false, [] { return QApplication::activeWindow(); }, {});
//     // At the start of the application: the person sees an update, and nothing else.
//     UpdateManager::CheckForUpdates(qApp, true, {}, {});
//
// Thread: the one that runs the event loop of the application object, a Pelnar::App::Application. Ownership: a manager
// is a child of the given parent and deletes itself when its check is over; the host deletes none.
#pragma once

#include "App/UpdateChecker/IUpdateManager.h"
#include "App/UpdateChecker/UpdateCheckMode.h"
#include "common/Export.h"
#include "common/IGateway.h"

#include <QList>
#include <QObject>

#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Pelnar::App
{

class PELNAR_EXPORT UpdateManager : public QObject, public virtual IUpdateManager
{
    Q_OBJECT
    Q_INTERFACES(Pelnar::App::IUpdateManager)

public:
    /// What a check is started with.
    struct PELNAR_EXPORT Initializer
    {
        /// Everything but the parent at its default.
        explicit Initializer(QObject* parentOfManager);

        QObject* parent; ///< Qt parent of the manager; may be null
        UpdateCheckMode checkMode = UpdateCheckMode::UserInitiated;
        std::function<QWidget*()> parentWidgetGetter;        ///< parent of the update dialog; empty: the host's choice
        QList<IUpdateManagerObserver*> observers;            ///< registered before the check starts; nulls are skipped
        std::shared_ptr<ExternalStimulus::IGateway> gateway; ///< where the dialog is proposed; a DirectCallGateway
    };

    // The entry points. While a manager lives each of them returns at once and does nothing. What the start of a check
    // throws leaves here: std::logic_error when the host has no links or no customization service, and what the host
    // throws itself. The manager is freed then, and further checks are dropped for the rest of the process. Where the
    // application object is no Pelnar::App::Application, each call throws std::logic_error and no manager is made.

    /// A check started by the user, or, when \a automatic, by the application; the dialog is run at once.
    static void CheckForUpdates(QObject* parent, bool automatic, std::function<QWidget*()> parentWidgetGetter,
                                QList<IUpdateManagerObserver*> const& observers);
    /// The same, with the dialog proposed to \a gateway, which must not be null.
    static void CheckForUpdates(std::shared_ptr<ExternalStimulus::IGateway> const& gateway, QObject* parent,
                                bool automatic, std::function<QWidget*()> parentWidgetGetter,
                                QList<IUpdateManagerObserver*> const& observers);
    /// A check with everything the caller filled in; the only way to a silent one.
    static void CheckForUpdates(Initializer const& initializer);

    /// The live manager, or null. It is set before the host is first called. REQUIRES: no check has failed to start in
    /// this process; after one the answer points to the manager that was freed, and stays what it is.
    static IUpdateManager* GetCurrentUpdateManager();

    void RegisterObserver(IUpdateManagerObserver* observer) override;
    void UnregisterObserver(IUpdateManagerObserver* observer) override;
    void RejectUpdateAndHideDialog() override;

private:
    friend class UpdateManagerTestAccess;

    explicit UpdateManager(Initializer const& initializer);
    ~UpdateManager() override;
    /// Takes the host's services and starts the check. The host may destroy this object meanwhile.
    void Start(QList<IUpdateManagerObserver*> const& firstObservers);

    class PELNAR_PRIVATE Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace Pelnar::App
