// DownloadProbe.cpp: downloads one archive and prints what came of it, for tests that look at a process from outside.
// Usage: download_probe URL LENGTH FOLDER
//        download_probe --checkpoints FOLDER   writes three pieces of an archive, each with a checkpoint
#include "Engine/core/download/ArchiveDownload.h"
#include "Engine/core/download/ArchiveWriter.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstring>
#include <utility>

#include <sys/resource.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;

constexpr int PIECE_BYTES = 1000;

long PeakKibibytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

void Print(EngineError const* error, long grownKibibytes)
{
    std::printf("cause=%d grown=%ld sentence=%s detail=%s\n", error ? static_cast<int>(error->cause) : 0,
                grownKibibytes, error ? qPrintable(error->sentence.English()) : "",
                error ? qPrintable(error->detail) : "");
}

/// Passes one piece on and makes it durable.
void Put(ArchiveWriter& writer, DownloadSpending const& spent)
{
    BodyBuffer const room = writer.Buffer();
    std::memset(room.data, 7, PIECE_BYTES);
    writer.Commit(PIECE_BYTES);
    writer.Checkpoint(spent);
}

int WriteWithCheckpoints(QString const& folder)
{
    bool isOpen = false;
    ArchiveWriterEvents events;
    events.opened = [&isOpen](PartialArchive const&, DownloadSpending const&)
    {
        isOpen = true;
        QCoreApplication::quit();
    };
    events.roomMade = [] {};
    events.finished = [](UniqueFd) {};
    events.failed = [](EngineError const& error)
    {
        Print(&error, 0);
        QCoreApplication::exit(1);
    };
    ArchiveWriter writer(PlaceOf(folder, QUrl(), 3 * PIECE_BYTES, QString()), std::move(events));
    writer.Open();
    if (QCoreApplication::exec() != 0 || !isOpen)
    {
        return 1;
    }
    writer.Restart({"\"one\"", {}});
    for (std::uint64_t number = 1; number <= 3; ++number)
    {
        Put(writer, {number * PIECE_BYTES, 1, number});
    }
    writer.Close({3 * PIECE_BYTES, 1, 4}, [] { QCoreApplication::quit(); });
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QStringList const arguments = QCoreApplication::arguments();
    // The tracer of this program waits for this call.
    if (chdir("/") != 0)
    {
        return 1;
    }
    if (arguments.value(1) == QLatin1String("--checkpoints"))
    {
        return WriteWithCheckpoints(arguments.value(2));
    }
    DownloadRequest request;
    request.url = QUrl(arguments.value(1));
    request.declaredBytes = arguments.value(2).toULongLong();
    request.signature = QStringLiteral("signature");
    request.folder = arguments.value(3);
    request.feedReach = AddressReach::ThisComputer;
    long const before = PeakKibibytes();
    ArchiveDownload download(request);
    download.Start([](DownloadProgress const&) {},
                   [before](DownloadOutcome const& outcome)
                   {
                       Print(outcome ? nullptr : &outcome.error(), PeakKibibytes() - before);
                       QCoreApplication::quit();
                   });
    return QCoreApplication::exec();
}
