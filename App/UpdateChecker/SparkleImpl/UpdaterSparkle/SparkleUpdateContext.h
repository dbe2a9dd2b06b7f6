// SparkleUpdateContext.h: the record through which an updater lends its policy and data to the process-wide session.
// Thread: the Qt main thread; no lock. Ownership: shared by the updater that made it and the session that it is lent
// to.
#pragma once

#include "HostFramework/IoPath.h"
#include "HostFramework/Version.h"

#include <QString>
#include <QUrl>

#include <functional>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Pelnar::App
{

struct SparkleUpdateContext
{
    bool inBackground = false;   ///< started by the application, not by the user
    QString applicationName;     ///< as shown in update dialogs
    QUrl feedUrl;                ///< the feed's address
    Core::Version localVersion;  ///< the running application's
    Core::Version remoteVersion; ///< the offered one; default until the session has chosen; written by the session
    std::function<bool(Core::Version const&, Core::Version const&)> versionLess;  ///< strict order
    std::function<bool(Core::Version const&, Core::Version const&)> versionEqual; ///< equality
    std::function<QWidget*()> parentWidgetGetter; ///< parent of the session's dialogs; may be empty; written at each
                                                  ///< ExecUpdateDialog
    /// A check has an outcome: that of comparing remoteVersion with localVersion. Emptied when its updater dies.
    std::function<void()> checkFinishedCallback;
    /// The bundle to start after the given version has been installed.
    std::function<ioPath(Core::Version const&)> relaunchPathGetter;
};

} // namespace Pelnar::App
