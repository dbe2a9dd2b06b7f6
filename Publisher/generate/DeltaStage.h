// DeltaStage.h: the deltas of a feed's new items: those in the folder, which are verified, and those that are made.
// Ownership: refers to the workplace and the feed, which outlive it.
#pragma once

#include "Engine/core/delta/DeltaContainerWriter.h"
#include "Publisher/files/AtomicFile.h"
#include "Publisher/generate/ClientShares.h"
#include "Publisher/generate/Workplace.h"

#include <memory>
#include <set>
#include <utility>

namespace Pelnar::Publisher
{

/// Which versions before the newest get a delta to it, and how the delta is made.
struct DeltaChoice
{
    int count = 0;                    ///< at most
    QString clientsFile;              ///< for messages
    std::vector<ClientShare> clients; ///< empty: the newest versions; otherwise those with the largest shares
    Engine::DeltaEffort effort = Engine::DeltaEffort::Usual;
};

class DeltaStage
{
public:
    /// \a archives: all archives in the folder.
    DeltaStage(Workplace const& workplace, PublishedFeed const& feed, std::vector<FolderArchive> const& archives)
        : m_workplace(workplace), m_feed(feed), m_archives(archives)
    {
    }

    /// Gives each of \a items the deltas to it that lie in the folder, and the newest bundle for Linux, unless a
    /// published one is newer, deltas from versions before it whose archives lie in the folder. A delta is
    /// taken only when it makes the very bundle of the item's archive and saves a tenth of that. Nothing is seen in the
    /// folder before the feed is there. Throws Refusal.
    void AddTo(std::vector<NewItem>& items, DeltaChoice const& choice);

    /// The created files, which have no names yet.
    std::vector<std::unique_ptr<AtomicFile>>& Made() { return m_made; }

private:
    /// A bundle for Linux whose archive is in the folder.
    struct Base
    {
        QString fileName;
        QString versionText;
        Core::Version version;
        QStringList machines; ///< empty for every machine
    };

    std::vector<Base> FindBases(std::vector<NewItem> const& items) const;
    /// The bases before \a newest that get a delta to it.
    std::vector<Base> BasesFor(NewItem const& newest, DeltaChoice const& choice);
    void TellMissing(DeltaChoice const& choice) const;
    void TakeGiven(std::vector<NewItem>& items);
    void TakeGiven(NewItem& item, Base const& base, QString const& fileName);
    /// True if clients of its machine are offered nothing newer.
    [[nodiscard]] bool IsNewest(NewItem const& item, std::vector<NewItem> const& items) const;
    /// The name of the delta to \a item. It contains the machine if the same version has a bundle for another one.
    QString DeltaName(NewItem const& item, Base const& base) const;
    void Make(NewItem& item, Base const& base, Engine::DeltaEffort effort);

    Workplace const& m_workplace;
    PublishedFeed const& m_feed;
    std::vector<FolderArchive> const& m_archives;
    std::vector<Base> m_bases;                        ///< newest first
    std::set<std::pair<QString, QString>> m_declined; ///< files of items and bases with a delta that saves too little
    std::set<QString> m_missing;                      ///< versions that clients run, but no base has
    std::vector<std::unique_ptr<AtomicFile>> m_made;
};

} // namespace Pelnar::Publisher
