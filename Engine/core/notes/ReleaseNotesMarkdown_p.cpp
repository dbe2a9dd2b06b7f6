#include "Engine/core/notes/ReleaseNotesMarkdown_p.h"

#include "Engine/core/notes/ReleaseNotesText_p.h"

#include <md4c.h>

namespace Pelnar::Engine
{
namespace
{

constexpr unsigned DIALECT = MD_FLAG_TABLES | MD_FLAG_STRIKETHROUGH | MD_FLAG_PERMISSIVEURLAUTOLINKS;

class HtmlWriter
{
public:
    explicit HtmlWriter(std::size_t maxBytes) : m_maxBytes(maxBytes) {}

    void EnterBlock(MD_BLOCKTYPE type, void const* detail);
    void LeaveBlock(MD_BLOCKTYPE type, void const* detail);
    void EnterSpan(MD_SPANTYPE type, void const* detail);
    void LeaveSpan(MD_SPANTYPE type);
    void AddText(MD_TEXTTYPE type, std::string_view text);

    [[nodiscard]] bool IsFull() const { return m_html.size() > m_maxBytes; }
    [[nodiscard]] std::string const& Html() const { return m_html; }

private:
    static std::string BlockName(MD_BLOCKTYPE type, void const* detail);
    static std::string_view SpanName(MD_SPANTYPE type);

    std::size_t m_maxBytes;
    std::size_t m_openImages = 0; ///< only an image's text is kept
    std::string m_html;
};

void HtmlWriter::EnterBlock(MD_BLOCKTYPE type, void const* detail)
{
    std::string const name = BlockName(type, detail);
    m_html += name.empty() ? name : "<" + name + ">";
}

void HtmlWriter::LeaveBlock(MD_BLOCKTYPE type, void const* detail)
{
    std::string const name = BlockName(type, detail);
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
    case MD_TEXT_NORMAL:
    case MD_TEXT_CODE:
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

/// The action of a parser's callback. Its result ends the parsing once the writer is full. The parser still reports
/// parts of what it has begun, such as the remaining cells of a table row.
template <class Write>
int UnlessFull(void* writer, Write const& write)
{
    auto& html = *static_cast<HtmlWriter*>(writer);
    if (html.IsFull())
    {
        return 1;
    }
    write(html);
    return 0;
}

} // namespace

std::string MarkdownToHtml(std::string_view cleanText, std::size_t maxHtmlBytes)
{
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
    static_cast<void>(md_parse(cleanText.data(), static_cast<MD_SIZE>(cleanText.size()), &parser, &writer));
    return writer.Html();
}

} // namespace Pelnar::Engine
