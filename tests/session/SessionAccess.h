// SessionAccess.h: the session's private fields and steps for tests. Plain C++.
// Thread: the Qt main thread. Every function acts on the process's one session.
#pragma once

#include "App/UpdateChecker/SparkleImpl/Choice/SessionState.h"
#include "App/UpdateChecker/SparkleImpl/Choice/UpdateType.h"

#include <QVariantMap>

#include <memory>

namespace Pelnar::App
{
struct SparkleUpdateContext;
}

namespace Pelnar::Testing
{

/// The fields. Writing them logs nothing.
struct SessionFields
{
    std::shared_ptr<App::SparkleUpdateContext> context;
    bool locked = false;
    bool unlockRequested = false;
    App::Session::State state = App::Session::State::WAITING;
    App::Session::UpdateType updateType = App::Session::UpdateType::UNKNOWN;
    QVariantMap extensions;
    bool bestItemIsDelta = false;
};
SessionFields GetFields();
void SetFields(SessionFields const& fields);
void SetState(App::Session::State state);
/// True while the session holds a function that closes a dialog.
[[nodiscard]] bool IsDialogClosable();

/// The private steps, by their own names.
struct SessionSteps
{
    [[nodiscard]] static bool Lock();
    static void Unlock();
    static void UnlockIfRequested();
    static void SetState(App::Session::State state);
    static void NotifyCheckFinished();
    [[nodiscard]] static bool EnsureContext();
    [[nodiscard]] static bool EnsureCheckFinishedCallback();
    [[nodiscard]] static bool EnsureLocalVersion();
    [[nodiscard]] static bool EnsureRemoteVersion();
    [[nodiscard]] static bool EnsureVersionOperators();
    [[nodiscard]] static bool EnsureRemoteVersionIsGreaterThanLocal();
};

} // namespace Pelnar::Testing
