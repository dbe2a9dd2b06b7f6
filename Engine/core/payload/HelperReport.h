// HelperReport.h: what the installer's helper tells the host, one line of text each.
// Thread: any; plain values. The host trusts no helper: its decoder takes the lines of docs/formats/helper-report.md
// and nothing else, and no text of an archive ever stands in one.
#pragma once

#include "Engine/core/delta/DeltaManifest.h"
#include "Engine/core/payload/UpdateFault.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace Pelnar::Engine
{

enum class HelperPhase
{
    Verifying,
    Unpacking,
    Waiting,
    Installing,
};

enum class RecoveryAction
{
    Nothing,          ///< no update was under way
    KeptPrevious,     ///< the new version is installed and has not started yet
    ConfirmedNew,     ///< the new version has started: the previous one is gone
    DroppedStaged,    ///< the swap had not happened: the prepared version is gone
    RestoredPrevious, ///< the bundle was missing: the previous version is back
    CountedStart,     ///< the new version has started and is to tell whether it did so well
    RolledBack        ///< the new version never told that it started well: the previous version is back
};

enum class RelaunchedBundle
{
    Answered,      ///< the path that was asked for
    Target,        ///< the installed bundle, as asked
    TargetInstead, ///< the installed bundle, for the path that was asked for is not safe or did not start
};

struct ProgressReport
{
    HelperPhase phase;
    std::uint64_t doneBytes;
    std::uint64_t totalBytes;
};
struct PreparedReport
{
    ContentHash digest;
    std::string stagedName;
};
struct InstalledReport
{
};
struct RecoveredReport
{
    RecoveryAction action;
};
/// Before a RecoveredReport: the version that was taken back for the one that asks.
struct FailedVersionReport
{
    std::string version;
};
struct RelaunchedReport
{
    RelaunchedBundle bundle;
};
/// Nothing stands in the way of an installation.
struct RehearsedReport
{
};
struct RefusedReport
{
    UpdateFault fault;
    int errorNumber;
};

using HelperReport = std::variant<ProgressReport, PreparedReport, InstalledReport, RecoveredReport, FailedVersionReport,
                                  RelaunchedReport, RehearsedReport, RefusedReport>;

constexpr std::size_t HELPER_REPORT_MAX_BYTES = 1024;     ///< of a line, its end included
constexpr std::size_t HELPER_REPORT_MAX_TEXT_BYTES = 255; ///< of a name or a version in one

/// The line, with its end.
std::string EncodeHelperReport(HelperReport const& report);
/// The report of a line without its end; nothing when it is none.
std::optional<HelperReport> DecodeHelperReport(std::string_view line);

} // namespace Pelnar::Engine
