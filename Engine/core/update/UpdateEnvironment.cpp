#include "Engine/core/update/UpdateEnvironment.h"

#include "Engine/core/base/CallLater.h"
#include "Engine/core/faults/EngineError.h"
#include "Engine/core/update/InstallRehearsal.h"

#include <cerrno>
#include <exception>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

OpenedTarget OpenWithHelper(QString const& bundlePath, quint64 neededBytes, PackageSources const& sources,
                            SealedProgram& helper)
{
    try
    {
        OpenedTarget opened = OpenInstallTarget(bundlePath, neededBytes, sources);
        if (opened)
        {
            if (Result<void> const rehearsed = RehearseInstallation(*opened, helper); !rehearsed)
            {
                return Failure(rehearsed.error());
            }
        }
        return opened;
    }
    catch (std::exception const&) // out of memory; the update waits for an answer
    {
        return Failure(MakeFaultError(UpdateFault::SystemLimitReached, ENOMEM));
    }
}

} // namespace

void UpdateEnvironment::OpenTarget(QString const& bundlePath, quint64 neededBytes,
                                   std::function<void(OpenedTarget)> opened)
{
    m_chores.Run(
        [this, bundlePath, neededBytes, opened, sources = PackageSources::OfThisProcess()]
        {
            auto const target =
                std::make_shared<OpenedTarget>(OpenWithHelper(bundlePath, neededBytes, sources, *m_helperProgram));
            CallLater(m_context, [opened, target] { opened(std::move(*target)); });
        });
}

void UpdateEnvironment::DiscardDownload(DownloadRequest const& request)
{
    // Only the names are removed immediately, so that another download of the same archive does not find them.
    auto const archive = std::make_shared<UniqueFd>(ArchiveDownload::Discard(request));
    m_chores.Run([archive] { *archive = UniqueFd(); });
}

void UpdateEnvironment::ClearDownloads(QString const& folder)
{
    m_chores.Run([folder] { ArchiveDownload::Clear(folder); });
}

std::unique_ptr<IDownload> UpdateEnvironment::MakeDownload(DownloadRequest const& request)
{
    return std::make_unique<ArchiveDownload>(request);
}

std::unique_ptr<IHelper> UpdateEnvironment::MakeHelper()
{
    return std::make_unique<HelperProcess>(m_helperProgram);
}

void UpdateEnvironment::DiscardAttempt(std::unique_ptr<InstallAttempt> attempt)
{
    m_chores.Run([shared = std::shared_ptr<InstallAttempt>(std::move(attempt))] { shared->TakeBack(); });
}

void UpdateEnvironment::DiscardUpdate(std::unique_ptr<PreparedUpdate> update)
{
    m_chores.Run([shared = std::shared_ptr<PreparedUpdate>(std::move(update))]() mutable { shared.reset(); });
}

} // namespace Pelnar::Engine
