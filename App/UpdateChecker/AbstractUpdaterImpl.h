// AbstractUpdaterImpl.h: the interface of a back end. A back end finds updates and shows the update dialog; the update
// flow drives it.
// Thread: the Qt main thread, which owns the object. Ownership: the flow controller owns it; it has no Qt parent.
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

    /// Starts a check and returns immediately. Exactly one NotifyCheckFinished follows. It comes inside this call only
    /// if the back end cannot start a check.
    virtual void CheckForUpdates() = 0;
    /// The version that the last check found. It is the default value until a check has finished.
    virtual Core::Version GetRemoteVersion() const = 0;
    /// Shows the user interface of the update that was just found. \a parentGetter may be empty. It is called at most
    /// once for each dialog and may return null.
    virtual void ExecUpdateDialog(std::function<QWidget*()> const& parentGetter) = 0;
    /// Withdraws the offered update and closes its dialog if one is open.
    virtual void RejectUpdateAndHideDialog() = 0;

Q_SIGNALS:
    /// Reports the result of a check, or that the check could not start.
    void NotifyCheckFinished(UpdateCheckResult result);
    /// Reports that the user accepted an offered update.
    void NotifyUserAcceptUpdate();
};

} // namespace Pelnar::App
