// HelperReport.h: the lines that the installer's helper writes to the host. Pure functions. The host does not trust the
// helper: its decoder accepts only the lines of docs/formats/helper-report.md, and no text of an archive appears in
// them.
#pragma once

#include "Engine/core/base/ContentHasher.h"
#include "Engine/core/faults/UpdateFault.h"

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
    Nothing,          ///< no update was in progress
    KeptPrevious,     ///< the new version is installed and has not started yet
    ConfirmedNew,     ///< the new version has started: the previous one is removed
    DroppedStaged,    ///< the swap had not happened: the prepared version is removed
    RestoredPrevious, ///< the bundle was missing: the previous version is restored
    CountedStart,     ///< the new version has started and must confirm a good start
    RolledBack        ///< the new version never confirmed a good start: the previous version is restored
};

enum class RelaunchedBundle
{
    Answered,      ///< the requested path
    Target,        ///< the installed bundle, as requested
    TargetInstead, ///< the installed bundle, because the requested path is not safe or did not start
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
/// Before a RecoveredReport: the version that was rolled back to the version that asks.
struct FailedVersionReport
{
    std::string version;
};
struct RelaunchedReport
{
    RelaunchedBundle bundle;
};
/// An installation is possible.
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

constexpr std::size_t HELPER_REPORT_MAX_BYTES = 1024;     ///< of a line, including its end
constexpr std::size_t HELPER_REPORT_MAX_TEXT_BYTES = 255; ///< of a name or a version in a line

/// The line, including its end.
std::string EncodeHelperReport(HelperReport const& report);
/// The report in a line without its end; empty if the line is not a report.
std::optional<HelperReport> DecodeHelperReport(std::string_view line);

} // namespace Pelnar::Engine
