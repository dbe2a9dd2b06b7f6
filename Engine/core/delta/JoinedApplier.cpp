#include "Engine/core/delta/JoinedApplier.h"

#include "Engine/core/delta/BundleFiles.h"
#include "Engine/core/delta/KeptFiles.h"
#include "Engine/core/delta/PackingThread.h"
#include "Engine/core/delta/PatchApplier.h"
#include "Engine/core/delta/PieceWriter.h"

#include <algorithm>
#include <cerrno>
#include <memory>
#include <numeric>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

/// The limit of bytes in texts that wait to be packed.
constexpr std::size_t MAX_PACKING_BYTES = std::size_t{4} << 20;

/// The container's streams, open during the whole work.
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

/// The old files of a unit up to this size are read: mapping and unmapping small files takes longer.
constexpr std::uint64_t SMALL_UNIT_BYTES = 256 * 1024;

/// The content of an old file.
struct OldFile
{
    ByteBuffer copy; ///< of a small file
    std::unique_ptr<FileMapping> mapping;

    Bytes Content() const { return mapping ? mapping->Content() : View(copy); }
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
            outcome = outcome.HasSucceeded() ? WritePacked() : outcome;
            m_kept.Report(m_done);
        }
        outcome = outcome.HasSucceeded() ? WriteAllPacked() : outcome;
        // A file that could not be written ended the work.
        DeltaOutcome const written = m_writer.Finish();
        outcome = written.HasSucceeded() ? outcome : written;
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
    /// Folders come before their content, so nothing is ever created below a link or a file.
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

    DeltaOutcome Open(DeltaSource const& source, bool isSmall, OldFile& old)
    {
        UniqueFd file;
        DeltaOutcome outcome = m_files.OpenOld(source.path, source.size, file);
        auto const size = static_cast<std::size_t>(source.size);
        if (outcome.HasSucceeded() && isSmall)
        {
            old.copy.resize(size);
            ssize_t const got = ReadUpTo(file.Get(), 0, old.copy.data(), size);
            outcome = got < 0                                ? DeltaOutcome{DeltaError::CannotRead, {}, errno}
                      : static_cast<std::size_t>(got) < size ? DeltaOutcome{DeltaError::BaseDiffers, {}, 0}
                                                             : outcome;
        }
        else if (outcome.HasSucceeded())
        {
            old.mapping = std::make_unique<FileMapping>(file.Get(), size);
            outcome = old.mapping->IsValid() ? outcome : DeltaOutcome{DeltaError::CannotRead, {}, errno};
        }
        outcome.path = outcome.HasSucceeded() ? std::string() : source.path;
        return outcome;
    }

    DeltaOutcome MakeUnit(DeltaUnit const& unit)
    {
        auto const oldFiles = std::make_shared<std::vector<OldFile>>(unit.sources.size());
        m_oldFiles = oldFiles;
        auto const addSize = [](std::uint64_t sum, DeltaSource const& source) { return sum + source.size; };
        bool const isSmall =
            std::accumulate(unit.sources.begin(), unit.sources.end(), std::uint64_t(0), addSize) <= SMALL_UNIT_BYTES;
        std::vector<Bytes> files;
        for (std::size_t i = 0; i < unit.sources.size(); ++i)
        {
            OldFile& old = (*oldFiles)[i];
            if (DeltaOutcome outcome = Open(unit.sources[i], isSmall, old); !outcome.HasSucceeded())
            {
                return outcome;
            }
            files.push_back(old.Content());
        }
        m_patches.StartText();
        PlainText old(files, ResidentPages(files));
        for (std::uint32_t const target : unit.targets)
        {
            DeltaEntry& entry = m_manifest.entries[target];
            DeltaOutcome outcome = unit.textBytes > 0         ? MakeText(entry, files.front(), unit.textBytes)
                                   : unit.spanChanges.empty() ? MakeFile(entry, old)
                                                              : MakeProgram(entry, files.front(), unit.spanChanges);
            if (!outcome.HasSucceeded())
            {
                outcome.path = entry.path;
                return outcome;
            }
        }
        return {};
    }

    DeltaOutcome StartFile(DeltaEntry& entry)
    {
        UniqueFd file;
        DeltaOutcome const outcome = m_files.MakeFile(entry, file);
        m_writer.Start(std::move(file), entry, m_oldFiles);
        errno = 0;
        return outcome;
    }

    DeltaOutcome EndFile(DeltaEntry const& entry, PatchVerdict verdict)
    {
        DeltaOutcome const outcome = OutcomeOf(verdict);
        m_writer.End();
        if (outcome.HasSucceeded())
        {
            m_done(entry);
        }
        return outcome;
    }

    DeltaOutcome MakeFile(DeltaEntry& entry, IOldText& old)
    {
        if (DeltaOutcome outcome = StartFile(entry); !outcome.HasSucceeded())
        {
            return outcome;
        }
        return EndFile(entry, entry.kind == DeltaEntryKind::Whole ? m_patches.MakeWhole(entry.size, m_sink)
                                                                  : m_patches.Make(old, entry.size, m_sink));
    }

    DeltaOutcome MakeProgram(DeltaEntry& entry, Bytes program, std::vector<SpanChange> const& changes)
    {
        std::optional<ImageLayout> layout = ReadImageSpans(program);
        if (!layout)
        {
            return {DeltaError::BaseDiffers, {}, 0};
        }
        if (DeltaOutcome outcome = StartFile(entry); !outcome.HasSucceeded())
        {
            return outcome;
        }
        std::vector<ImageSpan> spans = ChangedSpans(*layout, changes);
        std::vector<PatchStep> steps;
        PatchVerdict verdict = m_patches.TakeSteps(program.size(), entry.size, MAX_MAPPED_STEPS, steps);
        if (verdict == PatchVerdict::Applied)
        {
            ProgramText old(program, std::move(*layout), std::move(spans), steps, ResidentPages({program}));
            verdict = m_patches.MakeBySteps(old, steps, entry.size, m_sink);
        }
        return EndFile(entry, verdict);
    }

    /// The file is written when its text is packed.
    DeltaOutcome MakeText(DeltaEntry& entry, Bytes oldFile, std::uint64_t textBytes)
    {
        std::optional<TokenizedText> oldText = UnpackText(oldFile);
        if (!oldText)
        {
            return {DeltaError::BaseDiffers, {}, 0};
        }
        errno = 0;
        std::unique_ptr<PackedFile> file(new PackedFile{entry, {std::move(*oldText), {}}, {}, {}});
        file->text.reserve(static_cast<std::size_t>(textBytes));
        auto const append = [&text = file->text](Bytes piece)
        {
            text.insert(text.end(), piece.begin(), piece.end());
            return true;
        };
        auto& [before, steps] = file->base;
        PatchVerdict verdict = m_patches.TakeRecord(entry.size, file->recipe);
        verdict = verdict == PatchVerdict::Applied
                      ? m_patches.TakeSteps(before.text.size(), textBytes, MAX_MAPPED_STEPS, steps)
                      : verdict;
        if (verdict == PatchVerdict::Applied)
        {
            PlainText old({View(before.text)});
            verdict = m_patches.MakeBySteps(old, steps, textBytes, append);
        }
        DeltaOutcome outcome = OutcomeOf(verdict);
        if (outcome.HasSucceeded() && m_packing.Bytes() + file->Bytes() > MAX_PACKING_BYTES)
        {
            outcome = WriteAllPacked();
        }
        if (outcome.HasSucceeded())
        {
            bool const isLast = &entry == &m_manifest.entries[m_manifest.units.back().targets.back()];
            isLast ? m_packing.PostLast(std::move(file)) : m_packing.Post(std::move(file));
        }
        // A large text is packed alone, to limit the memory.
        bool const isLarge = m_packing.Bytes() > MAX_PACKING_BYTES;
        return outcome.HasSucceeded() && isLarge ? WriteAllPacked() : outcome;
    }

    DeltaOutcome WriteAllPacked()
    {
        m_packing.Finish();
        return WritePacked();
    }

    /// Writes the files whose texts are packed.
    DeltaOutcome WritePacked()
    {
        while (std::unique_ptr<PackedFile> const file = m_packing.TakeDone())
        {
            DeltaOutcome outcome = file->packed ? StartFile(file->entry) : Culprit();
            if (outcome.HasSucceeded())
            {
                bool const isWritten = m_writer.Add(std::move(*file->packed));
                outcome = EndFile(file->entry, isWritten ? PatchVerdict::Applied : PatchVerdict::SinkRefused);
            }
            if (!outcome.HasSucceeded())
            {
                outcome.path = file->entry.path;
                return outcome;
            }
        }
        return {};
    }

    /// The reason for a wrong hash of the new files: the old files are wrong too, or the delta is.
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
    std::shared_ptr<void const> m_oldFiles; ///< of the current unit
    KeptFiles m_kept;
    PackingThread m_packing;
    ByteSink const m_sink = [this](Bytes piece) { return m_writer.Add(piece); };
    PieceWriter m_writer; ///< last, because it may still read the others' data
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
    // Its buffers are too large for the stack.
    auto const applier = std::make_unique<Applier>(work, manifest, done);
    return applier->Apply();
}

} // namespace Pelnar::Engine
