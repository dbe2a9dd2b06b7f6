#include "tests/app/ScriptedSparkleManager.h"

#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager.h"

#include <algorithm>
#include <stdexcept>

namespace Pelnar::Testing
{
namespace
{

ScriptedSession* s_session = nullptr;

void Record(char const* operation, std::function<void()> ScriptedSession::*hook)
{
    if (!s_session)
    {
        throw std::logic_error("the session is used outside of a test's script");
    }
    s_session->calls.emplace_back(operation);
    if (s_session->*hook)
    {
        (s_session->*hook)();
    }
}

} // namespace

ScriptedSession::ScriptedSession()
{
    s_session = this;
}

ScriptedSession::~ScriptedSession()
{
    s_session = nullptr;
}

void ScriptedSession::FinishCheck(Core::Version const& remote)
{
    contexts.back()->remoteVersion = remote;
    contexts.back()->checkFinishedCallback();
}

int ScriptedSession::Count(std::string const& operation) const
{
    return static_cast<int>(std::count(calls.begin(), calls.end(), operation));
}

} // namespace Pelnar::Testing

namespace Pelnar::App
{

using Testing::Record;
using Testing::s_session;
using Testing::ScriptedSession;

class SparkleManager::Impl
{
public:
    bool automaticallyDownloads = false;
};

SparkleManager::SparkleManager() : m_impl(details::PropogateConstCreator<std::unique_ptr<Impl>>::Create()) {}

SparkleManager::~SparkleManager() = default;

SparkleManager& SparkleManager::GetInstance()
{
    static SparkleManager instance;
    return instance;
}

bool SparkleManager::LockUpdater(SharedNotNullPtr<SparkleUpdateContext> const& context)
{
    s_session->contexts.push_back(context.Get());
    Record("LockUpdater", &ScriptedSession::onLock);
    return s_session->grantsLock;
}

void SparkleManager::UnlockUpdaterWhenPossible()
{
    Record("UnlockUpdaterWhenPossible", &ScriptedSession::onUnlock);
}

void SparkleManager::CheckForUpdates()
{
    Record("CheckForUpdates", &ScriptedSession::onCheck);
}

void SparkleManager::ShowUpdateDialog()
{
    Record("ShowUpdateDialog", &ScriptedSession::onShowDialog);
}

void SparkleManager::RejectUpdateAndHideDialog()
{
    Record("RejectUpdateAndHideDialog", &ScriptedSession::onReject);
}

bool SparkleManager::AutomaticallyDownloadsUpdates() const
{
    return m_impl->automaticallyDownloads;
}

void SparkleManager::SetAutomaticallyDownloadsUpdates(bool enabled)
{
    m_impl->automaticallyDownloads = enabled;
}

} // namespace Pelnar::App
