#include "Engine/core/update/InstallMemory.h"

#include "Engine/core/base/PathText.h"
#include "Engine/core/base/TreeWalk.h"
#include "Engine/core/bundle/CheckBundle.h"
#include "Engine/core/check/BackOff.h"
#include "Engine/core/download/ArchiveDownload.h"
#include "Engine/core/faults/EngineError.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/update/InstallAttempt.h"

#include <glog/logging.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace Pelnar::Engine
{
namespace
{

constexpr mode_t OTHERS_CAN_LOCK = 0077;

QDateTime TimeOf(InstallRecord const& record)
{
    return QDateTime::fromSecsSinceEpoch(static_cast<qint64>(record.secondsSinceEpoch), Qt::UTC);
}

/// The bundle's path without any link; empty if the bundle is missing.
std::string RealPath(QString const& bundlePath)
{
    std::unique_ptr<char, decltype(&::free)> const path(::realpath(PathBytes(bundlePath).c_str(), nullptr), &::free);
    return path ? path.get() : std::string();
}

/// Empty if the note is missing or cannot be read.
std::string BytesOf(int folderFd, std::string const& name)
{
    try
    {
        return ReadNote(folderFd, name);
    }
    catch (UpdateRefusal const& refusal)
    {
        LOG(WARNING) << "The record of the last installation cannot be read: " << refusal.what();
        return {};
    }
}

/// True if the bundle of the application that runs from \a runningPath is no longer at \a path.
bool HasGone(std::string const& path, std::string const& runningPath)
{
    if (path.empty() || path == runningPath)
    {
        return false;
    }
    auto const identifierAt = [](std::string const& bundlePath)
    {
        UniqueFd const bundle = OpenFolder(AT_FDCWD, bundlePath);
        return ReadBundleInformation(bundle.Get(), bundlePath.substr(bundlePath.rfind('/') + 1)).identifier;
    };
    struct stat status;
    if (::lstat(path.c_str(), &status) != 0)
    {
        return errno == ENOENT || errno == ENOTDIR;
    }
    try
    {
        return !S_ISDIR(status.st_mode) || identifierAt(path) != identifierAt(runningPath);
    }
    catch (UpdateRefusal const&)
    {
        return false; // one of them cannot be read
    }
}

void SetInterrupted(InstallRecord& record)
{
    record.state = InstallState::Failed;
    record.fault = UpdateFault::InstallationInterrupted;
}

std::string Shown(std::string const& version)
{
    return EscapedRemoteText(QString::fromStdString(version)).toStdString();
}

} // namespace

bool IsHeldBack(InstallRecord const& failure, QDateTime const& now)
{
    int const attempts = static_cast<int>(std::min<std::uint64_t>(failure.attempts, std::numeric_limits<int>::max()));
    return failure.attempts >= MAX_AUTOMATIC_ATTEMPTS || IsHeldBack(BackOffState{attempts, TimeOf(failure)}, now);
}

InstallMemory::InstallMemory(QString const& folder, QString const& downloads, QString const& bundlePath,
                             QString const& version)
    : m_folder(folder), m_downloads(downloads)
{
    std::string const path = RealPath(bundlePath);
    if (path.empty())
    {
        return;
    }
    m_name = InstallRecordName(path);
    UniqueFd const opened = OpenRecordFolder(folder);
    if (!opened)
    {
        return;
    }
    Take(m_name, BytesOf(opened.Get(), m_name), version.toStdString());
    if (!m_failure)
    {
        TakeStray(opened.Get(), path, version.toStdString());
    }
}

void InstallMemory::Take(std::string name, std::string bytes, std::string const& version)
{
    auto record = DecodeInstallRecord(bytes);
    if (!record)
    {
        return;
    }
    m_failureName = std::move(name);
    m_failureBytes = std::move(bytes);
    auto const life = IsRunning(record->helper) ? HelperLife::Runs : HelperLife::Ended;
    PastInstallation const meaning = JudgePastInstallation(*record, version, life);
    Settle(*std::move(record), meaning);
}

void InstallMemory::TakeStray(int folderFd, std::string const& bundlePath, std::string const& version)
{
    for (std::string const& name : ListFolder(folderFd).value_or(std::vector<std::string>()))
    {
        bool const isRecord = IsInstallRecordName(name) && name != m_name;
        std::string bytes = isRecord ? BytesOf(folderFd, name) : std::string();
        auto const record = DecodeInstallRecord(bytes);
        bool const isStray = record && HasMissedBundle(*record) && record->told == FailureTold::No &&
                             record->toVersion != version && HasGone(record->bundlePath, bundlePath);
        if (isStray)
        {
            m_failureName = name;
            m_failureBytes = std::move(bytes);
            Settle(*record, PastInstallation::Displaced);
            return;
        }
    }
}

void InstallMemory::Settle(InstallRecord record, PastInstallation meaning)
{
    switch (meaning)
    {
    case PastInstallation::UnderWay:
        return;
    case PastInstallation::Over:
        LOG_IF(WARNING, record.state == InstallState::Installed && record.fault != UpdateFault::None)
            << "Update " << Shown(record.toVersion)
            << " was installed, but could not be started: " << FaultName(record.fault) << " (errno "
            << record.errorNumber << ")";
        LOG_IF(WARNING, record.state == InstallState::Installing)
            << "The helper that installed update " << Shown(record.toVersion) << " ended before it reported a result";
        Forget();
        m_chores.Run([folder = m_downloads] { ArchiveDownload::Clear(folder); });
        return;
    case PastInstallation::Dropped:
        SetInterrupted(record);
        --record.attempts; // earlier ones count
        break;
    case PastInstallation::Failed:
        if (record.state != InstallState::Failed)
        {
            SetInterrupted(record);
        }
        break;
    case PastInstallation::Displaced:
        record.attempts = 0;
        break;
    }
    m_isNews = record.told == FailureTold::No;
    m_failure = std::move(record);
    if (m_isNews && m_failure->wish == InstallWish::Automatic)
    {
        m_isNews = ClaimTelling(); // no window will tell it
    }
    LOG_IF(WARNING, m_isNews) << "The installation of update " << Shown(m_failure->toVersion)
                              << " failed: " << FaultName(m_failure->fault) << " (errno " << m_failure->errorNumber
                              << "), attempt " << m_failure->attempts;
}

InstallRecord const* InstallMemory::News() const
{
    return m_isNews ? &*m_failure : m_rollback ? &*m_rollback : nullptr;
}

void InstallMemory::SetHeard()
{
    if (!std::exchange(m_isNews, false))
    {
        m_rollback.reset();
    }
}

std::string InstallMemory::RollbackName() const
{
    return m_name + ".rollback";
}

void InstallMemory::TakeRollback(QString const& failedVersion)
{
    std::string const version = failedVersion.toStdString();
    bool const isTold =
        m_failure && m_failure->toVersion == version && m_failure->fault == UpdateFault::NewVersionFailed;
    if (m_name.empty() || isTold)
    {
        return;
    }
    auto locked = Lock();
    if (!locked || BytesOf(locked->Get(), RollbackName()) == version)
    {
        return;
    }
    LOG(WARNING) << "Update " << Shown(version) << " was rolled back; only a person's check offers it again";
    Keep(RollbackName(), version, std::move(locked));
    m_rollback.emplace();
    m_rollback->toVersion = version;
    m_rollback->fault = UpdateFault::NewVersionFailed;
}

bool InstallMemory::IsToBeTold() const
{
    return m_failure && m_failure->wish == InstallWish::Person && m_failure->told == FailureTold::No;
}

bool InstallMemory::ClaimTelling()
{
    m_failure->told = FailureTold::Yes;
    auto locked = Lock();
    bool const isChanged = locked && *locked && BytesOf(locked->Get(), m_failureName) != m_failureBytes;
    if (!locked || isChanged)
    {
        m_isNews = false; // another process tells it, or has begun another installation
        return false;
    }
    std::string const bytes = m_failure->attempts > 0 ? EncodeInstallRecord(*m_failure) : std::string();
    Keep(m_failureName, bytes, std::move(locked));
    return true;
}

std::shared_ptr<UniqueFd> InstallMemory::Lock()
{
    if (auto held = m_lock.lock()) // by a write that has not ended
    {
        return held;
    }
    auto folder = std::make_shared<UniqueFd>(OpenPrivateFolder(PathBytes(m_folder)));
    struct stat status;
    bool const isOwnAlone = ::fstat(folder->Get(), &status) == 0 && (status.st_mode & OTHERS_CAN_LOCK) == 0;
    bool const isTaken = isOwnAlone && ::flock(folder->Get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    m_lock = folder;
    return isTaken ? nullptr : folder;
}

void InstallMemory::Forget()
{
    m_chores.Run(
        [folder = m_folder, name = m_name, rollback = RollbackName()]
        {
            try
            {
                UniqueFd const opened = OpenRecordFolder(folder);
                RemoveNote(opened.Get(), name);
                RemoveNote(opened.Get(), rollback);
            }
            catch (UpdateRefusal const& refusal)
            {
                LOG(WARNING) << "The record of a completed installation could not be removed: " << refusal.what();
            }
        });
}

void InstallMemory::Keep(std::string const& name, std::string const& bytes, std::shared_ptr<UniqueFd> locked)
{
    m_chores.Run(
        [name, bytes, locked = std::move(locked)]
        {
            try
            {
                bytes.empty() ? RemoveNote(locked->Get(), name) : WriteNote(locked->Get(), name, bytes);
            }
            catch (UpdateRefusal const& refusal)
            {
                LOG(WARNING) << "The record of an installation could not be written: " << refusal.what();
            }
        });
}

} // namespace Pelnar::Engine
