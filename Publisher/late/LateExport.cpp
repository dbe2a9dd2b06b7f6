// LateExport.cpp: the functions that the late library offers to the tool.

#include "Publisher/late/LatePart.h"
#include "Publisher/late/ZstdTar.h"

#include <QEventLoop>

#include <utility>

namespace Pelnar::Publisher
{
namespace
{

Engine::FetchOutcome FetchFeed(QUrl const& address)
{
    // Deliberate: plain http is allowed here, because lint reports it. Only the feed's clients would be at risk.
    Engine::FeedFetcher fetcher(Engine::FetchLimits(), Engine::InsecureHttp::Anywhere);
    Engine::FetchOutcome outcome;
    QEventLoop loop;
    fetcher.Start(address,
                  [&](Engine::FetchOutcome fetched)
                  {
                      outcome = std::move(fetched);
                      loop.quit();
                  });
    loop.exec();
    return outcome;
}

Engine::DownloadOutcome Download(Engine::DownloadRequest const& request,
                                 std::function<void(Engine::DownloadProgress const&)> const& progress)
{
    Engine::ArchiveDownload archive(request);
    Engine::DownloadOutcome outcome;
    QEventLoop loop;
    archive.Start(progress,
                  [&](Engine::DownloadOutcome finished)
                  {
                      outcome = std::move(finished);
                      loop.quit();
                  });
    loop.exec();
    return outcome;
}

} // namespace
} // namespace Pelnar::Publisher

Pelnar::Publisher::LatePart const pelnarAppcastLate{PELNAR_VERSION, &Pelnar::Publisher::FetchFeed,
                                                    &Pelnar::Publisher::Download, &Pelnar::Publisher::Serve,
                                                    &Pelnar::Publisher::WriteZstdTar};
