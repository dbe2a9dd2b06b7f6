// ScriptedSparkleManager.h: the session's double: it takes the session's place at link time, records what it is asked
// and answers as the test says.
// Thread: the Qt main thread. Ownership: one script for the process; a ScriptedSession resets it while it lives.
#pragma once

#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/SparkleUpdateContext.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Pelnar::Testing
{

class ScriptedSession
{
public:
    ScriptedSession();
    ~ScriptedSession();
    ScriptedSession(ScriptedSession const&) = delete;
    ScriptedSession& operator=(ScriptedSession const&) = delete;

    /// The session ends a check: stores \a remote in the context last lent and tells its updater.
    void FinishCheck(Core::Version const& remote);
    /// How often \a operation was called.
    int Count(std::string const& operation) const;

    /// The operations called, by name, in order.
    std::vector<std::string> calls;
    /// Every context offered, granted or not.
    std::vector<std::shared_ptr<App::SparkleUpdateContext>> contexts;
    bool grantsLock = true;
    // Called by the operation of that name, after it was recorded; may throw.
    std::function<void()> onLock;
    std::function<void()> onCheck;
    std::function<void()> onShowDialog;
    std::function<void()> onReject;
    std::function<void()> onUnlock;
};

} // namespace Pelnar::Testing
