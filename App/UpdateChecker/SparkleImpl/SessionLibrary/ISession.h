// ISession.h: the session as the back end uses it, independent of the library that contains it.
// Thread: the Qt main thread. Ownership: its library owns the session, which lives as long as the process.
#pragma once

#include "common/NotNull.h"

namespace Pelnar::App
{

struct SparkleUpdateContext;

/// The operations of SparkleManager that a back end calls, with the same contracts.
class ISession
{
public:
    [[nodiscard]] virtual bool LockUpdater(SharedNotNullPtr<SparkleUpdateContext> const& context) = 0;
    virtual void UnlockUpdaterWhenPossible() = 0;
    virtual void CheckForUpdates() = 0;
    virtual void ShowUpdateDialog() = 0;
    virtual void RejectUpdateAndHideDialog() = 0;

protected:
    ~ISession() = default;
};

} // namespace Pelnar::App
