// FeedOptions.h: command-line options that several verbs for feeds share. Ownership: the verb owns the values, which
// outlive its command line.
#pragma once

#include "Engine/core/feed/ReleaseRules.h"

#include <QJsonObject>

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

namespace Pelnar::Publisher
{

/// "--platform"; the default is the current value of \a platform.
void AddPlatformOption(CLI::App& verb, std::string& platform);
/// The installations of a command line, without their versions and systems.
struct InstallationOptions
{
    std::string machine;
    std::string channels;
    int rolloutGroup = 0; ///< from 1; 0 for a person who asks
    std::string moment;
    std::vector<std::string> publicKeys; ///< empty: those that the feed names for a version
};

/// "--machine", "--channels" and "--at".
void AddInstallationOptions(CLI::App& verb, InstallationOptions& options);
/// "--rollout-group".
void AddRolloutGroupOption(CLI::App& verb, InstallationOptions& options);
/// Throws Refusal.
[[nodiscard]] Engine::Installation InstallationOf(InstallationOptions const& options);
/// The members "machine", "channels" and "rolloutGroup" in the JSON of several verbs.
void AddInstallation(QJsonObject& object, InstallationOptions const& options);

/// "--published-at".
void AddPublishedAtOption(CLI::App& verb, std::string& address);

} // namespace Pelnar::Publisher
