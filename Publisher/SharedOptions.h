// SharedOptions.h: command-line options that several verbs share, and what they mean. Ownership: the verb owns the
// values, which outlive its command line.
#pragma once

#include "Engine/core/delta/DeltaContainerWriter.h"
#include "Engine/core/feed/FeedParser.h"
#include "Engine/core/feed/ReleaseRules.h"
#include "Publisher/FeedSource.h"
#include "Publisher/choice/ClientInstallation.h"

#include <QJsonObject>

#include <CLI/CLI.hpp>

#include <string>
#include <utility>
#include <vector>

namespace Pelnar::Publisher
{

struct SigningTerms;

/// The installations of a command line, without their versions and systems.
struct InstallationOptions
{
    std::string machine;
    std::string channels;
    int rolloutGroup = 0; ///< from 1; 0 for a person who asks
    std::string moment;
    std::vector<std::string> publicKeys; ///< empty: those that the feed names for a version
};

/// A feed, and the clients about which a verb is asked.
struct FeedQuestion
{
    std::string feed;
    std::string publishedAt;
    Engine::FeedPlatform platform = Engine::FeedPlatform::Linux; ///< of this program
    InstallationOptions installation;
    bool isJson = false;
};

/// "FEED".
void AddFeedOption(CLI::App& verb, std::string& feed);
/// "--platform"; the default is the current value of \a platform.
void AddPlatformOption(CLI::App& verb, Engine::FeedPlatform& platform);
/// "--published-at".
void AddPublishedAtOption(CLI::App& verb, std::string& address);
/// "--platform", "--machine", "--channels", "--at", "--published-at" and "--json".
void AddClientOptions(CLI::App& verb, FeedQuestion& question);
/// "--rollout-group".
void AddRolloutGroupOption(CLI::App& verb, InstallationOptions& options);

/// "--machine", which may be repeated; \a otherwise describes the effect without it.
void AddMachineOption(CLI::App& verb, std::vector<std::string>& names, std::string const& otherwise);
/// An option for public keys, which may be repeated.
CLI::Option& AddKeysOption(CLI::App& verb, char const* name, std::vector<std::string>& keys,
                           std::string const& description);
/// For CLI::Option::check: a message unless \a text is an Ed25519 key.
std::string FaultOfKey(std::string const& text);
/// "--key-statement", the name of a file.
void AddKeyStatementOption(CLI::App& verb, std::string& file);
/// "--valid-for" and "--serial"; \a terms contain the defaults.
void AddSigningOptions(CLI::App& verb, SigningTerms& terms);
/// "--effort"; \a effort contains the default.
void AddEffortOption(CLI::App& verb, Engine::DeltaEffort& effort);

/// Adds an option whose value has one of the names in \a choices. \a value contains the default.
template <class T>
void AddChoiceOption(CLI::App& verb, char const* name, T& value, std::vector<std::pair<std::string, T>> const& choices,
                     std::string const& description)
{
    std::vector<std::string> names;
    std::string usual;
    for (auto const& [choice, meaning] : choices)
    {
        names.push_back(choice);
        usual = meaning == value ? choice : usual;
    }
    verb.add_option_function<std::string>(
            name,
            [&value, choices](std::string const& text)
            {
                for (auto const& [choice, meaning] : choices)
                {
                    value = choice == text ? meaning : value;
                }
            },
            description)
        ->check(CLI::IsMember(names))
        ->default_str(usual);
}

/// Throws Refusal.
[[nodiscard]] Engine::Installation InstallationOf(InstallationOptions const& options);
/// The members "machine", "channels" and "rolloutGroup" in the JSON of several verbs.
void AddInstallation(QJsonObject& object, InstallationOptions const& options);

/// Throws Refusal for a text that is not a version. \a option is named in the message.
[[nodiscard]] NamedVersion ParseLocalVersion(QString const& option, QString const& text);
/// As ParseLocalVersion; "unknown" is the invalid version.
[[nodiscard]] NamedVersion ParseSystemVersion(QString const& option, QString const& text);
/// A list of entries with commas between them, each read by one of the two functions above. Throws Refusal for an empty
/// entry.
[[nodiscard]] std::vector<NamedVersion> ParseVersionList(QString const& option, std::string const& text,
                                                         NamedVersion (*parse)(QString const&, QString const&));

struct ParsedFeed
{
    FeedBytes source;
    std::vector<Engine::FeedItem> items;
};

/// Reads and parses \a feed, that of \a question or another one, as clients on \a machine do. Throws Refusal.
[[nodiscard]] ParsedFeed ReadItems(FeedQuestion const& question, std::string const& feed, QString const& machine,
                                   Console const& console);

} // namespace Pelnar::Publisher
