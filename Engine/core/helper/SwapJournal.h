// SwapJournal.h: the journal next to a bundle that is being, or has been, swapped for a new version, and what a found
// journal means. Pure functions; the helper reads and writes the files. The format is in docs/formats/swap-journal.md.
#pragma once

#include "Engine/core/base/ProcessMark.h"
#include "Engine/core/helper/HelperReport.h"

#include <optional>
#include <string>
#include <string_view>

namespace Pelnar::Engine
{

/// Who confirms that the new version has started well.
enum class StartConfirmation : std::uint8_t
{
    ByStarting = 0, ///< its first start
    ByHost = 1,     ///< the host, by a call; after too many starts without one the previous version is restored
};

struct SwapJournal
{
    std::string stagingName; ///< the staging folder's name, next to the bundle
    std::string stagedName;  ///< in the staging folder: the new version before an exchange, the previous one after it
    std::string fromVersion;
    std::string toVersion;
    StartConfirmation confirmation = StartConfirmation::ByStarting;
    std::uint64_t countedStarts = 0; ///< of the new version, all without confirmation
    ProcessMark lastStarted = {};    ///< the process of the last counted start
};

/// In the staging folder: the place of the previous version if the file system cannot exchange two names.
constexpr char PREVIOUS_BUNDLE_NAME[] = "previous";

/// The new version may start this often without a confirmation.
constexpr std::uint64_t MAX_UNCONFIRMED_STARTS = 2;

std::string EncodeSwapJournal(SwapJournal journal);
/// Empty if \a bytes are not a journal.
std::optional<SwapJournal> DecodeSwapJournal(std::string_view bytes);

enum class TargetState
{
    Missing,
    Unreadable, ///< a bundle is there, but its version cannot be read
    Previous,   ///< has the journal's old version
    New,        ///< has the journal's new version
    Foreign,    ///< has another version
};

/// The situation at the time when a journal is found.
struct SwapSight
{
    TargetState target = TargetState::Missing;
    bool isPreviousAtHand = false; ///< the previous version is in the staging folder, under either name
    bool hasNewStarted = false;    ///< the finder is the new version, running
    bool awaitsHost = false;       ///< the host must confirm the start, and has not done so
    std::uint64_t countedStarts = 0;
};

/// Total: it has a result for every situation. Carrying out the result leaves a bundle if there is any bundle to leave.
[[nodiscard]] RecoveryAction DecideRecovery(SwapSight const& sight);

/// The note next to a bundle whose new version was rolled back. It stays until another version runs.
struct FailedVersion
{
    std::string fromVersion; ///< the restored version
    std::string toVersion;   ///< the rolled-back version
};

std::string EncodeFailedVersion(FailedVersion const& failed);
/// Empty if \a bytes are not a note.
std::optional<FailedVersion> DecodeFailedVersion(std::string_view bytes);

} // namespace Pelnar::Engine
