// RelaunchTarget.h: which bundle is started after an installation. Plain C++, private to the session.
// Thread: the Qt main thread.
#pragma once

#include "App/UpdateChecker/SparkleImpl/Choice/UpdateType.h"
#include "HostFramework/IoPath.h"
#include "HostFramework/Version.h"

#include <QString>
#include <QVariantMap>

#include <functional>
#include <optional>

namespace Pelnar::App::Session
{

/// The path to start after an installer has installed \a remoteVersion: the feed's own path if it is absolute,
/// otherwise \a rule's. Empty if the running bundle must be started: for every other kind of update, or without a rule.
/// Writes the records of its findings; reads no file.
std::optional<QString> RelaunchPathAfter(UpdateType type, QVariantMap const& extensions,
                                         std::function<ioPath(Core::Version const&)> const& rule,
                                         Core::Version const& remoteVersion);

} // namespace Pelnar::App::Session
