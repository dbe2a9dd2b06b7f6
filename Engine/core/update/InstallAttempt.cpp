#include "Engine/core/update/InstallAttempt.h"

#include "Engine/core/base/PathText.h"
#include "Engine/core/helper/NoteFile.h"

#include <glog/logging.h>

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

UniqueFd MakeRecordFolder(QString const& path)
{
    UniqueFd folder = OpenPrivateFolder(PathBytes(path));
    if (!folder || ::faccessat(folder.Get(), ".", W_OK | X_OK, AT_EACCESS) != 0)
    {
        throw UpdateRefusal(FaultUnlessLimit(errno, UpdateFault::RecordFolderUnusable), errno);
    }
    return folder;
}

} // namespace

UniqueFd OpenRecordFolder(QString const& path)
{
    return OpenOwnFolder(PathBytes(path));
}

std::optional<InstallRecord> ReadInstallRecord(int folderFd, std::string const& name)
{
    try
    {
        return DecodeInstallRecord(ReadNote(folderFd, name));
    }
    catch (UpdateRefusal const& refusal)
    {
        LOG(WARNING) << "The record of the last installation cannot be read: " << refusal.what();
        return std::nullopt;
    }
}

InstallAttempt::InstallAttempt(QString const& folder, QString const& bundlePath)
    : m_folder(MakeRecordFolder(folder))
    , m_bundlePath(PathBytes(bundlePath))
    , m_name(InstallRecordName(m_bundlePath))
    , m_before(ReadInstallRecord(m_folder.Get(), m_name))
{
}

Result<std::unique_ptr<InstallAttempt>> InstallAttempt::Make(QString const& folder, QString const& bundlePath)
{
    try
    {
        return std::make_unique<InstallAttempt>(folder, bundlePath);
    }
    catch (UpdateRefusal const& refusal)
    {
        return Failure(refusal);
    }
}

Result<void> InstallAttempt::Begin(InstallJob& job, InstallWish wish) const
{
    InstallRecord record;
    record.fromVersion = job.installedVersion;
    record.toVersion = job.expectedVersion;
    record.wish = wish;
    record.bundlePath = m_bundlePath;
    bool const isAgain =
        m_before && m_before->fromVersion == record.fromVersion && m_before->toVersion == record.toVersion;
    record.attempts = isAgain ? std::max(m_before->attempts, m_before->attempts + 1) : 1; // never fewer because of one
                                                                                          // more attempt
    job.recordName = m_name;
    job.record = record;
    record.helper = MarkOfThisProcess();
    record.secondsSinceEpoch = static_cast<std::uint64_t>(std::time(nullptr));
    try
    {
        // The helper writes it again, and waits for the disk.
        WriteNote(m_folder.Get(), m_name, EncodeInstallRecord(record), NoteSync::None);
        return {};
    }
    catch (UpdateRefusal const& refusal)
    {
        return Failure(refusal);
    }
}

void InstallAttempt::TakeBack()
{
    try
    {
        if (m_before)
        {
            WriteNote(m_folder.Get(), m_name, EncodeInstallRecord(*m_before));
        }
        else
        {
            RemoveNote(m_folder.Get(), m_name);
        }
    }
    catch (UpdateRefusal const& refusal)
    {
        LOG(WARNING) << "The record of a cancelled installation could not be removed: " << refusal.what();
    }
}

} // namespace Pelnar::Engine
