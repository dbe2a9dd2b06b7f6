// PublishedArchives.h: the archives of a folder that a feed offers already: unchanged, and clients of what is new.
// Ownership: refers to the workplace and the feed, which outlive it.
#pragma once

#include "Publisher/Refusal.h"
#include "Publisher/gate/GatedVersion.h"
#include "Publisher/generate/Workplace.h"

#include <map>

namespace Pelnar::Publisher
{

class PublishedArchives
{
public:
    PublishedArchives(Workplace const& workplace, PublishedFeed const& feed) : m_workplace(workplace), m_feed(feed) {}

    /// Those of \a archives that are not in the feed. The others must be the very files that were published.
    std::vector<FolderArchive> FindNew(std::vector<FolderArchive> const& archives, RefusalList& refusals);

    /// Every version of the feed, with its bundle where the archive lies in the folder. Throws nothing: a bundle that
    /// cannot be read is told of in \a refusals.
    std::vector<GatedVersion> Versions(RefusalList& refusals);

private:
    struct Published
    {
        FolderArchive archive;
        Engine::FeedItem const* item = nullptr; ///< or a delta
    };

    void CheckUnchanged(Published const& published);
    std::vector<std::string> KeysAtHand();
    std::optional<GatedVersion> const& BundleOf(Published const& published, RefusalList& refusals);

    Workplace const& m_workplace;
    PublishedFeed const& m_feed;
    std::vector<Published> m_published;                       ///< in the folder
    std::map<QString, QString> m_signerIds;                   ///< by file name
    std::map<QString, std::optional<GatedVersion>> m_bundles; ///< by file name; those that were looked into
};

} // namespace Pelnar::Publisher
