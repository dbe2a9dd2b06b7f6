// HelperProcess.h: the installer's helper as the host sees it: started with a job and inherited descriptors, heard
// through its report, ended when the host says so.
// Thread: the one that made it, with Qt's event loop. Ownership: owned by its maker. Destroying it kills a helper that
// was not released; nothing is called any more.
#pragma once

#include "Engine/core/delta/TreeAccess.h"
#include "Engine/core/payload/HelperReport.h"
#include "Engine/core/payload/UpdateJob.h"
#include "Engine/core/update/SealedProgram.h"

#include <functional>
#include <memory>

namespace Pelnar::Engine
{

/// What the helper inherits besides job and report; see HelperDescriptors. The host's own copies stay its own.
struct HelperInheritance
{
    int staging = -1;
    int archiveOrParent = -1; ///< prepare: the archive; install, recover: the folder that holds the bundle
    int targetOrHost = -1;    ///< prepare, unless of a whole bundle: the installed one; install: a pidfd of the host
    int records = -1;         ///< install: the folder of the record, if one is kept
    int arguments = -1;       ///< install: the file of the new version's arguments, if a program is started
};

enum class HelperEnd
{
    Done,    ///< exit status 0
    Refused, ///< exit status 1; the last RefusedReport says why
    Crashed, ///< by a signal, by any other exit status, or with a report that cannot be understood
};

class HelperProcess
{
public:
    explicit HelperProcess(std::shared_ptr<SealedProgram> program);
    ~HelperProcess();
    HelperProcess(HelperProcess const&) = delete;
    HelperProcess& operator=(HelperProcess const&) = delete;

    /// Starts the helper with the mode that \a job asks for: the sealed program, an empty environment, the
    /// job in a sealed memory file, nothing else inherited. Both callbacks come later, from the event loop: \a report
    /// for each line, \a ended once and last; either may destroy this object. Throws UpdateRefusal when it cannot be
    /// started; then nothing is called. REQUIRES: called once.
    void Start(UpdateJob const& job, HelperInheritance const& inherited,
               std::function<void(HelperReport const&)> report, std::function<void(HelperEnd)> ended);

    /// From here on the helper lives on when this object or this process goes.
    void Release();
    /// Ends the helper, released or not, and waits for its end. Nothing is called any more. REQUIRES: the last call.
    void Kill();

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

/// A descriptor that can be read from when process \a pid has ended; the caller's own process for 0.
UniqueFd OpenProcess(int pid = 0);

} // namespace Pelnar::Engine
