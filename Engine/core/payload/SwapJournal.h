// SwapJournal.h: the note beside a bundle that says that it is being, or has been, swapped for a new version; and what
// that note means when somebody finds it. Pure: reading and writing files is the helper's.
// Thread: any; plain values. The format is described in docs/formats/swap-journal.md.
#pragma once

#include "Engine/core/payload/HelperReport.h"
#include "Engine/core/payload/ProcessMark.h"

#include <optional>
#include <string>
#include <string_view>

namespace Pelnar::Engine
{

/// Who says that the new version has started well.
enum class StartConfirmation : std::uint8_t
{
    ByStarting = 0, ///< its first start does
    ByHost = 1,     ///< it does, by a call; after too many starts without one the previous version comes back
};

struct SwapJournal
{
    std::string stagingName; ///< of the staging folder, beside the bundle
    std::string stagedName;  ///< in it: the new version before an exchange, the previous one after it
    std::string fromVersion;
    std::string toVersion;
    StartConfirmation confirmation = StartConfirmation::ByStarting;
    std::uint64_t countedStarts = 0; ///< of the new version, none of them confirmed
    ProcessMark lastStarted = {};    ///< the process of the last of them
};

/// In the staging folder: where the previous version waits when the file system cannot exchange two names.
constexpr char PREVIOUS_BUNDLE_NAME[] = "previous";

/// So many starts of the new version may go without a confirmation.
constexpr std::uint64_t MAX_UNCONFIRMED_STARTS = 2;

std::string EncodeSwapJournal(SwapJournal const& journal);
/// Nothing when \a bytes are no journal.
std::optional<SwapJournal> DecodeSwapJournal(std::string_view bytes);

enum class TargetState
{
    Missing,
    Unreadable, ///< something is there whose version cannot be told
    Previous,   ///< of the version that the journal comes from
    New,        ///< of the version that it goes to
    Foreign,    ///< of another version
};

/// What the finder of a journal sees.
struct SwapSight
{
    TargetState target = TargetState::Missing;
    bool isPreviousAtHand = false; ///< the previous version stands in the staging folder, under either name
    bool hasNewStarted = false;    ///< the finder is the new version, running
    bool awaitsHost = false;       ///< the host is to confirm the start, and has not
    std::uint64_t countedStarts = 0;
};

/// Total: there is an answer for every sight, and carrying it out leaves a bundle wherever there is one to leave.
[[nodiscard]] RecoveryAction DecideRecovery(SwapSight const& sight);

/// What is kept beside a bundle whose new version was taken back, until another one runs.
struct FailedVersion
{
    std::string fromVersion; ///< the version that came back
    std::string toVersion;   ///< the one that was taken back
};

std::string EncodeFailedVersion(FailedVersion const& failed);
/// Nothing when \a bytes are none.
std::optional<FailedVersion> DecodeFailedVersion(std::string_view bytes);

} // namespace Pelnar::Engine
