#include "tests/session/SessionAccess.h"

#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/SparkleUpdateContext.h"
#include "tests/session/SparkleManagerTestAccess.h"

namespace Pelnar::Testing
{
namespace
{

App::SparkleManager::Impl& Impl() { return App::SparkleManagerTestAccess::GetImpl(); }

} // namespace

SessionFields GetFields()
{
    App::SparkleManager::Impl const& impl = Impl();
    return {impl.context,    impl.locked,     impl.unlockRequested, impl.state,
            impl.updateType, impl.extensions, impl.bestItemIsDelta};
}

void SetFields(SessionFields const& fields)
{
    App::SparkleManager::Impl& impl = Impl();
    impl.context = fields.context;
    impl.locked = fields.locked;
    impl.unlockRequested = fields.unlockRequested;
    impl.state = fields.state;
    impl.updateType = fields.updateType;
    impl.extensions = fields.extensions;
    impl.bestItemIsDelta = fields.bestItemIsDelta;
}

void SetState(App::Session::State state) { Impl().state = state; }

bool IsDialogClosable() { return static_cast<bool>(Impl().closeDialog); }

bool SessionSteps::Lock() { return Impl().Lock(); }

void SessionSteps::Unlock() { Impl().Unlock(); }

void SessionSteps::UnlockIfRequested() { Impl().UnlockIfRequested(); }

void SessionSteps::SetState(App::Session::State state) { Impl().SetState(state); }

void SessionSteps::NotifyCheckFinished() { Impl().NotifyCheckFinished(); }

bool SessionSteps::EnsureContext() { return Impl().EnsureContext(); }

bool SessionSteps::EnsureCheckFinishedCallback() { return Impl().EnsureCheckFinishedCallback(); }

bool SessionSteps::EnsureLocalVersion() { return Impl().EnsureLocalVersion(); }

bool SessionSteps::EnsureRemoteVersion() { return Impl().EnsureRemoteVersion(); }

bool SessionSteps::EnsureVersionOperators() { return Impl().EnsureVersionOperators(); }

bool SessionSteps::EnsureRemoteVersionIsGreaterThanLocal() { return Impl().EnsureRemoteVersionIsGreaterThanLocal(); }

} // namespace Pelnar::Testing
