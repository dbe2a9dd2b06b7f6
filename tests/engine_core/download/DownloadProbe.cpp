// DownloadProbe.cpp: downloads one archive and prints what came of it, for tests that look at a process from outside.
// Usage: download_probe URL LENGTH FOLDER [AUTHORITY-FILE]
#include "Engine/core/download/ArchiveDownload.h"

#include <QCoreApplication>
#include <QSslCertificate>
#include <QSslConfiguration>

#include <cstdio>

#include <sys/resource.h>

namespace
{

long PeakKibibytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

} // namespace

int main(int argc, char** argv)
{
    using namespace Pelnar::Engine;
    QCoreApplication application(argc, argv);
    QStringList const arguments = QCoreApplication::arguments();
    if (arguments.size() > 4)
    {
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setCaCertificates(QSslCertificate::fromPath(arguments.at(4)));
        QSslConfiguration::setDefaultConfiguration(configuration);
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
                                   outcome.error ? qPrintable(outcome.error->sentence) : "");
                       QCoreApplication::quit();
                   });
    return QCoreApplication::exec();
}
