// Workplace.h: what every step of making a feed works with: the folder, the key, the console.
// Ownership: refers to the key and the console, which outlive it.
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
    ISigner const& key;
    ISigner const* secondKey; ///< that signs as well; null without one
    Console const& console;

    /// Names of those that programs for Linux are for. Empty: this one, and any other that a version has an archive for
    /// beside this one's: a program for another machine alone is built for it by accident.
    std::vector<std::string> machines;
    std::int64_t publishedAt = 0;        ///< of new items, in seconds since 1970
    std::vector<std::string> publicKeys; ///< of keys, besides the one that signs, by which something was published

    QString PathOf(QString const& fileName) const { return PathIn(folder, fileName); }
    /// Of the key that signs.
    QString KeyId() const;
    /// Of every key that signs.
    QStringList KeyIds() const;
    BundleTree Unpack(QString const& fileName) const;
    ArchiveSignature Sign(QString const& fileName) const;
    ArchiveSignature Sign(InputFile const& archive) const;
    /// Tells of what does not keep the feed from being made.
    void Warn(QString const& path, QString const& what, QString const& mend) const;
    /// The item, or the delta, of \a feed that \a fileName is the download of, at its address or, for files that were
    /// published elsewhere, by its name; null for a file that is not published.
    Engine::FeedItem const* FindPublished(PublishedFeed const& feed, QString const& fileName) const;
};

/// The version that the session sees in \a text, all four components present; invalid when it sees none.
Core::Version WholeVersion(QString const& text);

} // namespace Pelnar::Publisher
