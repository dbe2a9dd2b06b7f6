// UpdateHost.cpp: a host that downloads and prepares one update, and ends when the helper waits for that. It prints the
// memory that it took in addition to its idle memory, in KiB, and the longest event of its event loop, in milliseconds.
// Arguments: the archive's address, length and signature, the public key, the installed bundle, its identifier, a
// folder for downloads.

#include "Engine/core/update/InstallAttempt.h"
#include "Engine/core/update/InstallHandover.h"
#include "Engine/core/update/UpdateEnvironment.h"
#include "Engine/core/update/UpdatePreparation.h"
#include "bench/MeteredApplication.h"
#include "bench/ProcessMemory.h"

#include <QStringList>

#include <cstdio>

namespace
{

using namespace Pelnar::Engine;

class Host
{
public:
    explicit Host(QStringList const& words)
        : m_request(RequestOf(words))
        , m_key(words.at(4).toStdString())
        , m_identifier(words.at(6).toStdString())
        , m_bundlePath(words.at(5))
    {
    }

    void Start()
    {
        m_parts.OpenTarget(m_bundlePath, m_request.declaredBytes,
                           [this](OpenedTarget opened) { Download(std::move(opened)); });
    }

private:
    void Download(OpenedTarget opened)
    {
        FailOn(opened);
        m_target = *std::move(opened);
        m_download = m_parts.MakeDownload(m_request);
        m_download->Start([](DownloadProgress const&) {}, [this](DownloadOutcome outcome) { Prepare(outcome); });
    }

    static DownloadRequest RequestOf(QStringList const& words)
    {
        DownloadRequest request;
        request.url = QUrl(words.at(1));
        request.declaredBytes = words.at(2).toULongLong();
        request.signature = words.at(3);
        request.feedReach = AddressReach::ThisComputer;
        request.folder = words.at(7);
        return request;
    }

    void Prepare(DownloadOutcome& downloaded)
    {
        FailOn(downloaded);
        PrepareJob job;
        job.archiveBytes = m_request.declaredBytes;
        job.signature = m_request.signature.toStdString();
        job.publicKeys = {m_key};
        job.bundleName = m_target.name;
        job.bundleIdentifier = m_identifier;
        job.expectedVersion = "2.0";
        job.installedVersion = "1.0";
        FailOn(m_preparation.Start(
            m_target, job, *std::move(downloaded), [](ProgressReport const&) {},
            [this](UpdatePreparation::Outcome outcome) { Install(outcome); }));
    }

    void Install(UpdatePreparation::Outcome& outcome)
    {
        FailOn(outcome);
        m_update = *std::move(outcome);
        InstallJob job;
        job.targetName = m_target.name;
        job.bundleIdentifier = m_identifier;
        job.expectedVersion = "2.0";
        job.installedVersion = "1.0";
        job.targetPath = m_target.path.toStdString();
        m_update->Describe(job);
        m_attempt = std::make_unique<InstallAttempt>(m_request.folder, m_target.path);
        FailOn(m_attempt->Begin(job, InstallWish::Person));
        FailOn(m_handover.Start(
            m_target, *m_update, m_attempt->Folder(), job,
            [this]
            {
                m_parts.DiscardDownload(m_request);
                QCoreApplication::quit();
            },
            [](EngineError const& error) { FailOn(error); }));
    }

    template <typename Wanted>
    static void FailOn(Result<Wanted> const& outcome)
    {
        if (!outcome)
        {
            FailOn(outcome.error());
        }
    }

    static void FailOn(EngineError const& error) { qFatal("%s", qPrintable(error.sentence.English())); }

    UpdateEnvironment m_parts{QStringLiteral(PELNAR_INSTALLER_PROGRAM)};
    DownloadRequest m_request;
    std::string m_key;
    std::string m_identifier;
    QString m_bundlePath;
    InstallTarget m_target;
    std::unique_ptr<IDownload> m_download;
    UpdatePreparation m_preparation{m_parts};
    std::unique_ptr<PreparedUpdate> m_update;
    std::unique_ptr<InstallAttempt> m_attempt;
    InstallHandover m_handover{m_parts};
};

} // namespace

int main(int argc, char** argv)
{
    Pelnar::Bench::MeteredApplication const application(argc, argv);
    long const idle = Pelnar::Bench::KibibytesOf("VmRSS:");
    Host host(QCoreApplication::arguments());
    host.Start();
    int const status = QCoreApplication::exec();
    std::printf("%ld %f\n", Pelnar::Bench::KibibytesOf("VmHWM:") - idle, application.LongestStallMilliseconds());
    return status;
}
