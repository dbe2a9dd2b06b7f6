// ReleaseNotesElements_p.h: the elements that release notes may use; everything else is left out.
// Thread: any; a constant table. Ownership: none.
#pragma once

#include <string_view>

namespace Pelnar::Engine
{

enum class NotesElementKind
{
    Inline,
    Link,
    Paragraph,
    Heading,
    Block,
    List,
    ListItem, ///< also the term and the description of a definition list
    Table,
    Row,
    Cell,
    LineBreak,
    Separator,
    Image, ///< its text stands for it
};

struct NotesElement
{
    std::string_view name;    ///< as written, in lower case
    std::string_view shownAs; ///< the element that comes out; one that is shown as itself is its own
    NotesElementKind kind;
};

/// The element of that name in lower case, or null when it is not allowed.
[[nodiscard]] NotesElement const* FindNotesElement(std::string_view lowerCaseName);

/// True for an element that starts a block of its own.
[[nodiscard]] bool IsBlockKind(NotesElementKind kind);

/// True for an element whose content is no text for a person: it is dropped with what it holds.
[[nodiscard]] bool IsDroppedWithContent(std::string_view lowerCaseName);

} // namespace Pelnar::Engine
