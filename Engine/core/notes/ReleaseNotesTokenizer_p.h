// ReleaseNotesTokenizer_p.h: splits HTML into text, start tags and end tags, as tolerantly as a browser and in linear
// time. Comments, declarations and elements whose content is not for people produce no token. A tag, a comment or such
// an element that is never closed extends to the end.
// Thread: one at a time. Ownership: it refers to the text that it was made with, which must outlive it.
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
    std::string text; ///< For text: its content with entities replaced. For tags: the name in lower case.
    // The attributes that the filter uses, entities replaced; of several with one name the first counts.
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
