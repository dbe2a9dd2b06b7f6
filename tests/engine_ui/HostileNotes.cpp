#include "tests/engine_ui/HostileNotes.h"

#include <array>
#include <utility>

namespace Pelnar::Testing
{
namespace
{

using Engine::ReleaseNotesFormat;
using Named = std::pair<char const*, char const*>;

/// "@" stands for an address.
constexpr std::array LOADERS = {
    Named{"img", R"x(<img src="@">)x"},
    Named{"img_unquoted_upper_case", R"x(<IMG SRC=@>)x"},
    Named{"img_slashes_for_blanks", R"x(<img/src="@"/>)x"},
    Named{"img_in_link", R"x(<a href="@"><img src="@" alt="click"></a>)x"},
    Named{"img_in_table_cell", R"x(<table><tr><td><img src="@"></td></tr></table>)x"},
    Named{"img_srcset_and_lowsrc", R"x(<img srcset="@ 2x" lowsrc="@" dynsrc="@">)x"},
    Named{"style_element_import", R"x(<style>@import url("@"); body { background: url(@) }</style>)x"},
    Named{"style_attribute", R"x(<p style="background-image: url('@')">styled</p>)x"},
    Named{"list_style_image", R"x(<ul style="list-style-image: url(@)"><li>item</li></ul>)x"},
    Named{"body_background", R"x(<body background="@">text</body>)x"},
    Named{"table_background", R"x(<table background="@"><tr background="@"><td background="@">x</td></tr></table>)x"},
    Named{"link_stylesheet", R"x(<link rel="stylesheet" href="@">)x"},
    Named{"iframe", R"x(<iframe src="@"><img src="@"></iframe>)x"},
    Named{"object_and_embed", R"x(<object data="@"><param name="movie" value="@"></object><embed src="@">)x"},
    Named{"media", R"x(<video src="@" poster="@"></video><audio src="@"></audio><source src="@"><track src="@">)x"},
    Named{"svg_image", R"x(<svg><image xlink:href="@" href="@"/><use href="@"/></svg>)x"},
    Named{"meta_refresh", R"x(<meta http-equiv="refresh" content="0; url=@">)x"},
    Named{"base_and_relative", R"x(<base href="@"><img src="picture.png"><a href="next">next</a>)x"},
    Named{"input_and_form",
          R"x(<form action="@"><input type="image" src="@"><button formaction="@">go</button></form>)x"},
    Named{"frames", R"x(<frameset><frame src="@"></frameset>)x"},
    Named{"math_and_annotation", R"x(<math><annotation-xml><img src="@"></annotation-xml></math>)x"},
    Named{"quote_cite", R"x(<blockquote cite="@">quoted</blockquote><q cite="@">q</q>)x"},
    Named{"applet_and_bgsound", R"x(<applet codebase="@"></applet><bgsound src="@">)x"},
};

constexpr std::array ADDRESS_KINDS = {
    Named{"file", "file://%PATH%"},
    Named{"path", "%PATH%"},
    Named{"http", "http://%HOST%/t.png"},
    Named{"scheme_relative", "//%HOST%/t.png"},
    Named{"data", "data:image/svg+xml,<svg onload='alert(1)'/>"},
};

constexpr std::array SCRIPTS = {
    Named{"script", "<script>document.location='http://%HOST%/'</script>"},
    Named{"script_never_closed", "before<script>alert(1)"},
    Named{"script_in_pieces", "<scr<script>ipt>alert(1)</scr</script>ipt>"},
    Named{"script_with_zero_byte_name", "<scri\x01pt>alert(1)</scri\x01pt>"},
    Named{"event_attribute", R"x(<p onclick="alert(1)" onmouseover=alert(1)>text</p>)x"},
    Named{"event_after_quote", R"x(<a href="https://example.com/"onclick="alert(1)">x</a>)x"},
    Named{"svg_onload", "<svg onload=alert(1)><script>alert(1)</script></svg>"},
    Named{"details_ontoggle", "<details open ontoggle=alert(1)><summary>more</summary>text</details>"},
    Named{"comment_that_hides", "<!--><img src=x onerror=alert(1)>-->"},
    Named{"cdata_that_hides", "<![CDATA[<img src='%PATH%'>]]>"},
    Named{"instruction_that_hides", "<?xml-stylesheet href='%PATH%'?><img src='%PATH%'>"},
    Named{"title_that_hides", "<title><img title=\"</title><img src='%PATH%'>\"></title>"},
    Named{"noscript_that_hides", "<noscript><p title=\"</noscript><img src='%PATH%'>\"></noscript>"},
    Named{"attribute_never_closed", "<p title=\"<img src='%PATH%'>"},
    Named{"tag_never_closed", "text <img src='%PATH%'"},
    Named{"entities_for_markup", "&lt;img src='%PATH%'&gt; &#60;script&#62;alert(1)&#60;/script&#62;"},
    Named{"entities_twice", "&amp;lt;img src='%PATH%'&amp;gt;"},
    Named{"style_with_expression", "<b style=\"width: expression(alert(1))\">b</b>"},
    Named{"class_and_id", "<p class=x id=y name=z>text</p><a name=\"x\">anchor</a>"},
    Named{"xmp_and_plaintext", "<xmp><img src='%PATH%'></xmp><plaintext><img src='%PATH%'>"},
};

/// Addresses that a click must not follow.
constexpr std::array LINK_ADDRESSES = {
    Named{"javascript", "javascript:alert(1)"},
    Named{"javascript_mixed_case", "JaVaScRiPt:alert(1)"},
    Named{"javascript_with_tab", "java\tscript:alert(1)"},
    Named{"javascript_with_newline_entity", "java&#10;script:alert(1)"},
    Named{"javascript_with_entity_letter", "&#106;avascript:alert(1)"},
    Named{"javascript_after_control", "&#1;javascript:alert(1)"},
    Named{"javascript_after_blank", "  javascript:alert(1)"},
    Named{"vbscript", "vbscript:msgbox(1)"},
    Named{"data_html", "data:text/html,<script>alert(1)</script>"},
    Named{"file", "file://%PATH%"},
    Named{"path", "%PATH%"},
    Named{"resource", "qrc:/anything"},
    Named{"share", "smb://%HOST%/share"},
    Named{"ftp", "ftp://%HOST%/x"},
    Named{"other_program", "steam://run/1"},
    Named{"desktop_file", "file://%PATH%.desktop"},
    Named{"no_scheme", "www.example.com/x"},
    Named{"scheme_relative", "//%HOST%/x"},
    Named{"one_slash", "https:/example.com/x"},
    Named{"no_host", "https:///x"},
    Named{"user_name_as_host", "https://example.com@%HOST%/"},
    Named{"backslash_host", "https:\\\\%HOST%\\x"},
    Named{"backslash_in_host", "https://example.com\\@%HOST%/"},
    Named{"host_with_blank", "https://exam ple.com/"},
    Named{"host_of_another_alphabet", "https://ex\xD0\xB0mple.com/"},
    Named{"host_percent_encoded", "https://%65xample.com/"},
    Named{"port_of_letters", "https://example.com:abc/"},
    Named{"colon_without_port", "https://example.com:/"},
    Named{"bracket_never_closed", "https://[::1/"},
    Named{"mail_without_address", "mailto:?attach=%PATH%"},
    Named{"mail_option", "mailto:-o@example.com"},
    Named{"mail_with_newline", "mailto:a%0Ab@example.com"},
    Named{"view_source", "view-source:https://example.com/"},
    Named{"nested_scheme", "jar:https://example.com/x!/y"},
};

std::string Repeated(std::string const& text, int times)
{
    std::string repeated;
    repeated.reserve(text.size() * static_cast<std::size_t>(times));
    for (int i = 0; i < times; ++i)
    {
        repeated += text;
    }
    return repeated;
}

void ReplaceAll(std::string& text, std::string const& what, std::string const& by)
{
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
    {
        text.replace(at, what.size(), by);
    }
}

void AddExhaustingHtml(std::vector<HostileNotes>& all)
{
    auto const html = [&all](char const* name, std::string text) {
        all.push_back({std::string("exhaust.") + name, ReleaseNotesFormat::Html, std::move(text)});
    };
    html("nested_tables", Repeated("<table><tr><td>", 20) + "x" + Repeated("</td></tr></table>", 20));
    html("nested_tables_never_closed", Repeated("<table><tr><td>x", 5000));
    html("many_divs", Repeated("<div>", 50000));
    html("many_inline_elements", Repeated("<b><i>", 20000) + "x");
    html("many_paragraphs", Repeated("<p>x", 60000));
    html("many_breaks", Repeated("<br>", 60000));
    html("huge_colspan", "<table><tr><td colspan=1000000 rowspan=1000000>x</td></tr></table>");
    html("wide_and_long_table", "<table><tr>" + Repeated("<td>x", 400) + Repeated("<tr><td>y", 400) + "</table>");
    html("many_entities", Repeated("&lt;", 60000));
    html("ten_megabytes", Repeated("<p>ten megabytes of text</p>\n", 360000));
    html("one_endless_word", Repeated("x", 250000));
    html("one_endless_line", Repeated("x ", 125000));
    html("many_attributes", "<p " + Repeated("a=b ", 60000) + ">x</p>");
    html("one_long_attribute", "<p title=\"" + Repeated("x", 200000) + "\">x</p>");
    html("many_comments", Repeated("<!-- x -->", 25000));
    html("comments_never_closed", Repeated("<!-- ", 50000));
    html("scripts_never_closed", Repeated("<script>", 30000));
    html("end_tags_alone", Repeated("</b></table></li>", 15000));
    html("nested_lists", Repeated("<ul><li>", 10000));
    html("items_without_list", Repeated("<li>x", 3000));
    html("many_list_items", "<ul>" + Repeated("<li>x", 20000));
    html("many_code_blocks", Repeated("<pre>x</pre>", 10000));
    html("many_codes", Repeated("<code>x</code> ", 1900));
    html("long_text_in_nested_tables", Repeated("<table><tr><td>", 4) + Repeated("text ", 40000));
    html("many_headings", Repeated("<h1>x</h1>", 20000));
    html("marks_by_entities", "x" + Repeated("&#769;", 40000));
    html("breaks_without_width", Repeated("x\xE2\x80\x8B", 50000));
    html("less_than_signs", Repeated("<", 250000));
    html("combining_marks", "x" + Repeated("\xCC\x81", 100000));
    html("text_that_reorders", "\xE2\x80\xAE"
                               "gpj.exe \xE2\x81\xA6x\xE2\x81\xA9 &#x202E;y");
    html("code_points_of_documents", "a\xEF\xB7\x90"
                                     "b\xEF\xB7\x91"
                                     "c\xEF\xBF\xBC"
                                     "d&#xFDD0;&#65532;&#0;&#xD800;&#1114112;");
    html("no_utf8", "\xFF\xFE\xC0\x80\xED\xA0\x80\xF5\x80\x80\x80 \xE2\x82");
}

void AddExhaustingMarkdown(std::vector<HostileNotes>& all)
{
    auto const markdown = [&all](char const* name, std::string text) {
        all.push_back({std::string("exhaust.markdown_") + name, ReleaseNotesFormat::Markdown, std::move(text)});
    };
    markdown("brackets", Repeated("[", 250000));
    markdown("bracket_pairs", Repeated("[a](", 60000));
    markdown("links_in_links", Repeated("[a", 60000) + Repeated("](b)", 20000));
    markdown("emphases", Repeated("*a **b ", 35000));
    markdown("emphases_that_close", Repeated("*a* _b_ ", 30000));
    markdown("backticks_of_all_lengths", Repeated("` `` ``` ```` ````` ", 12000));
    markdown("quotes_in_quotes", Repeated("> ", 100000) + "x");
    markdown("lists_in_lists", Repeated("- ", 100000) + "x");
    markdown("angles", Repeated("<a ", 80000));
    markdown("bare_links_that_fail", Repeated("http://@", 30000));
    markdown("references", Repeated("[label]: https://example.com/\n", 8000) + Repeated("[label] ", 200));
    markdown("fences_never_closed", Repeated("```\n", 60000));
    markdown("tables", Repeated("|a|b|\n|---|---|\n|c|d|\n\n", 10000));
    markdown("wide_table_of_short_rows",
             Repeated("a|", 10000) + "\n" + Repeated("---|", 10000) + "\n" + Repeated("a|\n", 60000));
    markdown("reference_definitions_never_finished", Repeated("[a]: b '", 32000));
    markdown("list_items_without_text", Repeated("-\n", 130000));
    markdown("entities", Repeated("&amp;", 52000));
    all.push_back({"exhaust.plain_lines", ReleaseNotesFormat::PlainText, Repeated("line\n", 50000)});
    all.push_back({"exhaust.plain_links", ReleaseNotesFormat::PlainText, Repeated("https://example.com/ ", 12000)});
}

void AddMarkdown(std::vector<HostileNotes>& all)
{
    auto const add = [&all](char const* name, char const* text) {
        all.push_back({std::string("markdown.") + name, ReleaseNotesFormat::Markdown, text});
    };
    add("image", "![picture](http://%HOST%/t.png)");
    add("image_of_file", "![picture](file://%PATH%)");
    add("image_by_reference", "![picture][p]\n\n[p]: %PATH%");
    add("link_to_script", "[click](javascript:alert(1)) <javascript:alert(1)>");
    add("link_by_reference_to_file", "[click]\n\n[click]: <file://%PATH%>");
    add("html_image", "text <img src='%PATH%'> text\n\n<img src='http://%HOST%/t.png'>\n");
    add("html_script_with_blank_line", "<script>\nvar a;\n\nvar b;\n</script>\n\ntext");
    add("attribute_out_of_link", "[x](https://example.com/\"onclick=\"alert(1))");
    add("markup_in_code", "`<img src='%PATH%'>`\n\n    <script>alert(1)</script>\n\n```\n<img src='%PATH%'>\n```");
    add("style_in_quote", "> <style>p { background: url(%PATH%) }</style>\n> text");
}

} // namespace

std::vector<HostileNotes> AllHostileNotes(std::string const& canaryPath, std::string const& canaryAddress)
{
    std::vector<HostileNotes> all;
    for (auto const& [loader, markup] : LOADERS)
    {
        for (auto const& [kind, address] : ADDRESS_KINDS)
        {
            std::string text = markup;
            ReplaceAll(text, "@", address);
            all.push_back({std::string("load.") + loader + "." + kind, ReleaseNotesFormat::Html, text});
        }
    }
    for (auto const& [name, text] : SCRIPTS)
    {
        all.push_back({std::string("script.") + name, ReleaseNotesFormat::Html, text});
    }
    for (auto const& [name, address] : LINK_ADDRESSES)
    {
        all.push_back({std::string("link.") + name, ReleaseNotesFormat::Html,
                       std::string("<a href=\"") + address + "\">click</a>"});
    }
    AddMarkdown(all);
    for (HostileNotes& notes : all)
    {
        ReplaceAll(notes.text, "%PATH%", canaryPath);
        ReplaceAll(notes.text, "%HOST%", canaryAddress);
    }
    AddExhaustingHtml(all);
    AddExhaustingMarkdown(all);
    return all;
}

} // namespace Pelnar::Testing
