// UpdatePreparation.h: one archive, verified and unpacked by the helper into a fresh folder beside the bundle.
// Thread: the one that made it, with Qt's event loop. Ownership: owned by its maker; destroying it kills the helper,
// removes the folder, and nothing is called any more.
#pragma once

#include "Engine/core/update/IUpdateParts.h"
#include "Engine/core/update/PreparedUpdate.h"

#include <functional>
#include <memory>
#include <optional>
#include <variant>

namespace Pelnar::Engine
{

class UpdatePreparation
{
public:
    using Outcome = std::variant<std::unique_ptr<PreparedUpdate>, EngineError>;

    explicit UpdatePreparation(IUpdateParts& parts) : m_parts(parts) {}
    ~UpdatePreparation();
    UpdatePreparation(UpdatePreparation const&) = delete;
    UpdatePreparation& operator=(UpdatePreparation const&) = delete;

    /// An error when it could not be begun; then nothing is called. Else both callbacks come from the event loop,
    /// \a finished once and last, and either may destroy this object. REQUIRES: called once.
    [[nodiscard]] std::optional<EngineError> Start(InstallTarget const& target, PrepareJob const& job, UniqueFd archive,
                                                   std::function<void(ProgressReport const&)> progress,
                                                   std::function<void(Outcome)> finished);

private:
    void Take(HelperReport const& report);
    void End(HelperEnd end);

    IUpdateParts& m_parts;
    std::function<void(ProgressReport const&)> m_progress;
    std::function<void(Outcome)> m_finished;
    std::optional<PreparedReport> m_prepared;
    std::optional<RefusedReport> m_refused;
    std::unique_ptr<PreparedUpdate> m_update;
    std::unique_ptr<IHelper> m_helper;
};

} // namespace Pelnar::Engine
