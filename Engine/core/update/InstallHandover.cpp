#include "Engine/core/update/InstallHandover.h"

#include "Engine/core/faults/EngineError.h"
#include "Engine/core/update/KeptArguments.h"

#include <glog/logging.h>

#include <QCoreApplication>

#include <utility>

namespace Pelnar::Engine
{
namespace
{

/// A helper reports after it has written a small file to the disk.
constexpr std::chrono::seconds MOST_AT_QUIT{2};

} // namespace

Result<void> InstallHandover::Start(InstallTarget const& target, PreparedUpdate& update, int recordsFd, InstallJob job,
                                    std::function<void()> waiting, std::function<void(EngineError const&)> failed)
{
    m_target = &target;
    m_waiting = std::move(waiting);
    m_failed = std::move(failed);
    update.Describe(job);
    try
    {
        UniqueFd const host = OpenProcess();
        UniqueFd const arguments = job.targetPath.empty() ? UniqueFd() : KeptArguments::OfProcess().Share();
        m_helper = m_parts.MakeHelper();
        m_helper->Start(
            job, DescriptorMap(job, {update.Descriptor(), target.parent.Get(), host.Get(), recordsFd, arguments.Get()}),
            [this](HelperReport const& report) { Take(report); }, [this](HelperEnd) { End(); });
    }
    catch (UpdateRefusal const& refusal)
    {
        m_helper.reset();
        return Failure(refusal);
    }
    // Immediately: this process may be killed next.
    m_helper->Release();
    m_update = &update;
    m_update->GiveToHelper();
    // A person who waits for the new version is told by the next start, with a window: now none can be shown.
    if (!job.record || job.record->wish == InstallWish::Automatic)
    {
        QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &m_context,
                         [this] { CatchUp(); });
    }
    return {};
}

void InstallHandover::CatchUp()
{
    if (m_helper)
    {
        m_helper->CatchUp(MOST_AT_QUIT); // may destroy this object
    }
}

void InstallHandover::Cancel()
{
    if (m_helper)
    {
        m_helper->Kill();
        m_helper.reset();
        m_update->TakeBack();
    }
}

void InstallHandover::Take(HelperReport const& report)
{
    if (auto const* const refused = std::get_if<RefusedReport>(&report))
    {
        m_refused = *refused;
        return;
    }
    auto const* const progress = std::get_if<ProgressReport>(&report);
    if (progress && progress->phase == HelperPhase::Waiting && m_waiting)
    {
        // The calls may destroy this object.
        auto const tell = std::exchange(m_waiting, nullptr);
        // The last moment at which a person can be told while the application runs.
        if (Result<void> const verdict = JudgeAgain(*m_target); !verdict)
        {
            Cancel();
            auto const fail = std::move(m_failed);
            fail(verdict.error());
            return;
        }
        tell();
    }
}

void InstallHandover::End()
{
    // A helper that ends while its host runs has installed nothing, even if it reports success.
    LOG(WARNING) << "The helper ended before the application, so the update is not installed";
    m_update->TakeBack();
    auto const tell = std::move(m_failed);
    tell(m_refused ? MakeFaultError(m_refused->fault, m_refused->errorNumber) : MakeError(ErrorCause::HelperFailed));
}

} // namespace Pelnar::Engine
