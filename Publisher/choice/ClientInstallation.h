// ClientInstallation.h: a client of a feed, and its installation for the engine's policy. Pure functions.
#pragma once

#include "App/UpdateChecker/SparkleImpl/Choice/Contest.h"
#include "Engine/core/feed/ReleaseRules.h"
#include "HostFramework/Version.h"
#include "Publisher/TextLiterals.h"

#include <vector>

namespace Pelnar::Publisher
{

using App::Session::PreviousAnswer;

/// The client that asks. REQUIRES: a valid local version.
struct Client
{
    Core::Version localVersion;
    Core::Version systemVersion; ///< the invalid version turns system bounds off
    PreviousAnswer previousAnswer = PreviousAnswer::NONE;
};

/// Names a system whose version the client cannot read. Such a client ignores the bounds of items.
constexpr char const* UNKNOWN_SYSTEM = "unknown";

/// A version as text and as the client reads it.
struct NamedVersion
{
    QString text;
    Core::Version version;
};

/// \a version with all four components present.
Core::Version WholeVersion(Core::Version const& version);
/// The version that the session reads in \a text, all four components present; invalid if it reads none.
Core::Version WholeVersion(QString const& text);
/// The present components, such as "5.1".
QString TextOf(Core::Version const& version);

/// \a installation with the version of \a client.
Engine::Installation InstallationOf(Client const& client, Engine::Installation installation);
/// \a installation with the version of \a client. Also adds the keys that \a items name for this version, unless it
/// already has keys, and the versions that lead to other keys.
Engine::Installation InstallationAmong(std::vector<Engine::FeedItem> const& items, Client const& client,
                                       Engine::Installation installation);
/// Negative if the first version is older than the second, positive if it is newer; 0 if they cannot be compared, as in
/// the session's comparator.
int OrderOfTexts(QString const& textA, QString const& textB);
/// The engine's verdict on \a item, or a delta.
Engine::PolicyVerdict PolicyOf(Engine::FeedItem const& item, Engine::Installation const& installation);

} // namespace Pelnar::Publisher
