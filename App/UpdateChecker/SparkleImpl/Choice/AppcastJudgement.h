// AppcastJudgement.h: the rules that judge a feed item and prefer one of two. Plain C++, private to the session; the
// publisher's tool uses them too.
// Thread: the caller's. Nothing here logs: the results say which rule applied.
#pragma once

#include "App/UpdateChecker/SparkleImpl/Choice/ItemRecord.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace Pelnar::App::Session
{

/// The installation that items are judged for. REQUIRES: both operators are set; a missing one throws
/// std::bad_function_call.
struct SelectionSubject
{
    Core::Version const& systemVersion; ///< of the running system; with the invalid version, system bounds are ignored
    Core::Version const& localVersion;  ///< of the running application
    std::function<bool(Core::Version const&, Core::Version const&)> const& versionLess;
    std::function<bool(Core::Version const&, Core::Version const&)> const& versionEqual;
};

/// The first test that an item fails, in the order of the tests.
enum class Judgement : std::int32_t
{
    SYSTEM_TOO_OLD = 0,     ///< the running system is older than the item's minimum
    SYSTEM_TOO_NEW = 1,     ///< the running system is newer than the item's maximum
    VERSION_UNREADABLE = 2, ///< the item's version is absent or does not parse
    VERSION_OLDER = 3,      ///< older than the running application
    VERSION_EQUAL = 4,      ///< the same version as the running application
    URL_INVALID = 5,        ///< the download has no valid address
    DATE_REFUSED = 6,       ///< the date is in Qt's text form
    LENGTH_ZERO = 7,        ///< the download has no length
    VALID = 8,              ///< no test failed
};

/// A name for tools and test messages, such as "system-too-old"; "unknown" for a value outside the nine.
constexpr char const* JudgementName(Judgement judgement)
{
    switch (judgement)
    {
    case Judgement::SYSTEM_TOO_OLD:
        return "system-too-old";
    case Judgement::SYSTEM_TOO_NEW:
        return "system-too-new";
    case Judgement::VERSION_UNREADABLE:
        return "version-unreadable";
    case Judgement::VERSION_OLDER:
        return "version-older";
    case Judgement::VERSION_EQUAL:
        return "version-equal";
    case Judgement::URL_INVALID:
        return "url-invalid";
    case Judgement::DATE_REFUSED:
        return "date-refused";
    case Judgement::LENGTH_ZERO:
        return "length-zero";
    case Judgement::VALID:
        return "valid";
    }
    return "unknown";
}

/// Stops at the first test that \a item fails and does not read later properties.
Judgement Judge(ItemRecord& item, SelectionSubject const& subject);

enum class PreferenceRule : std::int32_t
{
    NEWER_VERSION = 0,
    WANTED_TYPE = 1,  ///< the kind of package that the priority list names first
    SAME_ADDRESS = 2, ///< the same download: the first of the two
    LATER_DATE = 3,
    SMALLER_LENGTH = 4, ///< the first of the two if the lengths are equal
};

struct Preference
{
    ItemRecord& item; ///< one of the two arguments
    PreferenceRule rule;
};

/// The newer of two valid items or, for the same version, the one with the preferred kind of package; empty if both are
/// equal in this.
std::optional<Preference> PreferByVersionAndType(ItemRecord& a, ItemRecord& b, SelectionSubject const& subject);

/// Decides between two valid items that PreferByVersionAndType finds equal.
Preference PreferByDownload(ItemRecord& a, ItemRecord& b);

/// True if a delta from the version \a deltaFrom, as the feed writes it, fits the running application.
[[nodiscard]] bool StartsFromRunningVersion(QString const& deltaFrom, SelectionSubject const& subject);

} // namespace Pelnar::App::Session
