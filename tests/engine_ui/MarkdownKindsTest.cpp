// MarkdownKindsTest.cpp: every kind of block and inline of Markdown, alone and inside the others.

#include "Engine/core/notes/ReleaseNotesFilter.h"
#include "tests/engine_ui/SafeMarkup.h"

#include <gtest/gtest.h>

#include <ostream>

namespace Pelnar::Engine
{
namespace
{

struct FilterRow
{
    char const* name;
    char const* notes;
    char const* html;
};

void PrintTo(FilterRow const& row, std::ostream* out)
{
    *out << row.name;
}

class MarkdownKind : public ::testing::TestWithParam<FilterRow>
{
};

TEST_P(MarkdownKind, GivesExactlyThisMarkup)
{
    FilteredReleaseNotes const filtered = FilterReleaseNotes(GetParam().notes, ReleaseNotesFormat::Markdown);
    EXPECT_EQ(filtered.html, GetParam().html);
    EXPECT_EQ(filtered.refusal, ReleaseNotesRefusal::None);
    EXPECT_EQ(Testing::BrokenPromiseOf(filtered.html), "");
    EXPECT_EQ(FilterReleaseNotes(filtered.html, ReleaseNotesFormat::Html).html, filtered.html) << "not idempotent";
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MarkdownKind,
    ::testing::Values(
        FilterRow{"setext_over_lines", "Two\nlines\n===\n\nOne *i*\n---",
                  "<h1>Two\nlines</h1>\n<h2>One <i>i</i></h2>\n"},
        FilterRow{"atx_with_trailing_signs", "# a # b #\n#\n##   c   ##", "<h1>a # b</h1>\n<h1></h1>\n<h2>c</h2>\n"},
        FilterRow{"atx_that_is_escaped", "\\# a\n\n#b", "<p># a</p>\n<p>#b</p>\n"},
        FilterRow{"setext_in_quote_ends_with_it", "> a\n---\nb\n> ===",
                  "<blockquote><p>a</p>\n</blockquote>\n<hr>\n<p>b</p>\n<blockquote><p>===</p>\n</blockquote>\n"},
        FilterRow{"heading_in_list", "- # a\n- b\n  ---\n  c",
                  "<ul><li><h1>a</h1>\n</li>\n<li><h2>b</h2>\nc</li>\n</ul>\n"},
        FilterRow{"rules", "***\n---\n___\n_ _ _\n+++", "<hr>\n<hr>\n<hr>\n<hr>\n<p>+++</p>\n"},
        FilterRow{"rule_between_items", "- a\n- * * *\n\n***\n- b",
                  "<ul><li>a</li>\n<li><hr>\n</li>\n</ul>\n<hr>\n<ul><li>b</li>\n</ul>\n"},
        FilterRow{"lists_of_other_markers", "- a\n* b\n+ c\n1. d\n2) e",
                  "<ul><li>a</li>\n</ul>\n<ul><li>b</li>\n</ul>\n<ul><li>c</li>\n</ul>\n<ol><li>d</li>\n</"
                  "ol>\n<ol><li>e</li>\n</ol>\n"},
        FilterRow{"list_in_quote_in_list", "- a\n  > - b\n  >   > 1. c\n  >   > 2. d\n  > - e\n- f",
                  "<ul><li>a<blockquote><ul><li>b<blockquote><ol><li>c</li>\n<li>d</li>\n</ol>\n</blockquote>\n</"
                  "li>\n<li>e</li>\n</ul>\n</blockquote>\n</li>\n<li>f</li>\n</ul>\n"},
        FilterRow{"quote_around_list_around_quote", "> 1. a\n>    > b\n>\n>    c",
                  "<blockquote><ol><li><p>a</p>\n<blockquote><p>b</p>\n</blockquote>\n<p>c</p>\n</li>\n</ol>\n</"
                  "blockquote>\n"},
        FilterRow{"tight_list_in_loose_list", "- a\n\n  - b\n  - c\n\n- d",
                  "<ul><li><p>a</p>\n<ul><li>b</li>\n<li>c</li>\n</ul>\n</li>\n<li><p>d</p>\n</li>\n</ul>\n"},
        FilterRow{"loose_list_in_tight_list", "- a\n  - b\n\n    c\n- d",
                  "<ul><li>a<ul><li><p>b</p>\n<p>c</p>\n</li>\n</ul>\n</li>\n<li>d</li>\n</ul>\n"},
        FilterRow{"empty_items", "- a\n-\n- c", "<ul><li>a</li>\n<li></li>\n<li>c</li>\n</ul>\n"},
        FilterRow{"item_that_begins_below", "-\n  a\n-\n  ```\n  b\n  ```",
                  "<ul><li>a</li>\n<li><pre>b\n</pre>\n</li>\n</ul>\n"},
        FilterRow{
            "fence_in_nested_list", "1. a\n   - b\n\n     ~~~sh\n     c\n\n       d\n     ~~~\n   - e",
            "<ol><li>a<ul><li><p>b</p>\n<pre>c\n\n  d\n</pre>\n</li>\n<li><p>e</p>\n</li>\n</ul>\n</li>\n</ol>\n"},
        FilterRow{"fence_in_quote_ends_with_it", "> ```\n> a\nb",
                  "<blockquote><pre>a\n</pre>\n</blockquote>\n<p>b</p>\n"},
        FilterRow{"fence_with_longer_fence", "````\n```\na\n```\n````", "<pre>```\na\n```\n</pre>\n"},
        FilterRow{"fence_without_end", "~~~\na\n\nb", "<pre>a\n\nb\n</pre>\n"},
        FilterRow{"fence_with_markup", "```html\n<b>&amp;</b> *c*\n```",
                  "<pre>&lt;b&gt;&amp;amp;&lt;/b&gt; *c*\n</pre>\n"},
        FilterRow{"indented_code_in_list", "- a\n\n      b\n\n  c",
                  "<ul><li><p>a</p>\n<pre>b\n</pre>\n<p>c</p>\n</li>\n</ul>\n"},
        FilterRow{"indented_code_is_no_lazy_line", "a\n    b\n\n    c\nd", "<p>a\nb</p>\n<pre>c\n</pre>\n<p>d</p>\n"},
        FilterRow{"numbers_that_do_not_interrupt", "The year\n1986. A year.\n\n1986. A list.",
                  "<p>The year\n1986. A year.</p>\n<ol><li>A list.</li>\n</ol>\n"},
        FilterRow{"ten_digits_are_no_number", "1234567890. a", "<p>1234567890. a</p>\n"},
        FilterRow{"lists_parted_by_a_comment", "- a\n\n<!-- -->\n\n- b",
                  "<ul><li>a</li>\n</ul>\n\n<ul><li>b</li>\n</ul>\n"},
        FilterRow{"quotes_that_follow", "> a\n\n> b\n>\n> c",
                  "<blockquote><p>a</p>\n</blockquote>\n<blockquote><p>b</p>\n<p>c</p>\n</blockquote>\n"},
        FilterRow{"quote_without_words", ">\n> \na", "<blockquote></blockquote>\n<p>a</p>\n"},
        FilterRow{"tabs_as_indentation", "-\ta\n\n\tb\n\n>\t\tc",
                  "<ul><li><p>a</p>\n<p>b</p>\n</li>\n</ul>\n<blockquote><pre>  c\n</pre>\n</blockquote>\n"},
        FilterRow{"reference_kinds", "[a][r] [r][] [r] [R] [no]\n\n[r]: https://a.example/ \"t\"",
                  "<p><a href=\"https://a.example/\">a</a> <a href=\"https://a.example/\">r</a> <a "
                  "href=\"https://a.example/\">r</a> <a href=\"https://a.example/\">R</a> [no]</p>\n"},
        FilterRow{"reference_over_lines", "[a b]:\n<https://a.example/x y>\n'title\nmore'\n\n[A\nB]",
                  "<p><a href=\"https://a.example/x%20y\">A\nB</a></p>\n"},
        FilterRow{"reference_in_quote", "[a]\n\n> [a]: https://a.example/",
                  "<p><a href=\"https://a.example/\">a</a></p>\n<blockquote></blockquote>\n"},
        FilterRow{"first_reference_counts", "[a]\n\n[a]: https://one.example/\n[a]: https://two.example/",
                  "<p><a href=\"https://one.example/\">a</a></p>\n"},
        FilterRow{"reference_does_not_interrupt", "a\n[b]: https://a.example/\n\n[b]",
                  "<p>a\n[b]: <a href=\"https://a.example/\">https://a.example/</a></p>\n<p>[b]</p>\n"},
        FilterRow{"unused_references_leave_nothing", "[a]: https://a.example/\n\n# b", "<h1>b</h1>\n"},
        FilterRow{"reference_of_a_case_beyond_ascii", "[ÄÖ]\n\n[äö]: https://a.example/",
                  "<p><a href=\"https://a.example/\">ÄÖ</a></p>\n"},
        FilterRow{"link_texts", "[a [b] c](https://a.example/) [`]`](https://b.example/) [*a](https://c.example/)*",
                  "<p><a href=\"https://a.example/\">a [b] c</a> <a href=\"https://b.example/\"><code>]</code></a> <a "
                  "href=\"https://c.example/\">*a</a>*</p>\n"},
        FilterRow{"links_do_not_nest", "[a [b](https://b.example/) c](https://a.example/)",
                  "<p>[a <a href=\"https://b.example/\">b</a> c](<a "
                  "href=\"https://a.example/\">https://a.example/</a>)</p>\n"},
        FilterRow{"link_with_escapes", "[a](https://a.example/\\(b\\)\\*c \"d\")",
                  "<p><a href=\"https://a.example/(b)*c\">a</a></p>\n"},
        FilterRow{"link_with_blank_address", "[a]() [b](<>) [c](#d) [e](f.html)", "<p>a b c e</p>\n"},
        FilterRow{"link_that_is_none", "[a] (https://b.example/x) [a](b c)",
                  "<p>[a] (<a href=\"https://b.example/x\">https://b.example/x</a>) [a](b c)</p>\n"},
        FilterRow{
            "autolinks",
            "<HTTPS://A.example/b?c=1&d=2> <mailto:a@b.example> <a.b+c@d.example> <https://a.example/b c> <made-up:x>",
            "<p><a href=\"https://A.example/b?c=1&amp;d=2\">HTTPS://A.example/b?c=1&amp;d=2</a> <a "
            "href=\"mailto:a@b.example\">mailto:a@b.example</a> <a href=\"mailto:a.b+c@d.example\">a.b+c@d.example</a> "
            "&lt;https://a.example/b c&gt; made-up:x</p>\n"},
        FilterRow{"images", "![a](b.png) ![*c* `d`][e] ![f\\\ng](h) ![i<br>j &amp; k](l)\n\n[e]: m.png",
                  "<p>a c d f<br>\ng i<br>j &amp; k</p>\n"},
        FilterRow{"emphasis_inside_words", "a*b*c a_b_c __d__e f__g__", "<p>a<i>b</i>c a_b_c <b>d__e f__g</b></p>\n"},
        FilterRow{"emphasis_by_flanking", "* a * *a * **a** ** a** *(a)* _(a)_",
                  "<ul><li>a * <i>a * <b>a</b> ** a</i>* <i>(a)</i> <i>(a)</i></li>\n</ul>\n"},
        FilterRow{"emphasis_of_rules_of_three", "*a**b***c** ***a** b* ***a* b** **a*",
                  "<p><i>a<b>b</b></i>c** <i><b>a</b> b</i> <b><i>a</i> b</b> *<i>a</i></p>\n"},
        FilterRow{
            "emphasis_around_code_and_links", "**`*a*`** *[b*](https://c.example/)* *d `*`*",
            "<p><b><code>*a*</code></b> <i><a href=\"https://c.example/\">b*</a></i> <i>d <code>*</code></i></p>\n"},
        FilterRow{"emphasis_over_lines_and_not_over_blocks", "*a\nb*\n\n*c\n\nd*",
                  "<p><i>a\nb</i></p>\n<p>*c</p>\n<p>d*</p>\n"},
        FilterRow{"emphases_that_overlap", "*a **b* c**", "<p><i>a <i><i>b</i> c</i></i></p>\n"},
        FilterRow{"strike_through_nested", "~~a **b** `~~`~~ ~c~ ~~~\nd",
                  "<p><s>a <b>b</b> <code>~~</code></s> <s>c</s> ~~~\nd</p>\n"},
        FilterRow{
            "code_spans", "`` ` `` ` a ` `a\nb` `\\*` `<br>` ``c`",
            "<p><code>`</code> <code>a</code> <code>a b</code> <code>\\*</code> <code>&lt;br&gt;</code> ``c`</p>\n"},
        FilterRow{"hard_breaks", "a  \nb\\\nc \nd  \n\ne\\\n\n# f  \n",
                  "<p>a<br>\nb<br>\nc\nd</p>\n<p>e\\</p>\n<h1>f</h1>\n"},
        FilterRow{"escapes_of_all_signs",
                  "\\!\\\"\\#\\$\\%\\&\\'\\(\\)\\*\\+\\,\\-\\.\\/\\:\\;\\<\\=\\>\\?\\@\\[\\\\\\]\\^\\_\\`\\{\\|\\}\\~",
                  "<p>!&quot;#$%&amp;'()*+,-./:;&lt;=&gt;?@[\\]^_`{|}~</p>\n"},
        FilterRow{
            "entities",
            "&auml;&Ouml;&szlig;&eacute;&ntilde;&alpha;&Omega;&le;&hearts;&#228;&#xE4;&ThickSpace;&nope; &amp;amp;",
            "<p>äÖßéñαΩ≤♥ää&amp;ThickSpace;&amp;nope; &amp;amp;</p>\n"},
        FilterRow{"entities_are_no_markup", "&#42;a&#42; &lt;b&gt; &#45; c\n\n&#35; d",
                  "<p>*a* &lt;b&gt; - c</p>\n<p># d</p>\n"},
        FilterRow{"entity_in_address", "[a](https://b.example/&auml;)",
                  "<p><a href=\"https://b.example/%C3%A4\">a</a></p>\n"},
        FilterRow{"html_block_of_details", "<details>\n<summary>More *x*</summary>\n\n- *a*\n\n</details>\n\nb",
                  "<div>\n<div>More *x*</div>\n<ul><li><i>a</i></li>\n</ul>\n</div>\n<p>b</p>\n"},
        FilterRow{"html_block_that_goes_to_the_blank_line", "<div>\n*a*\n\n*b*\n</div>\n\nc",
                  "<div>\n*a*\n<p><i>b</i></p>\n</div>\n<p>c</p>\n"},
        FilterRow{"html_block_of_script", "<script>\nlet a = '<b>';\n\n*b*\n</script>\n\n*c*", "\n<p><i>c</i></p>\n"},
        FilterRow{"html_that_interrupts", "a\n<div>b</div>\nc\n\nd\n<b>e</b>",
                  "<p>a</p>\n<div>b</div>\nc\n<p>d\n<b>e</b></p>\n"},
        FilterRow{"html_in_list_and_quote", "- <b>a</b>\n  <hr>\n- b\n\n> <p>c</p>",
                  "<ul><li><b>a</b><hr>\n</li>\n<li>b</li>\n</ul>\n<blockquote><p>c</p>\n</blockquote>\n"},
        FilterRow{
            "html_inline_kinds",
            "a<br/>b <u class=\"x\">c</u> <?php d ?><!-- e --><![CDATA[f]]> g <kbd>h</kbd> <x-y>i</x-y> 1 < 2 > 0",
            "<p>a<br>b <u>c</u>  g <code>h</code> i 1 &lt; 2 &gt; 0</p>\n"},
        FilterRow{"html_comment_without_end_in_item", "- a <!-- b\n- c\n\nd",
                  "<ul><li>a &lt;!-- b</li>\n<li>c</li>\n</ul>\n<p>d</p>\n"},
        FilterRow{"html_comment_block_without_end_in_item", "- <!-- a\n- b\n\nc",
                  "<ul><li></li>\n<li>b</li>\n</ul>\n<p>c</p>\n"},
        FilterRow{"html_tag_without_end_in_block", "> <div title=\"a\n\nb",
                  "<blockquote><div></div></blockquote>\n<p>b</p>\n"},
        FilterRow{"table_of_code_and_pipes",
                  "a | `b`\n:-- | --:\n`c \\| d` | e \\| f\n**g** | ~~h~~ <br> [i](https://j.example/)",
                  "<table><tr><th>a</th><th><code>b</code></th></tr><tr><td><code>c | d</code></td><td>e | "
                  "f</td></tr><tr><td><b>g</b></td><td><s>h</s> <br> <a "
                  "href=\"https://j.example/\">i</a></td></tr></table>\n"},
        FilterRow{"table_that_ends_at_a_block", "|a|\n|-|\n|b|\n> c",
                  "<table><tr><th>a</th></tr><tr><td>b</td></tr></table>\n<blockquote><p>c</p>\n</blockquote>\n"},
        FilterRow{"table_in_list", "- a\n\n  |b|c|\n  |-|-|\n  |d|e|\n- f",
                  "<ul><li><p>a</p>\n<table><tr><th>b</th><th>c</th></tr><tr><td>d</td><td>e</td></tr></table>\n</"
                  "li>\n<li><p>f</p>\n</li>\n</ul>\n"},
        FilterRow{
            "table_with_cells_too_many_and_too_few", "|a|b|\n|-|-|\n|c|\n|d|e|f|",
            "<table><tr><th>a</th><th>b</th></tr><tr><td>c</td><td></td></tr><tr><td>d</td><td>e</td></tr></table>\n"},
        FilterRow{"table_that_is_none", "|a|b|\n|c|\n\n`|a|\n|-|`", "<p>|a|b|\n|c|</p>\n<p><code>|a| |-|</code></p>\n"},
        FilterRow{"paragraphs_and_blanks", "  a\n   b\n\n\n\nc   d\n", "<p>a\nb</p>\n<p>c   d</p>\n"}),
    [](::testing::TestParamInfo<FilterRow> const& info) { return std::string(info.param.name); });

} // namespace
} // namespace Pelnar::Engine
