// FeedOptions.h: the options of a command line that several verbs about feeds share.
// Ownership: the values are the verb's and outlive its command line.
#pragma once

#include "Engine/core/feed/ReleaseRules.h"

#include <QJsonObject>

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

namespace Pelnar::Publisher
{

/// "--platform"; the value that \a platform has is the default.
void AddPlatformOption(CLI::App& verb, std::string& platform);
/// What a command line says of the installations that it asks about, beside their versions and systems.
struct InstallationOptions
{
    std::string machine;
    std::string channels;
    int rolloutGroup = 0; ///< from 1; 0 for a person who asks
    std::string moment;
    std::vector<std::string> publicKeys; ///< empty: what the feed says that a version trusts
};

/// "--machine", "--channels" and "--at".
void AddInstallationOptions(CLI::App& verb, InstallationOptions& options);
/// "--rollout-group".
void AddRolloutGroupOption(CLI::App& verb, InstallationOptions& options);
/// Throws Refusal.
[[nodiscard]] Engine::Installation InstallationOf(InstallationOptions const& options);
/// The members "machine", "channels" and "rolloutGroup" that the JSON of several verbs has.
void AddInstallation(QJsonObject& object, InstallationOptions const& options);

/// "--published-at".
void AddPublishedAtOption(CLI::App& verb, std::string& address);

} // namespace Pelnar::Publisher
