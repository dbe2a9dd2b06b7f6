#include "App/UpdateChecker/SparkleImpl/SessionLibrary/LinkedSession_p.h"

#include "App/UpdateChecker/SparkleImpl/SessionLibrary/ISession.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager.h"

namespace Pelnar::App
{
namespace
{

class Session final : public ISession
{
public:
    bool LockUpdater(SharedNotNullPtr<SparkleUpdateContext> const& context) override
    {
        return SparkleManager::GetInstance().LockUpdater(context);
    }
    void UnlockUpdaterWhenPossible() override { SparkleManager::GetInstance().UnlockUpdaterWhenPossible(); }
    void CheckForUpdates() override { SparkleManager::GetInstance().CheckForUpdates(); }
    void ShowUpdateDialog() override { SparkleManager::GetInstance().ShowUpdateDialog(); }
    void RejectUpdateAndHideDialog() override { SparkleManager::GetInstance().RejectUpdateAndHideDialog(); }
};

} // namespace

ISession& LinkedSession()
{
    static Session session;
    return session;
}

} // namespace Pelnar::App
