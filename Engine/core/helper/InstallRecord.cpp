#include "Engine/core/helper/InstallRecord.h"

#include "Engine/core/base/ContentHasher.h"
#include "Engine/core/base/FieldCodec.h"

namespace Pelnar::Engine
{
namespace
{

constexpr std::string_view MAGIC = "PELNARI1";
constexpr std::size_t NAME_BYTES = 16;
constexpr std::string_view NAME_END = ".installation";
constexpr std::uint64_t MAX_ERROR_NUMBER = 4095; // the kernel's largest

template <class Codec>
void Visit(Codec& codec, InstallRecord& record, std::string& fault, std::uint64_t& errorNumber)
{
    codec.Fields(record.fromVersion, record.toVersion, Limited{record.wish, InstallWish::Person}, record.attempts,
                 Limited{record.state, InstallState::Installed}, record.secondsSinceEpoch, record.helper.number,
                 record.helper.startTime, fault, errorNumber, Limited{record.told, FailureTold::Yes},
                 record.bundlePath);
}

} // namespace

std::string InstallRecordName(std::string const& bundlePath)
{
    return Hexadecimal(Bytes(HashOf(View(bundlePath)).data(), NAME_BYTES)).append(NAME_END);
}

bool IsInstallRecordName(std::string_view name)
{
    return name.size() == 2 * NAME_BYTES + NAME_END.size() && name.substr(2 * NAME_BYTES) == NAME_END;
}

std::string EncodeInstallRecord(InstallRecord record)
{
    FieldWriter writer(MAGIC);
    std::string fault(FaultName(record.fault));
    auto errorNumber = static_cast<std::uint64_t>(record.errorNumber);
    Visit(writer, record, fault, errorNumber);
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
    std::string faultName;
    std::uint64_t errorNumber = 0;
    Visit(reader, record, faultName, errorNumber);
    auto const fault = FaultFromName(faultName);
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

bool HasMissedBundle(InstallRecord const& record)
{
    return record.state == InstallState::Failed &&
           (record.fault == UpdateFault::TargetMissing || record.fault == UpdateFault::TargetChanged);
}

PastInstallation JudgePastInstallation(InstallRecord const& record, std::string_view runningVersion, HelperLife helper)
{
    if (runningVersion != record.fromVersion)
    {
        bool const isToBeTold = HasMissedBundle(record) && record.told == FailureTold::No;
        return isToBeTold && runningVersion != record.toVersion ? PastInstallation::Displaced : PastInstallation::Over;
    }
    switch (record.state)
    {
    case InstallState::Waiting:
        // A helper that the end of the session ends removes its record, unless a person waits for the new version.
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
