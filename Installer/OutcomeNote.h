// OutcomeNote.h: writes the outcome of an installation where the next start of the application reads it, because the
// host has ended. For a job without a record name nothing is written.
// Ownership: the caller owns the job and the folder's descriptor; both outlive it.
#pragma once

#include "Engine/core/helper/UpdateJob.h"

namespace Pelnar::Installer
{

class OutcomeNote
{
public:
    OutcomeNote(Engine::InstallJob const& job, int recordsFd);

    /// This process waits. Throws UpdateRefusal: without a record no installation begins.
    void Begin();

    /// The session ends while this process waits. An automatic installation counts as never begun. A person who waits
    /// for the new version is told by the next start.
    void Drop();
    /// The bundle has been moved to \a bundlePath: its next start looks for the record of that place.
    void Follow(std::string const& bundlePath);

    // From now on no process can be told that a record cannot be written. The previous record stays; it says that this
    // process did not reach its end.
    void EnterInstallation();
    void Fail(Engine::UpdateFault fault, int errorNumber);
    void Succeed();
    /// The installed version could not be started.
    void FailStart(Engine::UpdateFault fault, int errorNumber);

private:
    void Write(Engine::InstallState state);
    void Remove(std::string const& name) const;
    void TryToWrite(Engine::InstallState state, Engine::UpdateFault fault = Engine::UpdateFault::None,
                    int errorNumber = 0);

    Engine::InstallJob const& m_job;
    int m_recordsFd;
    std::string m_name;
    std::string m_formerName; ///< to be removed once the record has its new name
    Engine::InstallRecord m_record;
};

} // namespace Pelnar::Installer
