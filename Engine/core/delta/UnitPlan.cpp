#include "Engine/core/delta/UnitPlan.h"

#include "Engine/core/delta/ImageLayout.h"
#include "Engine/core/delta/PackedText.h"
#include "Engine/core/delta/WorkCrew.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

// A search takes five times this in memory, and all files of a unit are open at once.
constexpr std::uint64_t MAX_UNIT_BYTES = 128u << 20;
constexpr std::size_t MAX_UNIT_FILES = 10000;

/// The path without its numbers, which are often the version.
std::string PlainPath(std::string const& path)
{
    std::string plain;
    std::copy_if(path.begin(), path.end(), std::back_inserter(plain),
                 [](unsigned char c) { return !std::isdigit(c) && c != '.'; });
    return plain;
}

SpanChange ChangeOf(ImageSpan const& from, ImageSpan const& to)
{
    return {std::int64_t(to.offset) - std::int64_t(from.offset), std::int64_t(to.size) - std::int64_t(from.size),
            static_cast<std::int64_t>(to.address - from.address)};
}

std::vector<SpanChange> ChangesOf(ImageLayout const& from, ImageLayout const& to)
{
    std::vector<SpanChange> changes;
    for (std::size_t i = 0; i < to.spans.size(); ++i)
    {
        changes.push_back(ChangeOf(i < from.spans.size() ? from.spans[i] : ImageSpan(), to.spans[i]));
    }
    return changes;
}

/// A unit for one file; for a packed text also its recipe.
struct Candidate
{
    DeltaUnit unit;
    ByteBuffer recipe;
};

class Planner
{
public:
    Planner(OldVersion const& old, std::filesystem::path newFolder, std::vector<DeltaEntry> const& entries,
            DeltaEffort effort)
        : m_old(old), m_newFolder(std::move(newFolder)), m_entries(entries), m_effort(effort)
    {
        for (auto const& [path, file] : old.files)
        {
            m_pathsByPlainPath.emplace(PlainPath(path), path);
        }
        for (DeltaEntry const& entry : entries)
        {
            if (entry.kind == DeltaEntryKind::Kept)
            {
                m_usedPaths.insert(entry.sourcePath);
            }
        }
    }

    UnitPlan Plan()
    {
        std::vector<std::uint32_t> changed;
        for (std::uint32_t i = 0; i < m_entries.size(); ++i)
        {
            changed.insert(changed.end(), m_entries[i].kind == DeltaEntryKind::Whole ? 1 : 0, i);
        }
        std::vector<Candidate> candidates(changed.size());
        DoAll(changed.size(), [&](std::size_t i) { candidates[i] = CandidateFor(changed[i]); });
        std::vector<std::uint32_t> others;
        for (std::size_t i = 0; i < changed.size(); ++i)
        {
            DeltaUnit& unit = candidates[i].unit;
            if (unit.sources.empty())
            {
                others.push_back(changed[i]);
                continue;
            }
            m_usedPaths.insert(unit.sources.front().path);
            if (unit.textBytes > 0)
            {
                m_plan.recipes.emplace(changed[i], std::move(candidates[i].recipe));
            }
            m_plan.units.push_back(std::move(unit));
        }
        AddOthers(others);
        // Packing a text takes long, and the applier packs while it makes later files.
        std::stable_partition(m_plan.units.begin(), m_plan.units.end(),
                              [](DeltaUnit const& unit) { return unit.textBytes > 0; });
        return std::move(m_plan);
    }

private:
    std::string SourceFor(std::string const& path) const
    {
        auto const similar = m_pathsByPlainPath.find(PlainPath(path));
        bool const isThere = m_old.files.count(path) != 0;
        return isThere || similar == m_pathsByPlainPath.end() ? path : similar->second;
    }

    /// A unit without sources if the file does not get its own unit.
    Candidate CandidateFor(std::uint32_t target) const
    {
        auto const found = m_old.files.find(SourceFor(m_entries[target].path));
        if (found == m_old.files.end())
        {
            return {};
        }
        OpenedFile const source(m_old.folder / found->first);
        OpenedFile const file(m_newFolder / m_entries[target].path);
        Candidate candidate{{{{found->first, found->second.size}}, {target}, {}, 0}, {}};
        bool const isOne = IsProgram(source.Content(), file.Content(), candidate) ||
                           (m_effort != DeltaEffort::Low && IsPackedText(source.Content(), file.Content(), candidate));
        return isOne ? candidate : Candidate();
    }

    static bool IsProgram(Bytes source, Bytes file, Candidate& candidate)
    {
        std::optional<ImageLayout> const from = ReadImageSpans(source);
        std::optional<ImageLayout> const to = from ? ReadImageSpans(file) : std::nullopt;
        candidate.unit.spanChanges = to ? ChangesOf(*from, *to) : std::vector<SpanChange>();
        return to.has_value();
    }

    static bool IsPackedText(Bytes source, Bytes file, Candidate& candidate)
    {
        // Files that differ only before their packed data, for example in the time, need not be packed again.
        bool const isEquallyPacked = PackedDataOf(source) == PackedDataOf(file);
        if (isEquallyPacked || source.size() > MAX_PACKED_TEXT_BYTES || !UnpackText(source))
        {
            return false;
        }
        std::optional<TokenizedText> const text = UnpackText(file);
        std::optional<ByteBuffer> recipe =
            text && !text->text.empty() ? FindRecipe(file, View(text->text)) : std::nullopt;
        candidate.unit.textBytes = recipe ? text->text.size() : 0;
        candidate.recipe = std::move(recipe).value_or(ByteBuffer());
        return candidate.unit.textBytes > 0;
    }

    /// All other files, old and new together, in the order of their paths. A unit ends before it is too large for one
    /// search.
    void AddOthers(std::vector<std::uint32_t> const& targets)
    {
        std::map<std::pair<std::string, bool>, std::uint32_t> items; ///< the old file comes before the new one
        for (auto const& [path, file] : m_old.files)
        {
            if (m_usedPaths.count(path) == 0)
            {
                items.emplace(std::make_pair(path, false), 0);
            }
        }
        for (std::uint32_t const target : targets)
        {
            items.emplace(std::make_pair(m_entries[target].path, true), target);
        }
        DeltaUnit unit;
        std::uint64_t bytes = 0;
        for (auto const& [item, target] : items)
        {
            auto const& [path, isTarget] = item;
            if (isTarget)
            {
                unit.targets.push_back(target);
                continue;
            }
            std::uint64_t const size = m_old.files.at(path).size;
            if (bytes + size > MAX_UNIT_BYTES || unit.sources.size() == MAX_UNIT_FILES)
            {
                bytes = 0;
                m_plan.units.push_back(std::exchange(unit, {}));
            }
            unit.sources.push_back({path, size});
            bytes += size;
        }
        m_plan.units.push_back(unit);
    }

    OldVersion const& m_old;
    std::filesystem::path m_newFolder;
    std::vector<DeltaEntry> const& m_entries;
    DeltaEffort m_effort;
    std::multimap<std::string, std::string> m_pathsByPlainPath;
    std::set<std::string> m_usedPaths; ///< of old files that are kept or have their own unit
    UnitPlan m_plan;
};

} // namespace

UnitPlan PlanUnits(OldVersion const& old, std::filesystem::path const& newFolder,
                   std::vector<DeltaEntry> const& entries, DeltaEffort effort)
{
    return Planner(old, newFolder, entries, effort).Plan();
}

} // namespace Pelnar::Engine
