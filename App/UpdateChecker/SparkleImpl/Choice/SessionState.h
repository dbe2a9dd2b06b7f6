// SessionState.h: the six states of the session and their names. Plain C++, private to the session. The enumeration
// is in a private named namespace, because signatures of members that several sources share contain it. Records keep
// the fixed text "(anonymous namespace)::State".
#pragma once

#include <cstdint>

namespace Pelnar::App::Session
{

enum class State : std::int32_t
{
    WAITING = 0,                     ///< idle
    FETCHING_INFO = 1,               ///< an information-only check runs
    PREPARING_TO_SHOW_CHANGELOG = 2, ///< a check with windows, or a background check without automatic download
    SILENT_DOWNLOADING = 3,          ///< a background check with automatic download runs
    SILENT_INSTALLING = 4,           ///< the user accepted a downloaded update
    SILENT_ABORTING = 5,             ///< a downloaded update was declined, skipped or failed its checks
};

/// The name in every record; "Unknown State" for a value outside the six.
constexpr char const* StateName(State state)
{
    switch (state)
    {
    case State::WAITING:
        return "WAITING";
    case State::FETCHING_INFO:
        return "FETCHING_INFO";
    case State::PREPARING_TO_SHOW_CHANGELOG:
        return "PREPARING_TO_SHOW_CHANGELOG";
    case State::SILENT_DOWNLOADING:
        return "SILENT_DOWNLOADING";
    case State::SILENT_INSTALLING:
        return "SILENT_INSTALLING";
    case State::SILENT_ABORTING:
        return "SILENT_ABORTING";
    }
    return "Unknown State";
}

} // namespace Pelnar::App::Session
