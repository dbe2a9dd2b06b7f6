// CheckRun.h: what both demo hosts do with a check: start it, name its parts in text, notice its end.
// Thread: the Qt main thread. Ownership: nothing is kept.
#pragma once

#include "App/UpdateChecker/UpdateManager.h"
#include "HostFramework/Version.h"

#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

namespace Pelnar::Demo
{

/// "user", "automatic" or "silent"; nothing for any other text.
std::optional<App::UpdateCheckMode> ModeFromText(QString const& text);

/// An address when \a text has the form of one ("https://…"), else the file: address of the path \a text, made
/// absolute.
QUrl FeedAddress(QString const& text);

/// The version as it is written, "none" for the invalid one.
QString TextOf(Core::Version const& version);

/// Starts a check; \a whenOver is called once, when its manager has been destroyed, or at once when another check still
/// runs. REQUIRES: initializer.parent is not null and outlives the check.
void StartCheck(App::UpdateManager::Initializer const& initializer, std::function<void()> const& whenOver);

} // namespace Pelnar::Demo
