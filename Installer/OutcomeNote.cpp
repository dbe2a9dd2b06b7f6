#include "Installer/OutcomeNote.h"

#include "Engine/core/helper/NoteFile.h"

#include <ctime>
#include <exception>
#include <utility>

namespace Pelnar::Installer
{

using Engine::InstallState;
using Engine::UpdateFault;
using Engine::UpdateRefusal;

OutcomeNote::OutcomeNote(Engine::InstallJob const& job, int recordsFd)
    : m_job(job), m_recordsFd(recordsFd), m_name(job.recordName), m_record(job.record.value_or(Engine::InstallRecord()))
{
}

void OutcomeNote::Begin()
{
    m_record.helper = Engine::MarkOfThisProcess();
    try
    {
        Write(InstallState::Waiting);
    }
    catch (UpdateRefusal const& refusal)
    {
        if (refusal.Fault() == UpdateFault::NotPermitted) // whose sentence is about the application's folder
        {
            throw UpdateRefusal(UpdateFault::RecordFolderUnusable, refusal.ErrorNumber());
        }
        throw;
    }
}

void OutcomeNote::Drop()
{
    if (!m_job.record || m_record.wish == Engine::InstallWish::Person)
    {
        return;
    }
    if (m_record.attempts > 1)
    {
        --m_record.attempts;
        m_record.told = Engine::FailureTold::Yes;
        Fail(UpdateFault::InstallationInterrupted, 0);
        return;
    }
    Remove(m_name);
}

void OutcomeNote::Follow(std::string const& bundlePath)
{
    std::string name = Engine::InstallRecordName(bundlePath);
    if (name != m_name)
    {
        m_formerName = std::exchange(m_name, std::move(name));
        m_record.bundlePath = bundlePath;
    }
}

void OutcomeNote::EnterInstallation()
{
    TryToWrite(InstallState::Installing);
}

void OutcomeNote::Fail(UpdateFault fault, int errorNumber)
{
    TryToWrite(InstallState::Failed, fault, errorNumber);
}

void OutcomeNote::Succeed()
{
    TryToWrite(InstallState::Installed);
}

void OutcomeNote::FailStart(UpdateFault fault, int errorNumber)
{
    TryToWrite(InstallState::Installed, fault, errorNumber);
}

void OutcomeNote::Write(InstallState state)
{
    if (m_job.record)
    {
        m_record.state = state;
        m_record.secondsSinceEpoch = static_cast<std::uint64_t>(std::time(nullptr));
        Engine::WriteNote(m_recordsFd, m_name, Engine::EncodeInstallRecord(m_record));
        if (!m_formerName.empty())
        {
            Remove(std::exchange(m_formerName, {}));
        }
    }
}

void OutcomeNote::Remove(std::string const& name) const
{
    try
    {
        Engine::RemoveNote(m_recordsFd, name);
    }
    catch (UpdateRefusal const&) // the next start reads what is left
    {
    }
}

void OutcomeNote::TryToWrite(InstallState state, UpdateFault fault, int errorNumber)
{
    m_record.fault = fault;
    m_record.errorNumber = errorNumber;
    try
    {
        Write(state);
    }
    catch (std::exception const&) // as above; memory may have run out too
    {
    }
}

} // namespace Pelnar::Installer
