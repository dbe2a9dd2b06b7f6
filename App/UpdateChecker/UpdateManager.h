// UpdateManager.h: the public entry point. It starts a check; each check has one manager that deletes itself.
//
//     using Pelnar::App::UpdateManager;
//     // The menu's "Check for Updates": the person sees every outcome.
//     UpdateManager::CheckForUpdates(qApp, false, [] { return QApplication::activeWindow(); }, {});
//     // At the start of the application: the person sees an update, and nothing else.
//     UpdateManager::CheckForUpdates(qApp, true, {}, {});
//
// Thread: the thread that runs the event loop of the application object, a Pelnar::App::Application. Ownership: a
// manager is a child of the given parent and deletes itself when its check is over. The host never deletes one.
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

/// One check, from its start to its end. The static operations create it.
class PELNAR_EXPORT UpdateManager : public QObject, public virtual IUpdateManager
{
    Q_OBJECT
    Q_INTERFACES(Pelnar::App::IUpdateManager)

public:
    /// The inputs of a check.
    struct PELNAR_EXPORT Initializer
    {
        /// Everything except the parent has its default value.
        explicit Initializer(QObject* parentOfManager);

        QObject* parent; ///< Qt parent of the manager; may be null
        UpdateCheckMode checkMode = UpdateCheckMode::UserInitiated;
        std::function<QWidget*()> parentWidgetGetter;        ///< parent of the update dialog; empty: the host chooses
        QList<IUpdateManagerObserver*> observers;            ///< registered before the check starts; null entries are
                                                             ///< skipped
        std::shared_ptr<ExternalStimulus::IGateway> gateway; ///< where the dialog is proposed; by default a
                                                             ///< DirectCallGateway
    };

    // The entry points. While a manager exists, each returns immediately and does nothing. An exception at the start of
    // a check propagates to the caller: std::logic_error if the host has no links service or no customization service,
    // and any exception of the host itself. Then the manager is freed, and further checks are ignored for the rest of
    // the process. If the application object is not a Pelnar::App::Application, each call throws std::logic_error and
    // creates no manager.

    /// Starts a check that the user requested, or, if \a automatic is true, the application. The dialog runs
    /// immediately.
    static void CheckForUpdates(QObject* parent, bool automatic, std::function<QWidget*()> parentWidgetGetter,
                                QList<IUpdateManagerObserver*> const& observers);
    /// The same, but the dialog is proposed to \a gateway, which must not be null.
    static void CheckForUpdates(std::shared_ptr<ExternalStimulus::IGateway> const& gateway, QObject* parent,
                                bool automatic, std::function<QWidget*()> parentWidgetGetter,
                                QList<IUpdateManagerObserver*> const& observers);
    /// Starts a check with all inputs from the caller. Only this overload can start a silent check.
    static void CheckForUpdates(Initializer const& initializer);

    /// The existing manager, or null. It is set before the first call to the host. REQUIRES: every check in this
    /// process could start. After a check that could not start, the result is a dangling pointer to the freed manager,
    /// for the rest of the process.
    static IUpdateManager* GetCurrentUpdateManager();

    // See IUpdateManager.
    void RegisterObserver(IUpdateManagerObserver* observer) override;
    void UnregisterObserver(IUpdateManagerObserver* observer) override;
    void RejectUpdateAndHideDialog() override;

private:
    friend class UpdateManagerTestAccess;

    explicit UpdateManager(Initializer const& initializer);
    ~UpdateManager() override;
    /// Takes the host's services and starts the check. The host may destroy this object during the call.
    void Start(QList<IUpdateManagerObserver*> const& firstObservers);

    class PELNAR_PRIVATE Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace Pelnar::App
