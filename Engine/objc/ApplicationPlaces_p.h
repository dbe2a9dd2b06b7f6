// ApplicationPlaces_p.h: the folders in which the engine keeps what belongs to an application: archives and feeds that
// can be had again, and what must outlive a cleared cache. Plain C++.
// Thread: main. Ownership: values only.
#pragma once

#include <QString>

namespace Pelnar::Engine
{

/// Of the application \a bundleIdentifier, in the person's cache. What versions before this one left in their place
/// there is moved into it, and their records of installations into the other folder.
QString DownloadFolderOf(QString const& bundleIdentifier);

/// In the person's state: what is known of feeds and of installations.
QString StateFolderOf(QString const& bundleIdentifier);

/// The file of what is known of the feed; empty, which the log says, where somebody else could put another one in its
/// place.
QString FeedRecordFileOf(QString const& bundleIdentifier);

} // namespace Pelnar::Engine
