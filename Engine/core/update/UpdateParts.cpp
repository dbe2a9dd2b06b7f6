#include "Engine/core/update/UpdateParts.h"

#include <utility>

namespace Pelnar::Engine
{
namespace
{

class Download final : public IDownload
{
public:
    explicit Download(DownloadRequest const& request) : m_download(request) {}

    void Start(std::function<void(DownloadProgress const&)> progress,
               std::function<void(DownloadOutcome)> finished) override
    {
        m_download.Start(std::move(progress), std::move(finished));
    }

private:
    ArchiveDownload m_download;
};

class Helper final : public IHelper
{
public:
    explicit Helper(QString const& program) : m_process(program) {}

    void Start(UpdateJob const& job, HelperInheritance const& inherited,
               std::function<void(HelperReport const&)> report, std::function<void(HelperEnd)> ended) override
    {
        m_process.Start(job, inherited, std::move(report), std::move(ended));
    }
    void Release() override { m_process.Release(); }
    void Kill() override { m_process.Kill(); }

private:
    HelperProcess m_process;
};

} // namespace

std::variant<InstallTarget, EngineError> UpdateParts::OpenTarget(QString const& bundlePath, quint64 neededBytes)
{
    return OpenInstallTarget(bundlePath, neededBytes, PackageSources::OfThisProcess());
}

std::unique_ptr<IDownload> UpdateParts::MakeDownload(DownloadRequest const& request)
{
    return std::make_unique<Download>(request);
}

std::unique_ptr<IHelper> UpdateParts::MakeHelper()
{
    return std::make_unique<Helper>(m_helperProgram);
}

} // namespace Pelnar::Engine
