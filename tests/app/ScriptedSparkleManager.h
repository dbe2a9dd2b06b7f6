// ScriptedSparkleManager.h: a double of the session. It replaces the session at link time, records its calls and gives
// the answers of the test's script.
// Thread: the Qt main thread. Ownership: the process has one script; a ScriptedSession resets it.
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
    /// Every context that was offered, also the refused ones.
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
