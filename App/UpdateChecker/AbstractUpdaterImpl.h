// AbstractUpdaterImpl.h: the back end that the update flow drives: it finds updates and shows the update dialog.
// Thread: the one that owns the object, the Qt main thread. Ownership: the flow controller owns it; no Qt parent.
#pragma once

#include "App/UpdateChecker/UpdateCheckResult.h"
#include "HostFramework/Version.h"
#include "common/Export.h"

#include <QObject>

#include <functional>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Pelnar::App
{

class PELNAR_EXPORT AbstractUpdaterImpl : public QObject
{
    Q_OBJECT

public:
    AbstractUpdaterImpl();
    ~AbstractUpdaterImpl() override;

    /// Starts a check and returns at once; exactly one NotifyCheckFinished follows, inside this call only when the back
    /// end cannot start a check.
    virtual void CheckForUpdates() = 0;
    /// The version that the last check found offered; the default value before any check has finished.
    virtual Core::Version GetRemoteVersion() const = 0;
    /// Shows the user interface of the update just found. \a parentGetter may be empty; it is called at most once for a
    /// dialog and may answer null.
    virtual void ExecUpdateDialog(std::function<QWidget*()> const& parentGetter) = 0;
    /// Withdraws the offered update and closes the dialog that is shown, if any.
    virtual void RejectUpdateAndHideDialog() = 0;

Q_SIGNALS:
    /// A check has an outcome, or could not start.
    void NotifyCheckFinished(UpdateCheckResult result);
    /// The user has accepted an offered update.
    void NotifyUserAcceptUpdate();
};

} // namespace Pelnar::App
