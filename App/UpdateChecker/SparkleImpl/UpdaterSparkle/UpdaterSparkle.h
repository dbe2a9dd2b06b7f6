// UpdaterSparkle.h: the back end that uses the session: it takes the session's lock, checks, shows the dialog and
// releases the lock.
// Thread: the Qt main thread. Ownership: the flow controller owns it; it shares its context with the session.
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
    /// Requests the session's lock. A refusal is not an error: the operations then work without the session. If the
    /// session's library must be loaded first, the lock is requested after loading, and a check waits for that. If the
    /// library cannot be loaded, the check fails. \a inBackground is true for a check that the user did not request.
    /// Throws std::logic_error if \a customization is null.
    UpdaterSparkle(std::shared_ptr<ICustomizationManager> const& customization,
                   NotNull<std::shared_ptr<ILinksManager>> const& links, bool inBackground);
    /// Releases the session if this object holds it, and disables its context's callback.
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
