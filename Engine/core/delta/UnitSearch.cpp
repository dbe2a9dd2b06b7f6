#include "Engine/core/delta/UnitSearch.h"

#include "Engine/core/delta/AlignmentText.h"
#include "Engine/core/delta/PackedText.h"
#include "Engine/core/delta/StepFinder.h"
#include "Engine/core/delta/WorkCrew.h"

#include <algorithm>
#include <deque>
#include <map>
#include <new>

namespace Pelnar::Engine
{
namespace
{

/// Large files are searched in pieces, so that all processors have work.
constexpr std::size_t PIECE_BYTES = 8u << 20;
/// The maximum total size of texts whose indices are in memory at once.
constexpr std::uint64_t WAVE_BYTES = 128u << 20;

/// The old files of one unit, joined to one text.
class OldIndex
{
public:
    OldIndex(DeltaUnit const& unit, std::filesystem::path const& folder)
    {
        for (DeltaSource const& source : unit.sources)
        {
            OpenedFile const file(folder / source.path, source.size);
            m_text.insert(m_text.end(), file.Content().begin(), file.Content().end());
        }
        Bytes const plain(m_text.data(), m_text.size());
        if (unit.textBytes > 0)
        {
            m_text = PackedTextOf(OpenedFile(folder / unit.sources.front().path)).text;
        }
        if (std::optional<ImageLayout> const layout = unit.spanChanges.empty() ? std::nullopt : ReadImageLayout(plain))
        {
            m_text = AlignmentTextOf(plain, *layout);
        }
        if (!m_index.Build(View(m_text)))
        {
            throw std::bad_alloc();
        }
    }

    SuffixIndex const& Index() const { return m_index; }

private:
    ByteBuffer m_text;
    SuffixIndex m_index;
};

/// A piece of a target's text: its start in the old text, and its steps.
struct Piece
{
    std::size_t target;
    std::size_t begin;
    std::size_t size;
    std::uint64_t start = 0;
    std::uint64_t end = 0;
    std::vector<PatchStep> steps;
};

class UnitWork
{
public:
    UnitWork(DeltaUnit const& unit, std::filesystem::path const& oldFolder, std::filesystem::path const& newFolder,
             std::vector<DeltaEntry> const& entries)
        : m_unit(unit), m_oldFolder(oldFolder), m_newFolder(newFolder), m_entries(entries)
    {
        std::map<std::string, std::uint64_t> starts;
        for (DeltaSource const& source : unit.sources)
        {
            starts.emplace(source.path, m_oldBytes);
            m_oldBytes += source.size;
        }
        for (std::size_t i = 0; i < unit.targets.size(); ++i)
        {
            DeltaEntry const& entry = entries[unit.targets[i]];
            // It probably starts where the old file with its path starts, or else where the previous piece did.
            auto const same = starts.find(entry.path);
            std::uint64_t const before = m_pieces.empty() ? 0 : m_pieces.back().start;
            std::uint64_t const begin = same == starts.end() ? before : same->second;
            std::uint64_t const bytes = unit.textBytes > 0 ? unit.textBytes : entry.size;
            for (std::uint64_t at = 0; at < bytes; at += PIECE_BYTES)
            {
                auto const size = static_cast<std::size_t>(std::min<std::uint64_t>(PIECE_BYTES, bytes - at));
                m_pieces.push_back({i, static_cast<std::size_t>(at), size, std::min(begin + at, m_oldBytes), 0, {}});
            }
        }
    }

    std::size_t PieceCount() const { return m_pieces.size(); }
    std::uint64_t OldBytes() const { return m_oldBytes; }

    void BuildIndex()
    {
        m_index.emplace(m_unit, m_oldFolder);
        if (m_unit.textBytes > 0)
        {
            OpenedFile const file(m_newFolder / m_entries[m_unit.targets.front()].path);
            m_changed = PackedTextOf(file).text;
        }
        if (!m_unit.spanChanges.empty())
        {
            OpenedFile const program(m_newFolder / m_entries[m_unit.targets.front()].path);
            std::optional<ImageLayout> const layout = ReadImageLayout(program.Content());
            m_changed = layout ? AlignmentTextOf(program.Content(), *layout) : ByteBuffer();
        }
    }

    void Search(std::size_t number)
    {
        Piece& piece = m_pieces[number];
        OpenedFile const file(m_newFolder / m_entries[m_unit.targets[piece.target]].path);
        Bytes const text = m_changed.empty() ? file.Content() : View(m_changed);
        if (text.size() < piece.begin + piece.size)
        {
            file.RefuseAsChanged();
        }
        piece.end = piece.start;
        piece.steps = FindSteps(m_index->Index(), text.substr(piece.begin, piece.size), piece.end);
    }

    /// Drops the index.
    UnitSteps Finish()
    {
        UnitSteps steps(m_unit.targets.size());
        std::uint64_t position = 0;
        for (Piece const& piece : m_pieces)
        {
            Append(steps[piece.target], piece, position);
        }
        m_pieces = {};
        m_index.reset();
        m_changed = {};
        return steps;
    }

private:
    /// Moves from the end of the previous piece to the start of this one.
    static void Append(std::vector<PatchStep>& steps, Piece const& piece, std::uint64_t& position)
    {
        std::vector<PatchStep> next = piece.steps;
        std::uint64_t start = piece.start;
        bool const isIdle = !next.empty() && next.front().likeBytes == 0 && next.front().extraBytes == 0;
        if (isIdle)
        {
            start = MovedBy(start, next.front().move);
            next.erase(next.begin());
        }
        bool const usesOld =
            std::any_of(next.begin(), next.end(), [](PatchStep const& step) { return step.likeBytes > 0; });
        if (!usesOld)
        {
            // A piece without old bytes leaves the position unchanged.
            next.assign(1, PatchStep{0, piece.size, 0});
            start = position;
        }
        if (start != position && steps.empty())
        {
            steps.push_back({0, 0, FoldSign(static_cast<std::int64_t>(start - position))});
        }
        else if (start != position)
        {
            steps.back().move =
                FoldSign(static_cast<std::int64_t>(start - position)); // the last step of a piece does not move
        }
        steps.insert(steps.end(), next.begin(), next.end());
        position = usesOld ? piece.end : position;
    }

    DeltaUnit const& m_unit;
    std::filesystem::path const& m_oldFolder;
    std::filesystem::path const& m_newFolder;
    std::vector<DeltaEntry> const& m_entries;
    std::uint64_t m_oldBytes = 0;
    std::vector<Piece> m_pieces;
    std::optional<OldIndex> m_index;
    ByteBuffer m_changed; ///< the form of the target in which it is compared, if that differs
};

} // namespace

TokenizedText PackedTextOf(OpenedFile const& file)
{
    std::optional<TokenizedText> text = UnpackText(file.Content());
    if (!text)
    {
        file.RefuseAsChanged();
    }
    return *std::move(text);
}

std::vector<UnitSteps> SearchUnits(std::vector<DeltaUnit> const& units, std::filesystem::path const& oldFolder,
                                   std::filesystem::path const& newFolder, std::vector<DeltaEntry> const& entries,
                                   SearchProgress const& progress)
{
    std::deque<UnitWork> works;
    std::uint64_t total = 0;
    for (DeltaUnit const& unit : units)
    {
        total += works.emplace_back(unit, oldFolder, newFolder, entries).PieceCount() + 1;
    }
    std::uint64_t done = 0;
    auto const told = [&done, total, &progress] { progress ? progress(++done, total) : void(); };
    std::vector<UnitSteps> answer;
    while (answer.size() < units.size())
    {
        std::size_t const first = answer.size();
        std::size_t end = first;
        std::vector<std::pair<std::size_t, std::size_t>> pieces;
        for (std::uint64_t bytes = 0; end < units.size() && (end == first || bytes < WAVE_BYTES); ++end)
        {
            for (std::size_t i = 0; i < works[end].PieceCount(); ++i)
            {
                pieces.emplace_back(end, i);
            }
            bytes += works[end].OldBytes();
        }
        DoAll(
            end - first, [&works, first](std::size_t i) { works[first + i].BuildIndex(); }, told);
        DoAll(
            pieces.size(), [&works, &pieces](std::size_t i) { works[pieces[i].first].Search(pieces[i].second); }, told);
        for (std::size_t i = first; i < end; ++i)
        {
            answer.push_back(works[i].Finish());
        }
    }
    return answer;
}

} // namespace Pelnar::Engine
