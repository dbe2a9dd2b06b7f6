#include "Engine/core/update/InstallMemory.h"

#include "Engine/core/base/PathText.h"
#include "Engine/core/check/BackOff.h"
#include "Engine/core/download/ArchiveDownload.h"
#include "Engine/core/faults/EngineError.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/update/InstallAttempt.h"

#include <glog/logging.h>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <memory>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

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
std::string ReadNoteIn(QString const& folder, std::string const& name)
{
    try
    {
        UniqueFd const opened = OpenRecordFolder(folder);
        return opened ? ReadNote(opened.Get(), name) : std::string();
    }
    catch (UpdateRefusal const&)
    {
        return {};
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
    auto record = opened ? ReadInstallRecord(opened.Get(), m_name) : std::nullopt;
    if (!record)
    {
        return;
    }
    auto const life = IsRunning(record->helper) ? HelperLife::Runs : HelperLife::Ended;
    PastInstallation const meaning = JudgePastInstallation(*record, version.toStdString(), life);
    Settle(*std::move(record), meaning);
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
    }
    m_isNews = record.told == FailureTold::No;
    LOG_IF(WARNING, m_isNews) << "The installation of update " << Shown(record.toVersion)
                              << " failed: " << FaultName(record.fault) << " (errno " << record.errorNumber
                              << "), attempt " << record.attempts;
    m_failure = std::move(record);
    if (m_isNews && m_failure->wish == InstallWish::Automatic)
    {
        SetTold(); // no window will tell it
    }
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
    if (m_name.empty() || isTold || ReadNoteIn(m_folder, RollbackName()) == version)
    {
        return;
    }
    LOG(WARNING) << "Update " << Shown(version) << " was rolled back; only a person's check offers it again";
    Keep(RollbackName(), version);
    m_rollback.emplace();
    m_rollback->toVersion = version;
    m_rollback->fault = UpdateFault::NewVersionFailed;
}

bool InstallMemory::IsToBeTold() const
{
    return m_failure && m_failure->wish == InstallWish::Person && m_failure->told == FailureTold::No;
}

void InstallMemory::SetTold()
{
    if (!m_failure || m_failure->told == FailureTold::Yes)
    {
        return;
    }
    m_failure->told = FailureTold::Yes;
    m_failure->attempts > 0 ? Keep(m_name, EncodeInstallRecord(*m_failure)) : Forget();
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

void InstallMemory::Keep(std::string const& name, std::string const& bytes)
{
    m_chores.Run(
        [folder = m_folder, name, bytes]
        {
            try
            {
                WriteNote(OpenPrivateFolder(PathBytes(folder)).Get(), name, bytes);
            }
            catch (UpdateRefusal const& refusal)
            {
                LOG(WARNING) << "The record of an installation could not be written: " << refusal.what();
            }
        });
}

} // namespace Pelnar::Engine
