#include "Engine/core/update/InstallMemory.h"

#include "Engine/core/base/PathText.h"
#include "Engine/core/check/BackOff.h"
#include "Engine/core/download/ArchiveDownload.h"
#include "Engine/core/faults/EngineError.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/update/InstallAttempt.h"
#include "Engine/core/update/InstallTarget.h"

#include <glog/logging.h>

#include <QDir>

#include <algorithm>
#include <limits>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

QDateTime TimeOf(InstallRecord const& record)
{
    return QDateTime::fromSecsSinceEpoch(static_cast<qint64>(record.secondsSinceEpoch), Qt::UTC);
}

/// True if a person has not seen it, and the bundle was no longer in its place.
bool IsToBeToldElsewhere(InstallRecord const& record)
{
    bool const hasLeft = record.fault == UpdateFault::TargetMissing || record.fault == UpdateFault::TargetChanged;
    return hasLeft && record.state == InstallState::Failed && record.wish == InstallWish::Person &&
           record.told == FailureTold::No;
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
    UniqueFd const opened = OpenRecordFolder(folder);
    if (!opened)
    {
        return;
    }
    OpenedTarget const target = OpenInstalledBundle(bundlePath);
    m_name = target ? InstallRecordName(target->path) : std::string();
    auto record = target ? ReadInstallRecord(opened.Get(), m_name) : std::nullopt;
    if (!record)
    {
        FindMoved(opened.Get(), version.toStdString());
        return;
    }
    auto const life = IsRunning(record->helper) ? HelperLife::Runs : HelperLife::Ended;
    PastInstallation const meaning = JudgePastInstallation(*record, version.toStdString(), life);
    Settle(*std::move(record), meaning);
}

void InstallMemory::FindMoved(int recordsFd, std::string const& version)
{
    for (QString const& name :
         QDir(PathForQt(recordsFd, m_folder)).entryList({QStringLiteral("*.installation")}, QDir::Files))
    {
        auto record = ReadInstallRecord(recordsFd, PathBytes(name));
        if (record && record->fromVersion == version && IsToBeToldElsewhere(*record))
        {
            m_name = PathBytes(name);
            m_isOfMoved = true;
            Settle(*std::move(record), PastInstallation::Failed);
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
        Forget();
        m_chores.Run([folder = m_downloads] { ArchiveDownload::Clear(folder); });
        return;
    case PastInstallation::Dropped:
        // This was not an attempt, but earlier ones count.
        if (--record.attempts == 0)
        {
            Forget();
            return;
        }
        SetInterrupted(record);
        record.told = FailureTold::Yes;
        Keep(record);
        break;
    case PastInstallation::Failed:
        if (record.state != InstallState::Failed)
        {
            SetInterrupted(record);
        }
        break;
    }
    LOG_IF(WARNING, record.told == FailureTold::No)
        << "The installation of update " << Shown(record.toVersion) << " failed: " << FaultName(record.fault)
        << " (errno " << record.errorNumber << "), attempt " << record.attempts;
    m_failure = std::move(record);
}

bool InstallMemory::IsToBeTold() const
{
    return m_failure && m_failure->wish == InstallWish::Person && m_failure->told == FailureTold::No;
}

void InstallMemory::SetTold()
{
    if (!m_failure)
    {
        return;
    }
    m_failure->told = FailureTold::Yes;
    if (m_isOfMoved)
    {
        Forget(); // the attempts from this place have their own record
        return;
    }
    Keep(*m_failure);
}

void InstallMemory::Forget()
{
    m_chores.Run(
        [folder = m_folder, name = m_name]
        {
            try
            {
                RemoveNote(OpenRecordFolder(folder).Get(), name);
            }
            catch (UpdateRefusal const& refusal)
            {
                LOG(WARNING) << "The record of a completed installation could not be removed: " << refusal.what();
            }
        });
}

void InstallMemory::Keep(InstallRecord const& record)
{
    m_chores.Run(
        [folder = m_folder, name = m_name, bytes = EncodeInstallRecord(record)]
        {
            try
            {
                WriteNote(OpenRecordFolder(folder).Get(), name, bytes);
            }
            catch (UpdateRefusal const& refusal)
            {
                LOG(WARNING) << "The record of an installation could not be written: " << refusal.what();
            }
        });
}

} // namespace Pelnar::Engine
