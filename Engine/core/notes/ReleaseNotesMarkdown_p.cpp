#include "Engine/core/notes/ReleaseNotesMarkdown_p.h"

#include "Engine/core/notes/ReleaseNotesText_p.h"
#include "Engine/core/notes/ReleaseNotesTokenizer_p.h"

#include <exception>
#include <optional>
#include <utility>
#include <vector>

#include <md4c.h>

namespace Pelnar::Engine
{
namespace
{

/// Of all addresses and titles, counted at each use. The parser decodes them again for every use of a reference, also
/// where nobody looks at them.
constexpr std::size_t MAX_ATTRIBUTE_BYTES = 256 * 1024;
/// Entities and escapes between two blank lines. For those of one title the parser's time grows with the square.
constexpr std::size_t MAX_CODED_SIGNS = 2048;

constexpr unsigned DIALECT = MD_FLAG_TABLES | MD_FLAG_STRIKETHROUGH | MD_FLAG_PERMISSIVEURLAUTOLINKS;

/// What ends a comment or a tag that \a html leaves open: it must not take the text after the block.
std::string_view EndOfOpenMarkup(std::string_view html)
{
    constexpr char AFTER = '.';
    for (std::string_view const end : {"", "-->", ">", "\">", "'>"})
    {
        std::string const whole = std::string(html).append(end) + AFTER;
        NotesTokenizer tokenizer(whole);
        std::optional<NotesToken> last;
        while (std::optional<NotesToken> token = tokenizer.Next())
        {
            last = std::move(token);
        }
        if (last && last->kind == NotesToken::Kind::Text && !last->text.empty() && last->text.back() == AFTER)
        {
            return end;
        }
    }
    return {}; // in an element whose content is not shown
}

std::size_t AttributeBytes(MD_SPANTYPE type, void const* detail)
{
    switch (type)
    {
    case MD_SPAN_A:
    {
        auto const& link = *static_cast<MD_SPAN_A_DETAIL const*>(detail);
        return std::size_t{link.href.size} + link.title.size;
    }
    case MD_SPAN_IMG:
    {
        auto const& image = *static_cast<MD_SPAN_IMG_DETAIL const*>(detail);
        return std::size_t{image.src.size} + image.title.size;
    }
    case MD_SPAN_EM:
    case MD_SPAN_STRONG:
    case MD_SPAN_CODE:
    case MD_SPAN_DEL:
    case MD_SPAN_U:
    case MD_SPAN_LATEXMATH:
    case MD_SPAN_LATEXMATH_DISPLAY:
    case MD_SPAN_WIKILINK:
        break;
    }
    return 0;
}

class HtmlWriter
{
public:
    explicit HtmlWriter(std::size_t maxBytes) : m_maxBytes(maxBytes) {}

    void EnterBlock(MD_BLOCKTYPE type, void const* detail);
    void LeaveBlock(MD_BLOCKTYPE type, void const* detail);
    void EnterSpan(MD_SPANTYPE type, void const* detail);
    void LeaveSpan(MD_SPANTYPE type);
    void AddText(MD_TEXTTYPE type, std::string_view text);

    [[nodiscard]] bool IsFull() const { return m_html.size() > m_maxBytes || m_attributeBytes > MAX_ATTRIBUTE_BYTES; }
    [[nodiscard]] std::string const& Html() const { return m_html; }

    std::exception_ptr failure; ///< of a callback

private:
    static std::string BlockName(MD_BLOCKTYPE type, void const* detail);
    static std::string_view SpanName(MD_SPANTYPE type);
    void AppendCellCode(std::string_view text);

    std::size_t m_maxBytes;
    std::size_t m_openImages = 0; ///< only an image's text is kept
    std::size_t m_attributeBytes = 0;
    std::size_t m_htmlStart = 0; ///< of the current block of HTML
    bool m_isInTable = false;
    std::string m_html;
};

void HtmlWriter::EnterBlock(MD_BLOCKTYPE type, void const* detail)
{
    std::string const name = BlockName(type, detail);
    m_html += name.empty() ? name : "<" + name + ">";
    m_htmlStart = m_html.size();
    m_isInTable = m_isInTable || type == MD_BLOCK_TABLE;
}

void HtmlWriter::LeaveBlock(MD_BLOCKTYPE type, void const* detail)
{
    std::string const name = BlockName(type, detail);
    m_isInTable = m_isInTable && type != MD_BLOCK_TABLE;
    if (type == MD_BLOCK_HTML)
    {
        m_html += EndOfOpenMarkup(std::string_view(m_html).substr(m_htmlStart));
    }
    if (!name.empty())
    {
        m_html += type == MD_BLOCK_HR ? "\n" : "</" + name + ">\n";
    }
}

std::string HtmlWriter::BlockName(MD_BLOCKTYPE type, void const* detail)
{
    switch (type)
    {
    case MD_BLOCK_QUOTE:
        return "blockquote";
    case MD_BLOCK_UL:
        return "ul";
    case MD_BLOCK_OL:
        return "ol";
    case MD_BLOCK_LI:
        return "li";
    case MD_BLOCK_HR:
        return "hr";
    case MD_BLOCK_H:
        return "h" + std::to_string(static_cast<MD_BLOCK_H_DETAIL const*>(detail)->level);
    case MD_BLOCK_CODE:
        return "pre";
    case MD_BLOCK_P:
        return "p";
    case MD_BLOCK_TABLE:
        return "table";
    case MD_BLOCK_TR:
        return "tr";
    case MD_BLOCK_TH:
        return "th";
    case MD_BLOCK_TD:
        return "td";
    case MD_BLOCK_DOC:
    case MD_BLOCK_HTML:
    case MD_BLOCK_THEAD:
    case MD_BLOCK_TBODY:
        break;
    }
    return {};
}

std::string_view HtmlWriter::SpanName(MD_SPANTYPE type)
{
    switch (type)
    {
    case MD_SPAN_EM:
        return "i";
    case MD_SPAN_STRONG:
        return "b";
    case MD_SPAN_A:
        return "a";
    case MD_SPAN_CODE:
        return "code";
    case MD_SPAN_DEL:
        return "s";
    case MD_SPAN_U:
        return "u";
    case MD_SPAN_IMG:
    case MD_SPAN_LATEXMATH:
    case MD_SPAN_LATEXMATH_DISPLAY:
    case MD_SPAN_WIKILINK:
        break;
    }
    return {};
}

void HtmlWriter::EnterSpan(MD_SPANTYPE type, void const* detail)
{
    m_openImages += type == MD_SPAN_IMG ? 1 : 0;
    m_attributeBytes += AttributeBytes(type, detail);
    std::string_view const name = SpanName(type);
    if (m_openImages > 0 || name.empty())
    {
        return;
    }
    m_html.append("<").append(name);
    if (type == MD_SPAN_A)
    {
        MD_ATTRIBUTE const& address = static_cast<MD_SPAN_A_DETAIL const*>(detail)->href;
        m_html += " href=\"";
        for (std::size_t i = 0; address.substr_offsets[i] < address.size; ++i)
        {
            MD_OFFSET const start = address.substr_offsets[i];
            AddText(address.substr_types[i], {address.text + start, address.substr_offsets[i + 1] - start});
        }
        m_html += '"';
    }
    m_html += '>';
}

void HtmlWriter::LeaveSpan(MD_SPANTYPE type)
{
    std::string_view const name = SpanName(type);
    if (m_openImages == 0 && !name.empty())
    {
        m_html.append("</").append(name).append(">");
    }
    m_openImages -= type == MD_SPAN_IMG ? 1 : 0;
}

void HtmlWriter::AddText(MD_TEXTTYPE type, std::string_view text)
{
    switch (type)
    {
    case MD_TEXT_CODE:
        if (m_isInTable)
        {
            AppendCellCode(text);
        }
        else
        {
            AppendEscaped(m_html, text);
        }
        return;
    case MD_TEXT_NORMAL:
    case MD_TEXT_LATEXMATH:
        AppendEscaped(m_html, text);
        return;
    case MD_TEXT_ENTITY: // decoded by the filter
    case MD_TEXT_HTML:
        m_html += text;
        return;
    case MD_TEXT_BR:
        m_html += "<br>\n";
        return;
    case MD_TEXT_SOFTBR:
        m_html += '\n';
        return;
    case MD_TEXT_NULLCHAR: // clean text has none
        return;
    }
}

/// In a cell a backslash before a bar says that the bar belongs to the cell, even in code.
void HtmlWriter::AppendCellCode(std::string_view text)
{
    for (std::size_t bar = text.find("\\|"); bar != std::string_view::npos; bar = text.find("\\|"))
    {
        AppendEscaped(m_html, text.substr(0, bar));
        m_html += '|';
        text.remove_prefix(bar + 2);
    }
    AppendEscaped(m_html, text);
}

/// Finds the second lines of paragraphs that look like the line below a table's head. md4c takes only those with three
/// signs or more in every column for one; authors write fewer.
struct ShortDelimiters
{
    std::exception_ptr failure{};
    std::size_t attributeBytes = 0;
    std::vector<std::string_view> lines{}; ///< of the parsed text
    int line = 0;                          ///< of the current paragraph
    bool isAtLineStart = false;

    void Add(MD_TEXTTYPE type, std::string_view text)
    {
        bool const isDelimiter = type == MD_TEXT_NORMAL && isAtLineStart && line == 1 &&
                                 text.find('|') != std::string_view::npos && text.find('-') != std::string_view::npos &&
                                 text.find_first_not_of("|-: \t") == std::string_view::npos;
        if (isDelimiter)
        {
            lines.push_back(text);
        }
        isAtLineStart = type == MD_TEXT_SOFTBR;
        line += isAtLineStart ? 1 : 0;
    }
};

/// The action of a parser's callback. No exception may pass through the parser: \a reader keeps it, and the parsing
/// ends.
template <class Reader, class Act>
int Guarded(void* pointer, Act const& act) noexcept
{
    auto& reader = *static_cast<Reader*>(pointer);
    try
    {
        return act(reader);
    }
    catch (std::exception const&)
    {
        reader.failure = std::current_exception();
        return 1;
    }
}

/// Returns false if a callback or a lack of memory ended the parsing. Throws what a callback threw.
template <class Reader>
bool Parse(std::string_view text, MD_PARSER const& parser, Reader& reader)
{
    int const end = md_parse(text.data(), static_cast<MD_SIZE>(text.size()), &parser, &reader);
    if (reader.failure)
    {
        std::rethrow_exception(reader.failure);
    }
    return end == 0;
}

/// \a text with three signs or more in every column of those lines.
std::string WithWideDelimiters(std::string_view text)
{
    MD_PARSER parser = {}; // tables are paragraphs here
    parser.enter_block = [](MD_BLOCKTYPE, void*, void* found)
    {
        static_cast<ShortDelimiters*>(found)->line = 0;
        return 0;
    };
    parser.enter_span = [](MD_SPANTYPE type, void* detail, void* found)
    {
        std::size_t& bytes = static_cast<ShortDelimiters*>(found)->attributeBytes;
        bytes += AttributeBytes(type, detail);
        return bytes > MAX_ATTRIBUTE_BYTES ? 1 : 0;
    };
    parser.leave_block = [](MD_BLOCKTYPE, void*, void*) { return 0; };
    parser.leave_span = [](MD_SPANTYPE, void*, void*) { return 0; };
    parser.text = [](MD_TEXTTYPE type, MD_CHAR const* piece, MD_SIZE size, void* found)
    {
        return Guarded<ShortDelimiters>(found,
                                        [=](ShortDelimiters& lines)
                                        {
                                            lines.Add(type, {piece, size});
                                            return 0;
                                        });
    };
    ShortDelimiters found;
    static_cast<void>(Parse(text, parser, found)); // what was found until then
    std::string wide;
    std::size_t done = 0;
    for (std::string_view const line : found.lines)
    {
        auto const start = static_cast<std::size_t>(line.data() - text.data());
        wide.append(text.substr(done, start - done));
        for (char const sign : line)
        {
            wide.append(sign == '-' ? 3 : 1, sign);
        }
        done = start + line.size();
    }
    return wide.append(text.substr(done));
}

[[nodiscard]] bool HasTooManyCodedSigns(std::string_view text)
{
    std::size_t count = 0;
    bool isBlank = true;
    for (char const sign : text)
    {
        count = sign == '\n' && isBlank ? 0 : count + (sign == '&' || sign == '\\' ? 1 : 0);
        isBlank = sign == '\n' || (isBlank && IsAsciiSpace(sign));
        if (count > MAX_CODED_SIGNS)
        {
            return true;
        }
    }
    return false;
}

/// The action of a parser's callback. Its result ends the parsing once the writer is full. The parser still reports
/// parts of what it has begun, such as the remaining cells of a table row.
template <class Write>
int UnlessFull(void* writer, Write const& write)
{
    return Guarded<HtmlWriter>(writer,
                               [&write](HtmlWriter& html)
                               {
                                   if (html.IsFull())
                                   {
                                       return 1;
                                   }
                                   write(html);
                                   return 0;
                               });
}

} // namespace

NotesHtml MarkdownToHtml(std::string_view cleanText, std::size_t maxHtmlBytes)
{
    if (HasTooManyCodedSigns(cleanText))
    {
        return {{}, false};
    }
    MD_PARSER parser = {};
    parser.flags = DIALECT;
    parser.enter_block = [](MD_BLOCKTYPE type, void* detail, void* writer)
    { return UnlessFull(writer, [=](HtmlWriter& html) { html.EnterBlock(type, detail); }); };
    parser.leave_block = [](MD_BLOCKTYPE type, void* detail, void* writer)
    { return UnlessFull(writer, [=](HtmlWriter& html) { html.LeaveBlock(type, detail); }); };
    parser.enter_span = [](MD_SPANTYPE type, void* detail, void* writer)
    { return UnlessFull(writer, [=](HtmlWriter& html) { html.EnterSpan(type, detail); }); };
    parser.leave_span = [](MD_SPANTYPE type, void*, void* writer)
    { return UnlessFull(writer, [=](HtmlWriter& html) { html.LeaveSpan(type); }); };
    parser.text = [](MD_TEXTTYPE type, MD_CHAR const* text, MD_SIZE size, void* writer) {
        return UnlessFull(writer, [=](HtmlWriter& html) { html.AddText(type, {text, size}); });
    };
    HtmlWriter writer(maxHtmlBytes);
    std::string const text = WithWideDelimiters(cleanText);
    bool const isWhole = Parse(text, parser, writer);
    return {writer.Html(), isWhole && !writer.IsFull()};
}

} // namespace Pelnar::Engine
