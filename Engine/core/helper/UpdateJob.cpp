#include "Engine/core/helper/UpdateJob.h"

#include "Engine/core/base/FieldCodec.h"

#include <algorithm>
#include <array>

namespace Pelnar::Engine
{
namespace
{

constexpr std::string_view MAGIC = "PELNARJ2";
constexpr std::uint64_t MAX_WAIT_SECONDS = 24 * 60 * 60;
constexpr std::uint64_t MAX_CREATION_MASK = 0777;
constexpr auto LAST_PAYLOAD_KIND = PayloadKind::Installer;

/// The fields of each kind of job, after its number.
template <class Codec>
void Visit(Codec& codec, PrepareJob& job, std::vector<std::string>& publicKeys)
{
    codec.Fields(Limited{job.kind, LAST_PAYLOAD_KIND}, job.archiveBytes, job.signature, publicKeys, job.bundleName,
                 job.bundleIdentifier, job.expectedVersion, job.installedVersion);
}

template <class Codec>
void Visit(Codec& codec, InstallJob& job, RawBytes& digest, RawBytes& record)
{
    codec.Fields(Limited{job.kind, LAST_PAYLOAD_KIND}, job.targetName, job.stagingName, job.stagedName, digest,
                 job.bundleIdentifier, job.expectedVersion, job.installedVersion, job.waitSeconds, job.installerSeconds,
                 job.targetPath, job.relaunchPath, job.environment, job.workingFolder, job.creationMask, job.recordName,
                 record);
}

template <class Codec>
void Visit(Codec& codec, RecoverJob& job)
{
    codec.Fields(job.targetName, job.runningVersion, Limited{job.purpose, RecoverPurpose::Confirmation},
                 job.hostProcess);
}

template <class Codec>
void Visit(Codec& codec, RehearseJob& job)
{
    codec.Fields(job.targetName);
}

void Write(FieldWriter& writer, PrepareJob job)
{
    std::vector<std::string> keys = job.publicKeys.Texts();
    Visit(writer, job, keys);
}

void Write(FieldWriter& writer, InstallJob job)
{
    RawBytes digest{std::string(job.digest.begin(), job.digest.end())};
    RawBytes record{job.record ? EncodeInstallRecord(*job.record) : std::string()};
    Visit(writer, job, digest, record);
}

template <class Job>
void Write(FieldWriter& writer, Job job)
{
    Visit(writer, job);
}

bool IsAbsoluteOrEmpty(std::string const& path)
{
    return path.empty() || path.front() == '/';
}

void Read(FieldReader& reader, PrepareJob& job)
{
    std::vector<std::string> keys;
    Visit(reader, job, keys);
    if (keys.size() > TrustedKeys::MOST_KEYS || !IsFileName(job.bundleName) || job.bundleIdentifier.empty() ||
        job.expectedVersion.empty() || job.installedVersion.empty())
    {
        reader.Refuse();
        return;
    }
    job.publicKeys = TrustedKeys(keys);
}

/// True if the fields for the relaunch and for the record are usable.
bool IsUsableAfterwards(InstallJob const& job, RawBytes const& record)
{
    bool const isVariable = std::all_of(job.environment.begin(), job.environment.end(),
                                        [](std::string const& text)
                                        {
                                            std::size_t const place = text.find('=');
                                            return place != std::string::npos && place != 0;
                                        });
    bool const isKept = IsFileName(job.recordName) && job.record;
    bool const isNotKept = job.recordName.empty() && record.bytes.empty();
    return isVariable && IsAbsoluteOrEmpty(job.targetPath) && IsAbsoluteOrEmpty(job.relaunchPath) &&
           !(job.targetPath.empty() && !job.relaunchPath.empty()) && IsAbsoluteOrEmpty(job.workingFolder) &&
           job.creationMask <= MAX_CREATION_MASK && (isKept || isNotKept);
}

void Read(FieldReader& reader, InstallJob& job)
{
    RawBytes digest;
    RawBytes record;
    Visit(reader, job, digest, record);
    job.record = DecodeInstallRecord(record.bytes);
    bool const isInTime =
        job.waitSeconds <= MAX_WAIT_SECONDS && job.installerSeconds > 0 && job.installerSeconds <= MAX_WAIT_SECONDS;
    if (!isInTime || digest.bytes.size() != job.digest.size() || !IsFileName(job.targetName) ||
        !IsFileName(job.stagingName) || !IsFileName(job.stagedName) || job.bundleIdentifier.empty() ||
        job.expectedVersion.empty() || job.installedVersion.empty() || !IsUsableAfterwards(job, record))
    {
        reader.Refuse();
        return;
    }
    std::copy(digest.bytes.begin(), digest.bytes.end(), job.digest.begin());
}

void Read(FieldReader& reader, RecoverJob& job)
{
    Visit(reader, job);
    if (!IsFileName(job.targetName) || job.runningVersion.empty())
    {
        reader.Refuse();
    }
}

void Read(FieldReader& reader, RehearseJob& job)
{
    Visit(reader, job);
    if (!IsFileName(job.targetName))
    {
        reader.Refuse();
    }
}

} // namespace

std::string EncodeUpdateJob(UpdateJob const& job)
{
    FieldWriter writer(MAGIC);
    writer.Number(job.index() + 1);
    std::visit([&writer](auto const& kind) { Write(writer, kind); }, job);
    return writer.Finish();
}

std::optional<UpdateJob> DecodeUpdateJob(std::string_view bytes)
{
    if (bytes.size() > UPDATE_JOB_MAX_BYTES)
    {
        return std::nullopt;
    }
    FieldReader reader(bytes, MAGIC);
    std::array<UpdateJob, std::variant_size_v<UpdateJob>> kinds{PrepareJob(), InstallJob(), RecoverJob(),
                                                                RehearseJob()};
    std::uint64_t const number = reader.Number();
    if (number < 1 || number > kinds.size())
    {
        return std::nullopt;
    }
    UpdateJob& job = kinds[number - 1];
    std::visit([&reader](auto& kind) { Read(reader, kind); }, job);
    return reader.IsWhole() ? std::optional(std::move(job)) : std::nullopt;
}

} // namespace Pelnar::Engine
