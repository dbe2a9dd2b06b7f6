#include "Engine/core/update/GoodStart.h"

#include "Engine/core/base/PathText.h"
#include "Engine/core/helper/StagingFolder.h"
#include "Engine/core/update/HelperProcess.h"
#include "Engine/core/update/InstallTarget.h"

#include <glog/logging.h>

#include <QMetaObject>

#include <variant>

#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

/// One helper and its reports so far.
class Recovery : public QObject
{
public:
    Recovery(QString const& helperProgram, QObject& owner, std::function<void(StartOutcome const&)> done)
        : QObject(&owner), m_helper(std::make_shared<SealedProgram>(PathBytes(helperProgram))), m_done(std::move(done))
    {
    }

    /// Throws UpdateRefusal.
    void Start(RecoverJob const& job, int parentFd)
    {
        m_helper.Start(
            job, DescriptorMap(job, {parentFd}), [this](HelperReport const& report) { Take(report); },
            [this](HelperEnd end) { Finish(end); });
        // A host that ends immediately, well or not, has started in any case.
        m_helper.Release();
    }

    /// Answers from the event loop, as a helper would.
    void AnswerLater()
    {
        QMetaObject::invokeMethod(
            this, [this] { Finish(HelperEnd::Done); }, Qt::QueuedConnection);
    }

private:
    void Take(HelperReport const& report)
    {
        if (auto const* const recovered = std::get_if<RecoveredReport>(&report))
        {
            m_outcome.action = recovered->action;
        }
        else if (auto const* const failed = std::get_if<FailedVersionReport>(&report))
        {
            m_outcome.failedVersion = QString::fromStdString(failed->version);
        }
        else if (auto const* const refused = std::get_if<RefusedReport>(&report))
        {
            LOG(WARNING) << "The recovery of an update was refused: " << FaultName(refused->fault) << " (errno "
                         << refused->errorNumber << ")";
        }
    }

    void Finish(HelperEnd end)
    {
        LOG_IF(WARNING, end == HelperEnd::Crashed) << "The recovery of an update crashed";
        LOG_IF(WARNING, m_outcome.action == RecoveryAction::RolledBack)
            << "This version was started too often without a confirmation; the previous one was restored";
        deleteLater();
        auto const done = std::move(m_done);
        done(m_outcome); // may destroy this object's owner
    }

    HelperProcess m_helper;
    std::function<void(StartOutcome const&)> m_done;
    StartOutcome m_outcome;
};

void Recover(RecoverPurpose purpose, StartedApplication const& application, QObject& owner,
             std::function<void(StartOutcome const&)> done)
{
    auto* const recovery = new Recovery(application.helperProgram, owner, std::move(done)); // owned by owner
    OpenedTarget const bundle = OpenInstalledBundle(application.bundlePath);
    if (!bundle || !HasUpdateFiles(bundle->parent.Get(), bundle->name))
    {
        recovery->AnswerLater(); // the usual case, which needs no process
        return;
    }
    try
    {
        recovery->Start(
            {bundle->name, application.version.toStdString(), purpose, static_cast<std::uint64_t>(::getpid())},
            bundle->parent.Get());
    }
    catch (UpdateRefusal const& refusal)
    {
        LOG(WARNING) << "The recovery of an update was not started: " << refusal.what();
        recovery->AnswerLater();
    }
}

} // namespace

bool HasUnfinishedUpdate(QString const& bundlePath)
{
    OpenedTarget const bundle = OpenInstalledBundle(bundlePath);
    return bundle && HasUpdateFiles(bundle->parent.Get(), bundle->name);
}

void RecoverAtStart(StartedApplication const& application, QObject& owner,
                    std::function<void(StartOutcome const&)> done)
{
    Recover(RecoverPurpose::Start, application, owner, std::move(done));
}

void ConfirmGoodStart(StartedApplication const& application, QObject& owner,
                      std::function<void(StartOutcome const&)> done)
{
    Recover(RecoverPurpose::Confirmation, application, owner, std::move(done));
}

} // namespace Pelnar::Engine
