// OutcomeNote.h: how an installation ends, written where the next start of the application reads it: anyone who asked
// may be gone by then. Nothing is kept for a job that names no record. Thread: the process' only one. Ownership: the
// job and the folder's descriptor stay the caller's, which outlive it.
#pragma once

#include "Engine/core/payload/UpdateJob.h"

namespace Pelnar::Installer
{

class OutcomeNote
{
public:
    OutcomeNote(Engine::InstallJob const& job, int recordsFd);

    /// This process waits. Throws UpdateRefusal: without a record nothing is begun.
    void Begin();

    // From here on nobody is there to hear of a record that cannot be written. The one before it stays, which says that
    // this process has not come to an end.
    void EnterInstallation();
    void Fail(Engine::UpdateFault fault, int errorNumber);
    void Succeed();
    /// What was installed could not be started.
    void FailStart(Engine::UpdateFault fault, int errorNumber);

private:
    void Write(Engine::InstallState state);
    void TryToWrite(Engine::InstallState state, Engine::UpdateFault fault = Engine::UpdateFault::None,
                    int errorNumber = 0);

    Engine::InstallJob const& m_job;
    int m_recordsFd;
    Engine::InstallRecord m_record;
};

} // namespace Pelnar::Installer
