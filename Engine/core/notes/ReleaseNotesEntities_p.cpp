#include "Engine/core/notes/ReleaseNotesEntities_p.h"

#include "Engine/core/notes/ReleaseNotesText_p.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace Pelnar::Engine
{
namespace
{

constexpr std::uint32_t REPLACEMENT = 0xFFFD;

/// Names of characters that follow each other, the first of them \a first.
struct EntityRun
{
    std::uint32_t first;
    std::string_view names; ///< blanks between them
};

/// Those of HTML 4, and of the signs of Markdown.
constexpr std::array ENTITIES = {
    EntityRun{0x21, "excl quot num dollar percnt amp apos lpar rpar ast plus comma"},
    EntityRun{0x2E, "period sol"},
    EntityRun{0x3A, "colon semi lt equals gt quest commat"},
    EntityRun{0x5B, "lsqb bsol rsqb Hat lowbar grave"},
    EntityRun{0x7B, "lcub verbar rcub"},
    EntityRun{0xA0, "nbsp iexcl cent pound curren yen brvbar sect uml copy ordf laquo not shy reg macr deg plusmn sup2 "
                    "sup3 acute micro para middot cedil sup1 ordm raquo frac14 frac12 frac34 iquest Agrave Aacute "
                    "Acirc Atilde Auml Aring AElig Ccedil Egrave Eacute Ecirc Euml Igrave Iacute Icirc Iuml ETH Ntilde "
                    "Ograve Oacute Ocirc Otilde Ouml times Oslash Ugrave Uacute Ucirc Uuml Yacute THORN szlig agrave "
                    "aacute acirc atilde auml aring aelig ccedil egrave eacute ecirc euml igrave iacute icirc iuml eth "
                    "ntilde ograve oacute ocirc otilde ouml divide oslash ugrave uacute ucirc uuml yacute thorn yuml"},
    EntityRun{0x152, "OElig oelig"},
    EntityRun{0x160, "Scaron scaron"},
    EntityRun{0x178, "Yuml"},
    EntityRun{0x192, "fnof"},
    EntityRun{0x2C6, "circ"},
    EntityRun{0x2DC, "tilde"},
    EntityRun{0x391, "Alpha Beta Gamma Delta Epsilon Zeta Eta Theta Iota Kappa Lambda Mu Nu Xi Omicron Pi Rho"},
    EntityRun{0x3A3, "Sigma Tau Upsilon Phi Chi Psi Omega"},
    EntityRun{0x3B1, "alpha beta gamma delta epsilon zeta eta theta iota kappa lambda mu nu xi omicron pi rho sigmaf "
                     "sigma tau upsilon phi chi psi omega"},
    EntityRun{0x3D1, "thetasym upsih"},
    EntityRun{0x3D6, "piv"},
    EntityRun{0x2002, "ensp emsp"},
    EntityRun{0x2009, "thinsp"},
    EntityRun{0x200C, "zwnj zwj lrm rlm"},
    EntityRun{0x2010, "hyphen"},
    EntityRun{0x2013, "ndash mdash"},
    EntityRun{0x2018, "lsquo rsquo sbquo"},
    EntityRun{0x201C, "ldquo rdquo bdquo"},
    EntityRun{0x2020, "dagger Dagger bull"},
    EntityRun{0x2026, "hellip"},
    EntityRun{0x2030, "permil"},
    EntityRun{0x2032, "prime Prime"},
    EntityRun{0x2039, "lsaquo rsaquo"},
    EntityRun{0x203E, "oline"},
    EntityRun{0x2044, "frasl"},
    EntityRun{0x20AC, "euro"},
    EntityRun{0x2111, "image"},
    EntityRun{0x2118, "weierp"},
    EntityRun{0x211C, "real"},
    EntityRun{0x2122, "trade"},
    EntityRun{0x2135, "alefsym"},
    EntityRun{0x2190, "larr uarr rarr darr harr"},
    EntityRun{0x21B5, "crarr"},
    EntityRun{0x21D0, "lArr uArr rArr dArr hArr"},
    EntityRun{0x2200, "forall"},
    EntityRun{0x2202, "part exist"},
    EntityRun{0x2205, "empty"},
    EntityRun{0x2207, "nabla isin notin"},
    EntityRun{0x220B, "ni"},
    EntityRun{0x220F, "prod"},
    EntityRun{0x2211, "sum minus"},
    EntityRun{0x2217, "lowast"},
    EntityRun{0x221A, "radic"},
    EntityRun{0x221D, "prop infin"},
    EntityRun{0x2220, "ang"},
    EntityRun{0x2227, "and or cap cup int"},
    EntityRun{0x2234, "there4"},
    EntityRun{0x223C, "sim"},
    EntityRun{0x2245, "cong"},
    EntityRun{0x2248, "asymp"},
    EntityRun{0x2260, "ne equiv"},
    EntityRun{0x2264, "le ge"},
    EntityRun{0x2282, "sub sup nsub"},
    EntityRun{0x2286, "sube supe"},
    EntityRun{0x2295, "oplus"},
    EntityRun{0x2297, "otimes"},
    EntityRun{0x22A5, "perp"},
    EntityRun{0x22C5, "sdot"},
    EntityRun{0x2308, "lceil rceil lfloor rfloor"},
    EntityRun{0x25CA, "loz"},
    EntityRun{0x2605, "starf star"},
    EntityRun{0x2660, "spades"},
    EntityRun{0x2663, "clubs"},
    EntityRun{0x2665, "hearts diams"},
    EntityRun{0x2713, "check"},
    EntityRun{0x2717, "cross"},
    EntityRun{0x27E8, "lang rang"}};

/// The code point that \a digits name; U+FFFD if it does not exist.
std::uint32_t CodePointOfDigits(std::string_view digits, std::uint32_t base)
{
    std::uint32_t codePoint = 0;
    for (char const c : digits)
    {
        auto const letter = static_cast<unsigned char>(c | 0x20);
        std::uint32_t const digit = IsAsciiDigit(c) ? static_cast<unsigned char>(c) - '0' : letter - 'a' + 10U;
        codePoint = codePoint * base + digit; // at most seven digits: no overflow
    }
    bool const isSurrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    return codePoint > 0x10FFFF || isSurrogate ? REPLACEMENT : codePoint;
}

std::unordered_map<std::string_view, std::uint32_t> EntitiesByName()
{
    std::unordered_map<std::string_view, std::uint32_t> entities;
    for (EntityRun const& run : ENTITIES)
    {
        std::uint32_t codePoint = run.first;
        for (std::size_t start = 0; start < run.names.size();)
        {
            std::size_t const end = std::min(run.names.find(' ', start), run.names.size());
            entities[run.names.substr(start, end - start)] = codePoint++;
            start = end + 1;
        }
    }
    return entities;
}

} // namespace

std::optional<std::uint32_t> CodePointOfEntity(std::string_view name)
{
    if (name.size() > 1 && name.front() == '#')
    {
        bool const isHex = (name[1] | 0x20) == 'x';
        std::string_view const digits = name.substr(isHex ? 2 : 1);
        bool const isNumber = !digits.empty() && digits.size() <= 7 &&
                              std::all_of(digits.begin(), digits.end(), isHex ? IsAsciiHexDigit : IsAsciiDigit);
        return isNumber ? std::optional(CodePointOfDigits(digits, isHex ? 16 : 10)) : std::nullopt;
    }
    static std::unordered_map<std::string_view, std::uint32_t> const NAMED = EntitiesByName();
    auto const entity = NAMED.find(name);
    return entity == NAMED.end() ? std::nullopt : std::optional(entity->second);
}

} // namespace Pelnar::Engine
