#include "Engine/core/delta/DeltaMaker.h"

#include "Engine/core/delta/DeltaContainerWriter.h"
#include "Engine/core/delta/JoinedApplier.h"
#include "Engine/core/delta/PackedText.h"
#include "Engine/core/delta/PatchWriter.h"
#include "Engine/core/delta/UnitPlan.h"
#include "Engine/core/delta/UnitSearch.h"
#include "Engine/core/delta/WorkCrew.h"

#include <algorithm>
#include <cerrno>
#include <deque>
#include <system_error>

namespace Pelnar::Engine
{
namespace
{

namespace fs = std::filesystem;

class Maker
{
public:
    struct Manner
    {
        DeltaMakerProgress const& progress;
        DeltaEffort effort;
    };

    Maker(fs::path newFolder, OldVersion const& old, DeltaManifest& manifest, Manner manner)
        : m_newFolder(std::move(newFolder)), m_old(old), m_manifest(manifest), m_mode(manner)
    {
    }

    /// Completes the manifest, and answers the data that go with it.
    ByteBuffer Make()
    {
        std::vector<DeltaUnit> units = PlanUnits(m_old, m_newFolder, m_manifest.entries, m_mode.effort);
        std::vector<UnitSteps> steps =
            SearchUnits(units, m_old.folder, m_newFolder, m_manifest.entries, m_mode.progress);
        SearchPlainly(units, steps);
        AddKeptFiles();
        DeltaUnit whole;
        for (std::size_t i = 0; i < units.size(); ++i)
        {
            AddUnit(units[i], steps[i], whole);
        }
        AddWholeFiles(whole);
        m_manifest.baseHash = m_baseHashes.Finish();
        m_manifest.targetHash = m_targetHashes.Finish();
        return Pack(m_writer.Finish());
    }

private:
    OpenedFile OpenOld(std::string const& path) const { return OpenedFile(m_old.folder / path); }
    OpenedFile OpenNew(std::string const& path) const { return OpenedFile(m_newFolder / path); }

    static void AddTo(ContentHasher& hashes, ContentHash const& hash) { hashes.Add(Bytes(hash.data(), hash.size())); }

    void AddKeptFiles()
    {
        for (DeltaEntry const& entry : m_manifest.entries)
        {
            if (entry.kind == DeltaEntryKind::Kept)
            {
                AddTo(m_baseHashes, entry.hash);
                AddTo(m_targetHashes, entry.hash);
            }
        }
    }

    static bool UsesOld(std::vector<PatchStep> const& steps)
    {
        return std::any_of(steps.begin(), steps.end(), [](PatchStep const& step) { return step.likeBytes > 0; });
    }

    /// What has nothing of the old files goes to \a whole.
    void AddUnit(DeltaUnit unit, UnitSteps const& steps, DeltaUnit& whole)
    {
        std::vector<std::uint32_t> const targets = std::move(unit.targets);
        std::vector<std::size_t> made;
        unit.targets.clear();
        for (std::size_t i = 0; i < targets.size(); ++i)
        {
            bool const isTooMuch = unit.textBytes > 0 && steps[i].size() > MAX_MAPPED_STEPS;
            bool const isMade = UsesOld(steps[i]) && !isTooMuch;
            (isMade ? unit : whole).targets.push_back(targets[i]);
            made.insert(made.end(), isMade ? 1 : 0, i);
        }
        if (made.empty())
        {
            return;
        }
        std::deque<OpenedFile> sources;
        std::vector<Bytes> texts;
        for (DeltaSource const& source : unit.sources)
        {
            texts.push_back(sources.emplace_back(m_old.folder / source.path).Content());
            AddTo(m_baseHashes, m_old.files.at(source.path).hash);
        }
        m_writer.StartText();
        PlainText plain(texts);
        for (std::size_t const number : made)
        {
            DeltaEntry& entry = m_manifest.entries[targets[number]];
            entry.kind = DeltaEntryKind::Patched;
            OpenedFile const file = OpenNew(entry.path);
            AddTo(m_targetHashes, entry.hash);
            unit.textBytes > 0         ? AddPacked(texts.front(), steps[number], file.Content())
            : unit.spanChanges.empty() ? m_writer.Add(plain, steps[number], file.Content())
                                       : AddProgram(texts.front(), unit.spanChanges, steps[number], file.Content());
        }
        m_manifest.units.push_back(std::move(unit));
    }

    /// False for a program whose fields are other than they look: a packed one, for example.
    bool IsWorthForetelling(DeltaUnit const& unit, std::vector<PatchStep> const& steps) const
    {
        if (steps.size() > MAX_MAPPED_STEPS)
        {
            return false;
        }
        OpenedFile const source = OpenOld(unit.sources.front().path);
        OpenedFile const target = OpenNew(m_manifest.entries[unit.targets.front()].path);
        ImageLayout const layout = *ReadImageLayout(source.Content());
        ProgramText changed(source.Content(), layout, ChangedSpans(layout, unit.spanChanges), steps);
        PlainText plain({source.Content()});
        return CountChangedBytes(changed, steps, target.Content()) <= CountChangedBytes(plain, steps, target.Content());
    }

    /// Searches once more, as for any file, where a program's addresses are not worth it.
    void SearchPlainly(std::vector<DeltaUnit>& units, std::vector<UnitSteps>& steps) const
    {
        std::vector<std::size_t> numbers;
        std::vector<DeltaUnit> plain;
        for (std::size_t i = 0; i < units.size(); ++i)
        {
            if (!units[i].spanChanges.empty() && !IsWorthForetelling(units[i], steps[i].front()))
            {
                units[i].spanChanges.clear();
                numbers.push_back(i);
                plain.push_back(units[i]);
            }
        }
        std::vector<UnitSteps> const found =
            SearchUnits(plain, m_old.folder, m_newFolder, m_manifest.entries, m_mode.progress);
        for (std::size_t i = 0; i < numbers.size(); ++i)
        {
            steps[numbers[i]] = found[i];
        }
    }

    void AddProgram(Bytes program, std::vector<SpanChange> const& changes, std::vector<PatchStep> const& steps,
                    Bytes newBytes)
    {
        ImageLayout const layout = *ReadImageLayout(program);
        ProgramText old(program, layout, ChangedSpans(layout, changes), steps);
        m_writer.Add(old, steps, newBytes);
    }

    void AddPacked(Bytes oldFile, std::vector<PatchStep> const& steps, Bytes newFile)
    {
        ByteBuffer const oldText = UnpackText(oldFile).value();
        ByteBuffer const newText = UnpackText(newFile).value();
        Bytes const text(newText.data(), newText.size());
        PackedBase const base{Bytes(oldText.data(), oldText.size()), PackedDataOf(oldFile), steps};
        ByteBuffer const recipe = FasterRecipe(FindRecipe(newFile, text).value(), newFile, text, base);
        PlainText old({base.text});
        m_writer.AddRecord(Bytes(recipe.data(), recipe.size()));
        m_writer.Add(old, steps, text);
    }

    void AddWholeFiles(DeltaUnit const& whole)
    {
        for (std::uint32_t const target : whole.targets)
        {
            DeltaEntry const& entry = m_manifest.entries[target];
            AddTo(m_targetHashes, entry.hash);
            m_writer.AddWhole(OpenNew(entry.path).Content());
        }
        if (!whole.targets.empty())
        {
            m_manifest.units.push_back(whole);
        }
    }

    ByteBuffer Pack(BinaryPatch const& patch)
    {
        std::array<PackedStream, PATCH_STREAMS> packed;
        DoAll(
            PATCH_STREAMS,
            [this, &packed, &patch](std::size_t i)
            {
                // The last is the largest as a rule.
                std::size_t const number = PATCH_STREAMS - 1 - i;
                ByteBuffer const& plain = patch.streams[number];
                packed[number] = PackStream(Bytes(plain.data(), plain.size()),
                                            WindowLogOf(static_cast<PatchStream>(number)), m_mode.effort);
            },
            [] {});
        ByteBuffer data;
        for (std::size_t i = 0; i < PATCH_STREAMS; ++i)
        {
            m_manifest.streams[i] = {packed[i].packing, packed[i].bytes.size()};
            data.insert(data.end(), packed[i].bytes.begin(), packed[i].bytes.end());
        }
        return data;
    }

    fs::path m_newFolder;
    OldVersion const& m_old;
    DeltaManifest& m_manifest;
    Manner m_mode;
    PatchWriter m_writer;
    ContentHasher m_baseHashes;
    ContentHasher m_targetHashes;
};

void Count(DeltaManifest const& manifest, DeltaReport& report)
{
    auto const count = [&manifest](DeltaEntryKind kind)
    {
        return static_cast<std::uint64_t>(std::count_if(manifest.entries.begin(), manifest.entries.end(),
                                                        [kind](DeltaEntry const& entry)
                                                        { return entry.kind == kind; }));
    };
    report.keptFiles = count(DeltaEntryKind::Kept);
    report.patchedFiles = count(DeltaEntryKind::Patched);
    report.wholeFiles = count(DeltaEntryKind::Whole);
}

} // namespace

DeltaReport MakeDelta(fs::path const& oldBundle, std::string const& baseVersion, fs::path const& newBundle,
                      std::string const& targetVersion, int containerFd, DeltaLimits const& limits,
                      DeltaMakerProgress const& progress, DeltaEffort effort)
{
    DeltaReport report;
    DeltaManifest manifest;
    manifest.format = DeltaFormat::Joined;
    manifest.baseVersion = baseVersion;
    manifest.targetVersion = targetVersion;
    ByteBuffer data;
    try
    {
        OldVersion const old = ReadOldVersion(oldBundle);
        manifest.entries = ReadNewVersion(newBundle, old);
        data = Maker(newBundle, old, manifest, {progress, effort}).Make();
    }
    catch (fs::filesystem_error const& error)
    {
        report.outcome = {DeltaError::CannotRead, error.path1().string(), error.code().value()};
        return report;
    }
    report.outcome = OutcomeOf(CheckDeltaManifest(manifest, limits));
    if (!report.outcome.HasSucceeded())
    {
        return report;
    }
    ByteBuffer const opening = EncodeDeltaOpening(manifest);
    if (!WriteAll(containerFd, Bytes(opening.data(), opening.size())) ||
        !WriteAll(containerFd, Bytes(data.data(), data.size())))
    {
        report.outcome = {DeltaError::CannotWrite, {}, errno};
        return report;
    }
    report.containerBytes = opening.size() + data.size();
    Count(manifest, report);
    return report;
}

} // namespace Pelnar::Engine
