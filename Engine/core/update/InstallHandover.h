// InstallHandover.h: a prepared update in the hands of the helper that installs it once this process has ended,
// however it ends.
// Thread: the one that made it, with Qt's event loop. Ownership: owned by its maker. Destroying it leaves the helper to
// its work; nothing is called any more.
#pragma once

#include "Engine/core/update/IUpdateParts.h"
#include "Engine/core/update/PreparedUpdate.h"

#include <functional>
#include <memory>
#include <optional>

namespace Pelnar::Engine
{

class InstallHandover
{
public:
    explicit InstallHandover(IUpdateParts& parts) : m_parts(parts) {}

    /// Starts the helper with \a job, which \a update completes and becomes the helper's, and whose record stands in
    /// the folder \a recordsFd. An error when that is not
    /// possible; then nothing is called, and \a update stays the caller's. Else \a waiting comes once the helper waits
    /// for the end of this process, and \a failed once and last if the helper ends before this process does; either may
    /// destroy this object. REQUIRES: called once; \a update outlives this object.
    [[nodiscard]] std::optional<EngineError> Start(InstallTarget const& target, PreparedUpdate& update, int recordsFd,
                                                   InstallJob job, std::function<void()> waiting,
                                                   std::function<void(EngineError const&)> failed);

    /// Ends the helper, which still waits; the update is the caller's again and nothing is called any more. Nothing
    /// happens when there is none.
    void Cancel();

private:
    void Take(HelperReport const& report);
    void End();

    IUpdateParts& m_parts;
    PreparedUpdate* m_update = nullptr;
    std::function<void()> m_waiting;
    std::function<void(EngineError const&)> m_failed;
    std::optional<RefusedReport> m_refused;
    std::unique_ptr<IHelper> m_helper;
};

} // namespace Pelnar::Engine
