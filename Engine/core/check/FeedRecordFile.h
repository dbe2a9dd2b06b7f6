// FeedRecordFile.h: the record of a feed as a file; docs/formats/signed-feed.md.
// Thread: any; several processes may use one file at the same time.
#pragma once

#include "Engine/core/check/FeedRecord.h"

#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace Pelnar::Engine
{

std::string EncodeFeedRecord(FeedRecord const& record);
/// Empty for bytes that are not a record.
std::optional<FeedRecord> DecodeFeedRecord(std::string_view bytes);

/// The file of the application with \a bundleIdentifier, in \a folder.
QString FeedRecordPath(QString const& folder, QString const& bundleIdentifier);

/// Empty without a readable file.
std::optional<FeedRecord> ReadFeedRecordFile(QString const& path);

/// Stores \a ours in the file at \a path, or the other process's record if FeedRecordToKeep() selects it. \a earlier is
/// a record from another place, from before this file existed. The record is on the disk on return, which may take
/// long. Returns false and logs the reason if this failed.
[[nodiscard]] bool KeepFeedRecordFile(QString const& path, FeedRecord const& earlier, FeedRecord const& ours);

} // namespace Pelnar::Engine
