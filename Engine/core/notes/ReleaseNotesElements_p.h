// ReleaseNotesElements_p.h: the elements that release notes may use; all others are removed. A constant table.
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
    Image, ///< its alternative text replaces it
};

struct NotesElement
{
    std::string_view name;    ///< as written, in lower case
    std::string_view shownAs; ///< the element in the output; itself if it is shown unchanged
    NotesElementKind kind;
};

/// The element with that name in lower case, or null if it is not allowed.
[[nodiscard]] NotesElement const* FindNotesElement(std::string_view lowerCaseName);

/// True for an element that starts its own block.
[[nodiscard]] bool IsBlockKind(NotesElementKind kind);

/// True for an element whose content is not for people: it is removed with its content.
[[nodiscard]] bool IsDroppedWithContent(std::string_view lowerCaseName);

} // namespace Pelnar::Engine
