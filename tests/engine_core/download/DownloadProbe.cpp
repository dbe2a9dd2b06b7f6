// DownloadProbe.cpp: downloads one archive and prints what came of it, for tests that look at a process from outside.
// Usage: download_probe URL LENGTH FOLDER
//        download_probe --checkpoints FOLDER   writes three pieces of an archive, each with a checkpoint
#include "Engine/core/download/ArchiveDownload.h"
#include "Engine/core/download/PartialFile.h"

#include <QCoreApplication>

#include <cstdio>
#include <thread>

#include <sys/resource.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;

long PeakKibibytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

[[nodiscard]] bool WriteWithCheckpoints(QString const& folder)
{
    constexpr std::uint64_t PIECE_BYTES = 1000;
    PartialFile file(PlaceOf(folder, QUrl(), 3 * PIECE_BYTES, QString()));
    ByteBuffer const piece(PIECE_BYTES, 7);
    bool isGood = !file.Open() && !file.Restart({"\"one\"", {}});
    for (int number = 0; isGood && number < 3; ++number)
    {
        isGood = !file.Append({piece.data(), piece.size()}) && !file.SyncBytes() && !file.StageRecord() &&
                 !file.SyncRecord() && !file.PublishRecord() && !file.SyncFolder();
    }
    return isGood;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QStringList const arguments = QCoreApplication::arguments();
    // Whoever traces the calls of this program waits for this one.
    if (chdir("/") != 0)
    {
        return 1;
    }
    if (arguments.value(1) == QLatin1String("--checkpoints"))
    {
        bool isGood = false;
        std::thread([&] { isGood = WriteWithCheckpoints(arguments.value(2)); }).join();
        return isGood ? 0 : 1;
    }
    DownloadRequest request;
    request.url = QUrl(arguments.value(1));
    request.declaredBytes = arguments.value(2).toULongLong();
    request.signature = QStringLiteral("signature");
    request.folder = arguments.value(3);
    long const before = PeakKibibytes();
    ArchiveDownload download(request);
    download.Start([](DownloadProgress const&) {},
                   [before](DownloadOutcome const& outcome)
                   {
                       std::printf("cause=%d grown=%ld sentence=%s\n",
                                   outcome.error ? static_cast<int>(outcome.error->cause) : 0, PeakKibibytes() - before,
                                   outcome.error ? qPrintable(outcome.error->sentence.English()) : "");
                       QCoreApplication::quit();
                   });
    return QCoreApplication::exec();
}
