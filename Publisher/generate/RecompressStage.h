// RecompressStage.h: packs new bundles a second time, so that clients download less.
// Ownership: refers to the workplace and the archives, which outlive it.
#pragma once

#include "Publisher/files/AtomicFile.h"
#include "Publisher/generate/Workplace.h"

#include <memory>
#include <vector>

namespace Pelnar::Publisher
{

/// True if a download of \a bytes saves a tenth of one of \a archiveBytes. Less is not worth another file.
[[nodiscard]] bool SavesEnough(std::uint64_t bytes, std::uint64_t archiveBytes);

class RecompressStage
{
public:
    /// \a archives: all archives in the folder.
    RecompressStage(Workplace const& workplace, std::vector<FolderArchive> const& archives)
        : m_workplace(workplace), m_archives(archives)
    {
    }

    /// Adds a tar of the same bundle, packed by zstd, to each bundle for Linux among \a items, if that saves a tenth.
    /// The files appear in the folder only with the feed. Throws Refusal.
    void AddTo(std::vector<NewItem>& items);

    /// The created files, which have no names yet.
    std::vector<std::unique_ptr<AtomicFile>>& Made() { return m_made; }

private:
    void Pack(NewItem& item, QString const& stem);

    Workplace const& m_workplace;
    std::vector<FolderArchive> const& m_archives;
    std::vector<std::unique_ptr<AtomicFile>> m_made;
};

} // namespace Pelnar::Publisher
