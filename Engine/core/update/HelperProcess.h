// HelperProcess.h: the installer's helper as the host sees it: started with a job and inherited descriptors, observed
// through its report, ended by the host.
// Thread: its maker's, with Qt's event loop. Ownership: its maker owns it. Destroying it kills a helper that was not
// released; no callback follows.
#pragma once

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/helper/HelperReport.h"
#include "Engine/core/helper/UpdateJob.h"
#include "Engine/core/update/SealedProgram.h"

#include <functional>
#include <memory>

namespace Pelnar::Engine
{

/// The descriptors that the helper inherits besides job and report; see HelperDescriptors. The host keeps its own
/// copies.
struct HelperInheritance
{
    int staging = -1;
    int archiveOrParent = -1; ///< prepare: the archive; install, recover: the folder that holds the bundle
    int targetOrHost = -1;    ///< prepare, except for a whole bundle: the installed bundle; install: a pidfd of the
                              ///< host
    int records = -1;         ///< install: the folder of the record, if one is kept
    int arguments = -1;       ///< install: the file of the new version's arguments, if a program is started
};

enum class HelperEnd
{
    Done,    ///< exit status 0
    Refused, ///< exit status 1; the last RefusedReport says why
    Crashed, ///< by a signal, by any other exit status, or with an invalid report
};

class HelperProcess
{
public:
    explicit HelperProcess(std::shared_ptr<SealedProgram> program);
    ~HelperProcess();
    HelperProcess(HelperProcess const&) = delete;
    HelperProcess& operator=(HelperProcess const&) = delete;

    /// Starts the helper with the mode of \a job: the sealed program, an empty environment, the job in a sealed memory
    /// file, and no other inherited descriptor. Both callbacks come later, from the event loop: \a report for each
    /// line, \a ended once and last. Either may destroy this object. Throws UpdateRefusal if the helper cannot be
    /// started; then no callback follows. REQUIRES: called once.
    void Start(UpdateJob const& job, HelperInheritance const& inherited,
               std::function<void(HelperReport const&)> report, std::function<void(HelperEnd)> ended);

    /// From now on the helper survives this object and this process.
    void Release();
    /// Ends the helper, released or not, and waits for its end. No callback follows. REQUIRES: the last call.
    void Kill();

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

/// A descriptor that becomes readable when process \a pid has ended; 0 means the caller's own process.
UniqueFd OpenProcess(int pid = 0);

} // namespace Pelnar::Engine
