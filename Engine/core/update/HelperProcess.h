// HelperProcess.h: the installer's helper as the host sees it: started with a job and inherited descriptors, observed
// through its report, ended by the host.
// Thread: its maker's, with Qt's event loop. Ownership: its maker owns it. Destroying it kills a helper that was not
// released; no callback follows.
#pragma once

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/helper/HelperReport.h"
#include "Engine/core/helper/UpdateJob.h"
#include "Engine/core/update/SealedProgram.h"

#include <chrono>
#include <functional>
#include <map>
#include <memory>

namespace Pelnar::Engine
{

enum class HelperEnd
{
    Done,    ///< exit status 0
    Refused, ///< exit status 1; the last RefusedReport says why
    Crashed, ///< by a signal, by any other exit status, or with an invalid report
};

/// The descriptors that a job needs, by their numbers in the helper. The host keeps its own copies.
std::map<int, int> DescriptorMap(PrepareJob const& job, PrepareDescriptors const& own);
std::map<int, int> DescriptorMap(InstallJob const& job, InstallDescriptors const& own);
std::map<int, int> DescriptorMap(RecoverJob const& job, RecoverDescriptors const& own);
std::map<int, int> DescriptorMap(RehearseJob const& job, RehearseDescriptors const& own);

class IHelper
{
public:
    virtual ~IHelper() = default;

    /// Starts the helper with the mode of \a job: the sealed program, an empty environment, the job in a sealed memory
    /// file, and no other descriptor than \a inherited. Both callbacks come later, from the event loop: \a report for
    /// each line, \a ended once and last. Either may destroy this object. Throws UpdateRefusal if the helper cannot be
    /// started; then no callback follows. REQUIRES: called once.
    virtual void Start(UpdateJob const& job, std::map<int, int> const& inherited,
                       std::function<void(HelperReport const&)> report, std::function<void(HelperEnd)> ended) = 0;

    /// Takes the reports and the end that have arrived, without the event loop. If no report has arrived since the
    /// start, waits for the first one, \a most at most. The callbacks come inside this call.
    virtual void CatchUp(std::chrono::milliseconds most) = 0;
    /// From now on the helper survives this object and this process.
    virtual void Release() = 0;
    /// Ends the helper, released or not, and waits for its end. No callback follows. REQUIRES: the last call.
    virtual void Kill() = 0;
};

class HelperProcess final : public IHelper
{
public:
    explicit HelperProcess(std::shared_ptr<SealedProgram> program);
    ~HelperProcess() override;
    HelperProcess(HelperProcess const&) = delete;
    HelperProcess& operator=(HelperProcess const&) = delete;

    void Start(UpdateJob const& job, std::map<int, int> const& inherited,
               std::function<void(HelperReport const&)> report, std::function<void(HelperEnd)> ended) override;
    void CatchUp(std::chrono::milliseconds most) override;
    void Release() override;
    void Kill() override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

/// A descriptor that becomes readable when process \a pid has ended; 0 means the caller's own process.
UniqueFd OpenProcess(int pid = 0);

} // namespace Pelnar::Engine
