// ArchiveIntake.h: from archives that are not published yet to the items that a feed gets for them.
// Thread: the main thread. Ownership: refers to the workplace and the feed, which outlive it.
#pragma once

#include "Publisher/generate/Workplace.h"

namespace Pelnar::Publisher
{

class ArchiveIntake
{
public:
    ArchiveIntake(Workplace const& workplace, PublishedFeed const& feed) : m_workplace(workplace), m_feed(feed) {}

    /// Reads, judges and signs the bundles and installers among \a archives. Throws Refusal for what clients would
    /// refuse or could not tell from something else.
    std::vector<NewItem> Take(std::vector<FolderArchive> const& archives);

private:
    NewItem TakeBundle(FolderArchive const& archive);
    NewItem TakeInstaller(FolderArchive const& archive);
    void TakeInstallerProgram(FolderArchive const& archive, QString const& version);
    void CheckBundle(BundleTree const& bundle, QString const& path);
    void CheckProduct(Engine::BundleInformation const& information, QString const& path);
    void Complete(NewItem& item, FolderArchive const& archive);
    void CheckClash(NewItem const& item) const;

    Workplace const& m_workplace;
    PublishedFeed const& m_feed;
    std::vector<NewItem> m_items;
    std::string m_identifier; ///< of the product, once a bundle told it
    QString m_identifierSource;
};

} // namespace Pelnar::Publisher
