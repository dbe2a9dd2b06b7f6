#include "Engine/core/helper/SwapJournal.h"

#include "Engine/core/base/FieldCodec.h"

namespace Pelnar::Engine
{
namespace
{

constexpr std::string_view MAGIC = "PELNARS1";
constexpr std::string_view FAILED_MAGIC = "PELNARF1";

bool IsName(std::string const& text)
{
    return !text.empty() && text != "." && text != ".." && text.find('/') == std::string::npos;
}

} // namespace

std::string EncodeSwapJournal(SwapJournal const& journal)
{
    FieldWriter writer(MAGIC);
    writer.Text(journal.stagingName);
    writer.Text(journal.stagedName);
    writer.Text(journal.fromVersion);
    writer.Text(journal.toVersion);
    writer.Number(static_cast<std::uint64_t>(journal.confirmation));
    writer.Number(journal.countedStarts);
    writer.Number(journal.lastStarted.number);
    writer.Number(journal.lastStarted.startTime);
    return writer.Finish();
}

std::optional<SwapJournal> DecodeSwapJournal(std::string_view bytes)
{
    FieldReader reader(bytes, MAGIC);
    SwapJournal journal;
    journal.stagingName = reader.Text();
    journal.stagedName = reader.Text();
    journal.fromVersion = reader.Text();
    journal.toVersion = reader.Text();
    std::uint64_t const confirmation = reader.Number();
    journal.confirmation = static_cast<StartConfirmation>(confirmation);
    journal.countedStarts = reader.Number();
    journal.lastStarted.number = reader.Number();
    journal.lastStarted.startTime = reader.Number();
    bool const isGood = reader.IsWhole() && confirmation <= static_cast<std::uint64_t>(StartConfirmation::ByHost) &&
                        IsName(journal.stagingName) && IsName(journal.stagedName) && !journal.fromVersion.empty() &&
                        !journal.toVersion.empty() && journal.fromVersion != journal.toVersion;
    return isGood ? std::optional(journal) : std::nullopt;
}

RecoveryAction DecideRecovery(SwapSight const& sight)
{
    switch (sight.target)
    {
    case TargetState::Missing:
        return sight.isPreviousAtHand ? RecoveryAction::RestoredPrevious : RecoveryAction::DroppedStaged;
    case TargetState::Unreadable:
        return RecoveryAction::KeptPrevious;
    case TargetState::Previous:
    case TargetState::Foreign:
        return RecoveryAction::DroppedStaged;
    case TargetState::New:
        break;
    }
    if (!sight.hasNewStarted)
    {
        return RecoveryAction::KeptPrevious;
    }
    if (sight.awaitsHost && sight.countedStarts < MAX_UNCONFIRMED_STARTS)
    {
        return RecoveryAction::CountedStart;
    }
    return sight.awaitsHost && sight.isPreviousAtHand ? RecoveryAction::RolledBack : RecoveryAction::ConfirmedNew;
}

std::string EncodeFailedVersion(FailedVersion const& failed)
{
    FieldWriter writer(FAILED_MAGIC);
    writer.Text(failed.fromVersion);
    writer.Text(failed.toVersion);
    return writer.Finish();
}

std::optional<FailedVersion> DecodeFailedVersion(std::string_view bytes)
{
    FieldReader reader(bytes, FAILED_MAGIC);
    FailedVersion failed;
    failed.fromVersion = reader.Text();
    failed.toVersion = reader.Text();
    bool const isGood = reader.IsWhole() && !failed.fromVersion.empty() && !failed.toVersion.empty();
    return isGood ? std::optional(failed) : std::nullopt;
}

} // namespace Pelnar::Engine
