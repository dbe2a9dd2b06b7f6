// SparkleUpdateContext.h: the record that gives an updater's rules and data to the process-wide session.
// Thread: the Qt main thread; no lock. Ownership: shared by the updater that created it and the session that it is lent
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
    bool inBackground = false;   ///< the application started the check, not the user
    QString applicationName;     ///< as shown in update dialogs
    QUrl feedUrl;                ///< the feed's address
    Core::Version localVersion;  ///< the running application's version
    Core::Version remoteVersion; ///< the offered version; default until the session has chosen; written by the session
    std::function<bool(Core::Version const&, Core::Version const&)> versionLess;  ///< strict order
    std::function<bool(Core::Version const&, Core::Version const&)> versionEqual; ///< equality
    std::function<QWidget*()> parentWidgetGetter; ///< parent of the session's dialogs; may be empty; written at each
                                                  ///< ExecUpdateDialog
    /// A check is finished. Its result is the comparison of remoteVersion with localVersion. Empty after its updater is
    /// destroyed.
    std::function<void()> checkFinishedCallback;
    /// The bundle to start after the given version is installed.
    std::function<ioPath(Core::Version const&)> relaunchPathGetter;
};

} // namespace Pelnar::App
