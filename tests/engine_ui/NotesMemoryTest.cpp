// NotesMemoryTest.cpp: release notes are read while memory runs out, at each place once.
#include "Engine/core/notes/ReleaseNotesMarkdown_p.h"
#include "tests/support/ScarceMemory.h"

#include <gtest/gtest.h>

#include <new>
#include <string>

#include <malloc.h>

namespace Pelnar::Engine
{
namespace
{

TEST(NotesMemory, NothingIsLostWhereverMemoryRunsOut)
{
    std::string notes;
    for (int i = 0; i < 40; ++i)
    {
        notes += "# New\n\n- [a page](https://example.com/a 'title')\n- `code` and **bold** &amp; more\n\n"
                 "|a|b|\n|-|-|\n|1|2|\n\n<b>html</b>\n\n[name]: https://example.com/b\n";
    }
    std::string const whole = MarkdownToHtml(notes, 1024 * 1024).html;
    ASSERT_FALSE(whole.empty());
    constexpr int ROUNDS = 20;
    std::size_t const before = mallinfo2().uordblks;
    int places = 0;
    for (bool hasRefused = true; hasRefused; ++places)
    {
        hasRefused = false;
        for (int round = 0; round < ROUNDS; ++round)
        {
            Testing::ScarceMemory const memory(Testing::ScarceIn::EveryThread, places, 1);
            try
            {
                NotesHtml const html = MarkdownToHtml(notes, 1024 * 1024);
                EXPECT_TRUE(html.html == whole && html.isWhole);
            }
            catch (std::bad_alloc const&)
            {
                hasRefused = memory.HasRefused();
            }
        }
    }
    EXPECT_GT(places, 20);
    // The parser's own memory is several kilobytes each time. The system keeps some blocks that were given back.
    EXPECT_LT(mallinfo2().uordblks, before + 256 * 1024);
}

} // namespace
} // namespace Pelnar::Engine
