// KeptFeedFile.h: a kept feed as a file; docs/formats/kept-feed.md.
// Thread: any; several processes may use one file at once.
#pragma once

#include "Engine/core/fetch/KeptFeed.h"

#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace Pelnar::Engine
{

/// An application's folder for kept feeds, and its bundle's identifier.
struct FeedFolder
{
    QString path;
    QString bundleIdentifier;
};

std::string EncodeKeptFeed(KeptFeed const& feed, QString const& bundleIdentifier);
/// Nothing for bytes that are no kept feed, one of another application, or one of more than \a maxBytes.
std::optional<KeptFeed> DecodeKeptFeed(std::string_view bytes, QString const& bundleIdentifier, qint64 maxBytes);

/// Nothing without a file that this user alone can have written. May take long.
std::optional<KeptFeed> ReadKeptFeedFile(FeedFolder const& folder, qint64 maxBytes);

/// Has the folder hold \a feed, or none. On the disk when it answers, which may take long. False when that failed,
/// which the log says.
[[nodiscard]] bool WriteKeptFeedFile(FeedFolder const& folder, std::optional<KeptFeed> const& feed);

} // namespace Pelnar::Engine
