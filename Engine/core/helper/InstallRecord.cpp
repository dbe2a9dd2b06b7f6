#include "Engine/core/helper/InstallRecord.h"

#include "Engine/core/base/FieldCodec.h"

namespace Pelnar::Engine
{
namespace
{

constexpr std::string_view MAGIC = "PELNARI1";
constexpr std::uint64_t MAX_ERROR_NUMBER = 4095; // the kernel's largest

/// Reads one number from \a reader as an enumerator up to \a last.
template <typename Enum>
Enum ReadEnum(FieldReader& reader, Enum last)
{
    std::uint64_t const number = reader.Number();
    if (number > static_cast<std::uint64_t>(last))
    {
        reader.Refuse();
        return last;
    }
    return static_cast<Enum>(number);
}

} // namespace

std::string EncodeInstallRecord(InstallRecord const& record)
{
    FieldWriter writer(MAGIC);
    writer.Text(record.fromVersion);
    writer.Text(record.toVersion);
    writer.Number(static_cast<std::uint64_t>(record.wish));
    writer.Number(record.attempts);
    writer.Number(static_cast<std::uint64_t>(record.state));
    writer.Number(record.secondsSinceEpoch);
    writer.Number(record.helper.number);
    writer.Number(record.helper.startTime);
    writer.Text(FaultName(record.fault));
    writer.Number(static_cast<std::uint64_t>(record.errorNumber));
    writer.Number(static_cast<std::uint64_t>(record.told));
    return writer.Finish();
}

std::optional<InstallRecord> DecodeInstallRecord(std::string_view bytes)
{
    if (bytes.size() > INSTALL_RECORD_MAX_BYTES)
    {
        return std::nullopt;
    }
    FieldReader reader(bytes, MAGIC);
    InstallRecord record;
    record.fromVersion = reader.Text();
    record.toVersion = reader.Text();
    record.wish = ReadEnum(reader, InstallWish::Person);
    record.attempts = reader.Number();
    record.state = ReadEnum(reader, InstallState::Installed);
    record.secondsSinceEpoch = reader.Number();
    record.helper.number = reader.Number();
    record.helper.startTime = reader.Number();
    auto const fault = FaultFromName(reader.Text());
    std::uint64_t const errorNumber = reader.Number();
    record.told = ReadEnum(reader, FailureTold::Yes);
    // An installed version may have a fault too: it could not be started.
    bool const mayHaveFault = record.state == InstallState::Failed || record.state == InstallState::Installed;
    bool const needsFault = record.state == InstallState::Failed;
    bool const isGood = reader.IsWhole() && !record.fromVersion.empty() && !record.toVersion.empty() &&
                        record.fromVersion != record.toVersion && record.attempts > 0 &&
                        errorNumber <= MAX_ERROR_NUMBER && fault &&
                        (*fault == UpdateFault::None ? !needsFault : mayHaveFault);
    if (!isGood)
    {
        return std::nullopt;
    }
    record.fault = *fault;
    record.errorNumber = static_cast<int>(errorNumber);
    return record;
}

PastInstallation JudgePastInstallation(InstallRecord const& record, std::string_view runningVersion, HelperLife helper)
{
    if (runningVersion != record.fromVersion)
    {
        return PastInstallation::Over;
    }
    switch (record.state)
    {
    case InstallState::Waiting:
        // A person who agreed to an immediate installation waits for the new version.
        return helper == HelperLife::Runs              ? PastInstallation::UnderWay
               : record.wish == InstallWish::Automatic ? PastInstallation::Dropped
                                                       : PastInstallation::Failed;
    case InstallState::Installing:
        return helper == HelperLife::Runs ? PastInstallation::UnderWay : PastInstallation::Failed;
    case InstallState::Failed:
        return PastInstallation::Failed;
    case InstallState::Installed:
        return PastInstallation::Over;
    }
    return PastInstallation::Over;
}

} // namespace Pelnar::Engine
