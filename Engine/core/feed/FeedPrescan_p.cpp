// FeedPrescan_p.cpp: one pass over the tags of a feed.
#include "Engine/core/feed/FeedPrescan_p.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

namespace Pelnar::Engine
{

namespace
{

using namespace std::string_view_literals;

bool StartsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

constexpr int SHORTEST_ATTRIBUTE = 4; ///< bytes: a name, "=" and two quotes

/// The offset after \a end, searched from \a from; the size of \a text if it is missing.
size_t Behind(std::string_view text, size_t from, std::string_view end)
{
    // Searches for one byte and compares the others: faster to start than std::string_view::find.
    while (from < text.size())
    {
        void const* const found = std::memchr(text.data() + from, end.front(), text.size() - from);
        if (found == nullptr)
        {
            return text.size();
        }
        from = static_cast<size_t>(static_cast<char const*>(found) - text.data());
        if (StartsWith(text.substr(from), end))
        {
            return from + end.size();
        }
        ++from;
    }
    return text.size();
}

size_t NextOpening(std::string_view text, size_t from)
{
    void const* const found = std::memchr(text.data() + from, '<', text.size() - from);
    return found == nullptr ? text.size() : static_cast<size_t>(static_cast<char const*>(found) - text.data());
}

struct Tag
{
    size_t end = 0; ///< after the ">", or where the search ended
    int attributes = 0;
    bool isTooLong = false;
};

constexpr std::array<bool, 256> MakeTagMarks()
{
    std::array<bool, 256> marks{};
    for (char const mark : {'"', '\'', '=', '>'})
    {
        marks[static_cast<unsigned char>(mark)] = true;
    }
    return marks;
}

/// The bytes that have a meaning in a tag outside quotes.
constexpr std::array<bool, 256> TAG_MARKS = MakeTagMarks();

/// The offset of the next mark, or \a last.
size_t NextMark(std::string_view text, size_t at, size_t last)
{
    while (at < last && !TAG_MARKS[static_cast<unsigned char>(text[at])])
    {
        ++at;
    }
    return at;
}

/// A well-formed tag has one "=" outside quotes for each attribute.
Tag ScanTag(std::string_view text, size_t start, FeedLimits const& limits)
{
    Tag tag;
    size_t const longest = static_cast<size_t>(limits.maxTagBytes);
    size_t const last = text.size() - start > longest ? start + longest : text.size();
    // Quotes mean nothing in an end tag.
    bool const isEndTag = start + 1 < last && text[start + 1] == '/';
    if (isEndTag)
    {
        void const* const end = std::memchr(text.data() + start, '>', last - start);
        tag.end = end == nullptr ? last : static_cast<size_t>(static_cast<char const*>(end) - text.data()) + 1;
        tag.isTooLong = end == nullptr && last < text.size();
        return tag;
    }
    for (size_t at = NextMark(text, start + 1, last); at < last; at = NextMark(text, at + 1, last))
    {
        char const mark = text[at];
        if (mark == '=')
        {
            ++tag.attributes;
        }
        else if (mark == '>')
        {
            tag.end = at + 1;
            return tag;
        }
        else
        {
            void const* const closing = std::memchr(text.data() + at + 1, mark, last - at - 1);
            if (closing == nullptr)
            {
                break;
            }
            at = static_cast<size_t>(static_cast<char const*>(closing) - text.data());
        }
    }
    tag.end = last;
    tag.isTooLong = last < text.size();
    return tag;
}

} // namespace

FeedPrescanFinding PrescanFeed(QByteArray const& utf8, FeedLimits const& limits)
{
    std::string_view const text(utf8.constData(), static_cast<size_t>(utf8.size()));
    // A well-formed tag contains no "<", so a tag ends before the next one. A tag that is shorter than its attributes
    // would be cannot have too many of them.
    size_t const harmless =
        static_cast<size_t>(std::min(std::max(limits.maxAttributes, 0), limits.maxTagBytes / SHORTEST_ATTRIBUTE)) *
        SHORTEST_ATTRIBUTE;
    for (size_t at = NextOpening(text, 0); at < text.size();)
    {
        std::string_view const rest = text.substr(at);
        if (StartsWith(rest, "<!--"sv))
        {
            at = NextOpening(text, Behind(text, at + 4, "-->"sv));
        }
        else if (StartsWith(rest, "<![CDATA["sv))
        {
            at = NextOpening(text, Behind(text, at + 9, "]]>"sv));
        }
        else if (StartsWith(rest, "<?"sv))
        {
            at = NextOpening(text, Behind(text, at + 2, "?>"sv));
        }
        else if (StartsWith(rest, "<!"sv))
        {
            // Any other declaration is a document type, or not well-formed.
            bool const isDocumentType = StartsWith(rest, "<!DOCTYPE"sv);
            return isDocumentType ? FeedPrescanFinding{ErrorCause::FeedDocumentType, static_cast<int>(at), 0}
                                  : FeedPrescanFinding();
        }
        else
        {
            size_t const next = NextOpening(text, at + 1);
            if (next - at <= harmless)
            {
                at = next;
                continue;
            }
            Tag const tag = ScanTag(text, at, limits);
            if (tag.attributes > limits.maxAttributes)
            {
                return {ErrorCause::FeedTooManyAttributes, static_cast<int>(at), limits.maxAttributes};
            }
            if (tag.isTooLong)
            {
                return {ErrorCause::FeedTagTooLong, static_cast<int>(at), limits.maxTagBytes};
            }
            at = NextOpening(text, tag.end);
        }
    }
    return {};
}

} // namespace Pelnar::Engine
