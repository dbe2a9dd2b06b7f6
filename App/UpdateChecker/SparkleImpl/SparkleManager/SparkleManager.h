// SparkleManager.h: the process-wide session that lends the one updater of the framework to one check at a time.
// Thread: the Qt main thread. Ownership: a singleton, made at first use, destroyed at process exit; it shares the
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

    /// True when the caller now holds the session, which uses \a context from here on. False, logged, when another
    /// updater holds it, the framework is still busy, or it raises an exception when it is asked or given the feed's
    /// address. Nothing changes then, nor when an exception leaves here.
    [[nodiscard]] bool LockUpdater(SharedNotNullPtr<SparkleUpdateContext> const& context);
    /// Gives the session back: at once when it is idle, else when the running request ends.
    /// REQUIRES: LockUpdater answered true.
    void UnlockUpdaterWhenPossible();

    // The commands. REQUIRES for each: the caller holds the session. None of them tests this.

    /// Starts an information-only check; the outcome comes through the context's checkFinishedCallback.
    void CheckForUpdates();
    /// Starts the framework's own check with its windows; for a context in background, a background check.
    void ShowUpdateDialog();
    /// Closes the dialog that the session is showing, if any, as if the user had dismissed it.
    void RejectUpdateAndHideDialog();
    /// The framework's setting for downloading found updates without asking.
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
