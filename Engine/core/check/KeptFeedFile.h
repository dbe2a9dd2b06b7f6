// KeptFeedFile.h: a kept feed as a file; docs/formats/kept-feed.md.
// Thread: any; several processes may use one file at the same time.
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
/// Empty for bytes that are not a kept feed, belong to another application, or have a feed of more than \a maxBytes.
std::optional<KeptFeed> DecodeKeptFeed(std::string_view bytes, QString const& bundleIdentifier, qint64 maxBytes);

/// Empty unless there is a file that only this user can have written. May take long.
std::optional<KeptFeed> ReadKeptFeedFile(FeedFolder const& folder, qint64 maxBytes);

/// Stores \a feed in the folder, or removes the file. The change is on the disk on return, which may take long. Returns
/// false and logs the reason if this failed.
[[nodiscard]] bool WriteKeptFeedFile(FeedFolder const& folder, std::optional<KeptFeed> const& feed);

} // namespace Pelnar::Engine
