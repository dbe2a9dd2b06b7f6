#include "Engine/core/delta/UnitPlan.h"

#include "Engine/core/delta/ImageLayout.h"
#include "Engine/core/delta/PackedText.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

// A search takes five times this in memory, and the files of a unit are open together.
constexpr std::uint64_t MAX_UNIT_BYTES = 128u << 20;
constexpr std::size_t MAX_UNIT_FILES = 10000;

/// The path without its numbers: they often tell the version.
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

    std::vector<DeltaUnit> Plan()
    {
        std::vector<std::uint32_t> others;
        for (std::uint32_t i = 0; i < m_entries.size(); ++i)
        {
            if (m_entries[i].kind == DeltaEntryKind::Whole && !AddProgram(i) && !AddPacked(i))
            {
                others.push_back(i);
            }
        }
        AddOthers(others);
        return std::move(m_units);
    }

private:
    std::string SourceFor(std::string const& path) const
    {
        auto const similar = m_pathsByPlainPath.find(PlainPath(path));
        bool const isThere = m_old.files.count(path) != 0;
        return isThere || similar == m_pathsByPlainPath.end() ? path : similar->second;
    }

    bool AddProgram(std::uint32_t target)
    {
        std::string const source = SourceFor(m_entries[target].path);
        auto const found = m_old.files.find(source);
        if (found == m_old.files.end())
        {
            return false;
        }
        std::optional<ImageLayout> const from = ReadImageLayout(OpenedFile(m_old.folder / source).Content());
        std::optional<ImageLayout> const to =
            from ? ReadImageLayout(OpenedFile(m_newFolder / m_entries[target].path).Content()) : std::nullopt;
        if (!to)
        {
            return false;
        }
        m_units.push_back({{{source, found->second.size}}, {target}, ChangesOf(*from, *to), 0});
        m_usedPaths.insert(source);
        return true;
    }

    bool AddPacked(std::uint32_t target)
    {
        std::string const source = SourceFor(m_entries[target].path);
        auto const found = m_old.files.find(source);
        if (m_effort == DeltaEffort::Low || found == m_old.files.end() || found->second.size > MAX_PACKED_TEXT_BYTES ||
            m_entries[target].size > MAX_PACKED_TEXT_BYTES)
        {
            return false;
        }
        std::optional<ByteBuffer> const from = UnpackText(OpenedFile(m_old.folder / source).Content());
        OpenedFile const file(m_newFolder / m_entries[target].path);
        std::optional<ByteBuffer> const to = from ? UnpackText(file.Content()) : std::nullopt;
        bool const hasRecipe = to && !to->empty() && FindRecipe(file.Content(), View(*to));
        if (!hasRecipe)
        {
            return false;
        }
        DeltaUnit unit{{{source, found->second.size}}, {target}, {}, to->size()};
        m_units.push_back(std::move(unit));
        m_usedPaths.insert(source);
        return true;
    }

    /// All other files, old and new together, in the order of their paths. A unit ends where it gets too large for one
    /// search.
    void AddOthers(std::vector<std::uint32_t> const& targets)
    {
        std::map<std::pair<std::string, bool>, std::uint32_t> items; ///< an old file comes before the new one
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
                m_units.push_back(std::exchange(unit, {}));
            }
            unit.sources.push_back({path, size});
            bytes += size;
        }
        m_units.push_back(unit);
    }

    OldVersion const& m_old;
    std::filesystem::path m_newFolder;
    std::vector<DeltaEntry> const& m_entries;
    DeltaEffort m_effort;
    std::multimap<std::string, std::string> m_pathsByPlainPath;
    std::set<std::string> m_usedPaths; ///< of old files that are kept or have a unit of their own
    std::vector<DeltaUnit> m_units;
};

} // namespace

std::vector<DeltaUnit> PlanUnits(OldVersion const& old, std::filesystem::path const& newFolder,
                                 std::vector<DeltaEntry> const& entries, DeltaEffort effort)
{
    return Planner(old, newFolder, entries, effort).Plan();
}

} // namespace Pelnar::Engine
