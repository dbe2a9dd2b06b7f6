#include "Engine/core/notes/ReleaseNotesMarkdown_p.h"

#include "Engine/core/notes/ReleaseNotesElements_p.h"
#include "Engine/core/notes/ReleaseNotesMarkdownInline_p.h"
#include "Engine/core/notes/ReleaseNotesText_p.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace Pelnar::Engine
{
namespace
{

using Lines = std::vector<std::string_view>;

constexpr std::size_t NONE = std::string_view::npos;
constexpr std::size_t MAX_DEPTH = 12; // quotes and lists in one another; deeper ones are text
constexpr std::size_t CODE_INDENTATION = 4;
constexpr std::size_t MAX_LABEL_BYTES = 200;

std::size_t Indentation(std::string_view line)
{
    return std::min(line.find_first_not_of(' '), line.size());
}

std::string_view WithoutIndentation(std::string_view line, std::size_t atMost = NONE)
{
    return line.substr(std::min(Indentation(line), atMost));
}

std::string_view WithoutTrailingSpaces(std::string_view line)
{
    std::size_t const last = line.find_last_not_of(' ');
    return last == NONE ? std::string_view() : line.substr(0, last + 1);
}

std::size_t RunLength(std::string_view text, char c)
{
    return std::min(text.find_first_not_of(c), text.size());
}

/// The level of the heading that \a line is, or 0.
std::size_t HeadingLevel(std::string_view line)
{
    std::string_view const text = WithoutIndentation(line, CODE_INDENTATION - 1);
    std::size_t const level = RunLength(text, '#');
    return level >= 1 && level <= 6 && (text.size() == level || text[level] == ' ') ? level : 0;
}

bool IsSeparator(std::string_view line)
{
    std::string_view const text = WithoutIndentation(line, CODE_INDENTATION - 1);
    if (text.empty() || std::string_view("-*_").find(text.front()) == NONE)
    {
        return false;
    }
    char const sign = text.front();
    return std::count(text.begin(), text.end(), sign) >= 3 &&
           std::all_of(text.begin(), text.end(), [sign](char c) { return c == sign || c == ' '; });
}

/// The level of the heading that a line below a paragraph makes of it, or 0.
std::size_t UnderlineLevel(std::string_view line)
{
    std::string_view const text = WithoutTrailingSpaces(WithoutIndentation(line, CODE_INDENTATION - 1));
    bool const isLine =
        !text.empty() && (text.front() == '=' || text.front() == '-') && RunLength(text, text.front()) == text.size();
    return isLine ? (text.front() == '=' ? 1 : 2) : 0;
}

bool IsQuote(std::string_view line)
{
    std::string_view const text = WithoutIndentation(line, CODE_INDENTATION - 1);
    return !text.empty() && text.front() == '>';
}

/// The length of the fence that opens or closes code, or 0.
std::size_t FenceLength(std::string_view line)
{
    std::string_view const text = WithoutIndentation(line, CODE_INDENTATION - 1);
    if (text.empty() || (text.front() != '`' && text.front() != '~'))
    {
        return 0;
    }
    std::size_t const length = RunLength(text, text.front());
    bool const isInline = text.front() == '`' && text.find('`', length) != NONE;
    return length >= 3 && !isInline ? length : 0;
}

struct ListMarker
{
    char sign;           ///< "-", "+", "*", "." or ")"
    std::size_t content; ///< where the item's text starts
};

std::optional<ListMarker> FindListMarker(std::string_view line)
{
    std::size_t const indentation = Indentation(line);
    std::string_view const text = line.substr(indentation);
    if (indentation >= CODE_INDENTATION || text.empty())
    {
        return std::nullopt;
    }
    std::size_t length = 1;
    if (std::string_view("-+*").find(text.front()) == NONE)
    {
        std::size_t digits = 0;
        while (digits < text.size() && IsAsciiDigit(text[digits]))
        {
            ++digits;
        }
        bool const isNumber =
            digits >= 1 && digits <= 9 && digits < text.size() && (text[digits] == '.' || text[digits] == ')');
        if (!isNumber)
        {
            return std::nullopt;
        }
        length = digits + 1;
    }
    if (length < text.size() && text[length] != ' ')
    {
        return std::nullopt;
    }
    std::size_t const spaces = Indentation(text.substr(length));
    bool const isCodeOrEmpty = spaces > CODE_INDENTATION || length + spaces == text.size();
    return ListMarker{text[length - 1], indentation + length + (isCodeOrEmpty ? 1 : spaces)};
}

/// True for a line that starts a block of HTML, which reaches to the next blank line.
bool StartsHtmlBlock(std::string_view line)
{
    std::string_view text = WithoutIndentation(line, CODE_INDENTATION - 1);
    if (text.size() < 2 || text.front() != '<')
    {
        return false;
    }
    if (text[1] == '!' || text[1] == '?')
    {
        return true;
    }
    text.remove_prefix(text[1] == '/' ? 2 : 1);
    std::size_t length = 0;
    while (length < text.size() && IsAsciiAlphanumeric(text[length]))
    {
        ++length;
    }
    std::string const name = ToLowerAscii(text.substr(0, length));
    NotesElement const* const element = FindNotesElement(name);
    return IsDroppedWithContent(name) || (element != nullptr && IsBlockKind(element->kind));
}

/// True for a line that ends the paragraph above it.
bool StartsBlock(std::string_view line)
{
    return HeadingLevel(line) > 0 || IsSeparator(line) || IsQuote(line) || FenceLength(line) > 0 ||
           FindListMarker(line) || StartsHtmlBlock(line);
}

/// Takes lines like "[label]: address" out of \a lines.
MarkdownReferences TakeReferences(Lines& lines)
{
    MarkdownReferences references;
    auto const isReference = [&references](std::string_view line)
    {
        std::string_view const text = WithoutIndentation(line, CODE_INDENTATION - 1);
        std::size_t const close = text.find("]:");
        if (text.empty() || text.front() != '[' || close == NONE || close < 2 || close > MAX_LABEL_BYTES)
        {
            return false;
        }
        std::string_view address = TrimmedAscii(text.substr(close + 2));
        address = address.substr(0, address.find(' '));
        if (address.size() >= 2 && address.front() == '<' && address.back() == '>')
        {
            address = address.substr(1, address.size() - 2);
        }
        if (address.empty())
        {
            return false;
        }
        references.emplace(NormalLabel(text.substr(1, close - 1)), address);
        return true;
    };
    lines.erase(std::remove_if(lines.begin(), lines.end(), isReference), lines.end());
    return references;
}

enum class Paragraphs
{
    Wrapped,
    Bare, ///< those of a list without blank lines
};

class BlockParser
{
public:
    explicit BlockParser(MarkdownReferences const& references) : m_references(references) {}

    void Parse(Lines const& lines, std::size_t depth, Paragraphs paragraphs);
    std::string const& Html() const { return m_html; }

private:
    // Each takes its block off the lines from \a at on and returns where the next one starts.
    std::size_t TakeFence(Lines const& lines, std::size_t at);
    std::size_t TakeIndentedCode(Lines const& lines, std::size_t at);
    std::size_t TakeHtml(Lines const& lines, std::size_t at);
    std::size_t TakeQuote(Lines const& lines, std::size_t at, std::size_t depth);
    std::size_t TakeList(Lines const& lines, std::size_t at, std::size_t depth);
    std::size_t TakeParagraph(Lines const& lines, std::size_t at, Paragraphs paragraphs);
    void AddHeading(std::size_t level, std::string_view text);

    MarkdownReferences const& m_references;
    std::string m_html;
};

void BlockParser::Parse(Lines const& lines, std::size_t depth, Paragraphs paragraphs)
{
    std::size_t at = 0;
    while (at < lines.size())
    {
        std::string_view const line = lines[at];
        if (IsBlank(line))
        {
            ++at;
        }
        else if (Indentation(line) >= CODE_INDENTATION)
        {
            at = TakeIndentedCode(lines, at);
        }
        else if (std::size_t const level = HeadingLevel(line))
        {
            std::string_view const text = WithoutIndentation(line).substr(level);
            AddHeading(level, TrimmedAscii(text.substr(0, text.find_last_not_of("# ") + 1)));
            ++at;
        }
        else if (FenceLength(line) > 0)
        {
            at = TakeFence(lines, at);
        }
        else if (IsSeparator(line))
        {
            m_html += "<hr>\n";
            ++at;
        }
        else if (IsQuote(line) && depth < MAX_DEPTH)
        {
            at = TakeQuote(lines, at, depth);
        }
        else if (FindListMarker(line) && depth < MAX_DEPTH)
        {
            at = TakeList(lines, at, depth);
        }
        else if (StartsHtmlBlock(line))
        {
            at = TakeHtml(lines, at);
        }
        else
        {
            at = TakeParagraph(lines, at, paragraphs);
        }
    }
}

void BlockParser::AddHeading(std::size_t level, std::string_view text)
{
    std::string const name = "h" + std::to_string(level);
    m_html += "<" + name + ">" + MarkdownInlineToHtml(text, m_references) + "</" + name + ">\n";
}

std::size_t BlockParser::TakeFence(Lines const& lines, std::size_t at)
{
    std::size_t const length = FenceLength(lines[at]);
    std::size_t const indentation = Indentation(lines[at]);
    char const sign = lines[at][indentation];
    m_html += "<pre>";
    for (++at; at < lines.size(); ++at)
    {
        std::string_view const text = WithoutTrailingSpaces(WithoutIndentation(lines[at], CODE_INDENTATION - 1));
        if (!text.empty() && text.front() == sign && text.size() >= length && RunLength(text, sign) == text.size())
        {
            ++at;
            break;
        }
        AppendEscaped(m_html, WithoutIndentation(lines[at], indentation));
        m_html += '\n';
    }
    m_html += "</pre>\n";
    return at;
}

std::size_t BlockParser::TakeIndentedCode(Lines const& lines, std::size_t at)
{
    m_html += "<pre>";
    std::size_t blanks = 0;
    for (; at < lines.size() && (IsBlank(lines[at]) || Indentation(lines[at]) >= CODE_INDENTATION); ++at)
    {
        if (IsBlank(lines[at]))
        {
            ++blanks;
            continue;
        }
        m_html.append(blanks, '\n');
        blanks = 0;
        AppendEscaped(m_html, lines[at].substr(CODE_INDENTATION));
        m_html += '\n';
    }
    m_html += "</pre>\n";
    return at;
}

std::size_t BlockParser::TakeHtml(Lines const& lines, std::size_t at)
{
    for (; at < lines.size() && !IsBlank(lines[at]); ++at)
    {
        m_html.append(lines[at]).append("\n");
    }
    return at;
}

std::size_t BlockParser::TakeQuote(Lines const& lines, std::size_t at, std::size_t depth)
{
    Lines quoted;
    for (; at < lines.size() && IsQuote(lines[at]); ++at)
    {
        std::string_view const text = WithoutIndentation(lines[at]).substr(1);
        quoted.push_back(WithoutIndentation(text, 1));
    }
    m_html += "<blockquote>";
    Parse(quoted, depth + 1, Paragraphs::Wrapped);
    m_html += "</blockquote>\n";
    return at;
}

std::size_t BlockParser::TakeList(Lines const& lines, std::size_t at, std::size_t depth)
{
    ListMarker marker = *FindListMarker(lines[at]);
    char const sign = marker.sign;
    bool const isNumbered = sign == '.' || sign == ')';
    std::vector<Lines> items;
    bool hasBlankLine = false;
    for (; at < lines.size(); ++at)
    {
        std::string_view const line = lines[at];
        bool const isBlankBefore = at > 0 && IsBlank(lines[at - 1]) && !items.empty();
        if (IsBlank(line))
        {
            items.back().push_back({});
            continue;
        }
        if (!items.empty() && Indentation(line) >= marker.content)
        {
            items.back().push_back(line.substr(marker.content));
            continue;
        }
        std::optional<ListMarker> const next = IsSeparator(line) ? std::nullopt : FindListMarker(line);
        if (next && next->sign == sign)
        {
            hasBlankLine = hasBlankLine || isBlankBefore;
            marker = *next;
            items.push_back({line.substr(std::min(marker.content, line.size()))});
            continue;
        }
        if (isBlankBefore || StartsBlock(line))
        {
            break;
        }
        items.back().push_back(WithoutIndentation(line)); // a paragraph goes on, however little it is indented
    }
    m_html += isNumbered ? "<ol>" : "<ul>";
    for (Lines const& item : items)
    {
        m_html += "<li>";
        Parse(item, depth + 1, hasBlankLine ? Paragraphs::Wrapped : Paragraphs::Bare);
        m_html += "</li>\n";
    }
    m_html += isNumbered ? "</ol>\n" : "</ul>\n";
    return at;
}

std::size_t BlockParser::TakeParagraph(Lines const& lines, std::size_t at, Paragraphs paragraphs)
{
    std::string text;
    for (std::size_t const first = at; at < lines.size() && !IsBlank(lines[at]); ++at)
    {
        std::size_t const level = at > first ? UnderlineLevel(lines[at]) : 0;
        if (level > 0)
        {
            AddHeading(level, text);
            return at + 1;
        }
        if (at > first && StartsBlock(lines[at]))
        {
            break;
        }
        text += at > first ? "\n" : "";
        text += WithoutIndentation(lines[at]);
    }
    std::string const html = MarkdownInlineToHtml(WithoutTrailingSpaces(text), m_references);
    m_html += paragraphs == Paragraphs::Wrapped ? "<p>" + html + "</p>\n" : html + "\n";
    return at;
}

} // namespace

std::string MarkdownToHtml(std::string_view cleanText)
{
    // A tab counts as the blanks up to the next column of four.
    std::string text;
    text.reserve(cleanText.size());
    std::size_t column = 0;
    for (char const c : cleanText)
    {
        std::size_t const width = c == '\t' ? CODE_INDENTATION - column % CODE_INDENTATION : 1;
        text.append(width, c == '\t' ? ' ' : c);
        column = c == '\n' ? 0 : column + width;
    }
    Lines lines;
    for (std::string_view rest = text; !rest.empty();)
    {
        std::size_t const end = std::min(rest.find('\n'), rest.size());
        lines.push_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    MarkdownReferences const references = TakeReferences(lines);
    BlockParser parser(references);
    parser.Parse(lines, 0, Paragraphs::Wrapped);
    return parser.Html();
}

} // namespace Pelnar::Engine
