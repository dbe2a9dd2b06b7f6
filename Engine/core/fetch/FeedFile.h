// FeedFile.h: the bytes of a feed that is a file of this computer.
// Thread: any; it waits for the disk.
#pragma once

#include "Engine/core/faults/Result.h"

#include <QByteArray>
#include <QUrl>

namespace Pelnar::Engine
{

/// Fails for what is not a regular file and for more than \a maxBytes. REQUIRES: JudgeFeedAddress accepts \a url, and
/// it is a local file's.
[[nodiscard]] Result<QByteArray> ReadFeedFile(QUrl const& url, qint64 maxBytes);

} // namespace Pelnar::Engine
