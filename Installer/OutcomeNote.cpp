#include "Installer/OutcomeNote.h"

#include "Engine/core/helper/NoteFile.h"

#include <ctime>
#include <exception>

namespace Pelnar::Installer
{

using Engine::InstallState;
using Engine::UpdateFault;
using Engine::UpdateRefusal;

OutcomeNote::OutcomeNote(Engine::InstallJob const& job, int recordsFd)
    : m_job(job), m_recordsFd(recordsFd), m_record(job.record.value_or(Engine::InstallRecord()))
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
        Engine::WriteNote(m_recordsFd, m_job.recordName, Engine::EncodeInstallRecord(m_record));
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
