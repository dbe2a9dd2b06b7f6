#include "Engine/core/payload/SwapJournal.h"

#include "Engine/core/payload/FieldCodec_p.h"

namespace Pelnar::Engine
{
namespace
{

constexpr std::string_view MAGIC = "PELNARS1";

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
    bool const isGood = reader.IsWhole() && IsName(journal.stagingName) && IsName(journal.stagedName) &&
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
        return sight.hasNewStarted ? RecoveryAction::ConfirmedNew : RecoveryAction::KeptPrevious;
    }
    return RecoveryAction::KeptPrevious;
}

} // namespace Pelnar::Engine
