// UpdatePreparation.h: the helper verifies one archive and unpacks it into a fresh folder next to the bundle.
// Thread: its maker's, with Qt's event loop. Ownership: its maker owns it. Destroying it kills the helper and removes
// the folder; no callback follows.
#pragma once

#include "Engine/core/update/IUpdateEnvironment.h"
#include "Engine/core/update/PreparedUpdate.h"

#include <functional>
#include <memory>
#include <optional>

namespace Pelnar::Engine
{

class UpdatePreparation
{
public:
    using Outcome = Result<std::unique_ptr<PreparedUpdate>>;

    explicit UpdatePreparation(IUpdateEnvironment& parts) : m_parts(parts) {}
    ~UpdatePreparation();
    UpdatePreparation(UpdatePreparation const&) = delete;
    UpdatePreparation& operator=(UpdatePreparation const&) = delete;

    /// Fails if it cannot begin; then no callback follows. Otherwise both callbacks come from the event
    /// loop, \a finished once and last. Either may destroy this object. REQUIRES: called once.
    [[nodiscard]] Result<void> Start(InstallTarget const& target, PrepareJob const& job, UniqueFd archive,
                                     std::function<void(ProgressReport const&)> progress,
                                     std::function<void(Outcome)> finished);

private:
    void Take(HelperReport const& report);
    void End(HelperEnd end);

    IUpdateEnvironment& m_parts;
    std::function<void(ProgressReport const&)> m_progress;
    std::function<void(Outcome)> m_finished;
    std::optional<PreparedReport> m_prepared;
    std::optional<RefusedReport> m_refused;
    std::unique_ptr<PreparedUpdate> m_update;
    std::unique_ptr<IHelper> m_helper;
};

} // namespace Pelnar::Engine
