// SparkleManager.h: the session of the process. It lends the framework's only updater to one check at a time.
// Thread: the Qt main thread. Ownership: a singleton, created at first use and destroyed at process exit. It shares the
// context of the updater that last took its lock.
#pragma once

#include "common/Export.h"
#include "common/NotNull.h"
#include "common/PropogateConstCreator.h"

#include <memory>

namespace Pelnar::App
{

struct SparkleUpdateContext;

class PELNAR_EXPORT SparkleManager
{
public:
    static SparkleManager& GetInstance();

    /// Returns true if the caller now holds the session. The session then uses \a context. Returns false and logs the
    /// reason if another updater holds the session, if the framework is still busy, or if the framework raises an
    /// exception when it is queried or gets the feed's address. Nothing changes if this returns false or throws.
    [[nodiscard]] bool LockUpdater(SharedNotNullPtr<SparkleUpdateContext> const& context);
    /// Releases the session: immediately if it is idle, otherwise when the running request ends. REQUIRES: LockUpdater
    /// returned true.
    void UnlockUpdaterWhenPossible();

    // The commands. REQUIRES for each: the caller holds the session. No command checks this.

    /// Starts an information-only check. The context's checkFinishedCallback reports the result.
    void CheckForUpdates();
    /// Starts the framework's own check with its windows. For a context in the background it starts a background check.
    void ShowUpdateDialog();
    /// Closes the dialog of the session, as if the user had dismissed it. Without a dialog it does nothing.
    void RejectUpdateAndHideDialog();
    /// The framework's setting for downloading found updates without a question.
    bool AutomaticallyDownloadsUpdates() const;
    void SetAutomaticallyDownloadsUpdates(bool enabled);

    class PELNAR_PRIVATE Impl;

private:
    friend class SparkleManagerTestAccess;

    SparkleManager();
    ~SparkleManager();
    SparkleManager(SparkleManager const&) = delete;
    SparkleManager& operator=(SparkleManager const&) = delete;

    details::PropogateConstCreator<std::unique_ptr<Impl>>::type m_impl;
};

} // namespace Pelnar::App
