#include "Engine/core/notes/ReleaseNotesFilter.h"

#include "Engine/core/notes/ReleaseNotesBuilder_p.h"
#include "Engine/core/notes/ReleaseNotesElements_p.h"
#include "Engine/core/notes/ReleaseNotesMarkdown_p.h"
#include "Engine/core/notes/ReleaseNotesText_p.h"
#include "Engine/core/notes/ReleaseNotesTokenizer_p.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

using Kind = NotesElementKind;

/// An escaped byte becomes at most six bytes. More markup than that exceeds the limits of elements.
constexpr std::size_t HTML_BYTES_PER_NOTES_BYTE = 8;

/// The visible text of the markup, one line for each block.
std::string TextOfHtml(std::string_view html)
{
    std::string text;
    NotesTokenizer tokenizer(html);
    while (std::optional<NotesToken> const token = tokenizer.Next())
    {
        NotesElement const* const element =
            token->kind == NotesToken::Kind::Text ? nullptr : FindNotesElement(token->text);
        if (token->kind == NotesToken::Kind::Text)
        {
            text += token->text;
        }
        else if (element != nullptr && element->kind == Kind::Image)
        {
            text += token->alt.value_or(std::string());
        }
        else if (element != nullptr && element->kind == Kind::Cell)
        {
            text += ' ';
        }
        else if (element != nullptr && (IsBlockKind(element->kind) || element->kind == Kind::LineBreak))
        {
            text += '\n';
        }
    }
    return text;
}

/// As much of \a text as the limits allow. Blank lines are removed, so that more text fits.
std::string ShortenedText(std::string_view text, ReleaseNotesLimits const& limits)
{
    constexpr std::string_view CUT_OFF = "…";
    std::string shortened;
    std::size_t lines = 0;
    while (!text.empty())
    {
        std::size_t const end = std::min(text.find('\n'), text.size());
        std::string_view const line = TrimmedAscii(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.empty())
        {
            continue;
        }
        std::size_t const space = limits.maxPlainBytes - shortened.size();
        if (line.size() + 1 > space || lines == limits.maxPlainLines)
        {
            shortened += lines == limits.maxPlainLines ? std::string_view() : PrefixOfWholeCharacters(line, space);
            shortened += CUT_OFF;
            break;
        }
        shortened.append(line).append("\n");
        ++lines;
    }
    return shortened;
}

FilteredReleaseNotes Rebuilt(std::string_view html, ReleaseNotesLimits const& limits)
{
    NotesBuilder builder(limits);
    NotesTokenizer tokenizer(html);
    while (!builder.IsRefused())
    {
        std::optional<NotesToken> const token = tokenizer.Next();
        if (!token)
        {
            break;
        }
        builder.Add(*token);
    }
    std::string safe = builder.Finish();
    return {std::move(safe), builder.Refusal()};
}

FilteredReleaseNotes AsPlainText(std::string_view cleanNotes, ReleaseNotesFormat format, ReleaseNotesRefusal refusal,
                                 ReleaseNotesLimits const& limits)
{
    std::string const text = format == ReleaseNotesFormat::Html ? TextOfHtml(cleanNotes) : std::string(cleanNotes);
    std::string const html = PlainTextToHtml(ShortenedText(text, limits), BareLinks::LeftAsText);
    return {Rebuilt(html, limits).html, refusal};
}

NotesHtml ToHtml(std::string_view cleanNotes, ReleaseNotesFormat format, ReleaseNotesLimits const& limits)
{
    switch (format)
    {
    case ReleaseNotesFormat::PlainText:
        return {PlainTextToHtml(cleanNotes, BareLinks::MadeClickable)};
    case ReleaseNotesFormat::Markdown:
        return MarkdownToHtml(cleanNotes, HTML_BYTES_PER_NOTES_BYTE * limits.maxBytes);
    case ReleaseNotesFormat::Html:
        break;
    }
    return {std::string(cleanNotes)};
}

} // namespace

ReleaseNotesFormat ReleaseNotesFormatFromText(std::string_view name)
{
    std::string const lower = ToLowerAscii(TrimmedAscii(name));
    if (lower == "plain-text")
    {
        return ReleaseNotesFormat::PlainText;
    }
    return lower == "markdown" ? ReleaseNotesFormat::Markdown : ReleaseNotesFormat::Html;
}

FilteredReleaseNotes FilterReleaseNotes(std::string_view notes, ReleaseNotesFormat format,
                                        ReleaseNotesLimits const& limits)
{
    std::string const clean = CleanText(PrefixOfWholeCharacters(notes, limits.maxBytes));
    if (notes.size() > limits.maxBytes)
    {
        return AsPlainText(clean, format, ReleaseNotesRefusal::TooLong, limits);
    }
    NotesHtml const unsafe = ToHtml(clean, format, limits);
    FilteredReleaseNotes rebuilt = Rebuilt(unsafe.html, limits);
    if (rebuilt.refusal == ReleaseNotesRefusal::None && !unsafe.isWhole)
    {
        rebuilt.refusal = ReleaseNotesRefusal::TooLong;
    }
    return rebuilt.refusal == ReleaseNotesRefusal::None ? rebuilt : AsPlainText(clean, format, rebuilt.refusal, limits);
}

} // namespace Pelnar::Engine
