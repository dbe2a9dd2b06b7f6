#include "Engine/core/notes/ReleaseNotesElements_p.h"

#include <algorithm>
#include <array>

namespace Pelnar::Engine
{
namespace
{

using Kind = NotesElementKind;

constexpr std::array ELEMENTS = {
    NotesElement{"a", "a", Kind::Link},
    NotesElement{"address", "div", Kind::Block},
    NotesElement{"article", "div", Kind::Block},
    NotesElement{"aside", "div", Kind::Block},
    NotesElement{"b", "b", Kind::Inline},
    NotesElement{"big", "big", Kind::Inline},
    NotesElement{"blockquote", "blockquote", Kind::Block},
    NotesElement{"br", "br", Kind::LineBreak},
    NotesElement{"center", "div", Kind::Block},
    NotesElement{"cite", "i", Kind::Inline},
    NotesElement{"code", "code", Kind::Inline},
    NotesElement{"dd", "dd", Kind::ListItem},
    NotesElement{"del", "s", Kind::Inline},
    NotesElement{"details", "div", Kind::Block},
    NotesElement{"dfn", "i", Kind::Inline},
    NotesElement{"div", "div", Kind::Block},
    NotesElement{"dl", "dl", Kind::List},
    NotesElement{"dt", "dt", Kind::ListItem},
    NotesElement{"em", "i", Kind::Inline},
    NotesElement{"figcaption", "div", Kind::Block},
    NotesElement{"figure", "div", Kind::Block},
    NotesElement{"footer", "div", Kind::Block},
    NotesElement{"h1", "h1", Kind::Heading},
    NotesElement{"h2", "h2", Kind::Heading},
    NotesElement{"h3", "h3", Kind::Heading},
    NotesElement{"h4", "h4", Kind::Heading},
    NotesElement{"h5", "h5", Kind::Heading},
    NotesElement{"h6", "h6", Kind::Heading},
    NotesElement{"header", "div", Kind::Block},
    NotesElement{"hr", "hr", Kind::Separator},
    NotesElement{"i", "i", Kind::Inline},
    NotesElement{"img", "img", Kind::Image},
    NotesElement{"ins", "u", Kind::Inline},
    NotesElement{"kbd", "code", Kind::Inline},
    NotesElement{"li", "li", Kind::ListItem},
    NotesElement{"main", "div", Kind::Block},
    NotesElement{"nav", "div", Kind::Block},
    NotesElement{"ol", "ol", Kind::List},
    NotesElement{"p", "p", Kind::Paragraph},
    NotesElement{"pre", "pre", Kind::Block},
    NotesElement{"s", "s", Kind::Inline},
    NotesElement{"samp", "code", Kind::Inline},
    NotesElement{"section", "div", Kind::Block},
    NotesElement{"small", "small", Kind::Inline},
    NotesElement{"strike", "s", Kind::Inline},
    NotesElement{"strong", "b", Kind::Inline},
    NotesElement{"sub", "sub", Kind::Inline},
    NotesElement{"summary", "div", Kind::Block},
    NotesElement{"sup", "sup", Kind::Inline},
    NotesElement{"table", "table", Kind::Table},
    NotesElement{"td", "td", Kind::Cell},
    NotesElement{"th", "th", Kind::Cell},
    NotesElement{"tr", "tr", Kind::Row},
    NotesElement{"tt", "code", Kind::Inline},
    NotesElement{"u", "u", Kind::Inline},
    NotesElement{"ul", "ul", Kind::List},
    NotesElement{"var", "i", Kind::Inline},
};

constexpr std::array<std::string_view, 10> DROPPED_WITH_CONTENT = {
    "iframe", "noembed", "noframes", "noscript", "script", "style", "template", "textarea", "title", "xmp",
};

} // namespace

NotesElement const* FindNotesElement(std::string_view lowerCaseName)
{
    auto const* const found =
        std::lower_bound(ELEMENTS.begin(), ELEMENTS.end(), lowerCaseName,
                         [](NotesElement const& element, std::string_view name) { return element.name < name; });
    return found != ELEMENTS.end() && found->name == lowerCaseName ? found : nullptr;
}

bool IsBlockKind(NotesElementKind kind)
{
    switch (kind)
    {
    case Kind::Inline:
    case Kind::Link:
    case Kind::LineBreak:
    case Kind::Image:
        return false;
    case Kind::Paragraph:
    case Kind::Heading:
    case Kind::Block:
    case Kind::List:
    case Kind::ListItem:
    case Kind::Table:
    case Kind::Row:
    case Kind::Cell:
    case Kind::Separator:
        return true;
    }
    return false;
}

bool IsDroppedWithContent(std::string_view lowerCaseName)
{
    return std::find(DROPPED_WITH_CONTENT.begin(), DROPPED_WITH_CONTENT.end(), lowerCaseName) !=
           DROPPED_WITH_CONTENT.end();
}

} // namespace Pelnar::Engine
