#include "Engine/core/delta/SeparateApplier.h"

#include "Engine/core/delta/BundleFiles.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <vector>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t PIECE_BYTES = 64 * 1024;

class Applier
{
public:
    Applier(int containerFd, int oldBundleFd, int stagingFd, std::uint64_t dataOffset)
        : m_containerFd(containerFd), m_files(oldBundleFd, stagingFd), m_dataOffset(dataOffset)
    {
    }

    DeltaOutcome Make(DeltaEntry const& entry)
    {
        DeltaOutcome outcome;
        switch (entry.kind)
        {
        case DeltaEntryKind::Directory:
        case DeltaEntryKind::SymbolicLink:
        case DeltaEntryKind::Kept:
            outcome = MakeWithoutData(entry);
            break;
        case DeltaEntryKind::Patched:
            outcome = Patch(entry);
            break;
        case DeltaEntryKind::Whole:
            outcome = TakeWhole(entry);
            break;
        }
        m_dataOffset += entry.StoredBytes();
        return outcome;
    }

private:
    DeltaOutcome MakeWithoutData(DeltaEntry const& entry)
    {
        ContentHasher hasher(HashKind::Blake2b);
        DeltaOutcome const outcome = m_files.Make(entry, hasher);
        bool const isKept = outcome.HasSucceeded() && entry.kind == DeltaEntryKind::Kept;
        bool const differs = isKept && hasher.Finish() != entry.hash;
        return differs ? DeltaOutcome{DeltaError::BaseDiffers, {}, 0} : outcome;
    }

    DeltaOutcome Patch(DeltaEntry const& entry)
    {
        UniqueFd source;
        if (DeltaOutcome opened = m_files.OpenOld(entry.sourcePath, entry.sourceSize, source); !opened.HasSucceeded())
        {
            return opened;
        }
        FileMapping const old(source.Get(), static_cast<std::size_t>(entry.sourceSize));
        if (!old.IsValid())
        {
            return {DeltaError::CannotRead, {}, errno};
        }
        UniqueFd target;
        if (DeltaOutcome made = m_files.MakeFile(entry, target); !made.HasSucceeded())
        {
            return made;
        }
        std::vector<DeltaStream> streams;
        PatchSources sources;
        std::uint64_t offset = m_dataOffset;
        for (std::uint64_t const stored : entry.streamsStored)
        {
            streams.emplace_back(m_containerFd, offset, StoredStream{0, stored});
            offset += stored;
        }
        std::transform(streams.begin(), streams.end(), sources.begin(),
                       [](DeltaStream& stream)
                       { return [&stream](std::uint8_t* to, std::size_t size) { return stream.Read(to, size); }; });
        ContentHasher hasher(HashKind::Blake2b);
        errno = 0;
        PatchVerdict const verdict = ApplyBinaryPatch(old.Content(), sources, entry.size,
                                                      [&hasher, &target](Bytes bytes)
                                                      {
                                                          hasher.Add(bytes);
                                                          return WriteAll(target.Get(), bytes);
                                                      });
        DeltaOutcome outcome = OutcomeOf(verdict);
        if (outcome.HasSucceeded() &&
            !std::all_of(streams.begin(), streams.end(), [](auto& each) { return each.IsAtEnd(); }))
        {
            outcome.error = DeltaError::Damaged;
        }
        else if (outcome.HasSucceeded() && hasher.Finish() != entry.hash)
        {
            outcome.error = DeltaError::ResultDiffers;
        }
        // No matter what the old file is, a patch reads and writes in bounds, and what comes out must have the new
        // one's hash. The old one's only tells why it has not.
        bool const mayBeTheBase = outcome.error == DeltaError::Damaged || outcome.error == DeltaError::ResultDiffers;
        return mayBeTheBase && HashOf(old.Content(), HashKind::Blake2b) != entry.sourceHash
                   ? DeltaOutcome{DeltaError::BaseDiffers, {}, 0}
                   : outcome;
    }

    DeltaOutcome TakeWhole(DeltaEntry const& entry)
    {
        UniqueFd target;
        if (DeltaOutcome made = m_files.MakeFile(entry, target); !made.HasSucceeded())
        {
            return made;
        }
        DeltaStream whole(m_containerFd, m_dataOffset, {0, entry.wholeStored});
        ContentHasher hasher(HashKind::Blake2b);
        errno = 0;
        for (std::uint64_t missing = entry.size; missing > 0;)
        {
            auto const piece = static_cast<std::size_t>(std::min<std::uint64_t>(missing, m_piece.size()));
            if (whole.Read(m_piece.data(), piece) != piece)
            {
                return SourceFailure();
            }
            Bytes const bytes(m_piece.data(), piece);
            hasher.Add(bytes);
            if (!WriteAll(target.Get(), bytes))
            {
                return WriteFailure();
            }
            missing -= piece;
        }
        if (!whole.IsAtEnd())
        {
            return {DeltaError::Damaged, {}, 0};
        }
        return hasher.Finish() == entry.hash ? DeltaOutcome{} : DeltaOutcome{DeltaError::ResultDiffers, {}, 0};
    }

    int m_containerFd;
    BundleFiles m_files;
    std::uint64_t m_dataOffset; ///< of the next entry's data
    std::array<std::uint8_t, PIECE_BYTES> m_piece;
};

} // namespace

DeltaOutcome OutcomeOf(PatchVerdict verdict)
{
    switch (verdict)
    {
    case PatchVerdict::Applied:
        return {};
    case PatchVerdict::SinkRefused:
        return WriteFailure();
    case PatchVerdict::SourceEnded:
        return SourceFailure();
    case PatchVerdict::TooManySteps:
        return {DeltaError::OverLimits, {}, 0};
    case PatchVerdict::BadNumber:
    case PatchVerdict::OutOfRange:
    case PatchVerdict::WrongSize:
        break;
    }
    return {DeltaError::Damaged, {}, 0};
}

DeltaOutcome ApplySeparateDelta(DeltaWork const& work, DeltaManifest const& manifest, EntryDone const& done)
{
    Applier applier(work.containerFd, work.oldBundleFd, work.stagingFd, work.dataOffset);
    for (DeltaEntry const& entry : manifest.entries)
    {
        DeltaOutcome outcome = applier.Make(entry);
        if (!outcome.HasSucceeded())
        {
            outcome.path = entry.path;
            return outcome;
        }
        done(entry);
    }
    return {};
}

} // namespace Pelnar::Engine
