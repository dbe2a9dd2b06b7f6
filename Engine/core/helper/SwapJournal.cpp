#include "Engine/core/helper/SwapJournal.h"

#include "Engine/core/base/FieldCodec.h"

namespace Pelnar::Engine
{
namespace
{

constexpr std::string_view MAGIC = "PELNARS1";
constexpr std::string_view FAILED_MAGIC = "PELNARF1";

template <class Codec>
void Visit(Codec& codec, SwapJournal& journal)
{
    codec.Fields(journal.stagingName, journal.stagedName, journal.fromVersion, journal.toVersion,
                 Limited{journal.confirmation, StartConfirmation::ByHost}, journal.countedStarts,
                 journal.lastStarted.number, journal.lastStarted.startTime);
}

} // namespace

std::string EncodeSwapJournal(SwapJournal journal)
{
    FieldWriter writer(MAGIC);
    Visit(writer, journal);
    return writer.Finish();
}

std::optional<SwapJournal> DecodeSwapJournal(std::string_view bytes)
{
    FieldReader reader(bytes, MAGIC);
    SwapJournal journal;
    Visit(reader, journal);
    bool const isGood = reader.IsWhole() && IsFileName(journal.stagingName) && IsFileName(journal.stagedName) &&
                        !journal.fromVersion.empty() && !journal.toVersion.empty() &&
                        journal.fromVersion != journal.toVersion;
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
    writer.Fields(failed.fromVersion, failed.toVersion);
    return writer.Finish();
}

std::optional<FailedVersion> DecodeFailedVersion(std::string_view bytes)
{
    FieldReader reader(bytes, FAILED_MAGIC);
    FailedVersion failed;
    reader.Fields(failed.fromVersion, failed.toVersion);
    bool const isGood = reader.IsWhole() && !failed.fromVersion.empty() && !failed.toVersion.empty();
    return isGood ? std::optional(failed) : std::nullopt;
}

} // namespace Pelnar::Engine
