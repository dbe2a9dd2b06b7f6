#include "Engine/core/notes/ReleaseNotesMarkdownInline_p.h"

#include "Engine/core/notes/ReleaseNotesLink.h"
#include "Engine/core/notes/ReleaseNotesText_p.h"

#include <algorithm>
#include <array>
#include <vector>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t NONE = std::string_view::npos;
constexpr std::size_t MAX_ADDRESS_BYTES = 1024;
constexpr std::size_t MAX_LABEL_BYTES = 200;
constexpr int MAX_PARENTHESES = 3; // open ones in an address
constexpr std::size_t MAX_OPEN_EMPHASES = 8;
constexpr std::size_t MAX_CODE_FENCE = 16;

bool IsAsciiPunctuation(char c)
{
    return static_cast<unsigned char>(c) > 0x20 && static_cast<unsigned char>(c) < 0x7F && !IsAsciiAlphanumeric(c);
}

enum class Links
{
    Allowed,
    InsideLink, ///< a link holds no other
};

/// For every "[" of \a text the place of the "]" that closes it, or NONE.
std::vector<std::size_t> MatchBrackets(std::string_view text)
{
    std::vector<std::size_t> closing(text.size(), NONE);
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        if (text[i] == '\\')
        {
            ++i;
        }
        else if (text[i] == '[')
        {
            open.push_back(i);
        }
        else if (text[i] == ']' && !open.empty())
        {
            closing[open.back()] = i;
            open.pop_back();
        }
    }
    return closing;
}

class InlineParser
{
public:
    InlineParser(std::string_view text, MarkdownReferences const& references, Links links)
        : m_text(text), m_references(references), m_links(links), m_closingBrackets(MatchBrackets(text))
    {
    }

    std::string Parse();

private:
    /// A run of "*", "_" or "~" that may open an emphasis; its piece of the output is written when it is known what it
    /// is.
    struct Opener
    {
        char sign;
        std::size_t length;
        std::size_t piece;
    };

    void ParseOne();
    void Literal(std::size_t length);
    void Escape();
    void LineEnd();
    void Code();
    void Angle();
    void Link();
    void Emphasis();
    [[nodiscard]] std::size_t CloseEmphasis(char sign, std::size_t length);
    [[nodiscard]] std::size_t RunLength(std::size_t from) const;
    [[nodiscard]] char At(std::size_t i) const { return i < m_text.size() ? m_text[i] : '\n'; }
    /// The address in parentheses at \a from; sets \a end behind them.
    [[nodiscard]] std::string_view InlineAddress(std::size_t from, std::size_t& end) const;
    [[nodiscard]] std::string_view ReferencedAddress(std::size_t open, std::size_t close, std::size_t& end) const;

    std::string& Out() { return m_pieces.back(); }

    std::string_view m_text;
    MarkdownReferences const& m_references;
    Links m_links;
    std::vector<std::size_t> m_closingBrackets;
    std::size_t m_at = 0;
    std::vector<std::string> m_pieces{std::string()};
    std::vector<Opener> m_openers;
    // What was looked for in vain is not looked for again: that keeps the time linear.
    std::array<bool, MAX_CODE_FENCE + 1> m_isFenceMissing{}; ///< by its length
    bool m_isAngleMissing = false;
};

std::string InlineParser::Parse()
{
    while (m_at < m_text.size())
    {
        ParseOne();
    }
    std::string html;
    for (std::string const& piece : m_pieces)
    {
        html += piece;
    }
    return html;
}

void InlineParser::ParseOne()
{
    switch (m_text[m_at])
    {
    case '\\':
        Escape();
        return;
    case '\n':
        LineEnd();
        return;
    case '`':
        Code();
        return;
    case '<':
        Angle();
        return;
    case '!':
    case '[':
        Link();
        return;
    case '*':
    case '_':
    case '~':
        Emphasis();
        return;
    case '&':
        Out().push_back('&'); // an entity is the filter's business
        ++m_at;
        return;
    case 'h':
    case 'H':
    {
        bool const isAtWordStart = m_at == 0 || !IsAsciiAlphanumeric(m_text[m_at - 1]);
        std::size_t const length = m_links == Links::Allowed && isAtWordStart ? BareLinkLength(m_text.substr(m_at)) : 0;
        if (length > 0)
        {
            std::string const address = Escaped(m_text.substr(m_at, length));
            Out() += "<a href=\"" + address + "\">" + address + "</a>";
            m_at += length;
            return;
        }
        break;
    }
    }
    Literal(1);
}

void InlineParser::Literal(std::size_t length)
{
    AppendEscaped(Out(), m_text.substr(m_at, length));
    m_at += length;
}

void InlineParser::Escape()
{
    if (At(m_at + 1) == '\n' && m_at + 1 < m_text.size())
    {
        Out() += "<br>\n";
        m_at += 2;
        return;
    }
    m_at += IsAsciiPunctuation(At(m_at + 1)) ? 1 : 0;
    Literal(1);
}

void InlineParser::LineEnd()
{
    bool const isBreak = m_at >= 2 && m_text[m_at - 1] == ' ' && m_text[m_at - 2] == ' ';
    Out() += isBreak ? "<br>\n" : "\n";
    ++m_at;
}

std::size_t InlineParser::RunLength(std::size_t from) const
{
    std::size_t const end = m_text.find_first_not_of(m_text[from], from);
    return (end == NONE ? m_text.size() : end) - from;
}

void InlineParser::Code()
{
    std::size_t const length = RunLength(m_at);
    if (length > MAX_CODE_FENCE || m_isFenceMissing[length])
    {
        Literal(length);
        return;
    }
    std::size_t const start = m_at + length;
    for (std::size_t i = m_text.find('`', start); i != NONE; i = m_text.find('`', i))
    {
        std::size_t const run = RunLength(i);
        if (run == length)
        {
            Out() += "<code>" + Escaped(m_text.substr(start, i - start)) + "</code>";
            m_at = i + length;
            return;
        }
        i += run;
    }
    m_isFenceMissing[length] = true;
    Literal(length);
}

void InlineParser::Angle()
{
    char const next = At(m_at + 1);
    bool const looksLikeTag = IsAsciiLetter(next) || next == '/' || next == '!';
    std::size_t const end = looksLikeTag && !m_isAngleMissing ? m_text.find('>', m_at) : NONE;
    if (end == NONE)
    {
        m_isAngleMissing = m_isAngleMissing || looksLikeTag;
        Literal(1);
        return;
    }
    std::string_view const inner = m_text.substr(m_at + 1, end - m_at - 1);
    bool const isMail = inner.find('@') != NONE && inner.find_first_of(" \n\"'=/") == NONE;
    std::string const address = (isMail ? "mailto:" : "") + std::string(inner);
    if (inner.find_first_of(" \n") == NONE && SafeLink(address))
    {
        Out() += "<a href=\"" + Escaped(address) + "\">" + Escaped(inner) + "</a>";
    }
    else
    {
        Out() += m_text.substr(m_at, end + 1 - m_at);
    }
    m_at = end + 1;
}

std::string_view InlineParser::InlineAddress(std::size_t from, std::size_t& end) const
{
    std::string_view const text = m_text.substr(from, MAX_ADDRESS_BYTES);
    std::size_t start = std::min(text.find_first_not_of(" \n", 1), text.size());
    bool const isInAngles = start < text.size() && text[start] == '<';
    std::size_t stop = isInAngles ? text.find('>', start) : start;
    for (int depth = 0; !isInAngles && stop < text.size() && !IsAsciiSpace(text[stop]); ++stop)
    {
        depth += text[stop] == '(' ? 1 : text[stop] == ')' ? -1 : 0;
        if (depth > MAX_PARENTHESES)
        {
            return {};
        }
        if (depth < 0)
        {
            break;
        }
    }
    start += isInAngles ? 1 : 0;
    // A title may follow; it is not shown.
    std::size_t const close = stop < text.size() ? text.find(')', stop) : NONE;
    if (close == NONE)
    {
        return {};
    }
    end = from + close + 1;
    return text.substr(start, stop - start);
}

std::string_view InlineParser::ReferencedAddress(std::size_t open, std::size_t close, std::size_t& end) const
{
    std::string_view label = m_text.substr(open + 1, close - open - 1);
    end = close + 1;
    if (At(end) == '[' && end < m_text.size() && m_closingBrackets[end] != NONE)
    {
        std::string_view const second = m_text.substr(end + 1, m_closingBrackets[end] - end - 1);
        label = second.empty() ? label : second;
        end = m_closingBrackets[end] + 1;
    }
    if (label.size() > MAX_LABEL_BYTES)
    {
        return {};
    }
    auto const found = m_references.find(NormalLabel(label));
    return found == m_references.end() ? std::string_view() : std::string_view(found->second);
}

void InlineParser::Link()
{
    bool const isImage = m_text[m_at] == '!';
    std::size_t const open = m_at + (isImage ? 1 : 0);
    std::size_t const close = At(open) == '[' && open < m_text.size() ? m_closingBrackets[open] : NONE;
    if (close == NONE)
    {
        Literal(1);
        return;
    }
    std::size_t end = 0;
    std::string_view const address =
        At(close + 1) == '(' ? InlineAddress(close + 1, end) : ReferencedAddress(open, close, end);
    std::string_view const shown = m_text.substr(open + 1, close - open - 1);
    if (address.empty() || (m_links == Links::InsideLink && !isImage))
    {
        Literal(1);
        return;
    }
    if (isImage)
    {
        AppendEscaped(Out(), shown); // images are never fetched; their text stands for them
    }
    else
    {
        Out() += "<a href=\"" + Escaped(address) + "\">" +
                 InlineParser(shown, m_references, Links::InsideLink).Parse() + "</a>";
    }
    m_at = end;
}

/// Closes as much as \a length signs close; returns how many are left.
std::size_t InlineParser::CloseEmphasis(char sign, std::size_t length)
{
    while (length > 0)
    {
        auto const opener = std::find_if(m_openers.rbegin(), m_openers.rend(),
                                         [sign](Opener const& candidate) { return candidate.sign == sign; });
        if (opener == m_openers.rend())
        {
            return length;
        }
        std::size_t const used = std::min<std::size_t>({length, opener->length, 2});
        if (sign == '~' && used != 2)
        {
            return length;
        }
        std::string_view const name = sign == '~' ? "s" : used == 2 ? "b" : "i";
        std::string& piece = m_pieces[opener->piece];
        // What is left of the opening run stands before the new tag.
        std::size_t const place = opener->length - used;
        piece.replace(place, used, "<" + std::string(name) + ">");
        Out() += "</" + std::string(name) + ">";
        opener->length -= used;
        length -= used;
        std::size_t const kept = static_cast<std::size_t>(m_openers.rend() - opener);
        m_openers.resize(opener->length > 0 ? kept : kept - 1);
    }
    return 0;
}

void InlineParser::Emphasis()
{
    char const sign = m_text[m_at];
    std::size_t const length = RunLength(m_at);
    char const before = m_at == 0 ? ' ' : m_text[m_at - 1];
    char const after = At(m_at + length);
    bool const isInWord = IsAsciiAlphanumeric(before) && IsAsciiAlphanumeric(after);
    bool const mayClose = !IsAsciiSpace(before) && !(sign == '_' && isInWord);
    bool const mayOpen = !IsAsciiSpace(after) && !(sign == '_' && isInWord);
    std::size_t const left = mayClose ? CloseEmphasis(sign, length) : length;
    m_at += length;
    if (left == 0)
    {
        return;
    }
    bool const opens = mayOpen && left <= 3 && m_openers.size() < MAX_OPEN_EMPHASES && !(sign == '~' && left != 2);
    if (opens)
    {
        m_pieces.emplace_back();
        m_openers.push_back({sign, left, m_pieces.size() - 1});
    }
    Out().append(left, sign);
    if (opens)
    {
        m_pieces.emplace_back();
    }
}

} // namespace

std::string NormalLabel(std::string_view label)
{
    std::string normal;
    for (char const c : ToLowerAscii(TrimmedAscii(label)))
    {
        bool const isSpace = IsAsciiSpace(c);
        if (!isSpace || normal.back() != ' ')
        {
            normal.push_back(isSpace ? ' ' : c);
        }
    }
    return normal;
}

std::string MarkdownInlineToHtml(std::string_view text, MarkdownReferences const& references)
{
    return InlineParser(text, references, Links::Allowed).Parse();
}

} // namespace Pelnar::Engine
