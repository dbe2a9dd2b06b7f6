// PublishedArchives.h: the archives of a folder that a feed already offers. They must be unchanged, and their clients
// get the new items.
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

    /// Those of \a archives that are not in the feed. The others must be the same files that were published.
    std::vector<FolderArchive> FindNew(std::vector<FolderArchive> const& archives, RefusalList& refusals);

    /// Every version of the feed, with its bundle if the archive is in the folder. Throws nothing: an unreadable bundle
    /// is added to \a refusals.
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
    std::map<QString, std::optional<GatedVersion>> m_bundles; ///< by file name; those that were unpacked
};

} // namespace Pelnar::Publisher
