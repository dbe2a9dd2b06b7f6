// UpdateEnvironment.h: the real side effects of an update.
// Thread: the Qt main thread. Ownership: outlives the updates that use it; the caller owns the created objects.
#pragma once

#include "Engine/core/base/DiskChores.h"
#include "Engine/core/base/PathText.h"
#include "Engine/core/update/IUpdateEnvironment.h"

#include <QObject>

namespace Pelnar::Engine
{

class UpdateEnvironment final : public IUpdateEnvironment
{
public:
    /// \a helperProgram is the absolute path of the helper.
    explicit UpdateEnvironment(QString const& helperProgram)
        : m_helperProgram(std::make_shared<SealedProgram>(PathBytes(helperProgram)))
    {
    }

    void OpenTarget(QString const& bundlePath, quint64 neededBytes, std::function<void(OpenedTarget)> opened) override;
    std::unique_ptr<IDownload> MakeDownload(DownloadRequest const& request) override;
    void DiscardDownload(DownloadRequest const& request) override;
    void ClearDownloads(QString const& folder) override;
    std::unique_ptr<IHelper> MakeHelper() override;
    void DiscardUpdate(std::unique_ptr<PreparedUpdate> update) override;
    void DiscardAttempt(std::unique_ptr<InstallAttempt> attempt) override;
    QDateTime Now() override { return QDateTime::currentDateTimeUtc(); }

private:
    std::shared_ptr<SealedProgram> m_helperProgram;
    QObject m_context; ///< pending events of the event loop end with it
    DiskChores m_chores;
};

} // namespace Pelnar::Engine
