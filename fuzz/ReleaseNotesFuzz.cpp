// ReleaseNotesFuzz.cpp: the first byte selects the format, the rest are release notes. The filter's output is safe, and
// filtering it again changes nothing.

#include "Engine/core/notes/ReleaseNotesFilter.h"
#include "tests/engine_ui/SafeMarkup.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace
{

using Pelnar::Engine::FilteredReleaseNotes;
using Pelnar::Engine::FilterReleaseNotes;
using Pelnar::Engine::ReleaseNotesFormat;

void Require(bool holds, char const* promise, std::string_view html)
{
    if (!holds)
    {
        std::fprintf(stderr, "broken: %s\n%.*s\n", promise, static_cast<int>(html.size()), html.data());
        std::abort();
    }
}

ReleaseNotesFormat FormatOf(std::uint8_t byte)
{
    switch (byte)
    {
    case 'p':
        return ReleaseNotesFormat::PlainText;
    case 'm':
        return ReleaseNotesFormat::Markdown;
    }
    return ReleaseNotesFormat::Html;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    if (size == 0)
    {
        return 0;
    }
    std::string_view const notes(reinterpret_cast<char const*>(data) + 1, size - 1);
    FilteredReleaseNotes const filtered = FilterReleaseNotes(notes, FormatOf(data[0]));
    std::string const broken = Pelnar::Testing::BrokenPromiseOf(filtered.html);
    Require(broken.empty(), broken.c_str(), filtered.html);
    FilteredReleaseNotes const again = FilterReleaseNotes(filtered.html, ReleaseNotesFormat::Html);
    Require(again.html == filtered.html, "filtering twice is filtering once", filtered.html);
    Require(again.refusal == Pelnar::Engine::ReleaseNotesRefusal::None, "what came out is never refused",
            filtered.html);
    return 0;
}
