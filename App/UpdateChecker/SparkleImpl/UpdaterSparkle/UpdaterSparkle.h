// UpdaterSparkle.h: the back end over the session: takes its lock, checks, shows the dialog, gives it back.
// Thread: the Qt main thread. Ownership: owned by the flow controller; shares its context with the session.
#pragma once

#include "App/UpdateChecker/AbstractUpdaterImpl.h"
#include "common/NotNull.h"

#include <memory>

namespace Pelnar::App
{

class ICustomizationManager;
class ILinksManager;

class PELNAR_EXPORT UpdaterSparkle : public AbstractUpdaterImpl
{
    Q_OBJECT

public:
    /// Asks the session for its lock; a refusal is no error, the operations then answer without the session. A session
    /// that has to be loaded first is asked when it is, and a check waits for that; one that cannot be loaded counts as
    /// a check that fails.
    /// \a inBackground is true for a check that the user did not ask for. Throws std::logic_error when \a customization
    /// is null.
    UpdaterSparkle(std::shared_ptr<ICustomizationManager> const& customization,
                   NotNull<std::shared_ptr<ILinksManager>> const& links, bool inBackground);
    /// Gives the session back, if this object holds it, and makes its context's callback inert.
    ~UpdaterSparkle() override;

    void CheckForUpdates() override;
    Core::Version GetRemoteVersion() const override;
    void ExecUpdateDialog(std::function<QWidget*()> const& parentGetter) override;
    void RejectUpdateAndHideDialog() override;

private:
    class PELNAR_PRIVATE Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Pelnar::App
