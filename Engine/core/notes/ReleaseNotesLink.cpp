#include "Engine/core/notes/ReleaseNotesLink.h"

#include "Engine/core/notes/ReleaseNotesText_p.h"

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t MAX_LINK_BYTES = 2048;
constexpr std::size_t MAX_BARE_LINK_BYTES = 512;
constexpr std::size_t MAX_PORT_DIGITS = 5;

bool StartsWithIgnoringCase(std::string_view text, std::string_view lowerCaseStart)
{
    return text.size() >= lowerCaseStart.size() &&
           ToLowerAscii(text.substr(0, lowerCaseStart.size())) == lowerCaseStart;
}

bool IsHostCharacter(char c)
{
    return IsAsciiAlphanumeric(c) || c == '.' || c == '-' || c == '_';
}

bool IsPort(std::string_view text)
{
    return !text.empty() && text.size() <= MAX_PORT_DIGITS && std::all_of(text.begin(), text.end(), IsAsciiDigit);
}

bool IsPlainHost(std::string_view host)
{
    return !host.empty() && std::all_of(host.begin(), host.end(), IsHostCharacter) &&
           std::any_of(host.begin(), host.end(), IsAsciiAlphanumeric);
}

/// A name or an IPv6 address in brackets, with or without a port. A user name before the host is refused: attackers use
/// it to make one host look like another.
bool IsPlainAuthority(std::string_view authority)
{
    if (!authority.empty() && authority.front() == '[')
    {
        std::size_t const end = authority.find(']');
        if (end == std::string_view::npos || end < 3)
        {
            return false;
        }
        std::string_view const inner = authority.substr(1, end - 1);
        std::string_view const rest = authority.substr(end + 1);
        return std::all_of(inner.begin(), inner.end(),
                           [](char c) { return IsAsciiHexDigit(c) || c == ':' || c == '.'; }) &&
               (rest.empty() || (rest.front() == ':' && IsPort(rest.substr(1))));
    }
    std::size_t const colon = authority.find(':');
    return IsPlainHost(authority.substr(0, colon)) &&
           (colon == std::string_view::npos || IsPort(authority.substr(colon + 1)));
}

/// Percent-encodes characters that are not allowed in an address.
std::string Encoded(std::string_view text)
{
    constexpr std::string_view KEPT = ":/?#[]@!$&'()*+,;=-._~";
    constexpr char HEX[] = "0123456789ABCDEF";
    std::string encoded;
    encoded.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        char const c = text[i];
        bool const isEncodedAlready =
            c == '%' && i + 2 < text.size() && IsAsciiHexDigit(text[i + 1]) && IsAsciiHexDigit(text[i + 2]);
        if (IsAsciiAlphanumeric(c) || KEPT.find(c) != std::string_view::npos || isEncodedAlready)
        {
            encoded.push_back(c);
            continue;
        }
        auto const byte = static_cast<unsigned char>(c);
        encoded.push_back('%');
        encoded.push_back(HEX[byte >> 4]);
        encoded.push_back(HEX[byte & 15]);
    }
    return encoded;
}

std::optional<std::string> SafeWebLink(std::string_view scheme, std::string_view rest)
{
    std::string_view const authority = rest.substr(0, rest.find_first_of("/?#"));
    if (!IsPlainAuthority(authority))
    {
        return std::nullopt;
    }
    return std::string(scheme) + std::string(authority) + Encoded(rest.substr(authority.size()));
}

std::optional<std::string> SafeMailLink(std::string_view rest)
{
    std::string_view const address = rest.substr(0, rest.find_first_of("?#"));
    bool const isPlain =
        std::all_of(address.begin(), address.end(), [](char c) { return IsHostCharacter(c) || c == '@' || c == '+'; });
    if (!isPlain || address.find('@') == std::string_view::npos || address.front() == '-')
    {
        return std::nullopt;
    }
    return "mailto:" + Encoded(address);
}

} // namespace

std::optional<std::string> SafeLink(std::string_view address)
{
    address = TrimmedAscii(address);
    bool const hasRefusedCharacter =
        std::any_of(address.begin(), address.end(),
                    [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7f || c == '\\'; });
    if (hasRefusedCharacter || address.size() > MAX_LINK_BYTES)
    {
        return std::nullopt;
    }
    std::optional<std::string> safe;
    for (std::string_view const scheme : {std::string_view("http://"), std::string_view("https://")})
    {
        if (StartsWithIgnoringCase(address, scheme))
        {
            safe = SafeWebLink(scheme, address.substr(scheme.size()));
        }
    }
    constexpr std::string_view MAIL = "mailto:";
    if (StartsWithIgnoringCase(address, MAIL))
    {
        safe = SafeMailLink(address.substr(MAIL.size()));
    }
    // Encoding lengthens an address, and an encoded address must be accepted again.
    return safe && safe->size() <= MAX_LINK_BYTES ? safe : std::nullopt;
}

std::size_t BareLinkLength(std::string_view text)
{
    constexpr std::string_view HOST_ENDS = "/?# \n\t<>\"(),;!'*~]";
    text = text.substr(0, MAX_BARE_LINK_BYTES);
    std::size_t const start = StartsWithIgnoringCase(text, "http://")    ? 7
                              : StartsWithIgnoringCase(text, "https://") ? 8
                                                                         : 0;
    std::string_view const host = text.substr(start, text.find_first_of(HOST_ENDS, start) - start);
    // Tested first, so that a text full of wrong addresses is not read to its end repeatedly.
    if (start == 0 || host.empty() || !IsHostCharacter(host.front()) || host.find('@') != std::string_view::npos)
    {
        return 0;
    }
    std::size_t length = start;
    for (int openParentheses = 0; length < text.size(); ++length)
    {
        char const c = text[length];
        openParentheses += c == '(' ? 1 : c == ')' ? -1 : 0;
        if (IsAsciiSpace(c) || c == '<' || c == '>' || c == '"' || static_cast<unsigned char>(c) >= 0x80 ||
            openParentheses < 0)
        {
            break;
        }
    }
    constexpr std::string_view SENTENCE_ENDS = ".,:;!?'*_~]";
    while (SENTENCE_ENDS.find(text[length - 1]) != std::string_view::npos)
    {
        --length;
    }
    return SafeLink(text.substr(0, length)) ? length : 0;
}

} // namespace Pelnar::Engine
