#include "Engine/core/delta/SeparateApplier.h"

#include "Engine/core/delta/BundleFiles.h"
#include "Engine/core/delta/PatchApplier.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>

namespace Pelnar::Engine
{
namespace
{

class Applier
{
public:
    explicit Applier(DeltaWork const& work)
        : m_containerFd(work.containerFd), m_files(work.oldBundleFd, work.stagingFd), m_dataOffset(work.dataOffset)
    {
    }

    DeltaOutcome Make(DeltaEntry const& entry)
    {
        bool const hasData = entry.kind == DeltaEntryKind::Patched || entry.kind == DeltaEntryKind::Whole;
        DeltaOutcome outcome = hasData ? MakeFromData(entry) : MakeWithoutData(entry);
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

    DeltaOutcome MakeFromData(DeltaEntry const& entry)
    {
        if (entry.kind == DeltaEntryKind::Whole)
        {
            return MakeFile(entry, {});
        }
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
        DeltaOutcome outcome = MakeFile(entry, old.Content());
        // With any old file, a patch reads and writes within bounds, and its result must have the new file's hash. The
        // old file's hash only shows the cause of a failure.
        bool const mayBeTheBase = outcome.error == DeltaError::Damaged || outcome.error == DeltaError::ResultDiffers;
        return mayBeTheBase && !IsTheBase(entry, source.Get()) ? DeltaOutcome{DeltaError::BaseDiffers, {}, 0} : outcome;
    }

    bool IsTheBase(DeltaEntry const& entry, int fd)
    {
        ContentHasher hasher(HashKind::Blake2b);
        return m_files.Hash(fd, entry.sourceSize, hasher).HasSucceeded() && hasher.Finish() == entry.sourceHash;
    }

    DeltaOutcome MakeFile(DeltaEntry const& entry, Bytes oldBytes)
    {
        UniqueFd target;
        if (DeltaOutcome made = m_files.MakeFile(entry, target); !made.HasSucceeded())
        {
            return made;
        }
        bool const isWhole = entry.kind == DeltaEntryKind::Whole;
        std::array<std::uint64_t, PATCH_STREAMS> stored = entry.streamsStored;
        stored.back() += entry.wholeStored; // a whole file is its extra stream
        std::vector<DeltaStream> streams;
        std::uint64_t offset = m_dataOffset;
        for (std::uint64_t const size : stored)
        {
            streams.emplace_back(m_containerFd, offset, StoredStream{0, size});
            offset += size;
        }
        PatchSources const sources = SourcesOf(streams);
        ContentHasher hasher(HashKind::Blake2b);
        ByteSink const sink = [&hasher, &target](Bytes bytes)
        {
            hasher.Add(bytes);
            return WriteAll(target.Get(), bytes);
        };
        errno = 0;
        auto const patches = std::make_unique<PatchApplier>(sources);
        PlainText old({oldBytes}, ResidentPages({oldBytes}));
        DeltaOutcome outcome =
            OutcomeOf(isWhole ? patches->MakeWhole(entry.size, sink) : patches->Make(old, entry.size, sink));
        bool const isUsedUp = patches->IsUsedUp() && AreAtEnd(streams);
        if (outcome.HasSucceeded() && !(isUsedUp && hasher.Finish() == entry.hash))
        {
            outcome.error = isUsedUp ? DeltaError::ResultDiffers : DeltaError::Damaged;
        }
        return outcome;
    }

    int m_containerFd;
    BundleFiles m_files;
    std::uint64_t m_dataOffset; ///< of the next entry's data
};

} // namespace

PatchSources SourcesOf(std::vector<DeltaStream>& streams)
{
    PatchSources sources;
    std::transform(streams.begin(), streams.end(), sources.begin(),
                   [](DeltaStream& stream)
                   { return [&stream](std::uint8_t* to, std::size_t size) { return stream.Read(to, size); }; });
    return sources;
}

bool AreAtEnd(std::vector<DeltaStream>& streams)
{
    return std::all_of(streams.begin(), streams.end(), [](DeltaStream& stream) { return stream.IsAtEnd(); });
}

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
    Applier applier(work);
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
