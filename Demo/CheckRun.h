// CheckRun.h: the common handling of a check in both demo hosts: start it, convert its values from and to text, notice
// its end.
// Thread: the Qt main thread.
#pragma once

#include "App/UpdateChecker/UpdateManager.h"
#include "HostFramework/Version.h"

#include <QString>
#include <QUrl>

#include <functional>

namespace Pelnar::Demo
{

/// An address if \a text has the form of one ("https://…"), otherwise the file: address of the path \a text, made
/// absolute.
QUrl FeedAddress(QString const& text);

/// The version as text; "none" for the invalid one.
QString TextOf(Core::Version const& version);

/// Starts a check. \a whenOver is called once, when its manager has been destroyed, or immediately if another check
/// still runs. REQUIRES: initializer.parent is not null and outlives the check.
void StartCheck(App::UpdateManager::Initializer const& initializer, std::function<void()> const& whenOver);

} // namespace Pelnar::Demo
