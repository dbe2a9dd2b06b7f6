// UpdateParts.h: what an update does to the world, for real.
// Thread: the Qt main thread. Ownership: outlives the updates that use it; what it makes is its caller's.
#pragma once

#include "Engine/core/update/IUpdateParts.h"

namespace Pelnar::Engine
{

class UpdateParts final : public IUpdateParts
{
public:
    /// \a helperProgram is the absolute path of the helper.
    explicit UpdateParts(QString helperProgram) : m_helperProgram(std::move(helperProgram)) {}

    std::variant<InstallTarget, EngineError> OpenTarget(QString const& bundlePath, quint64 neededBytes) override;
    std::unique_ptr<IDownload> MakeDownload(DownloadRequest const& request) override;
    void DiscardDownload(DownloadRequest const& request) override { ArchiveDownload::Discard(request); }
    std::unique_ptr<IHelper> MakeHelper() override;
    QDateTime Now() override { return QDateTime::currentDateTimeUtc(); }

private:
    QString m_helperProgram;
};

} // namespace Pelnar::Engine
