// The filter's promises for any markup, tested with hostile notes and with generated ones.
#include "tests/engine_ui/HostileNotes.h"
#include "Engine/core/notes/ReleaseNotesFilter.h"
#include "tests/engine_ui/SafeMarkup.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>
#include <vector>

namespace Pelnar::Engine
{
namespace
{

using Testing::AllHostileNotes;
using Testing::BrokenPromiseOf;
using Testing::HostileNotes;
using Format = ReleaseNotesFormat;
using Refusal = ReleaseNotesRefusal;

TEST(HostileNotes, AreMoreThanAHundredAndNamedApart)
{
    std::set<std::string> names;
    for (HostileNotes const& notes : AllHostileNotes("/canary", "127.0.0.1:9"))
    {
        EXPECT_TRUE(names.insert(notes.name).second) << notes.name;
    }
    EXPECT_GE(names.size(), 200U);
}

TEST(HostileNotes, KeepEveryPromiseAfterFiltering)
{
    for (HostileNotes const& notes : AllHostileNotes("/canary", "127.0.0.1:9"))
    {
        FilteredReleaseNotes const filtered = FilterReleaseNotes(notes.text, notes.format);
        EXPECT_EQ(BrokenPromiseOf(filtered.html), "") << notes.name;
        EXPECT_EQ(FilterReleaseNotes(filtered.html, Format::Html).html, filtered.html) << notes.name;
        EXPECT_EQ(FilterReleaseNotes(filtered.html, Format::Html).refusal, Refusal::None) << notes.name;
    }
}

TEST(HostileNotes, LinksThatMustNotBeFollowedAreText)
{
    for (HostileNotes const& notes : AllHostileNotes("/canary", "127.0.0.1:9"))
    {
        if (notes.name.rfind("link.", 0) == 0)
        {
            EXPECT_EQ(FilterReleaseNotes(notes.text, notes.format).html, "click") << notes.name;
        }
    }
}

/// Documents made of pieces that matter to a filter. Every run makes the same ones.
class GeneratedNotes
{
public:
    std::string Next()
    {
        static std::vector<std::string> const PIECES = {"<p>",
                                                        "</p>",
                                                        "<b>",
                                                        "</b>",
                                                        "<table>",
                                                        "</table>",
                                                        "<tr>",
                                                        "<td>",
                                                        "</td>",
                                                        "<th>",
                                                        "<ul>",
                                                        "</ul>",
                                                        "<li>",
                                                        "</li>",
                                                        "<dl>",
                                                        "<dt>",
                                                        "<dd>",
                                                        "<h1>",
                                                        "</h1>",
                                                        "<h2>",
                                                        "<pre>",
                                                        "</pre>",
                                                        "<a href='https://a.example/'>",
                                                        "<a href=javascript:x>",
                                                        "</a>",
                                                        "<br>",
                                                        "<hr>",
                                                        "<img alt=x>",
                                                        "<div dir=rtl>",
                                                        "</div>",
                                                        "<script>",
                                                        "</script>",
                                                        "<!--",
                                                        "-->",
                                                        "<",
                                                        ">",
                                                        "&",
                                                        "&lt;",
                                                        "&#10;",
                                                        "&#x202e;",
                                                        "\"",
                                                        "'",
                                                        " ",
                                                        "\n",
                                                        "\n\n",
                                                        "x",
                                                        "text",
                                                        "*",
                                                        "**",
                                                        "_",
                                                        "`",
                                                        "```",
                                                        "[",
                                                        "]",
                                                        "](",
                                                        ")",
                                                        "https://b.example/",
                                                        "- ",
                                                        "1. ",
                                                        "> ",
                                                        "# ",
                                                        "\\",
                                                        "~~",
                                                        "!",
                                                        "    ",
                                                        "\t",
                                                        "=",
                                                        "---",
                                                        "\xC3\xA4",
                                                        "\xFF",
                                                        "\xE2\x80\xA8",
                                                        "<title>",
                                                        "<style",
                                                        "/>",
                                                        "<center>"};
        std::uniform_int_distribution<std::size_t> piece(0, PIECES.size() - 1);
        std::string notes;
        for (int left = std::uniform_int_distribution<int>(1, 60)(m_random); left > 0; --left)
        {
            notes += PIECES[piece(m_random)];
        }
        return notes;
    }

private:
    std::mt19937 m_random{20240229};
};

TEST(GeneratedNotes, KeepEveryPromiseInEveryFormat)
{
    GeneratedNotes generated;
    ReleaseNotesLimits limits;
    for (int i = 0; i < 6000; ++i)
    {
        std::string const notes = generated.Next();
        // Small limits from time to time, so that there are refusals too.
        limits.maxElements = i % 4 == 0 ? 8 : ReleaseNotesLimits().maxElements;
        limits.maxPlainLines = i % 4 == 0 ? 5 : ReleaseNotesLimits().maxPlainLines;
        for (Format const format : {Format::PlainText, Format::Markdown, Format::Html})
        {
            std::string const html = FilterReleaseNotes(notes, format, limits).html;
            ASSERT_EQ(BrokenPromiseOf(html), "") << notes;
            FilteredReleaseNotes const again = FilterReleaseNotes(html, Format::Html, limits);
            ASSERT_EQ(again.html, html) << notes;
            ASSERT_EQ(again.refusal, Refusal::None) << notes;
        }
    }
}

} // namespace
} // namespace Pelnar::Engine
