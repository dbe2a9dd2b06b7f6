// Workplace.h: what every step of making a feed works with: the folder, the key, the console.
// Thread: the main thread. Ownership: refers to the key and the console, which outlive it.
#pragma once

#include "Publisher/Console.h"
#include "Publisher/files/BundleTree.h"
#include "Publisher/generate/FolderScan.h"
#include "Publisher/generate/NewItem.h"
#include "Publisher/generate/PublishedFeed.h"

namespace Pelnar::Publisher
{

struct Workplace
{
    QString folder;
    DownloadAddress address;
    SigningKey const& key;
    Console const& console;

    QString PathOf(QString const& fileName) const { return PathIn(folder, fileName); }
    BundleTree Unpack(QString const& fileName) const;
    ArchiveSignature Sign(QString const& fileName) const;
    /// Tells of what does not keep the feed from being made.
    void Warn(QString const& path, QString const& what, QString const& mend) const;
    /// The item, or the delta, of \a feed that \a fileName is the download of; null for a file that is not published.
    Engine::FeedItem const* FindPublished(PublishedFeed const& feed, QString const& fileName) const;
};

/// The version that the session sees in \a text, all four components present; invalid when it sees none.
Core::Version WholeVersion(QString const& text);

} // namespace Pelnar::Publisher
