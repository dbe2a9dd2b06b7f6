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
#include <functional>
#include <map>
#include <numeric>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

namespace fs = std::filesystem;

/// The number of old bytes that differ from the new bytes that the steps make of them.
std::uint64_t CountChangedBytes(IOldText& old, std::vector<PatchStep> const& steps, Bytes newBytes)
{
    ByteBuffer room(PATCH_PIECE_BYTES);
    std::uint64_t changed = 0;
    std::uint64_t position = 0;
    std::size_t made = 0;
    for (PatchStep const& step : steps)
    {
        std::uint64_t left = step.likeBytes;
        if (left > 0)
        {
            old.Start(position, made, left);
        }
        while (left > 0)
        {
            Bytes const piece = old.Next(room.data(), room.size());
            changed += std::inner_product(piece.begin(), piece.end(), newBytes.begin() + made, std::uint64_t(0),
                                          std::plus<>(), std::not_equal_to<>());
            made += piece.size();
            left -= piece.size();
        }
        made += static_cast<std::size_t>(step.extraBytes);
        position = MovedBy(position + step.likeBytes, step.move);
    }
    return changed;
}

class Maker
{
public:
    Maker(fs::path newFolder, OldVersion const& old, DeltaManifest& manifest, DeltaMakerProgress const& progress,
          DeltaEffort effort)
        : m_newFolder(std::move(newFolder)), m_old(old), m_manifest(manifest), m_progress(progress), m_effort(effort)
    {
    }

    /// Completes the manifest and returns the container's data.
    ByteBuffer Make()
    {
        UnitPlan plan = PlanUnits(m_old, m_newFolder, m_manifest.entries, m_effort);
        m_recipes = std::move(plan.recipes);
        std::vector<DeltaUnit>& units = plan.units;
        std::vector<UnitSteps> steps = SearchUnits(units, m_old.folder, m_newFolder, m_manifest.entries, m_progress);
        SearchPlainly(units, steps, ProgramsWithoutAddresses(units, steps));
        AddKeptFiles();
        DeltaUnit whole;
        for (std::size_t i = 0; i < units.size(); ++i)
        {
            AddUnit(std::move(units[i]), steps[i], whole);
        }
        AddWholeFiles(whole);
        m_manifest.baseHash = m_baseHashes.Finish();
        m_manifest.targetHash = m_targetHashes.Finish();
        return Pack(m_writer.Finish());
    }

private:
    /// Throws std::filesystem::filesystem_error, also if the size has changed since the file was read first.
    OpenedFile OpenNew(DeltaEntry const& entry) const { return OpenedFile(m_newFolder / entry.path, entry.size); }
    OpenedFile OpenOld(DeltaSource const& source) const { return OpenedFile(m_old.folder / source.path, source.size); }

    static ImageLayout LayoutOf(OpenedFile const& program)
    {
        std::optional<ImageLayout> layout = ReadImageSpans(program.Content());
        if (!layout)
        {
            program.RefuseAsChanged();
        }
        return *std::move(layout);
    }

    /// False for a program whose fields are not addresses, for example a packed one.
    bool IsWorthForetelling(DeltaUnit const& unit, std::vector<PatchStep> const& steps) const
    {
        if (steps.size() > MAX_MAPPED_STEPS)
        {
            return false;
        }
        OpenedFile const source = OpenOld(unit.sources.front());
        OpenedFile const target = OpenNew(m_manifest.entries[unit.targets.front()]);
        ImageLayout const layout = LayoutOf(source);
        ProgramText changed(source.Content(), layout, ChangedSpans(layout, unit.spanChanges), steps);
        PlainText plain({source.Content()});
        return CountChangedBytes(changed, steps, target.Content()) <= CountChangedBytes(plain, steps, target.Content());
    }

    /// The numbers of the units whose addresses make the difference larger. Also makes the recipes of packed texts
    /// faster.
    std::vector<std::size_t> ProgramsWithoutAddresses(std::vector<DeltaUnit> const& units,
                                                      std::vector<UnitSteps> const& steps)
    {
        std::vector<char> isWithout(units.size());
        DoAll(units.size(),
              [&](std::size_t i)
              {
                  isWithout[i] = !units[i].spanChanges.empty() && !IsWorthForetelling(units[i], steps[i].front());
                  if (units[i].textBytes > 0)
                  {
                      MakeRecipeFaster(units[i], steps[i].front());
                  }
              });
        std::vector<std::size_t> numbers;
        for (std::size_t i = 0; i < units.size(); ++i)
        {
            numbers.insert(numbers.end(), isWithout[i], i);
        }
        return numbers;
    }

    void MakeRecipeFaster(DeltaUnit const& unit, std::vector<PatchStep> const& steps)
    {
        OpenedFile const newFile = OpenNew(m_manifest.entries[unit.targets.front()]);
        PackedBase const base{PackedTextOf(OpenOld(unit.sources.front())), steps};
        TokenizedText const newText = PackedTextOf(newFile);
        ByteBuffer& recipe = m_recipes.at(unit.targets.front());
        recipe = FasterRecipe(recipe, newFile.Content(), newText, base);
    }

    /// Searches the units \a numbers again, and treats them as ordinary files.
    void SearchPlainly(std::vector<DeltaUnit>& units, std::vector<UnitSteps>& steps,
                       std::vector<std::size_t> const& numbers) const
    {
        std::vector<DeltaUnit> plain;
        for (std::size_t const number : numbers)
        {
            units[number].spanChanges.clear();
            plain.push_back(units[number]);
        }
        std::vector<UnitSteps> found = SearchUnits(plain, m_old.folder, m_newFolder, m_manifest.entries, m_progress);
        for (std::size_t i = 0; i < numbers.size(); ++i)
        {
            steps[numbers[i]] = std::move(found[i]);
        }
    }

    void AddKeptFiles()
    {
        for (DeltaEntry const& entry : m_manifest.entries)
        {
            if (entry.kind == DeltaEntryKind::Kept)
            {
                m_baseHashes.Add(View(entry.hash));
                m_targetHashes.Add(View(entry.hash));
            }
        }
    }

    /// Files that use no old bytes are added to \a whole.
    void AddUnit(DeltaUnit unit, UnitSteps const& steps, DeltaUnit& whole)
    {
        std::vector<std::uint32_t> const targets = std::exchange(unit.targets, {});
        std::vector<std::size_t> made;
        for (std::size_t i = 0; i < targets.size(); ++i)
        {
            bool const usesOld =
                std::any_of(steps[i].begin(), steps[i].end(), [](PatchStep const& step) { return step.likeBytes > 0; });
            bool const isTooLong = unit.textBytes > 0 && steps[i].size() > MAX_MAPPED_STEPS;
            bool const isMade = usesOld && !isTooLong;
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
            texts.push_back(sources.emplace_back(m_old.folder / source.path, source.size).Content());
            m_baseHashes.Add(View(m_old.files.at(source.path).hash));
        }
        m_writer.StartText();
        PlainText plain(texts);
        for (std::size_t const number : made)
        {
            DeltaEntry& entry = m_manifest.entries[targets[number]];
            entry.kind = DeltaEntryKind::Patched;
            OpenedFile const file = OpenNew(entry);
            m_targetHashes.Add(View(entry.hash));
            unit.textBytes > 0
                ? AddPacked(unit.textBytes, m_recipes.at(targets[number]), sources.front(), steps[number], file)
            : unit.spanChanges.empty() ? m_writer.Add(plain, steps[number], file.Content())
                                       : AddProgram(sources.front(), unit.spanChanges, steps[number], file.Content());
        }
        m_manifest.units.push_back(std::move(unit));
    }

    void AddProgram(OpenedFile const& program, std::vector<SpanChange> const& changes,
                    std::vector<PatchStep> const& steps, Bytes newBytes)
    {
        ImageLayout const layout = LayoutOf(program);
        ProgramText old(program.Content(), layout, ChangedSpans(layout, changes), steps);
        m_writer.Add(old, steps, newBytes);
    }

    void AddPacked(std::uint64_t textBytes, ByteBuffer const& recipe, OpenedFile const& oldFile,
                   std::vector<PatchStep> const& steps, OpenedFile const& newFile)
    {
        ByteBuffer const oldText = PackedTextOf(oldFile).text;
        ByteBuffer const newText = PackedTextOf(newFile).text;
        if (newText.size() != textBytes)
        {
            newFile.RefuseAsChanged();
        }
        PlainText old({View(oldText)});
        m_writer.AddRecord(View(recipe));
        m_writer.Add(old, steps, View(newText));
    }

    void AddWholeFiles(DeltaUnit const& whole)
    {
        for (std::uint32_t const target : whole.targets)
        {
            DeltaEntry const& entry = m_manifest.entries[target];
            m_targetHashes.Add(View(entry.hash));
            m_writer.AddWhole(OpenNew(entry).Content());
        }
        if (!whole.targets.empty())
        {
            m_manifest.units.push_back(whole);
        }
    }

    ByteBuffer Pack(BinaryPatch const& patch)
    {
        std::array<PackedStream, PATCH_STREAMS> const packed = PackStreams(patch, m_effort);
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
    DeltaMakerProgress const& m_progress;
    DeltaEffort m_effort;
    std::map<std::uint32_t, ByteBuffer> m_recipes; ///< of the targets that are packed texts
    PatchWriter m_writer;
    ContentHasher m_baseHashes;
    ContentHasher m_targetHashes;
};

std::uint64_t CountOf(DeltaManifest const& manifest, DeltaEntryKind kind)
{
    return static_cast<std::uint64_t>(std::count_if(manifest.entries.begin(), manifest.entries.end(),
                                                    [kind](DeltaEntry const& entry) { return entry.kind == kind; }));
}

} // namespace

DeltaReport MakeDelta(fs::path const& oldBundle, std::string const& baseVersion, fs::path const& newBundle,
                      std::string const& targetVersion, int containerFd, DeltaMakerProgress const& progress,
                      DeltaEffort effort)
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
        // The search may take hours.
        report.outcome = OutcomeOf(CheckTree(manifest.entries, DeltaLimits()));
        if (!report.outcome.HasSucceeded())
        {
            return report;
        }
        data = Maker(newBundle, old, manifest, progress, effort).Make();
    }
    catch (fs::filesystem_error const& error)
    {
        report.outcome = {DeltaError::CannotRead, error.path1().string(), error.code().value()};
        return report;
    }
    report.outcome = OutcomeOf(CheckDeltaManifest(manifest, DeltaLimits()));
    if (!report.outcome.HasSucceeded())
    {
        return report;
    }
    ByteBuffer const opening = EncodeDeltaOpening(manifest);
    if (!WriteAll(containerFd, View(opening)) || !WriteAll(containerFd, View(data)))
    {
        report.outcome = {DeltaError::CannotWrite, {}, errno};
        return report;
    }
    report.containerBytes = opening.size() + data.size();
    report.keptFiles = CountOf(manifest, DeltaEntryKind::Kept);
    report.patchedFiles = CountOf(manifest, DeltaEntryKind::Patched);
    report.wholeFiles = CountOf(manifest, DeltaEntryKind::Whole);
    return report;
}

} // namespace Pelnar::Engine
