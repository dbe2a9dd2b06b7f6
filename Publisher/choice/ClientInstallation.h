// ClientInstallation.h: a client of a feed, and the installation that the engine's policy sees in it. Pure functions.
#pragma once

#include "App/UpdateChecker/SparkleImpl/Choice/Contest.h"
#include "Engine/core/feed/ReleaseRules.h"
#include "HostFramework/Version.h"
#include "common/TextLiterals.h"

#include <vector>

namespace Pelnar::Publisher
{

using App::Session::PreviousAnswer;

/// Who asks. REQUIRES: a valid local version.
struct Client
{
    Core::Version localVersion;
    Core::Version systemVersion; ///< the invalid version switches the bounds of items off
    PreviousAnswer previousAnswer = PreviousAnswer::NONE;
};

/// \a installation with the version of \a client.
Engine::Installation InstallationOf(Client const& client, Engine::Installation installation);
/// \a installation with the version of \a client, with the keys that \a items say this version trusts, unless it has
/// keys already, and with the versions that lead to other keys.
Engine::Installation InstallationAmong(std::vector<Engine::FeedItem> const& items, Client const& client,
                                       Engine::Installation installation);
/// Negative when the first version is older than the second, positive when it is newer; 0 for what cannot be compared,
/// as for the session's comparator.
int OrderOfTexts(QString const& textA, QString const& textB);
/// The engine's verdict on \a item, or a delta.
Engine::PolicyVerdict PolicyOf(Engine::FeedItem const& item, Engine::Installation const& installation);

} // namespace Pelnar::Publisher
