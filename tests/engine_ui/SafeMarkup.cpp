#include "tests/engine_ui/SafeMarkup.h"

#include <algorithm>
#include <cstddef>
#include <regex>
#include <set>
#include <vector>

namespace Pelnar::Testing
{
namespace
{

constexpr std::size_t MAX_BYTES = 256 * 1024;
constexpr std::size_t MAX_ELEMENTS = 2000;
constexpr std::size_t MAX_DEPTH = 32;
constexpr std::ptrdiff_t MAX_TABLE_DEPTH = 4;

std::set<std::string> const CONTAINERS = {"a",  "b",     "big", "blockquote", "code",  "dd", "div", "dl", "dt", "h1",
                                          "h2", "h3",    "h4",  "h5",         "h6",    "i",  "li",  "ol", "p",  "pre",
                                          "s",  "small", "sub", "sup",        "table", "td", "th",  "tr", "u",  "ul"};
std::set<std::string> const VOIDS = {"br", "hr"};

std::regex const START_TAG(R"re(<([a-z][a-z0-9]*)((?: (?:dir|href)="[^"<>]*")?)>)re");
std::regex const DIRECTION(R"re( dir="(?:rtl|ltr)")re");
std::regex const LINK(
    R"re( href="(?:https?://(?:[A-Za-z0-9._-]+|\[[0-9A-Fa-f:.]+\])(?::[0-9]+)?(?:[/?#][!-~]*)?|mailto:[A-Za-z0-9@.+_-]+)")re");

std::string Said(std::string const& what, std::string_view html, std::size_t at)
{
    return what + " at " + std::to_string(at) + ": " + std::string(html.substr(at, 80));
}

bool IsForbiddenByte(char c)
{
    auto const byte = static_cast<unsigned char>(c);
    return (byte < 0x20 && c != '\n' && c != '\t') || byte == 0x7F;
}

class Checker
{
public:
    explicit Checker(std::string_view html) : m_html(html) {}

    std::string Check()
    {
        while (m_at < m_html.size())
        {
            std::string broken = m_html[m_at] == '<' ? CheckTag() : CheckCharacter();
            if (!broken.empty())
            {
                return broken;
            }
        }
        return m_open.empty() ? std::string() : "not closed: " + m_open.back();
    }

private:
    std::string CheckCharacter()
    {
        char const c = m_html[m_at];
        if (c == '>' || c == '"' || IsForbiddenByte(c))
        {
            return Said("a character that must be escaped or left out", m_html, m_at);
        }
        if (c == '&')
        {
            for (std::string_view const entity : {"&amp;", "&lt;", "&gt;", "&quot;"})
            {
                if (m_html.substr(m_at, entity.size()) == entity)
                {
                    m_at += entity.size();
                    return {};
                }
            }
            return Said("an unknown entity", m_html, m_at);
        }
        ++m_at;
        return {};
    }

    std::string CheckTag()
    {
        std::size_t const end = m_html.find('>', m_at);
        if (end == std::string_view::npos)
        {
            return Said("a tag without end", m_html, m_at);
        }
        std::string const tag(m_html.substr(m_at, end + 1 - m_at));
        std::size_t const start = m_at;
        m_at = end + 1;
        if (tag[1] == '/')
        {
            if (m_open.empty() || tag != "</" + m_open.back() + ">")
            {
                return Said("a wrong end tag", m_html, start);
            }
            m_open.pop_back();
            return {};
        }
        std::smatch parts;
        if (!std::regex_match(tag, parts, START_TAG))
        {
            return Said("a tag of another form", m_html, start);
        }
        return CheckElement(parts[1], parts[2], start);
    }

    std::string CheckElement(std::string const& name, std::string const& attribute, std::size_t start)
    {
        bool const isLink = name == "a";
        if (isLink != (attribute.rfind(" href", 0) == 0) ||
            !(attribute.empty() || std::regex_match(attribute, isLink ? LINK : DIRECTION)))
        {
            return Said("a wrong attribute", m_html, start);
        }
        if (++m_elements > MAX_ELEMENTS)
        {
            return "too many elements";
        }
        if (VOIDS.count(name) == 1)
        {
            return attribute.empty() ? std::string() : Said("an attribute on a void element", m_html, start);
        }
        if (CONTAINERS.count(name) == 0)
        {
            return Said("an unknown element", m_html, start);
        }
        m_open.push_back(name);
        if (m_open.size() > MAX_DEPTH)
        {
            return Said("too deep", m_html, start);
        }
        return std::count(m_open.begin(), m_open.end(), "table") > MAX_TABLE_DEPTH
                   ? Said("tables too deep", m_html, start)
                   : std::string();
    }

    std::string_view m_html;
    std::size_t m_at = 0;
    std::size_t m_elements = 0;
    std::vector<std::string> m_open;
};

} // namespace

std::string BrokenPromiseOf(std::string_view html)
{
    return html.size() > MAX_BYTES ? "too long" : Checker(html).Check();
}

} // namespace Pelnar::Testing
