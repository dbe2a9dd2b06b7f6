// FeedRecordFile.h: what is remembered of a feed, as a file; docs/formats/signed-feed.md.
// Thread: any; several processes may keep records in one file at once. Ownership: values only.
#pragma once

#include "Engine/core/check/FeedRecord.h"

#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace Pelnar::Engine
{

std::string EncodeFeedRecord(FeedRecord const& record);
/// Nothing for bytes that are no record.
std::optional<FeedRecord> DecodeFeedRecord(std::string_view bytes);

/// The file of the application that is called \a bundleIdentifier, in \a folder.
QString FeedRecordPath(QString const& folder, QString const& bundleIdentifier);

/// Nothing without a file that can be read.
std::optional<FeedRecord> ReadFeedRecordFile(QString const& path);

/// Has the file at \a path hold \a ours, or what another process stored if FeedRecordToKeep() says so; \a earlier is
/// what was remembered elsewhere, before there was such a file. On the disk when it answers, which may take long. False
/// when that failed, which the log says.
[[nodiscard]] bool KeepFeedRecordFile(QString const& path, FeedRecord const& earlier, FeedRecord const& ours);

} // namespace Pelnar::Engine
