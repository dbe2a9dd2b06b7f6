// FeedPrescan_p.cpp: one pass over the tags of a feed.
#include "Engine/core/FeedPrescan_p.h"

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

/// The offset behind \a end, searched from \a from on; the size of \a text when it is missing.
size_t Behind(std::string_view text, size_t from, std::string_view end)
{
    // One byte is searched for and the rest compared: std::string_view::find would do the same with a slower start.
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

struct Tag
{
    size_t end = 0; ///< behind the ">", or where the search was given up
    int attributes = 0;
    bool isTooLong = false;
};

/// A well-formed tag has one "=" outside quotes for each attribute.
Tag ScanTag(std::string_view text, size_t start, FeedLimits const& limits)
{
    Tag tag;
    size_t const longest = static_cast<size_t>(limits.maxTagBytes);
    size_t const last = text.size() - start > longest ? start + longest : text.size();
    char quote = '\0';
    for (size_t at = start + 1; at < last; ++at)
    {
        char const byte = text[at];
        if (quote != '\0')
        {
            void const* const found = std::memchr(text.data() + at, quote, last - at);
            if (found == nullptr)
            {
                break;
            }
            at = static_cast<size_t>(static_cast<char const*>(found) - text.data());
            quote = '\0';
        }
        else if (byte == '"' || byte == '\'')
        {
            quote = byte;
        }
        else if (byte == '=')
        {
            ++tag.attributes;
        }
        else if (byte == '>')
        {
            tag.end = at + 1;
            return tag;
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
    size_t at = 0;
    while (at < text.size())
    {
        void const* const found = std::memchr(text.data() + at, '<', text.size() - at);
        if (found == nullptr)
        {
            break;
        }
        at = static_cast<size_t>(static_cast<char const*>(found) - text.data());
        std::string_view const rest = text.substr(at);
        if (StartsWith(rest, "<!--"sv))
        {
            at = Behind(text, at + 4, "-->"sv);
        }
        else if (StartsWith(rest, "<![CDATA["sv))
        {
            at = Behind(text, at + 9, "]]>"sv);
        }
        else if (StartsWith(rest, "<?"sv))
        {
            at = Behind(text, at + 2, "?>"sv);
        }
        else if (StartsWith(rest, "<!"sv))
        {
            // Any other declaration is one of a document type, or not well-formed.
            bool const isDocumentType = StartsWith(rest, "<!DOCTYPE"sv);
            return {isDocumentType ? FeedErrorKind::DocumentType : FeedErrorKind::None, static_cast<int>(at)};
        }
        else
        {
            Tag const tag = ScanTag(text, at, limits);
            if (tag.attributes > limits.maxAttributes)
            {
                return {FeedErrorKind::TooManyAttributes, static_cast<int>(at)};
            }
            if (tag.isTooLong)
            {
                return {FeedErrorKind::TagTooLong, static_cast<int>(at)};
            }
            at = tag.end;
        }
    }
    return {};
}

} // namespace Pelnar::Engine
