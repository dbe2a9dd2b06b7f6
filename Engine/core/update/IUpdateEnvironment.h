// IUpdateEnvironment.h: the side effects of an update, one operation each, so that tests can run an update without a
// server, a helper or a clock. Thread: the Qt main thread. Ownership: outlives the updates that use it; the caller owns
// the created objects.
#pragma once

#include "Engine/core/download/ArchiveDownload.h"
#include "Engine/core/update/HelperProcess.h"
#include "Engine/core/update/InstallAttempt.h"
#include "Engine/core/update/InstallTarget.h"
#include "Engine/core/update/PreparedUpdate.h"

#include <QDateTime>
#include <QString>

#include <functional>
#include <memory>

namespace Pelnar::Engine
{

class IUpdateEnvironment
{
public:
    virtual ~IUpdateEnvironment() = default;
    /// Like OpenInstallTarget. The result comes from the event loop, unless these parts are destroyed by then. It is
    /// also an error if the helper cannot be used.
    virtual void OpenTarget(QString const& bundlePath, quint64 neededBytes,
                            std::function<void(OpenedTarget)> opened) = 0;
    virtual std::unique_ptr<IDownload> MakeDownload(DownloadRequest const& request) = 0;
    /// Like ArchiveDownload::Discard.
    virtual void DiscardDownload(DownloadRequest const& request) = 0;
    /// Like ArchiveDownload::Clear, without waiting.
    virtual void ClearDownloads(QString const& folder) = 0;
    virtual std::unique_ptr<IHelper> MakeHelper() = 0;
    /// Destroys \a update, without waiting.
    virtual void DiscardUpdate(std::unique_ptr<PreparedUpdate> update) = 0;
    /// Takes back \a attempt, without waiting.
    virtual void DiscardAttempt(std::unique_ptr<InstallAttempt> attempt) = 0;
    virtual QDateTime Now() = 0;
};

} // namespace Pelnar::Engine
