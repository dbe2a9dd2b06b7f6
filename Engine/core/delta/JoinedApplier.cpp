#include "Engine/core/delta/JoinedApplier.h"

#include "Engine/core/delta/BundleFiles.h"
#include "Engine/core/delta/KeptFiles.h"
#include "Engine/core/delta/PackedText.h"
#include "Engine/core/delta/PatchApplier.h"
#include "Engine/core/delta/PieceWriter.h"

#include <algorithm>
#include <cerrno>
#include <deque>

namespace Pelnar::Engine
{
namespace
{

/// The container's streams, open from the beginning to the end of the work.
std::vector<DeltaStream> OpenStreams(DeltaWork const& work, DeltaManifest const& manifest)
{
    std::vector<DeltaStream> streams;
    std::uint64_t offset = work.dataOffset;
    for (std::size_t i = 0; i < PATCH_STREAMS; ++i)
    {
        streams.emplace_back(work.containerFd, offset, manifest.streams[i], WindowLogOf(static_cast<PatchStream>(i)));
        offset += manifest.streams[i].size;
    }
    return streams;
}

/// The old files of a unit.
struct UnitBase
{
    std::deque<FileMapping> mappings; ///< which cannot be moved
    std::vector<Bytes> files;
};

class Applier
{
public:
    Applier(DeltaWork const& work, DeltaManifest& manifest, EntryDone const& done)
        : m_manifest(manifest)
        , m_done(done)
        , m_files(work.oldBundleFd, work.stagingFd)
        , m_streams(OpenStreams(work, manifest))
        , m_sources(SourcesOf(m_streams))
        , m_patches(m_sources)
        , m_kept(work, manifest.entries)
    {
    }

    DeltaOutcome Apply()
    {
        errno = 0;
        DeltaOutcome outcome = MakeFoldersAndLinks();
        if (!outcome.HasSucceeded())
        {
            return outcome;
        }
        m_kept.Start();
        for (auto unit = m_manifest.units.begin(); outcome.HasSucceeded() && unit != m_manifest.units.end(); ++unit)
        {
            outcome = MakeUnit(*unit);
            m_kept.Report(m_done);
        }
        outcome = outcome.HasSucceeded() ? m_kept.Finish(m_done) : outcome;
        if (!outcome.HasSucceeded())
        {
            return outcome;
        }
        if (!m_patches.IsUsedUp() || !AreAtEnd(m_streams))
        {
            return {DeltaError::Damaged, {}, 0};
        }
        return HashOfAll() == m_manifest.targetHash ? DeltaOutcome{} : Culprit();
    }

private:
    /// Folders come before their content, so nothing is ever made below a link or a file.
    DeltaOutcome MakeFoldersAndLinks()
    {
        for (DeltaEntry const& entry : m_manifest.entries)
        {
            if (entry.kind != DeltaEntryKind::Directory && entry.kind != DeltaEntryKind::SymbolicLink)
            {
                continue;
            }
            ContentHasher hasher;
            DeltaOutcome outcome = m_files.Make(entry, hasher);
            if (!outcome.HasSucceeded())
            {
                outcome.path = entry.path;
                return outcome;
            }
            m_done(entry);
        }
        return {};
    }

    ContentHash HashOfAll() const
    {
        ContentHasher hashes;
        for (DeltaEntry const& entry : m_manifest.entries)
        {
            if (entry.kind == DeltaEntryKind::Kept)
            {
                hashes.Add(View(entry.hash));
            }
        }
        for (DeltaUnit const& unit : m_manifest.units)
        {
            for (std::uint32_t const target : unit.targets)
            {
                hashes.Add(View(m_manifest.entries[target].hash));
            }
        }
        return hashes.Finish();
    }

    DeltaOutcome OpenBase(DeltaUnit const& unit, UnitBase& base) const
    {
        for (DeltaSource const& source : unit.sources)
        {
            UniqueFd file;
            DeltaOutcome outcome = m_files.OpenOld(source.path, source.size, file);
            if (outcome.HasSucceeded())
            {
                FileMapping const& mapping =
                    base.mappings.emplace_back(file.Get(), static_cast<std::size_t>(source.size));
                base.files.push_back(mapping.Content());
                outcome = mapping.IsValid() ? outcome : DeltaOutcome{DeltaError::CannotRead, {}, errno};
            }
            if (!outcome.HasSucceeded())
            {
                outcome.path = source.path;
                return outcome;
            }
        }
        return {};
    }

    DeltaOutcome MakeUnit(DeltaUnit const& unit)
    {
        UnitBase base;
        if (DeltaOutcome outcome = OpenBase(unit, base); !outcome.HasSucceeded())
        {
            return outcome;
        }
        m_patches.StartText();
        PlainText old(base.files);
        for (std::uint32_t const target : unit.targets)
        {
            DeltaEntry& entry = m_manifest.entries[target];
            UniqueFd file;
            DeltaOutcome outcome = m_files.MakeFile(entry, file);
            if (outcome.HasSucceeded())
            {
                outcome = unit.textBytes > 0         ? MakePacked(entry, file, base.files.front(), unit.textBytes)
                          : unit.spanChanges.empty() ? MakeFile(entry, file, old)
                                                     : MakeProgram(entry, file, base.files.front(), unit.spanChanges);
            }
            bool const isWritten = m_writer.Finish(entry.hash);
            outcome = outcome.HasSucceeded() && !isWritten ? WriteFailure() : outcome;
            if (!outcome.HasSucceeded())
            {
                outcome.path = entry.path;
                return outcome;
            }
            m_done(entry);
        }
        return {};
    }

    DeltaOutcome MakeFile(DeltaEntry const& entry, UniqueFd const& file, IOldText& old)
    {
        errno = 0;
        ByteSink const sink = SinkOf(file);
        return OutcomeOf(entry.kind == DeltaEntryKind::Whole ? m_patches.MakeWhole(entry.size, sink)
                                                             : m_patches.Make(old, entry.size, sink));
    }

    DeltaOutcome MakeProgram(DeltaEntry const& entry, UniqueFd const& file, Bytes program,
                             std::vector<SpanChange> const& changes)
    {
        std::optional<ImageLayout> const layout = ReadImageLayout(program);
        if (!layout)
        {
            return {DeltaError::BaseDiffers, {}, 0};
        }
        errno = 0;
        std::vector<PatchStep> steps;
        PatchVerdict verdict = m_patches.TakeSteps(program.size(), entry.size, MAX_MAPPED_STEPS, steps);
        if (verdict == PatchVerdict::Applied)
        {
            ProgramText old(program, *layout, ChangedSpans(*layout, changes), steps);
            verdict = m_patches.MakeBySteps(old, steps, entry.size, SinkOf(file));
        }
        return OutcomeOf(verdict);
    }

    DeltaOutcome MakePacked(DeltaEntry const& entry, UniqueFd const& file, Bytes oldFile, std::uint64_t textBytes)
    {
        std::optional<ByteBuffer> const oldText = UnpackText(oldFile);
        if (!oldText)
        {
            return {DeltaError::BaseDiffers, {}, 0};
        }
        errno = 0;
        ByteBuffer recipe;
        ByteBuffer text;
        text.reserve(static_cast<std::size_t>(textBytes));
        auto const append = [&text](Bytes piece)
        {
            text.insert(text.end(), piece.begin(), piece.end());
            return true;
        };
        PackedBase base{View(*oldText), PackedDataOf(oldFile), {}};
        PatchVerdict verdict = m_patches.TakeRecord(entry.size, recipe);
        verdict = verdict == PatchVerdict::Applied
                      ? m_patches.TakeSteps(base.text.size(), textBytes, MAX_MAPPED_STEPS, base.steps)
                      : verdict;
        if (verdict == PatchVerdict::Applied)
        {
            PlainText old({base.text});
            verdict = m_patches.MakeBySteps(old, base.steps, textBytes, append);
        }
        if (verdict != PatchVerdict::Applied)
        {
            return OutcomeOf(verdict);
        }
        std::optional<ByteBuffer> packed =
            PackByRecipe(View(recipe), View(text), static_cast<std::size_t>(entry.size), base);
        if (!packed || packed->size() != entry.size)
        {
            return Culprit();
        }
        m_packed = std::move(*packed);
        return m_writer.Add(file.Get(), View(m_packed)) ? DeltaOutcome{} : WriteFailure();
    }

    ByteSink SinkOf(UniqueFd const& file)
    {
        return [this, &file](Bytes bytes) { return m_writer.Add(file.Get(), bytes); };
    }

    /// Why the new files have another hash: the old ones have, too, or it is the delta's own fault.
    DeltaOutcome Culprit()
    {
        ContentHasher hashes;
        auto const add = [this, &hashes](std::string const& path, std::uint64_t size)
        {
            UniqueFd file;
            ContentHasher hasher;
            bool const isRead = m_files.OpenOld(path, size, file).HasSucceeded() &&
                                m_files.Hash(file.Get(), size, hasher).HasSucceeded();
            hashes.Add(View(hasher.Finish()));
            return isRead;
        };
        bool isReadable = true;
        for (DeltaEntry const& entry : m_manifest.entries)
        {
            isReadable = isReadable && (entry.kind != DeltaEntryKind::Kept || add(entry.sourcePath, entry.size));
        }
        for (DeltaUnit const& unit : m_manifest.units)
        {
            isReadable =
                isReadable && std::all_of(unit.sources.begin(), unit.sources.end(),
                                          [&add](DeltaSource const& source) { return add(source.path, source.size); });
        }
        bool const isExpected = isReadable && hashes.Finish() == m_manifest.baseHash;
        return {isExpected ? DeltaError::ResultDiffers : DeltaError::BaseDiffers, {}, 0};
    }

    DeltaManifest& m_manifest;
    EntryDone const& m_done;
    BundleFiles m_files;
    std::vector<DeltaStream> m_streams;
    PatchSources m_sources;
    PatchApplier m_patches;
    KeptFiles m_kept;
    ByteBuffer m_packed;  ///< the file that is written
    PieceWriter m_writer; ///< last, as it may still read what the others hold
};

} // namespace

std::vector<ImageSpan> ChangedSpans(ImageLayout const& layout, std::vector<SpanChange> const& changes)
{
    std::vector<ImageSpan> spans;
    for (std::size_t i = 0; i < changes.size(); ++i)
    {
        ImageSpan span = i < layout.spans.size() ? layout.spans[i] : ImageSpan();
        span.offset += static_cast<std::uint32_t>(changes[i].offset);
        span.size += static_cast<std::uint32_t>(changes[i].size);
        span.address += static_cast<std::uint64_t>(changes[i].address);
        spans.push_back(span);
    }
    return spans;
}

DeltaOutcome ApplyJoinedDelta(DeltaWork const& work, DeltaManifest& manifest, EntryDone const& done)
{
    // Its buffers are large for a stack.
    auto const applier = std::make_unique<Applier>(work, manifest, done);
    return applier->Apply();
}

} // namespace Pelnar::Engine
