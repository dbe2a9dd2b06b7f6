#include "Engine/core/helper/UpdateJob.h"

#include "Engine/core/base/FieldCodec.h"

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

constexpr std::string_view MAGIC = "PELNARJ2";
constexpr std::uint64_t MAX_WAIT_SECONDS = 24 * 60 * 60;
constexpr std::uint64_t MAX_CREATION_MASK = 0777;
constexpr auto LAST_PAYLOAD_KIND = static_cast<std::uint64_t>(PayloadKind::Installer);

enum class JobKind : std::uint64_t
{
    Prepare = 1,
    Install = 2,
    Recover = 3,
    Rehearse = 4,
};

void Write(FieldWriter& writer, PrepareJob const& job)
{
    writer.Number(static_cast<std::uint64_t>(JobKind::Prepare));
    writer.Number(static_cast<std::uint64_t>(job.kind));
    writer.Number(job.archiveBytes);
    writer.Text(job.signature);
    writer.Texts(job.publicKeys.Texts());
    writer.Text(job.bundleName);
    writer.Text(job.bundleIdentifier);
    writer.Text(job.expectedVersion);
    writer.Text(job.installedVersion);
}

void Write(FieldWriter& writer, InstallJob const& job)
{
    writer.Number(static_cast<std::uint64_t>(JobKind::Install));
    writer.Number(static_cast<std::uint64_t>(job.kind));
    writer.Text(job.targetName);
    writer.Text(job.stagingName);
    writer.Text(job.stagedName);
    writer.Text(std::string_view(reinterpret_cast<char const*>(job.digest.data()), job.digest.size()));
    writer.Text(job.bundleIdentifier);
    writer.Text(job.expectedVersion);
    writer.Text(job.installedVersion);
    writer.Number(job.waitSeconds);
    writer.Number(job.installerSeconds);
    writer.Text(job.targetPath);
    writer.Text(job.relaunchPath);
    writer.Texts(job.environment);
    writer.Text(job.workingFolder);
    writer.Number(job.creationMask);
    writer.Text(job.recordName);
    writer.Text(job.record ? EncodeInstallRecord(*job.record) : std::string());
}

void Write(FieldWriter& writer, RecoverJob const& job)
{
    writer.Number(static_cast<std::uint64_t>(JobKind::Recover));
    writer.Text(job.targetName);
    writer.Text(job.runningVersion);
    writer.Number(static_cast<std::uint64_t>(job.purpose));
    writer.Number(job.hostProcess);
}

void Write(FieldWriter& writer, RehearseJob const& job)
{
    writer.Number(static_cast<std::uint64_t>(JobKind::Rehearse));
    writer.Text(job.targetName);
}

bool IsName(std::string const& text)
{
    return !text.empty() && text != "." && text != ".." && text.find('/') == std::string::npos;
}

bool IsAbsoluteOrEmpty(std::string const& path)
{
    return path.empty() || path.front() == '/';
}

PrepareJob ReadPrepare(FieldReader& reader)
{
    PrepareJob job;
    std::uint64_t const kind = reader.Number();
    job.kind = static_cast<PayloadKind>(kind);
    job.archiveBytes = reader.Number();
    job.signature = reader.Text();
    std::vector<std::string> const keys = reader.Texts();
    job.publicKeys = keys.size() <= TrustedKeys::MOST_KEYS ? TrustedKeys(keys) : TrustedKeys();
    job.bundleName = reader.Text();
    job.bundleIdentifier = reader.Text();
    job.expectedVersion = reader.Text();
    job.installedVersion = reader.Text();
    if (kind > LAST_PAYLOAD_KIND || keys.size() > TrustedKeys::MOST_KEYS || !IsName(job.bundleName) ||
        job.bundleIdentifier.empty() || job.expectedVersion.empty() || job.installedVersion.empty())
    {
        reader.Refuse();
    }
    return job;
}

/// The fields about the program to start and the record to keep.
void ReadAfterwards(FieldReader& reader, InstallJob& job)
{
    job.targetPath = reader.Text();
    job.relaunchPath = reader.Text();
    job.environment = reader.Texts();
    job.workingFolder = reader.Text();
    job.creationMask = reader.Number();
    job.recordName = reader.Text();
    std::string const record = reader.Blob();
    job.record = DecodeInstallRecord(record);
    bool const isVariable = std::all_of(job.environment.begin(), job.environment.end(),
                                        [](std::string const& text)
                                        {
                                            std::size_t const place = text.find('=');
                                            return place != std::string::npos && place != 0;
                                        });
    bool const isKept = IsName(job.recordName) && job.record;
    bool const isNotKept = job.recordName.empty() && record.empty();
    if (!isVariable || !IsAbsoluteOrEmpty(job.targetPath) || !IsAbsoluteOrEmpty(job.relaunchPath) ||
        (job.targetPath.empty() && !job.relaunchPath.empty()) || !IsAbsoluteOrEmpty(job.workingFolder) ||
        job.creationMask > MAX_CREATION_MASK || !(isKept || isNotKept))
    {
        reader.Refuse();
    }
}

InstallJob ReadInstall(FieldReader& reader)
{
    InstallJob job;
    std::uint64_t const kind = reader.Number();
    job.kind = static_cast<PayloadKind>(kind);
    job.targetName = reader.Text();
    job.stagingName = reader.Text();
    job.stagedName = reader.Text();
    std::string const digest = reader.Blob();
    job.bundleIdentifier = reader.Text();
    job.expectedVersion = reader.Text();
    job.installedVersion = reader.Text();
    job.waitSeconds = reader.Number();
    job.installerSeconds = reader.Number();
    ReadAfterwards(reader, job);
    bool const isInTime =
        job.waitSeconds <= MAX_WAIT_SECONDS && job.installerSeconds > 0 && job.installerSeconds <= MAX_WAIT_SECONDS;
    if (kind > LAST_PAYLOAD_KIND || !isInTime || digest.size() != job.digest.size() || !IsName(job.targetName) ||
        !IsName(job.stagingName) || !IsName(job.stagedName) || job.bundleIdentifier.empty() ||
        job.expectedVersion.empty() || job.installedVersion.empty())
    {
        reader.Refuse();
        return job;
    }
    std::copy(digest.begin(), digest.end(), job.digest.begin());
    return job;
}

RecoverJob ReadRecover(FieldReader& reader)
{
    RecoverJob job;
    job.targetName = reader.Text();
    job.runningVersion = reader.Text();
    std::uint64_t const purpose = reader.Number();
    job.purpose = static_cast<RecoverPurpose>(purpose);
    job.hostProcess = reader.Number();
    if (!IsName(job.targetName) || job.runningVersion.empty() ||
        purpose > static_cast<std::uint64_t>(RecoverPurpose::Confirmation))
    {
        reader.Refuse();
    }
    return job;
}

RehearseJob ReadRehearse(FieldReader& reader)
{
    RehearseJob job{reader.Text()};
    if (!IsName(job.targetName))
    {
        reader.Refuse();
    }
    return job;
}

} // namespace

std::string EncodeUpdateJob(UpdateJob const& job)
{
    FieldWriter writer(MAGIC);
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
    std::optional<UpdateJob> job;
    switch (static_cast<JobKind>(reader.Number()))
    {
    case JobKind::Prepare:
        job = ReadPrepare(reader);
        break;
    case JobKind::Install:
        job = ReadInstall(reader);
        break;
    case JobKind::Recover:
        job = ReadRecover(reader);
        break;
    case JobKind::Rehearse:
        job = ReadRehearse(reader);
        break;
    }
    return job && reader.IsWhole() ? job : std::nullopt;
}

} // namespace Pelnar::Engine
