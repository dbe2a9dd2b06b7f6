// Workplace.h: shared by all steps that make a feed: the folder, the key, the console.
// Ownership: refers to the key and the console, which outlive it.
#pragma once

#include "Publisher/Console.h"
#include "Publisher/choice/ClientInstallation.h"
#include "Publisher/files/AtomicFile.h"
#include "Publisher/files/BundleTree.h"
#include "Publisher/generate/FolderScan.h"
#include "Publisher/generate/NewItem.h"
#include "Publisher/generate/PublishedFeed.h"

#include <deque>
#include <map>
#include <memory>
#include <utility>

namespace Pelnar::Publisher
{

struct Workplace
{
    QString folder;
    DownloadAddress address;
    ISigner const& key;
    ISigner const* secondKey; ///< makes a second signature; null without one
    Console const& console;

    /// The machines for which programs for Linux are made. Empty: this machine, and each other one for which a version
    /// has an archive besides its archive for this machine. A program for another machine alone is probably an
    /// accident.
    std::vector<std::string> machines;
    std::int64_t publishedAt = 0;        ///< of new items, in seconds since 1970
    std::vector<std::string> publicKeys; ///< of other keys that have signed published archives

    QString PathOf(QString const& fileName) const { return PathIn(folder, fileName); }
    /// Of the key that signs.
    QString KeyId() const;
    /// Of every key that signs.
    QStringList KeyIds() const;
    /// Throws Refusal if it is not the file any more that this run has opened before.
    InputFile Open(QString const& fileName) const;
    /// Throws Refusal if one of the files that this run has opened has changed.
    void RefuseChangedFiles() const;
    /// The bundle in an archive of the folder. The last few stay unpacked: several steps need the same ones.
    std::shared_ptr<BundleTree const> Unpack(QString const& fileName) const;
    /// A file that gets the name \a fileName later. Throws Refusal if there is one.
    std::unique_ptr<AtomicFile> MakeFile(QString const& fileName) const;
    ArchiveSignature Sign(InputFile const& archive) const;
    /// Prints a problem that does not prevent the feed.
    void Warn(QString const& path, QString const& what, QString const& mend) const;
    /// The item, or the delta, of \a feed whose download is \a fileName: by its address or, for files that were
    /// published elsewhere, by its name. Null for a file that is not published.
    Engine::FeedItem const* FindPublished(PublishedFeed const& feed, QString const& fileName) const;

    mutable std::deque<std::pair<QString, std::shared_ptr<BundleTree const>>> unpacked = {}; ///< the newest first
    mutable std::map<QString, FileMark> marks = {}; ///< of the files that were opened
};

} // namespace Pelnar::Publisher
