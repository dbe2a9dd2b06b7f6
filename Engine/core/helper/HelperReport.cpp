#include "Engine/core/helper/HelperReport.h"

#include <algorithm>
#include <charconv>
#include <vector>

namespace Pelnar::Engine
{
namespace
{

constexpr std::string_view PHASES[] = {"verifying", "unpacking", "waiting", "installing"};
constexpr std::string_view ACTIONS[] = {"nothing",           "kept-previous", "confirmed-new", "dropped-staged",
                                        "restored-previous", "counted-start", "rolled-back"};
constexpr std::string_view BUNDLES[] = {"answered", "target", "target-instead"};

template <typename Enumeration, std::size_t COUNT>
std::string_view NameOf(std::string_view const (&names)[COUNT], Enumeration value)
{
    return names[static_cast<std::size_t>(value)];
}

template <typename Enumeration, std::size_t COUNT>
bool ValueOf(std::string_view const (&names)[COUNT], std::string_view name, Enumeration& value)
{
    auto const found = std::find(std::begin(names), std::end(names), name);
    value = static_cast<Enumeration>(found - std::begin(names));
    return found != std::end(names);
}

template <typename Number>
bool ReadNumber(std::string_view text, Number& number)
{
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    // A number has exactly one text: no sign, no leading zero.
    return error == std::errc() && end == text.data() + text.size() && std::to_string(number) == text && text[0] != '-';
}

bool FromHexadecimal(std::string_view text, std::string& bytes)
{
    if (text.size() % 2 != 0)
    {
        return false;
    }
    for (std::size_t i = 0; i < text.size(); i += 2)
    {
        std::uint8_t byte = 0;
        std::string_view const pair = text.substr(i, 2);
        auto const [end, error] = std::from_chars(pair.data(), pair.data() + 2, byte, 16);
        if (error != std::errc() || end != pair.data() + 2)
        {
            return false;
        }
        bytes += static_cast<char>(byte);
    }
    return Hexadecimal(View(bytes)) == text;
}

std::string Line(ProgressReport const& report)
{
    return "progress " + std::string(NameOf(PHASES, report.phase)) + ' ' + std::to_string(report.doneBytes) + ' ' +
           std::to_string(report.totalBytes);
}

std::string Line(PreparedReport const& report)
{
    return "prepared " + Hexadecimal(View(report.digest)) + ' ' + Hexadecimal(View(report.stagedName));
}

std::string Line(InstalledReport const&)
{
    return "installed";
}

std::string Line(RecoveredReport const& report)
{
    return "recovered " + std::string(NameOf(ACTIONS, report.action));
}

std::string Line(FailedVersionReport const& report)
{
    return "failed-version " + Hexadecimal(View(report.version));
}

std::string Line(RelaunchedReport const& report)
{
    return "relaunched " + std::string(NameOf(BUNDLES, report.bundle));
}

std::string Line(RehearsedReport const&)
{
    return "rehearsed";
}

std::string Line(RefusedReport const& report)
{
    return "refused " + std::string(FaultName(report.fault)) + ' ' + std::to_string(report.errorNumber);
}

std::vector<std::string_view> Words(std::string_view line)
{
    std::vector<std::string_view> words;
    for (;;)
    {
        std::size_t const place = line.find(' ');
        words.push_back(line.substr(0, place));
        if (place == std::string_view::npos)
        {
            return words;
        }
        line.remove_prefix(place + 1);
    }
}

std::optional<HelperReport> ReadProgress(std::vector<std::string_view> const& words)
{
    ProgressReport report{};
    bool const isGood = words.size() == 4 && ValueOf(PHASES, words[1], report.phase) &&
                        ReadNumber(words[2], report.doneBytes) && ReadNumber(words[3], report.totalBytes) &&
                        report.doneBytes <= report.totalBytes;
    return isGood ? std::optional<HelperReport>(report) : std::nullopt;
}

std::optional<HelperReport> ReadPrepared(std::vector<std::string_view> const& words)
{
    PreparedReport report{};
    std::string digest;
    bool const isGood = words.size() == 3 && FromHexadecimal(words[1], digest) &&
                        digest.size() == report.digest.size() && FromHexadecimal(words[2], report.stagedName) &&
                        !report.stagedName.empty() && report.stagedName.size() <= HELPER_REPORT_MAX_TEXT_BYTES &&
                        report.stagedName != "." && report.stagedName != ".." &&
                        report.stagedName.find('/') == std::string::npos &&
                        report.stagedName.find('\0') == std::string::npos;
    if (!isGood)
    {
        return std::nullopt;
    }
    std::copy(digest.begin(), digest.end(), report.digest.begin());
    return report;
}

std::optional<HelperReport> ReadFailedVersion(std::vector<std::string_view> const& words)
{
    FailedVersionReport report;
    bool const isGood = words.size() == 2 && FromHexadecimal(words[1], report.version) && !report.version.empty() &&
                        report.version.size() <= HELPER_REPORT_MAX_TEXT_BYTES &&
                        report.version.find('\0') == std::string::npos;
    return isGood ? std::optional<HelperReport>(report) : std::nullopt;
}

std::optional<HelperReport> ReadRefused(std::vector<std::string_view> const& words)
{
    if (words.size() != 3)
    {
        return std::nullopt;
    }
    RefusedReport report{};
    auto const fault = FaultFromName(words[1]);
    report.fault = fault.value_or(UpdateFault::None);
    bool const isGood = report.fault != UpdateFault::None && ReadNumber(words[2], report.errorNumber);
    return isGood ? std::optional<HelperReport>(report) : std::nullopt;
}

} // namespace

std::string EncodeHelperReport(HelperReport const& report)
{
    return std::visit([](auto const& kind) { return Line(kind); }, report) + '\n';
}

std::optional<HelperReport> DecodeHelperReport(std::string_view line)
{
    if (line.size() >= HELPER_REPORT_MAX_BYTES)
    {
        return std::nullopt;
    }
    std::vector<std::string_view> const words = Words(line);
    if (words[0] == "progress")
    {
        return ReadProgress(words);
    }
    if (words[0] == "prepared")
    {
        return ReadPrepared(words);
    }
    if (words[0] == "failed-version")
    {
        return ReadFailedVersion(words);
    }
    if (words[0] == "refused")
    {
        return ReadRefused(words);
    }
    if (line == "installed")
    {
        return InstalledReport{};
    }
    if (line == "rehearsed")
    {
        return RehearsedReport{};
    }
    if (RecoveredReport report{};
        words[0] == "recovered" && words.size() == 2 && ValueOf(ACTIONS, words[1], report.action))
    {
        return report;
    }
    if (RelaunchedReport report{};
        words[0] == "relaunched" && words.size() == 2 && ValueOf(BUNDLES, words[1], report.bundle))
    {
        return report;
    }
    return std::nullopt;
}

} // namespace Pelnar::Engine
