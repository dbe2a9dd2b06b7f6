// InstallHandover.h: hands a prepared update to the helper, which installs it after this process has ended in any way.
// Thread: its maker's, with Qt's event loop. Ownership: its maker owns it. Destroying it lets the helper continue; no
// callback follows.
#pragma once

#include "Engine/core/update/IUpdateEnvironment.h"
#include "Engine/core/update/PreparedUpdate.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace Pelnar::Engine
{

class InstallHandover
{
public:
    explicit InstallHandover(IUpdateEnvironment& parts) : m_parts(parts) {}

    /// Starts the helper with \a job. \a update completes the job and then belongs to the helper. The job's record is
    /// in the folder \a recordsFd. Fails if this is impossible; then no callback follows and \a update stays
    /// the caller's. Otherwise \a waiting comes once the helper waits for the end of this process and the bundle is
    /// still in its place, and \a failed, once and last, if the bundle has changed or the helper ends before this
    /// process. Either may destroy this object. REQUIRES: called once; \a target and \a update outlive this object.
    [[nodiscard]] Result<void> Start(InstallTarget const& target, PreparedUpdate& update, int recordsFd, InstallJob job,
                                     std::function<void()> waiting, std::function<void(EngineError const&)> failed);

    /// Ends the waiting helper. The update belongs to the caller again, and no callback follows. Without a helper it
    /// does nothing.
    void Cancel();

private:
    void Take(HelperReport const& report);
    void End();
    /// The application quits, so the event loop has ended: takes the helper's reports and its end. Waits a short time
    /// for a helper that has not reported yet.
    void CatchUp();

    IUpdateEnvironment& m_parts;
    InstallTarget const* m_target = nullptr;
    PreparedUpdate* m_update = nullptr;
    std::function<void()> m_waiting;
    std::function<void(EngineError const&)> m_failed;
    std::optional<RefusedReport> m_refused;
    std::unique_ptr<IHelper> m_helper;
    QObject m_context;
};

} // namespace Pelnar::Engine
