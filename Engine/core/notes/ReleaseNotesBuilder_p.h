// ReleaseNotesBuilder_p.h: builds the displayed markup of release notes, within the limits.
// Thread: one at a time. Ownership: the limits must outlive it.
#pragma once

#include "Engine/core/notes/ReleaseNotesElements_p.h"
#include "Engine/core/notes/ReleaseNotesFilter.h"
#include "Engine/core/notes/ReleaseNotesTokenizer_p.h"

#include <string>
#include <string_view>
#include <vector>

namespace Pelnar::Engine
{

/// Writes the incoming elements so that they nest well, and refuses when a limit is exceeded. Every choice depends only
/// on the open elements, and the output opens the same elements again: this makes the filter idempotent.
class NotesBuilder
{
public:
    explicit NotesBuilder(ReleaseNotesLimits const& limits) : m_limits(limits) {}

    [[nodiscard]] bool IsRefused() const { return m_refusal != ReleaseNotesRefusal::None; }
    [[nodiscard]] ReleaseNotesRefusal Refusal() const { return m_refusal; }

    void Add(NotesToken const& token);
    /// Closes all open elements and returns the markup.
    [[nodiscard]] std::string Finish();

private:
    struct OpenElement
    {
        NotesElement element;
        std::size_t rows = 0;       ///< of a table
        std::size_t longestRow = 0; ///< of a table, in cells
        std::size_t cellsInRow = 0; ///< of a table's last row
    };

    void AddText(std::string_view text);
    void AddStart(NotesElement const& element, NotesToken const& token);
    void AddEnd(NotesElement const& element);
    void OpenLink(NotesToken const& token);
    void OpenRow(NotesToken const& token);
    void OpenCell(NotesElement const& element, NotesToken const& token);
    /// If a table is open, content that is not a row or a cell goes into a cell.
    void EnsureInsideCell();
    void CloseNearest(NotesElementKind kind);
    void CloseNearestListItem();
    void CountCell();

    void Push(NotesElement const& element, std::string_view attributes = {});
    void Pop();
    void PopTo(std::size_t depth);
    [[nodiscard]] std::size_t IndexOfTable() const;
    void CountElement();
    void CountIn(NotesElement const& element);
    void CountText(std::size_t bytes);
    /// The following text belongs to another block.
    void StartBlock();
    void RequireAtMost(std::size_t count, std::size_t limit, ReleaseNotesRefusal refusal);
    void Refuse(ReleaseNotesRefusal refusal);

    static constexpr std::size_t NONE = static_cast<std::size_t>(-1);

    ReleaseNotesLimits const& m_limits;
    ReleaseNotesRefusal m_refusal = ReleaseNotesRefusal::None;
    std::vector<OpenElement> m_open;
    std::string m_html;
    std::size_t m_elements = 0;
    std::size_t m_tableDepth = 0;
    std::size_t m_cells = 0;
    std::size_t m_listItems = 0;
    std::size_t m_preformatted = 0;
    std::size_t m_codes = 0;
    std::size_t m_tableBytes = 0;
    std::size_t m_blockBytes = 0;
    std::size_t m_wordBytes = 0;
    std::size_t m_marks = 0; ///< on the last letter
};

} // namespace Pelnar::Engine
