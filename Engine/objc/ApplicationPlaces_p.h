// ApplicationPlaces_p.h: the folders with the engine's files of an application: archives and feeds, which can be
// downloaded again, and files that must outlive a cleared cache. Plain C++.
// Thread: main.
#pragma once

#include <QString>

namespace Pelnar::Engine
{

/// The folder of the application \a bundleIdentifier in the person's cache. Files of earlier versions are moved into
/// it, and their records of installations into the state folder.
QString DownloadFolderOf(QString const& bundleIdentifier);

/// In the person's state folder: the records of feeds and of installations.
QString StateFolderOf(QString const& bundleIdentifier);

/// The file of the feed's record. Empty, with a log line, if another user could replace the file.
QString FeedRecordFileOf(QString const& bundleIdentifier);

} // namespace Pelnar::Engine
