#include "Engine/core/notes/ReleaseNotesText_p.h"

#include "Engine/core/base/SafeText.h"
#include "Engine/core/notes/ReleaseNotesEntities_p.h"
#include "Engine/core/notes/ReleaseNotesLink.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include <unistr.h>

namespace Pelnar::Engine
{
namespace
{

constexpr std::uint32_t REPLACEMENT = 0xFFFD;
constexpr std::uint32_t NO_CHARACTER = 0;
constexpr std::string_view NO_BREAK_SPACE = "\xC2\xA0";

constexpr std::size_t MAX_ENTITY_BYTES = 10; // "&#x10FFFF;" and every name above

/// REQUIRES: a code point that UTF-8 can write.
void AppendUtf8(std::string& out, std::uint32_t codePoint)
{
    std::array<std::uint8_t, 4> bytes;
    int const size = ::u8_uctomb(bytes.data(), codePoint, bytes.size());
    out.append(bytes.begin(), bytes.begin() + size);
}

struct Decoded
{
    std::uint32_t codePoint;
    std::size_t length;
};

bool IsContinuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// The character at the start of \a text, which is not empty; each wrong byte becomes one U+FFFD.
Decoded DecodeUtf8(std::string_view text)
{
    ucs4_t codePoint;
    int const length = ::u8_mbtoucr(&codePoint, reinterpret_cast<std::uint8_t const*>(text.data()), text.size());
    return length > 0 ? Decoded{codePoint, static_cast<std::size_t>(length)} : Decoded{REPLACEMENT, 1};
}

/// The code point to show for \a codePoint, or NO_CHARACTER to remove it.
std::uint32_t ShownCodePoint(std::uint32_t codePoint)
{
    if (codePoint == 0x2028 || codePoint == 0x2029)
    {
        return '\n';
    }
    bool const isKept = codePoint == '\n' || codePoint == '\t' || !IsHidden(codePoint);
    return isKept ? codePoint : NO_CHARACTER;
}

void AppendShown(std::string& out, std::uint32_t codePoint)
{
    std::uint32_t const shown = ShownCodePoint(codePoint);
    if (shown != NO_CHARACTER)
    {
        AppendUtf8(out, shown);
    }
}

void AppendLine(std::string& out, std::string_view line, BareLinks bareLinks)
{
    std::size_t const indentation = std::min(line.find_first_not_of(" \t"), line.size());
    for (char const c : line.substr(0, indentation))
    {
        for (int i = 0; i < (c == '\t' ? 4 : 1); ++i)
        {
            out += NO_BREAK_SPACE;
        }
    }
    line.remove_prefix(indentation);
    if (bareLinks == BareLinks::LeftAsText)
    {
        AppendEscaped(out, line);
        return;
    }
    bool isAtWordStart = true;
    while (!line.empty())
    {
        std::size_t const linkLength = isAtWordStart ? BareLinkLength(line) : 0;
        std::string_view const part = line.substr(0, std::max<std::size_t>(linkLength, 1));
        if (linkLength > 0)
        {
            out += "<a href=\"" + Escaped(part) + "\">" + Escaped(part) + "</a>";
        }
        else
        {
            AppendEscaped(out, part);
        }
        isAtWordStart = !IsAsciiAlphanumeric(part.back());
        line.remove_prefix(part.size());
    }
}

} // namespace

bool IsAsciiSpace(char c)
{
    return c == ' ' || c == '\n' || c == '\t' || c == '\r' || c == '\f';
}

bool IsAsciiDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool IsAsciiHexDigit(char c)
{
    return IsAsciiDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool IsAsciiLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool IsAsciiAlphanumeric(char c)
{
    return IsAsciiLetter(c) || IsAsciiDigit(c);
}

std::string ToLowerAscii(std::string_view text)
{
    std::string lower(text);
    for (char& c : lower)
    {
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
    }
    return lower;
}

std::string_view TrimmedAscii(std::string_view text)
{
    while (!text.empty() && IsAsciiSpace(text.front()))
    {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsAsciiSpace(text.back()))
    {
        text.remove_suffix(1);
    }
    return text;
}

bool IsBlank(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), IsAsciiSpace);
}

std::string_view PrefixOfWholeCharacters(std::string_view text, std::size_t maxBytes)
{
    if (text.size() <= maxBytes)
    {
        return text;
    }
    std::size_t length = maxBytes;
    // A character has at most three more bytes; a longer sequence is not text.
    for (int i = 0; i < 3 && length > 0 && IsContinuation(text[length]); ++i)
    {
        --length;
    }
    return text.substr(0, length);
}

std::string_view FirstCharacter(std::string_view text)
{
    return text.substr(0, DecodeUtf8(text).length);
}

bool IsCombiningMark(std::string_view character)
{
    std::uint32_t const codePoint = DecodeUtf8(character).codePoint;
    return (codePoint >= 0x300 && codePoint <= 0x36F) || (codePoint >= 0x483 && codePoint <= 0x489) ||
           (codePoint >= 0x1AB0 && codePoint <= 0x1AFF) || (codePoint >= 0x1DC0 && codePoint <= 0x1DFF) ||
           (codePoint >= 0x20D0 && codePoint <= 0x20FF) || (codePoint >= 0xFE20 && codePoint <= 0xFE2F);
}

std::string CleanText(std::string_view text)
{
    std::string clean;
    clean.reserve(text.size());
    while (!text.empty())
    {
        if (text.front() == '\r')
        {
            text.remove_prefix(text.substr(0, 2) == "\r\n" ? 2 : 1);
            clean.push_back('\n');
            continue;
        }
        Decoded const decoded = DecodeUtf8(text);
        text.remove_prefix(decoded.length);
        AppendShown(clean, decoded.codePoint);
    }
    return clean;
}

std::string DecodeEntities(std::string_view text)
{
    std::string decoded;
    decoded.reserve(text.size());
    while (!text.empty())
    {
        std::size_t const ampersand = std::min(text.find('&'), text.size());
        decoded.append(text.substr(0, ampersand));
        text.remove_prefix(ampersand);
        if (text.empty())
        {
            break;
        }
        std::size_t const semicolon = text.substr(0, MAX_ENTITY_BYTES).find(';');
        std::optional<std::uint32_t> const codePoint =
            semicolon == std::string_view::npos ? std::nullopt : CodePointOfEntity(text.substr(1, semicolon - 1));
        if (codePoint)
        {
            AppendShown(decoded, *codePoint);
            text.remove_prefix(semicolon + 1);
            continue;
        }
        decoded.push_back('&');
        text.remove_prefix(1);
    }
    return decoded;
}

void AppendEscaped(std::string& out, std::string_view text)
{
    for (char const c : text)
    {
        switch (c)
        {
        case '&':
            out += "&amp;";
            continue;
        case '<':
            out += "&lt;";
            continue;
        case '>':
            out += "&gt;";
            continue;
        case '"':
            out += "&quot;";
            continue;
        }
        out.push_back(c);
    }
}

std::string Escaped(std::string_view text)
{
    std::string escaped;
    escaped.reserve(text.size());
    AppendEscaped(escaped, text);
    return escaped;
}

std::string PlainTextToHtml(std::string_view cleanText, BareLinks bareLinks)
{
    std::string html;
    html.reserve(cleanText.size() + cleanText.size() / 8);
    bool isParagraphOpen = false;
    while (!cleanText.empty())
    {
        std::size_t const end = std::min(cleanText.find('\n'), cleanText.size());
        std::string_view const line = cleanText.substr(0, end);
        cleanText.remove_prefix(std::min(end + 1, cleanText.size()));
        if (IsBlank(line))
        {
            html += isParagraphOpen ? "</p>" : "";
            isParagraphOpen = false;
            continue;
        }
        html += isParagraphOpen ? "<br>" : "<p>";
        isParagraphOpen = true;
        AppendLine(html, line, bareLinks);
    }
    html += isParagraphOpen ? "</p>" : "";
    return html;
}

} // namespace Pelnar::Engine
