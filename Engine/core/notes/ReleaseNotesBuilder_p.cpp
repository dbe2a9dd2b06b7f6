#include "Engine/core/notes/ReleaseNotesBuilder_p.h"

#include "Engine/core/notes/ReleaseNotesLink.h"
#include "Engine/core/notes/ReleaseNotesText_p.h"

#include <optional>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

using Kind = NotesElementKind;

constexpr std::string_view WORD_BREAK = "\xE2\x80\x8B"; // U+200B: invisible; a line may end there

NotesElement const& Known(std::string_view name)
{
    return *FindNotesElement(name);
}

std::string DirectionAttribute(NotesToken const& token)
{
    if (!token.dir)
    {
        return {};
    }
    std::string const direction = ToLowerAscii(TrimmedAscii(*token.dir));
    return direction == "rtl" || direction == "ltr" ? " dir=\"" + direction + "\"" : std::string();
}

} // namespace

void NotesBuilder::Add(NotesToken const& token)
{
    if (token.kind == NotesToken::Kind::Text)
    {
        AddText(token.text);
        return;
    }
    NotesElement const* const element = FindNotesElement(token.text);
    if (element == nullptr)
    {
        return;
    }
    if (token.kind == NotesToken::Kind::StartTag)
    {
        AddStart(*element, token);
    }
    else
    {
        AddEnd(*element);
    }
}

std::string NotesBuilder::Finish()
{
    PopTo(0);
    if (m_html.size() > m_limits.maxBytes)
    {
        Refuse(ReleaseNotesRefusal::TooLong);
    }
    return IsBlank(m_html) ? std::string() : std::move(m_html);
}

void NotesBuilder::AddText(std::string_view text)
{
    bool const isBetweenCells =
        !m_open.empty() && (m_open.back().element.kind == Kind::Table || m_open.back().element.kind == Kind::Row);
    if (text.empty() || (isBetweenCells && IsBlank(text)))
    {
        return;
    }
    EnsureInsideCell();
    std::size_t bytes = 0;
    while (!text.empty())
    {
        std::string_view const character = FirstCharacter(text);
        text.remove_prefix(character.size());
        bool const isMark = IsCombiningMark(character);
        m_marks = isMark ? m_marks + 1 : 0;
        // The writer's own breaks would count as text here, but not when this output is filtered again.
        if (character == WORD_BREAK || m_marks > m_limits.maxMarks)
        {
            continue;
        }
        bool const isBlank = IsBlank(character);
        if (!isBlank && !isMark && m_wordBytes + character.size() > m_limits.maxWordBytes)
        {
            m_html += WORD_BREAK;
            m_wordBytes = 0;
        }
        m_wordBytes = isBlank ? 0 : m_wordBytes + character.size();
        AppendEscaped(m_html, character);
        bytes += character.size();
    }
    CountText(bytes);
}

void NotesBuilder::AddStart(NotesElement const& element, NotesToken const& token)
{
    if (IsBlockKind(element.kind))
    {
        CloseNearest(Kind::Paragraph);
    }
    switch (element.kind)
    {
    case Kind::Image:
        AddText(token.alt.value_or(std::string()));
        return;
    case Kind::LineBreak:
    case Kind::Separator:
        EnsureInsideCell();
        m_html.append("<").append(element.shownAs).append(">");
        m_wordBytes = 0;
        if (element.kind == Kind::Separator)
        {
            StartBlock();
        }
        CountElement();
        return;
    case Kind::Link:
        OpenLink(token);
        return;
    case Kind::Row:
        OpenRow(token);
        return;
    case Kind::Cell:
        OpenCell(element, token);
        return;
    case Kind::Inline:
        if (element.shownAs != "code" || ++m_codes <= m_limits.maxCodes)
        {
            EnsureInsideCell();
            Push(element);
        }
        return;
    case Kind::Heading:
        CloseNearest(Kind::Heading);
        break;
    case Kind::ListItem:
        CloseNearestListItem();
        break;
    case Kind::Paragraph:
    case Kind::Block:
    case Kind::List:
    case Kind::Table:
        break;
    }
    EnsureInsideCell();
    Push(element, DirectionAttribute(token));
}

void NotesBuilder::OpenLink(NotesToken const& token)
{
    CloseNearest(Kind::Link);
    std::optional<std::string> const address = token.href ? SafeLink(*token.href) : std::nullopt;
    if (address)
    {
        EnsureInsideCell();
        Push(Known("a"), " href=\"" + Escaped(*address) + "\"");
    }
}

void NotesBuilder::OpenRow(NotesToken const& token)
{
    std::size_t const table = IndexOfTable();
    if (table == NONE)
    {
        return;
    }
    PopTo(table + 1);
    m_open[table].rows += 1;
    m_open[table].cellsInRow = 0;
    m_cells += m_open[table].longestRow * m_tableDepth;
    Push(Known("tr"), DirectionAttribute(token));
}

void NotesBuilder::OpenCell(NotesElement const& element, NotesToken const& token)
{
    std::size_t const table = IndexOfTable();
    if (table == NONE)
    {
        return;
    }
    if (m_open.size() == table + 1)
    {
        OpenRow({});
    }
    PopTo(table + 2);
    CountCell();
    Push(element, DirectionAttribute(token));
}

void NotesBuilder::EnsureInsideCell()
{
    if (!m_open.empty() && (m_open.back().element.kind == Kind::Table || m_open.back().element.kind == Kind::Row))
    {
        OpenCell(Known("td"), {});
    }
}

/// A rich-text view fills every row up to the length of the longest one.
void NotesBuilder::CountCell()
{
    OpenElement& table = m_open[IndexOfTable()];
    table.cellsInRow += 1;
    if (table.cellsInRow > table.longestRow)
    {
        table.longestRow = table.cellsInRow;
        m_cells += table.rows * m_tableDepth;
    }
    RequireAtMost(m_cells, m_limits.maxCells, ReleaseNotesRefusal::TooManyCells);
}

void NotesBuilder::AddEnd(NotesElement const& element)
{
    bool const reachesOutOfCell =
        element.kind == Kind::Table || element.kind == Kind::Row || element.kind == Kind::Cell;
    for (std::size_t i = m_open.size(); i-- > 0;)
    {
        NotesElement const& open = m_open[i].element;
        if (open.shownAs == element.shownAs)
        {
            PopTo(i);
            return;
        }
        bool const isWall = reachesOutOfCell
                                ? open.kind == Kind::Table
                                : open.kind == Kind::Cell || open.kind == Kind::Row || open.kind == Kind::Table ||
                                      (element.kind == Kind::ListItem && open.kind == Kind::List);
        if (isWall)
        {
            return;
        }
    }
}

/// Closes the innermost open element of \a kind in the same cell.
void NotesBuilder::CloseNearest(Kind kind)
{
    for (std::size_t i = m_open.size(); i-- > 0;)
    {
        Kind const open = m_open[i].element.kind;
        if (open == kind)
        {
            PopTo(i);
            return;
        }
        if (open == Kind::Cell || open == Kind::Row || open == Kind::Table)
        {
            return;
        }
    }
}

/// An item ends at the start of the next item of the same list.
void NotesBuilder::CloseNearestListItem()
{
    for (std::size_t i = m_open.size(); i-- > 0;)
    {
        Kind const open = m_open[i].element.kind;
        if (open == Kind::ListItem)
        {
            PopTo(i);
            return;
        }
        if (open == Kind::List || open == Kind::Cell || open == Kind::Row || open == Kind::Table)
        {
            return;
        }
    }
}

void NotesBuilder::Push(NotesElement const& element, std::string_view attributes)
{
    m_html.append("<").append(element.shownAs).append(attributes).append(">");
    m_open.push_back({element});
    CountElement();
    CountIn(element);
    RequireAtMost(m_open.size(), m_limits.maxDepth, ReleaseNotesRefusal::TooDeep);
}

void NotesBuilder::Pop()
{
    NotesElement const last = m_open.back().element;
    m_html.append("</").append(last.shownAs).append(">");
    m_tableDepth -= last.kind == Kind::Table ? 1 : 0;
    m_open.pop_back();
    if (IsBlockKind(last.kind))
    {
        StartBlock();
    }
}

void NotesBuilder::PopTo(std::size_t depth)
{
    while (m_open.size() > depth)
    {
        Pop();
    }
}

std::size_t NotesBuilder::IndexOfTable() const
{
    for (std::size_t i = m_open.size(); i-- > 0;)
    {
        if (m_open[i].element.kind == Kind::Table)
        {
            return i;
        }
    }
    return NONE;
}

void NotesBuilder::CountElement()
{
    RequireAtMost(++m_elements, m_limits.maxElements, ReleaseNotesRefusal::TooManyElements);
}

void NotesBuilder::CountIn(NotesElement const& element)
{
    if (IsBlockKind(element.kind))
    {
        StartBlock();
    }
    m_tableDepth += element.kind == Kind::Table ? 1 : 0;
    m_listItems += element.kind == Kind::ListItem ? 1 : 0;
    m_preformatted += element.shownAs == "pre" ? 1 : 0;
    RequireAtMost(m_tableDepth, m_limits.maxTableDepth, ReleaseNotesRefusal::TablesTooDeep);
    RequireAtMost(m_listItems, m_limits.maxListItems, ReleaseNotesRefusal::TooManyListItems);
    RequireAtMost(m_preformatted, m_limits.maxPreformatted, ReleaseNotesRefusal::TooMuchPreformatted);
}

void NotesBuilder::CountText(std::size_t bytes)
{
    m_blockBytes += bytes;
    m_tableBytes += m_tableDepth == 0 ? 0 : bytes << (m_tableDepth - 1);
    RequireAtMost(m_blockBytes, m_limits.maxBlockBytes, ReleaseNotesRefusal::BlockTooLong);
    RequireAtMost(m_tableBytes, m_limits.maxTableBytes, ReleaseNotesRefusal::TooMuchTableText);
}

void NotesBuilder::StartBlock()
{
    m_blockBytes = 0;
    m_wordBytes = 0;
    m_marks = 0;
}

void NotesBuilder::RequireAtMost(std::size_t count, std::size_t limit, ReleaseNotesRefusal refusal)
{
    if (count > limit)
    {
        Refuse(refusal);
    }
}

/// The first reason counts.
void NotesBuilder::Refuse(ReleaseNotesRefusal refusal)
{
    m_refusal = IsRefused() ? m_refusal : refusal;
}

} // namespace Pelnar::Engine
