// DownloadBench.cpp: the time to download an archive from a server on this computer to a file, compared with the
// program curl and the same server, and the memory that it takes. The times are wall-clock times. The files are in
// memory if the system has a folder for that, so that no disk is measured. TMPDIR names another folder.

#include "Engine/core/download/ArchiveDownload.h"
#include "bench/MeteredApplication.h"
#include "bench/ProcessMemory.h"
#include "bench/Ratios.h"
#include "tests/support/FileServer.h"
#include "tests/support/TestCertificates.h"

#include <benchmark/benchmark.h>

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <vector>

namespace
{

using namespace Pelnar::Engine;
using Pelnar::Testing::FileServer;

enum class Transport
{
    Plain,
    Secure,
};

constexpr quint64 ARCHIVE_BYTES = quint64{256} << 20;
constexpr double MOST_GROWTH_MEBIBYTES = 4;
constexpr double MOST_STALL_MILLISECONDS = 16;
constexpr double MOST_OF_CURLS_TIME = 1.05;

QString FolderForFiles()
{
    QString const memory = QStringLiteral("/dev/shm");
    return !qEnvironmentVariableIsSet("TMPDIR") && QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
}

/// A file whose bytes do not repeat early.
void MakeArchive(QString const& path)
{
    QFile file(path);
    std::vector<quint32> piece((1 << 20) / sizeof(quint32));
    qint64 const bytes = qint64(piece.size() * sizeof(quint32));
    quint32 number = 1;
    bool isGood = file.open(QIODevice::WriteOnly);
    for (quint64 done = 0; isGood && done < ARCHIVE_BYTES; done += quint64(bytes))
    {
        std::generate(piece.begin(), piece.end(), [&number] { return number = number * 1664525 + 1013904223; });
        isGood = file.write(reinterpret_cast<char const*>(piece.data()), bytes) == bytes;
    }
    if (!isGood || !file.setPermissions(file.permissions() | QFile::ReadOther))
    {
        qFatal("no space for the archive");
    }
}

/// One server for the whole run, with all that the measured parts need.
struct Scene
{
    Scene()
    {
        static_cast<void>(certificates.Signed("127.0.0.1"));
        MakeArchive(served.filePath(QStringLiteral("archive.zip")));
        plain = std::make_unique<FileServer>(QStringList{served.path()});
        secure = std::make_unique<FileServer>(QStringList{served.path(), QStringLiteral("--tls"),
                                                          certificates.CertificateFile(), certificates.KeyFile()});
    }

    int argumentCount = 1;
    char name[6] = "bench";
    char* arguments[2] = {name, nullptr};
    Pelnar::Bench::MeteredApplication application{argumentCount, arguments};
    QTemporaryDir folder{FolderForFiles() + QStringLiteral("/pelnar-bench-XXXXXX")};
    QTemporaryDir served{FolderForFiles() + QStringLiteral("/pelnar-served-XXXXXX")};
    Pelnar::Testing::TestCertificates certificates;
    Pelnar::Testing::TrustedAuthority trusted{certificates.Authority()};
    std::unique_ptr<FileServer> plain;
    std::unique_ptr<FileServer> secure;
};

Scene& TheScene()
{
    static Scene scene;
    return scene;
}

QUrl ArchiveAt(Transport transport)
{
    FileServer const& server = transport == Transport::Plain ? *TheScene().plain : *TheScene().secure;
    return server.Url(QStringLiteral("/archive.zip"));
}

DownloadRequest RequestFor(Transport transport)
{
    DownloadRequest request;
    request.url = ArchiveAt(transport);
    request.declaredBytes = ARCHIVE_BYTES;
    request.feedReach = AddressReach::ThisComputer;
    request.purpose = DownloadFor::Person;
    request.folder = TheScene().folder.filePath(QStringLiteral("updates"));
    return request;
}

DownloadOutcome RunDownload(DownloadRequest const& request)
{
    QEventLoop loop;
    DownloadOutcome outcome;
    ArchiveDownload download(request);
    download.Start([](DownloadProgress const&) {},
                   [&](DownloadOutcome told)
                   {
                       outcome = std::move(told);
                       loop.quit();
                   });
    loop.exec();
    return outcome;
}

/// An application that downloads has already fetched the feed. So libraries that the first connection loads do not
/// count.
void ConnectOnce(DownloadRequest request)
{
    request.declaredBytes = 1;
    RunDownload(request);
}

void Download(benchmark::State& state, Transport transport)
{
    DownloadRequest const request = RequestFor(transport);
    ConnectOnce(request);
    double growth = 0;
    double stall = 0;
    for (auto _ : state)
    {
        (void)_;
        Pelnar::Bench::ForgetPeak();
        long const before = Pelnar::Bench::KibibytesOf("VmRSS:");
        TheScene().application.Restart();
        QElapsedTimer clock;
        clock.start();
        DownloadOutcome const outcome = RunDownload(request);
        state.SetIterationTime(static_cast<double>(clock.nsecsElapsed()) / 1e9);
        growth = std::max(growth, static_cast<double>(Pelnar::Bench::KibibytesOf("VmHWM:") - before) / 1024);
        stall = std::max(stall, TheScene().application.LongestStallMilliseconds());
        static_cast<void>(ArchiveDownload::Discard(request));
        if (!outcome)
        {
            state.SkipWithError(qPrintable(outcome.error().sentence.English()));
            return;
        }
    }
    state.SetBytesProcessed(state.iterations() * static_cast<qint64>(ARCHIVE_BYTES));
    state.counters["growth_MiB"] = growth;
    state.counters["limit_MiB"] = MOST_GROWTH_MEBIBYTES;
    state.counters["stall_ms"] = stall;
    if (growth > MOST_GROWTH_MEBIBYTES)
    {
        state.SkipWithError("the download takes more than 4 MiB of memory");
    }
    if (stall > MOST_STALL_MILLISECONDS)
    {
        state.SkipWithError("the download holds the event loop up for more than 16 ms");
    }
}

void DownloadByCurl(benchmark::State& state, Transport transport)
{
    QString const file = TheScene().folder.filePath(QStringLiteral("curl"));
    QStringList const arguments{QStringLiteral("--silent"),
                                QStringLiteral("--fail"),
                                QStringLiteral("--cacert"),
                                TheScene().certificates.AuthorityFile(),
                                QStringLiteral("--http1.1"),
                                QStringLiteral("--output"),
                                file,
                                ArchiveAt(transport).toString()};
    for (auto _ : state)
    {
        (void)_;
        QElapsedTimer clock;
        clock.start();
        int const status = QProcess::execute(QStringLiteral("curl"), arguments);
        state.SetIterationTime(static_cast<double>(clock.nsecsElapsed()) / 1e9);
        bool const isWhole = QFile(file).size() == static_cast<qint64>(ARCHIVE_BYTES);
        QFile::remove(file);
        if (status != 0 || !isWhole)
        {
            state.SkipWithError("curl did not bring the archive");
            return;
        }
    }
    state.SetBytesProcessed(state.iterations() * static_cast<qint64>(ARCHIVE_BYTES));
}

BENCHMARK_CAPTURE(Download, http, Transport::Plain)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(DownloadByCurl, http, Transport::Plain)
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Download, https, Transport::Secure)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(DownloadByCurl, https, Transport::Secure)
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

Pelnar::Bench::StatedRatio const PLAIN_RATIO("Download/http/iterations:1/manual_time",
                                             "DownloadByCurl/http/iterations:1/manual_time", MOST_OF_CURLS_TIME);
Pelnar::Bench::StatedRatio const SECURE_RATIO("Download/https/iterations:1/manual_time",
                                              "DownloadByCurl/https/iterations:1/manual_time", MOST_OF_CURLS_TIME);

} // namespace
