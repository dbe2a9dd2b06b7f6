#include "Engine/core/notes/ReleaseNotesTokenizer_p.h"

#include "Engine/core/notes/ReleaseNotesElements_p.h"
#include "Engine/core/notes/ReleaseNotesText_p.h"

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

/// True if \a text starts with a "<" that opens markup, and not with a plain sign.
bool OpensMarkup(std::string_view text)
{
    if (text.size() < 2 || text.front() != '<')
    {
        return false;
    }
    if (text[1] == '/')
    {
        return text.size() > 2 && IsAsciiLetter(text[2]);
    }
    return IsAsciiLetter(text[1]) || text[1] == '!' || text[1] == '?';
}

} // namespace

std::optional<NotesToken> NotesTokenizer::Next()
{
    while (!m_rest.empty())
    {
        if (OpensMarkup(m_rest))
        {
            std::optional<NotesToken> token = TakeMarkup();
            if (token)
            {
                return token;
            }
            continue;
        }
        std::size_t length = 1;
        while (length < m_rest.size() && !OpensMarkup(m_rest.substr(length)))
        {
            ++length;
        }
        NotesToken token;
        token.text = DecodeEntities(m_rest.substr(0, length));
        m_rest.remove_prefix(length);
        return token;
    }
    return std::nullopt;
}

/// Takes the markup at the start; empty if it produces no token.
std::optional<NotesToken> NotesTokenizer::TakeMarkup()
{
    if (m_rest[1] == '!' || m_rest[1] == '?')
    {
        SkipComment();
        return std::nullopt;
    }
    bool const isEnd = m_rest[1] == '/';
    m_rest.remove_prefix(isEnd ? 2 : 1);
    std::optional<NotesToken> token = TakeTag(isEnd ? NotesToken::Kind::EndTag : NotesToken::Kind::StartTag);
    if (token && IsDroppedWithContent(token->text))
    {
        if (token->kind == NotesToken::Kind::StartTag)
        {
            SkipContentOf(token->text);
        }
        return std::nullopt;
    }
    return token;
}

std::optional<NotesToken> NotesTokenizer::TakeTag(NotesToken::Kind kind)
{
    NotesToken token;
    token.kind = kind;
    std::size_t length = 0;
    while (length < m_rest.size() && !IsAsciiSpace(m_rest[length]) && m_rest[length] != '/' && m_rest[length] != '>')
    {
        ++length;
    }
    token.text = ToLowerAscii(m_rest.substr(0, length));
    m_rest.remove_prefix(length);
    while (TakeAttribute(token))
    {
    }
    if (m_rest.empty())
    {
        return std::nullopt; // the tag was never closed
    }
    m_rest.remove_prefix(1);
    return token;
}

/// Takes one attribute; false if the tag ends instead, with ">" or nothing at the start.
bool NotesTokenizer::TakeAttribute(NotesToken& token)
{
    while (!m_rest.empty() && (IsAsciiSpace(m_rest.front()) || m_rest.front() == '/'))
    {
        m_rest.remove_prefix(1);
    }
    if (m_rest.empty() || m_rest.front() == '>')
    {
        return false;
    }
    std::size_t length = 1; // a "=" at the start belongs to the name
    while (length < m_rest.size() && !IsAsciiSpace(m_rest[length]) && m_rest[length] != '/' && m_rest[length] != '>' &&
           m_rest[length] != '=')
    {
        ++length;
    }
    std::string const name = ToLowerAscii(m_rest.substr(0, length));
    m_rest.remove_prefix(length);
    SkipSpaces();
    std::string_view value;
    if (!m_rest.empty() && m_rest.front() == '=')
    {
        m_rest.remove_prefix(1);
        SkipSpaces();
        value = TakeAttributeValue();
    }
    std::optional<std::string>* const wanted = name == "href"  ? &token.href
                                               : name == "dir" ? &token.dir
                                               : name == "alt" ? &token.alt
                                                               : nullptr;
    if (wanted != nullptr && !*wanted)
    {
        *wanted = DecodeEntities(value);
    }
    return true;
}

std::string_view NotesTokenizer::TakeAttributeValue()
{
    if (!m_rest.empty() && (m_rest.front() == '"' || m_rest.front() == '\''))
    {
        char const quote = m_rest.front();
        m_rest.remove_prefix(1);
        std::string_view const value = m_rest.substr(0, m_rest.find(quote));
        m_rest.remove_prefix(std::min(value.size() + 1, m_rest.size()));
        return value;
    }
    std::size_t length = 0;
    while (length < m_rest.size() && !IsAsciiSpace(m_rest[length]) && m_rest[length] != '>')
    {
        ++length;
    }
    std::string_view const value = m_rest.substr(0, length);
    m_rest.remove_prefix(length);
    return value;
}

void NotesTokenizer::SkipSpaces()
{
    while (!m_rest.empty() && IsAsciiSpace(m_rest.front()))
    {
        m_rest.remove_prefix(1);
    }
}

void NotesTokenizer::SkipComment()
{
    constexpr std::string_view START = "<!--";
    if (m_rest.substr(0, START.size()) != START)
    {
        SkipPast(">");
        return;
    }
    m_rest.remove_prefix(START.size());
    if (m_rest.substr(0, 1) == ">" || m_rest.substr(0, 2) == "->")
    {
        SkipPast(">");
        return;
    }
    SkipPast("-->");
}

void NotesTokenizer::SkipPast(std::string_view end)
{
    std::size_t const found = m_rest.find(end);
    m_rest.remove_prefix(found == std::string_view::npos ? m_rest.size() : found + end.size());
}

void NotesTokenizer::SkipContentOf(std::string_view name)
{
    while (!m_rest.empty())
    {
        SkipPast("</");
        if (m_rest.size() >= name.size() && ToLowerAscii(m_rest.substr(0, name.size())) == name)
        {
            SkipPast(">");
            return;
        }
    }
}

} // namespace Pelnar::Engine
