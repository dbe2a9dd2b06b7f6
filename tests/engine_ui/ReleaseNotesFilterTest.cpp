#include "Engine/core/notes/ReleaseNotesFilter.h"
#include "Engine/core/notes/ReleaseNotesLink.h"
#include "Engine/core/notes/ReleaseNotesMarkdown_p.h"
#include "tests/engine_ui/SafeMarkup.h"

#include <gtest/gtest.h>

#include <chrono>
#include <ostream>
#include <string>
#include <vector>

namespace Pelnar::Engine
{
namespace
{

using Testing::BrokenPromiseOf;
using Format = ReleaseNotesFormat;
using Refusal = ReleaseNotesRefusal;

std::string Repeated(std::string const& text, int times)
{
    std::string repeated;
    for (int i = 0; i < times; ++i)
    {
        repeated += text;
    }
    return repeated;
}

struct FilterRow
{
    char const* name;
    Format format;
    char const* notes;
    char const* html;
};

void PrintTo(FilterRow const& row, std::ostream* out)
{
    *out << row.name;
}

class FilterTable : public ::testing::TestWithParam<FilterRow>
{
};

TEST_P(FilterTable, GivesExactlyThisMarkup)
{
    FilteredReleaseNotes const filtered = FilterReleaseNotes(GetParam().notes, GetParam().format);
    EXPECT_EQ(filtered.html, GetParam().html);
    EXPECT_EQ(filtered.refusal, Refusal::None);
    EXPECT_EQ(BrokenPromiseOf(filtered.html), "");
    EXPECT_EQ(FilterReleaseNotes(filtered.html, Format::Html).html, filtered.html) << "not idempotent";
}

std::string NameOf(::testing::TestParamInfo<FilterRow> const& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(
    Html, FilterTable,
    ::testing::Values(
        FilterRow{"nothing", Format::Html, "", ""}, FilterRow{"blanks", Format::Html, " \n\t ", ""},
        FilterRow{"text", Format::Html, "a < b & c > d \"e\"", "a &lt; b &amp; c &gt; d &quot;e&quot;"},
        FilterRow{"allowed_elements_in_any_case", Format::Html, "<H2>New</H2><p>a <B>b</B> <Code>c</Code></p>",
                  "<h2>New</h2><p>a <b>b</b> <code>c</code></p>"},
        FilterRow{"elements_shown_as_others", Format::Html,
                  "<section><strong>a</strong><em>b</em><del>c</del><ins>d</ins><kbd>e</kbd></section>",
                  "<div><b>a</b><i>b</i><s>c</s><u>d</u><code>e</code></div>"},
        FilterRow{"unknown_elements_leave_their_text", Format::Html, "<blink>a</blink><span style=x>b</span>", "ab"},
        FilterRow{"attributes_are_left_out", Format::Html, "<p class=a id=b onclick=c style='d'>x</p>", "<p>x</p>"},
        FilterRow{"direction_is_kept", Format::Html, "<p dir=RTL>x</p><div dir='auto'>y</div>",
                  "<p dir=\"rtl\">x</p><div>y</div>"},
        FilterRow{"image_becomes_its_text", Format::Html, "<img src=x alt='a &amp; <b>'>", "a &amp; &lt;b&gt;"},
        FilterRow{"script_and_style_go_with_their_content", Format::Html,
                  "a<script>b<p></script>c<style>d</STYLE >e<title>f</title>g", "aceg"},
        FilterRow{"comments_and_declarations", Format::Html,
                  "<!DOCTYPE html>a<!-- <b>x</b> -->b<!-->c<?php x ?>d<![CDATA[e]]>f", "abcdf"},
        FilterRow{"head_and_body_are_no_content", Format::Html,
                  "<html><head><title>t</title></head><body><p>x</p></body></html>", "<p>x</p>"},
        FilterRow{"named_entities", Format::Html, "&copy;&mdash;&hellip;&nbsp;&lt;&rarr;", "©—…\xC2\xA0&lt;→"},
        FilterRow{"numeric_entities", Format::Html, "&#65;&#x42;&#X43;&#8364;", "ABC€"},
        FilterRow{"entities_that_are_none", Format::Html, "&nothing; &amp &#; &#x; &#99999999; AT&T",
                  "&amp;nothing; &amp;amp &amp;#; &amp;#x; &amp;#99999999; AT&amp;T"},
        FilterRow{"entities_of_no_character", Format::Html, "a&#0;b&#x202E;c&#xD800;d&#x110000;e",
                  "abc\xEF\xBF\xBD"
                  "d\xEF\xBF\xBD"
                  "e"},
        FilterRow{"line_ends", Format::Html,
                  "a\r\nb\rc\xE2\x80\xA8"
                  "d",
                  "a\nb\nc\nd"},
        FilterRow{"wrong_utf8", Format::Html,
                  "a\xFF"
                  "b\xC0\x80"
                  "c\xE2\x82",
                  "a\xEF\xBF\xBD"
                  "b\xEF\xBF\xBD\xEF\xBF\xBD"
                  "c\xEF\xBF\xBD\xEF\xBF\xBD"},
        FilterRow{"tag_never_closed", Format::Html, "a <b", "a "},
        FilterRow{"signs_that_open_no_tag", Format::Html, "1 < 2 <3 </ <", "1 &lt; 2 &lt;3 &lt;/ &lt;"}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Nesting, FilterTable,
    ::testing::Values(
        FilterRow{"what_is_open_is_closed", Format::Html, "<ul><li><b>x", "<ul><li><b>x</b></li></ul>"},
        FilterRow{"end_tags_alone_are_left_out", Format::Html, "</b>x</p></table>", "x"},
        FilterRow{"crossed_elements", Format::Html, "<b><i>x</b>y</i>", "<b><i>x</i></b>y"},
        FilterRow{"a_paragraph_ends_the_one_before", Format::Html, "<p>a<p>b", "<p>a</p><p>b</p>"},
        FilterRow{"a_block_ends_a_paragraph", Format::Html, "<p>a<ul><li>b</ul>c</p>", "<p>a</p><ul><li>b</li></ul>c"},
        FilterRow{"a_rule_ends_a_paragraph", Format::Html, "<p>a<hr>b", "<p>a</p><hr>b"},
        FilterRow{"a_heading_ends_a_heading", Format::Html, "<h1>a<h2>b", "<h1>a</h1><h2>b</h2>"},
        FilterRow{"an_item_ends_the_one_before", Format::Html, "<ul><li>a<li>b</ul>", "<ul><li>a</li><li>b</li></ul>"},
        FilterRow{"an_inner_list_stays_in_its_item", Format::Html, "<ul><li>a<ul><li>b</ul><li>c</ul>",
                  "<ul><li>a<ul><li>b</li></ul></li><li>c</li></ul>"},
        FilterRow{"terms_and_descriptions", Format::Html, "<dl><dt>a<dd>b<dt>c</dl>",
                  "<dl><dt>a</dt><dd>b</dd><dt>c</dt></dl>"},
        FilterRow{"a_link_ends_the_one_before", Format::Html,
                  "<a href='https://a.example/'>a<a href='https://b.example/'>b</a></a>",
                  "<a href=\"https://a.example/\">a</a><a href=\"https://b.example/\">b</a>"},
        FilterRow{"a_table_gets_its_row_and_cell", Format::Html, "<table>a<td>b<tr>c</table>",
                  "<table><tr><td>a</td><td>b</td></tr><tr><td>c</td></tr></table>"},
        FilterRow{"parts_of_a_table_that_are_not_needed", Format::Html,
                  "<table>\n<thead>\n<tr><th>a</th>\n</tr></thead><tbody><tr><td>b</td></tr></tbody></table>",
                  "<table><tr><th>a</th></tr><tr><td>b</td></tr></table>"},
        FilterRow{"cells_without_a_table", Format::Html, "<tr><td>a</td></tr>", "a"},
        FilterRow{"an_end_tag_does_not_leave_its_cell", Format::Html, "<b><table><tr><td>a</b>b</td></tr></table></b>",
                  "<b><table><tr><td>ab</td></tr></table></b>"},
        FilterRow{"an_inner_table_keeps_to_its_cell", Format::Html,
                  "<table><tr><td><table><tr><td>a</table>b</td></tr></table>",
                  "<table><tr><td><table><tr><td>a</td></tr></table>b</td></tr></table>"}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    PlainText, FilterTable,
    ::testing::Values(
        FilterRow{"markup_is_shown_as_written", Format::PlainText, "<b>a</b> &amp;",
                  "<p>&lt;b&gt;a&lt;/b&gt; &amp;amp;</p>"},
        FilterRow{"paragraphs_and_lines", Format::PlainText, "\n\na\nb\n\n\nc\n", "<p>a<br>b</p><p>c</p>"},
        FilterRow{"indentation", Format::PlainText, "a\n  b",
                  "<p>a<br>\xC2\xA0\xC2\xA0"
                  "b</p>"},
        FilterRow{"bare_links", Format::PlainText, "See https://a.example/x?y=1&z=2, (http://b.example/c_(d)).",
                  "<p>See <a href=\"https://a.example/x?y=1&amp;z=2\">https://a.example/x?y=1&amp;z=2</a>, (<a "
                  "href=\"http://b.example/c_(d)\">http://b.example/c_(d)</a>).</p>"},
        FilterRow{"no_bare_link_within_a_word_or_of_another_scheme", Format::PlainText,
                  "xhttp://a.example file:///x https://", "<p>xhttp://a.example file:///x https://</p>"}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Markdown, FilterTable,
    ::testing::Values(
        FilterRow{"headings", Format::Markdown, "# A\n## B ##\nC\n===\nD\n---\n####### E",
                  "<h1>A</h1>\n<h2>B</h2>\n<h1>C</h1>\n<h2>D</h2>\n<p>####### E</p>\n"},
        FilterRow{"paragraphs_and_breaks", Format::Markdown, "a\nb  \nc\\\nd\n\ne",
                  "<p>a\nb<br>\nc<br>\nd</p>\n<p>e</p>\n"},
        FilterRow{"emphases", Format::Markdown, "*a* **b** ***c*** _d_ __e__ ~~f~~",
                  "<p><i>a</i> <b>b</b> <i><b>c</b></i> <i>d</i> <b>e</b> <s>f</s></p>\n"},
        FilterRow{"emphases_that_are_none", Format::Markdown, "2 * 3 * 4 snake_case_name *a ~~ b **c",
                  "<p>2 * 3 * 4 snake_case_name *a ~~ b **c</p>\n"},
        FilterRow{"nested_emphases", Format::Markdown, "**a *b* c**", "<p><b>a <i>b</i> c</b></p>\n"},
        FilterRow{"code", Format::Markdown, "`a<b>` ``c`d`` `e",
                  "<p><code>a&lt;b&gt;</code> <code>c`d</code> `e</p>\n"},
        FilterRow{"escapes", Format::Markdown, "\\*a\\* \\<b> \\q", "<p>*a* &lt;b&gt; \\q</p>\n"},
        FilterRow{"entities", Format::Markdown, "&copy; AT&T `&copy;`", "<p>© AT&amp;T <code>&amp;copy;</code></p>\n"},
        FilterRow{"list", Format::Markdown, "- a\n- b\n  more\n- c\n",
                  "<ul><li>a</li>\n<li>b\nmore</li>\n<li>c</li>\n</ul>\n"},
        FilterRow{"list_with_blank_lines", Format::Markdown, "* a\n\n* b",
                  "<ul><li><p>a</p>\n</li>\n<li><p>b</p>\n</li>\n</ul>\n"},
        FilterRow{"numbered_list", Format::Markdown, "1. a\n2. b", "<ol><li>a</li>\n<li>b</li>\n</ol>\n"},
        FilterRow{"nested_list", Format::Markdown, "- a\n  - b\n    - c\n- d",
                  "<ul><li>a<ul><li>b<ul><li>c</li>\n</ul>\n</li>\n</ul>\n</li>\n<li>d</li>\n</ul>\n"},
        FilterRow{"list_indented_by_tabs", Format::Markdown, "-\ta\n\t- b",
                  "<ul><li>a<ul><li>b</li>\n</ul>\n</li>\n</ul>\n"},
        FilterRow{"list_after_paragraph", Format::Markdown, "Fixed:\n- a", "<p>Fixed:</p>\n<ul><li>a</li>\n</ul>\n"},
        FilterRow{"quote", Format::Markdown, "> a\n> > b",
                  "<blockquote><p>a</p>\n<blockquote><p>b</p>\n</blockquote>\n</blockquote>\n"},
        FilterRow{"fenced_code", Format::Markdown, "```cpp\nint a;\n\n  <b>\n```\nx",
                  "<pre>int a;\n\n  &lt;b&gt;\n</pre>\n<p>x</p>\n"},
        FilterRow{"indented_code", Format::Markdown, "    a\n\n    b\n\nx", "<pre>a\n\nb\n</pre>\n<p>x</p>\n"},
        FilterRow{"rule", Format::Markdown, "a\n\n* * *\n\nb", "<p>a</p>\n<hr>\n<p>b</p>\n"},
        FilterRow{"link", Format::Markdown, "[a *b*](https://a.example/c_(d) \"title\")",
                  "<p><a href=\"https://a.example/c_(d)\">a <i>b</i></a></p>\n"},
        FilterRow{"link_by_reference", Format::Markdown,
                  "## [1.2.0] - today\n[x][1.2.0] [y]\n\n[1.2.0]: https://a.example/1",
                  "<h2><a href=\"https://a.example/1\">1.2.0</a> - today</h2>\n<p><a "
                  "href=\"https://a.example/1\">x</a> [y]</p>\n"},
        FilterRow{"link_in_angles", Format::Markdown, "<https://a.example/> <a@b.example>",
                  "<p><a href=\"https://a.example/\">https://a.example/</a> <a "
                  "href=\"mailto:a@b.example\">a@b.example</a></p>\n"},
        FilterRow{"bare_link", Format::Markdown, "**Full changes**: https://a.example/x_y_z",
                  "<p><b>Full changes</b>: <a href=\"https://a.example/x_y_z\">https://a.example/x_y_z</a></p>\n"},
        FilterRow{"link_that_must_not_be_followed", Format::Markdown, "[a](javascript:b) ![c](https://d.example/)",
                  "<p>a c</p>\n"},
        FilterRow{"html_in_text", Format::Markdown, "a <b>b</b><br> <script>c</script>d", "<p>a <b>b</b><br> d</p>\n"},
        FilterRow{"html_block", Format::Markdown, "<ul>\n<li>*a*</li>\n</ul>\n\n*b*",
                  "<ul>\n<li>*a*</li>\n</ul>\n<p><i>b</i></p>\n"},
        FilterRow{"table", Format::Markdown, "| a | *b* |\n|---|:-:|\n| `c` | d \\| e |\n| f |\n",
                  "<table><tr><th>a</th><th><i>b</i></th></tr><tr><td><code>c</code></td><td>d | e</td></tr>"
                  "<tr><td>f</td><td></td></tr></table>\n"},
        FilterRow{"table_in_quote", Format::Markdown, "> a|b\n> ---|---\n> ~~c~~|d",
                  "<blockquote><table><tr><th>a</th><th>b</th></tr><tr><td><s>c</s></td><td>d</td></tr></table>\n"
                  "</blockquote>\n"},
        FilterRow{"quote_and_code_in_list", Format::Markdown, "1. a\n\n   > b\n\n       c\n2. ```\n   d\n   ```",
                  "<ol><li><p>a</p>\n<blockquote><p>b</p>\n</blockquote>\n<pre>c\n</pre>\n</li>\n<li><pre>d\n</pre>\n"
                  "</li>\n</ol>\n"},
        FilterRow{"list_in_quote_that_goes_on_lazily", Format::Markdown, "> - a\nb\n\nc",
                  "<blockquote><ul><li>a\nb</li>\n</ul>\n</blockquote>\n<p>c</p>\n"},
        FilterRow{"emphases_by_length", Format::Markdown, "*a**b**c* **a*b*c** ***a** b*",
                  "<p><i>a<b>b</b>c</i> <b>a<i>b</i>c</b> <i><b>a</b> b</i></p>\n"},
        FilterRow{"image_in_link", Format::Markdown, "[![a](b.png) c](https://d.example/)",
                  "<p><a href=\"https://d.example/\">a c</a></p>\n"},
        FilterRow{"picture_with_words", Format::Markdown, "![a *b* [c](https://d.example/)](e.png)", "<p>a b c</p>\n"},
        FilterRow{"link_with_entity_and_title", Format::Markdown, "[a](https://b.example/?c=1&amp;d=2 'e \"f\"')",
                  "<p><a href=\"https://b.example/?c=1&amp;d=2\">a</a></p>\n"},
        FilterRow{"address_that_ends_the_attribute", Format::Markdown, "[a](<https://b.example/\"onclick=\"c>)",
                  "<p><a href=\"https://b.example/%22onclick=%22c\">a</a></p>\n"},
        FilterRow{"html_comment_in_text", Format::Markdown, "a <!-- *b* --> c", "<p>a  c</p>\n"}),
    NameOf);

struct LinkRow
{
    char const* name;
    char const* address;
    char const* safe; ///< null if it must not be followed
};

void PrintTo(LinkRow const& row, std::ostream* out)
{
    *out << row.name;
}

class LinkTable : public ::testing::TestWithParam<LinkRow>
{
};

TEST_P(LinkTable, GivesTheNormalFormOrNothing)
{
    std::optional<std::string> const safe = SafeLink(GetParam().address);
    ASSERT_EQ(safe.has_value(), GetParam().safe != nullptr);
    if (safe)
    {
        EXPECT_EQ(*safe, GetParam().safe);
        EXPECT_EQ(SafeLink(*safe), safe) << "not idempotent";
    }
}

INSTANTIATE_TEST_SUITE_P(
    Links, LinkTable,
    ::testing::Values(
        LinkRow{"https", "https://a.example/b?c=d#e", "https://a.example/b?c=d#e"},
        LinkRow{"scheme_in_upper_case", "HTTPS://a.example", "https://a.example"},
        LinkRow{"http_with_port", "http://127.0.0.1:8080/x", "http://127.0.0.1:8080/x"},
        LinkRow{"ipv6", "https://[::1]:8443/", "https://[::1]:8443/"},
        LinkRow{"blanks_around", " \n https://a.example/ ", "https://a.example/"},
        LinkRow{"path_is_encoded", "https://a.example/\xC3\xA4 {b}|\"<>%zz%20",
                "https://a.example/%C3%A4%20%7Bb%7D%7C%22%3C%3E%25zz%20"},
        LinkRow{"mail", "mailto:a.b+c@d.example", "mailto:a.b+c@d.example"},
        LinkRow{"mail_loses_its_parameters", "MAILTO:a@b.example?attach=/etc/passwd&bcc=c", "mailto:a@b.example"},
        LinkRow{"empty", "", nullptr}, LinkRow{"scheme_alone", "https://", nullptr},
        LinkRow{"host_of_dots", "https://.../", nullptr}, LinkRow{"user_name", "https://a@b.example/", nullptr},
        LinkRow{"port_too_long", "https://a.example:123456/", nullptr},
        LinkRow{"mail_without_host_sign", "mailto:nobody", nullptr}, LinkRow{"mail_empty", "mailto:", nullptr},
        LinkRow{"newline", "https://a.example/\nb", nullptr}, LinkRow{"backslash", "https://a.example\\b", nullptr},
        LinkRow{"bracket_empty", "https://[]/", nullptr}, LinkRow{"bracket_then_name", "https://[::1]a/", nullptr}),
    [](::testing::TestParamInfo<LinkRow> const& info) { return std::string(info.param.name); });

TEST(SafeLink, RefusesWhatIsTooLongBeforeOrAfterEncoding)
{
    std::string const start = "https://a.example/";
    EXPECT_TRUE(SafeLink(start + std::string(2048 - start.size(), 'x')));
    EXPECT_FALSE(SafeLink(start + std::string(2049 - start.size(), 'x')));
    EXPECT_FALSE(SafeLink(start + std::string(1000, '{')));
}

TEST(ReleaseNotesFormat, IsReadFromItsNameAndHtmlOtherwise)
{
    EXPECT_EQ(ReleaseNotesFormatFromText("plain-text"), Format::PlainText);
    EXPECT_EQ(ReleaseNotesFormatFromText(" Markdown "), Format::Markdown);
    EXPECT_EQ(ReleaseNotesFormatFromText("html"), Format::Html);
    EXPECT_EQ(ReleaseNotesFormatFromText(""), Format::Html);
    EXPECT_EQ(ReleaseNotesFormatFromText("rtf"), Format::Html);
}

struct LimitRow
{
    char const* name;
    std::string within;
    std::string beyond;
    Refusal refusal;
};

TEST(ReleaseNotesLimits, HoldToTheElement)
{
    ReleaseNotesLimits limits;
    limits.maxBytes = 2000;
    limits.maxElements = 40;
    limits.maxCells = 12;
    limits.maxListItems = 10;
    limits.maxPreformatted = 3;
    limits.maxBlockBytes = 500;
    limits.maxTableBytes = 200;
    std::string const table = "<table>";
    std::string const cell = "<tr><td>";
    std::vector<LimitRow> const rows = {
        {"bytes", Repeated("<hr>" + std::string(196, ' '), 10), Repeated("<hr>" + std::string(196, ' '), 10) + ' ',
         Refusal::TooLong},
        {"bytes of the markup", Repeated("< ", 200) + "<hr>" + Repeated("< ", 199),
         Repeated("< ", 200) + "<hr>" + Repeated("< ", 200), Refusal::TooLong},
        {"depth", Repeated("<b>", 32), Repeated("<b>", 33), Refusal::TooDeep},
        {"tables", Repeated(table + cell, 4) + "x", Repeated(table + cell, 5) + "x", Refusal::TablesTooDeep},
        {"elements", Repeated("<br>", 40), Repeated("<br>", 41), Refusal::TooManyElements},
        {"elements that are implied", "<table>x" + Repeated("<br>", 37), "<table>x" + Repeated("<br>", 38),
         Refusal::TooManyElements},
        {"cells", table + Repeated("<tr><td>a<td>b", 6), table + Repeated("<tr><td>a<td>b", 6) + "<tr><td>c",
         Refusal::TooManyCells},
        {"cells that fill up a row", table + Repeated("<tr><td>a", 3) + "<tr><td>a<td>b<td>c",
         table + Repeated("<tr><td>a", 3) + "<tr><td>a<td>b<td>c<td>d", Refusal::TooManyCells},
        {"cells of an inner table count twice", table + Repeated("<tr><td>a", 2) + table + Repeated("<tr><td>a", 5),
         table + Repeated("<tr><td>a", 2) + table + Repeated("<tr><td>a", 6), Refusal::TooManyCells},
        {"list items", "<ul>" + Repeated("<li>a", 10), "<ul>" + Repeated("<li>a", 11), Refusal::TooManyListItems},
        {"preformatted", Repeated("<pre>a</pre>", 3), Repeated("<pre>a</pre>", 4), Refusal::TooMuchPreformatted},
        {"text of a block", "<p>" + std::string(300, ' ') + "<br>" + std::string(200, ' ') + "<p>x",
         "<p>" + std::string(300, ' ') + "<br>" + std::string(201, ' ') + "<p>x", Refusal::BlockTooLong},
        {"text in a table", table + cell + std::string(100, ' ') + "x" + cell + std::string(99, ' '),
         table + cell + std::string(100, ' ') + "x" + cell + std::string(100, ' '), Refusal::TooMuchTableText},
        {"text in an inner table counts twice", table + cell + table + cell + std::string(100, 'x'),
         table + cell + table + cell + std::string(101, 'x'), Refusal::TooMuchTableText},
    };
    for (LimitRow const& row : rows)
    {
        EXPECT_EQ(FilterReleaseNotes(row.within, Format::Html, limits).refusal, Refusal::None) << row.name;
        EXPECT_EQ(FilterReleaseNotes(row.beyond, Format::Html, limits).refusal, row.refusal) << row.name;
    }
}

TEST(ReleaseNotesLimits, LongWordsMayBeBrokenAtEveryCut)
{
    ReleaseNotesLimits limits;
    limits.maxWordBytes = 4;
    std::string const wordBreak = "\xE2\x80\x8B";
    EXPECT_EQ(FilterReleaseNotes("abcd efgh", Format::Html, limits).html, "abcd efgh");
    EXPECT_EQ(FilterReleaseNotes("ab<b>cd</b>ef", Format::Html, limits).html, "ab<b>cd</b>" + wordBreak + "ef");
    EXPECT_EQ(FilterReleaseNotes("abcd<br>efgh<p>ijkl", Format::Html, limits).html, "abcd<br>efgh<p>ijkl</p>");
    EXPECT_EQ(FilterReleaseNotes("aäöb", Format::Html, limits).html, "aä" + wordBreak + "öb") << "no character is cut";
    EXPECT_EQ(FilterReleaseNotes("a" + wordBreak + wordBreak + "b", Format::Html, limits).html, "ab");
}

TEST(ReleaseNotesLimits, CodeBeyondItsLimitLosesItsFontOnly)
{
    ReleaseNotesLimits limits;
    limits.maxCodes = 1;
    FilteredReleaseNotes const filtered =
        FilterReleaseNotes("<code>a</code> <code>b</code> <tt>c</tt>", Format::Html, limits);
    EXPECT_EQ(filtered.html, "<code>a</code> b c");
    EXPECT_EQ(filtered.refusal, Refusal::None);
}

TEST(ReleaseNotesLimits, AccentsAreNotHeapedUp)
{
    EXPECT_EQ(FilterReleaseNotes("x" + Repeated("\xCC\x81", 9) + "y\xCC\x81", Format::Html).html,
              "x" + Repeated("\xCC\x81", 4) + "y\xCC\x81");
}

TEST(ReleaseNotesLimits, RefusedMarkupIsShownAsItsText)
{
    FilteredReleaseNotes const html =
        FilterReleaseNotes("<h1>New</h1>" + Repeated("<div>", 40) +
                               "<script>no</script>a <b>b</b><br>c <img alt='d' src=x> https://e.example",
                           Format::Html);
    EXPECT_EQ(html.refusal, Refusal::TooDeep);
    EXPECT_EQ(html.html, "<p>New<br>a b<br>c d https://e.example</p>");
    FilteredReleaseNotes const markdown =
        FilterReleaseNotes("# New\n" + Repeated("- ", 20) + "a\n" + Repeated("<div>", 40), Format::Markdown);
    EXPECT_EQ(markdown.refusal, Refusal::TooDeep);
    EXPECT_EQ(markdown.html.substr(0, 16), "<p># New<br>- - ");
}

TEST(ReleaseNotesLimits, MarkdownThatGrowsAThousandfoldStopsGrowing)
{
    std::string const table =
        Repeated("a|", 1000) + "\n" + Repeated("---|", 1000) + "\n" + Repeated("a|\n", 10000); // 10 million cells
    std::string const html = MarkdownToHtml(table, 50000).html;
    EXPECT_GT(html.size(), 50000U);
    EXPECT_LT(html.size(), 51000U);
    EXPECT_EQ(FilterReleaseNotes(table, Format::Markdown).refusal, Refusal::TooManyCells);
}

TEST(ReleaseNotesLimits, LongTitlesAndAddressesWithManyUsesCostLittleTime)
{
    std::string const uses = "\n\n" + Repeated("[a] ![a] ", 10000);
    for (std::string const& text :
         {"[a]: /b '" + Repeated("&amp;c", 20000) + "'" + uses, "[a]: /b" + Repeated("&amp;c", 20000) + uses})
    {
        auto const start = std::chrono::steady_clock::now();
        EXPECT_EQ(FilterReleaseNotes(text, Format::Markdown).refusal, Refusal::TooLong);
        EXPECT_LT(std::chrono::steady_clock::now() - start,
                  std::chrono::seconds(5)); // some would take a minute without limits
    }
}

TEST(ReleaseNotesLimits, TextThatIsTooLongIsCutWithinItsLimits)
{
    ReleaseNotesLimits limits;
    limits.maxBytes = 1000;
    limits.maxPlainBytes = 100;
    limits.maxPlainLines = 5;
    EXPECT_EQ(FilterReleaseNotes(Repeated("line\n", 300), Format::PlainText, limits).html,
              "<p>line<br>line<br>line<br>line<br>line<br>…</p>");
    EXPECT_EQ(FilterReleaseNotes(Repeated("ä", 1000), Format::PlainText, limits).html,
              "<p>" + Repeated("ä", 50) + "…</p>");
}

} // namespace
} // namespace Pelnar::Engine
