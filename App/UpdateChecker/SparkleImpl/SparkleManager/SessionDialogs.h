// SessionDialogs.h: the two dialogs of the session itself. Plain C++, private to the session.
// Thread: the Qt main thread; each runs a nested event loop. Ownership: a dialog lives as long as its call. If its
// parent is destroyed meanwhile, it counts as dismissed.
#pragma once

#include "HostFramework/Version.h"

#include <QString>

#include <functional>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Pelnar::App::Session
{

/// While a dialog runs, \a closeDialog closes it; afterwards \a closeDialog has its previous value.
void ShowUpdateError(QString const& text, QWidget* parent, std::function<void()>& closeDialog);

enum class ReadyToInstallAnswer
{
    SkipThisVersion,
    InstallAndRelaunch,
    RemindLater, ///< also if the dialog was closed in any other way
};

/// Asks whether the downloaded \a version of \a applicationName may be installed now. \a closeDialog as above.
[[nodiscard]] ReadyToInstallAnswer AskReadyToInstall(QString const& applicationName, Core::Version const& version,
                                                     QWidget* parent, std::function<void()>& closeDialog);

} // namespace Pelnar::App::Session
