// InstallRecord.h: what is kept of an installation beside the downloads, so that the next start of the application
// knows how it ended, and what that means. Pure: reading and writing files is done elsewhere.
// Thread: any; plain values. The format is described in docs/formats/install-record.md.
#pragma once

#include "Engine/core/payload/ProcessMark.h"
#include "Engine/core/payload/UpdateFault.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Pelnar::Engine
{

enum class InstallState : std::uint8_t
{
    Waiting = 0,    ///< a helper waits for the application's end
    Installing = 1, ///< the application has ended
    Failed = 2,
    Installed = 3,
};

/// Who wanted this installation.
enum class InstallWish : std::uint8_t
{
    Automatic = 0,
    Person = 1, ///< a person asked for it, or for a start of the new version
};

enum class FailureTold : std::uint8_t
{
    No = 0,
    Yes = 1, ///< to the person who asked
};

struct InstallRecord
{
    std::string fromVersion;
    std::string toVersion;
    InstallWish wish = InstallWish::Automatic;
    std::uint64_t attempts = 1; ///< to install this version, this one included
    InstallState state = InstallState::Waiting;
    std::uint64_t secondsSinceEpoch = 0;   ///< of the state
    ProcessMark helper = {};               ///< that writes the record
    UpdateFault fault = UpdateFault::None; ///< of a failure, or why the new version was not started
    int errorNumber = 0;                   ///< of the fault: an errno, or 0
    FailureTold told = FailureTold::No;
};

constexpr std::size_t INSTALL_RECORD_MAX_BYTES = 4096;

std::string EncodeInstallRecord(InstallRecord const& record);
/// Nothing when \a bytes are none.
std::optional<InstallRecord> DecodeInstallRecord(std::string_view bytes);

enum class HelperLife
{
    Runs,
    Ended,
};

/// What a record says to a version of the application that has been started.
enum class PastInstallation
{
    UnderWay, ///< its helper still runs
    Over,     ///< the update is installed, or another version is: nothing is left to do
    Dropped,  ///< nothing was installed, and nobody waits to hear of it: the session ended, say
    Failed,
};

[[nodiscard]] PastInstallation JudgePastInstallation(InstallRecord const& record, std::string_view runningVersion,
                                                     HelperLife helper);

} // namespace Pelnar::Engine
