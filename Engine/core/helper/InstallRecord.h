// InstallRecord.h: the record of an installation, kept with the downloads. The next start of the application reads from
// it how the installation ended. Pure functions; other code reads and writes the files. The format is in
// docs/formats/install-record.md.
#pragma once

#include "Engine/core/base/ProcessMark.h"
#include "Engine/core/faults/UpdateFault.h"

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

/// Who requested this installation.
enum class InstallWish : std::uint8_t
{
    Automatic = 0,
    Person = 1, ///< a person requested it, or a start of the new version
};

enum class FailureTold : std::uint8_t
{
    No = 0,
    Yes = 1, ///< the person who asked; without one, the log and the application
};

/// The record's name for the bundle at \a bundlePath, which is absolute and contains no link. No folder and no archive
/// has such a name.
std::string InstallRecordName(std::string const& bundlePath);
[[nodiscard]] bool IsInstallRecordName(std::string_view name);

struct InstallRecord
{
    std::string fromVersion;
    std::string toVersion;
    InstallWish wish = InstallWish::Automatic;
    std::uint64_t attempts = 1; ///< to install this version, including this one
    InstallState state = InstallState::Waiting;
    std::uint64_t secondsSinceEpoch = 0;   ///< when the state began
    ProcessMark helper = {};               ///< the process that writes the record
    UpdateFault fault = UpdateFault::None; ///< after a failure, or why the new version was not started
    int errorNumber = 0;                   ///< for the fault: an errno, or 0
    FailureTold told = FailureTold::No;
    std::string bundlePath = {}; ///< of the old version, absolute and without links; empty if unknown
};

constexpr std::size_t INSTALL_RECORD_MAX_BYTES = 8192;

std::string EncodeInstallRecord(InstallRecord record);
/// Empty if \a bytes are not a record.
std::optional<InstallRecord> DecodeInstallRecord(std::string_view bytes);

enum class HelperLife
{
    Runs,
    Ended,
};

/// What a record means for a version of the application that has started.
enum class PastInstallation
{
    UnderWay, ///< its helper still runs
    Over,     ///< the update or another version is installed: nothing remains to do
    Dropped,  ///< its helper died while it waited, and no person had asked: this was no attempt
    Failed,
    Displaced, ///< failed, because another bundle was in its place or none: this was no attempt
};

/// True if the helper did not find the bundle that the host ran from.
[[nodiscard]] bool HasMissedBundle(InstallRecord const& record);

[[nodiscard]] PastInstallation JudgePastInstallation(InstallRecord const& record, std::string_view runningVersion,
                                                     HelperLife helper);

} // namespace Pelnar::Engine
