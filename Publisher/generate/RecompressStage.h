// RecompressStage.h: packs new bundles a second time, so that clients download less.
// Ownership: refers to the workplace and the archives, which outlive it.
#pragma once

#include "Publisher/Refusal.h"
#include "Publisher/files/AtomicFile.h"
#include "Publisher/generate/Workplace.h"

#include <memory>
#include <vector>

namespace Pelnar::Publisher
{

/// True if a download of \a bytes saves a tenth of one of \a archiveBytes. Less is not worth another file.
[[nodiscard]] bool SavesEnough(std::uint64_t bytes, std::uint64_t archiveBytes);

/// Removes from \a fresh, the archives that are not published, each one that RecompressStage would make from another
/// one there. An interrupted run may have left it. One that cannot be read is added to \a refusals.
void RemoveRecompressed(Workplace const& place, std::vector<FolderArchive>& fresh, RefusalList& refusals);

class RecompressStage
{
public:
    /// \a archives: all archives in the folder.
    RecompressStage(Workplace const& workplace, std::vector<FolderArchive> const& archives)
        : m_workplace(workplace), m_archives(archives)
    {
    }

    /// Adds a tar of the same bundle, packed by zstd, to each bundle for Linux among \a items, if that saves a tenth.
    /// The files appear in the folder only with the feed. A file with the name is taken if it contains the same bundle.
    /// Throws Refusal.
    void AddTo(std::vector<NewItem>& items);

    /// The created files, which have no names yet.
    std::vector<std::unique_ptr<AtomicFile>>& Made() { return m_made; }

private:
    void Pack(NewItem& item, QString const& fileName);
    /// The same as Take for a file of the folder.
    [[nodiscard]] bool TakeExisting(NewItem& item, QString const& fileName) const;
    /// Adds \a archive, which must contain the bundle of \a item. Returns false if it saves too little.
    [[nodiscard]] bool Take(NewItem& item, QString const& fileName, InputFile const& archive) const;

    Workplace const& m_workplace;
    std::vector<FolderArchive> const& m_archives;
    std::vector<std::unique_ptr<AtomicFile>> m_made;
};

} // namespace Pelnar::Publisher
