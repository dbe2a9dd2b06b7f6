// ClientOptions.h: the versions and platforms of clients on a command line.
#pragma once

#include "Engine/core/feed/FeedParser.h"
#include "HostFramework/Version.h"
#include "Publisher/Console.h"
#include "Publisher/FeedSource.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace Pelnar::Publisher
{

/// Names a system whose version the client cannot read. Such a client ignores the bounds of items.
constexpr char const* UNKNOWN_SYSTEM = "unknown";

/// A version as text and as the client reads it.
struct NamedVersion
{
    QString text;
    Core::Version version;
};

/// Throws Refusal for a text that is not a version. \a option is named in the message.
[[nodiscard]] NamedVersion ParseLocalVersion(QString const& option, QString const& text);
/// As ParseLocalVersion; "unknown" is the invalid version.
[[nodiscard]] NamedVersion ParseSystemVersion(QString const& option, QString const& text);
/// A list of entries with commas between them, each read by one of the two functions above. Throws Refusal for an empty
/// entry.
[[nodiscard]] std::vector<NamedVersion> ParseVersionList(QString const& option, QString const& text,
                                                         NamedVersion (*parse)(QString const&, QString const&));

/// The names of platforms on a command line, in the order of the help text.
std::vector<std::string> PlatformNames();
/// REQUIRES: one of PlatformNames().
[[nodiscard]] Engine::FeedPlatform PlatformFromName(QString const& name);
/// The platform that this program runs on.
QString OwnPlatformName();

struct ParsedFeed
{
    FeedBytes source;
    std::vector<Engine::FeedItem> items;
};

/// Reads and parses a feed as a client does. Throws Refusal.
[[nodiscard]] ParsedFeed ReadItems(QString const& name, QString const& publishedAt, Engine::FeedTarget const& target,
                                   Console const& console);

} // namespace Pelnar::Publisher
