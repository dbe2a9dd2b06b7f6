// ReleaseNotesTokenizer_p.h: cuts HTML into text, start tags and end tags, as forgiving as a browser and in linear
// time. Comments, declarations and elements whose content is no text for a person never come out. A tag, a comment or
// such an element that is never closed reaches to the end. Thread: any. Ownership: looks into the text that it was made
// with, which must outlive it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Pelnar::Engine
{

struct NotesToken
{
    enum class Kind
    {
        Text,
        StartTag,
        EndTag,
    };

    Kind kind = Kind::Text;
    std::string text; ///< Text: with its entities replaced. Tags: the name in lower case.
    // The attributes that anybody asks for, entities replaced; the first of several with one name counts.
    std::optional<std::string> href;
    std::optional<std::string> dir;
    std::optional<std::string> alt;
};

class NotesTokenizer
{
public:
    explicit NotesTokenizer(std::string_view html) : m_rest(html) {}

    /// The next token, or nothing at the end. Text may come in several pieces.
    [[nodiscard]] std::optional<NotesToken> Next();

private:
    [[nodiscard]] std::optional<NotesToken> TakeMarkup();
    [[nodiscard]] std::optional<NotesToken> TakeTag(NotesToken::Kind kind);
    [[nodiscard]] bool TakeAttribute(NotesToken& token);
    [[nodiscard]] std::string_view TakeAttributeValue();
    void SkipSpaces();
    void SkipComment();
    void SkipPast(std::string_view end);
    void SkipContentOf(std::string_view name);

    std::string_view m_rest;
};

} // namespace Pelnar::Engine
