// FetchProbe.cpp: fetches one address and prints what came of it, for tests that look at a process from outside.
// Usage: fetch_probe URL [AUTHORITY-FILE [anywhere [without-memory]]]. The third word is for plain http to other
// computers; with the fourth, the first thread beside the main one finds no memory once.
#include "Engine/core/fetch/FeedFetcher.h"
#include "tests/support/ScarceMemory.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QSslCertificate>
#include <QSslConfiguration>

#include <cstdio>
#include <optional>

#include <sys/resource.h>

namespace
{

long peakKibibytes()
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
    if (arguments.size() > 2)
    {
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setCaCertificates(QSslCertificate::fromPath(arguments.at(2)));
        QSslConfiguration::setDefaultConfiguration(configuration);
    }
    long const before = peakKibibytes();
    bool const isAnywhere = arguments.value(3) == QLatin1String("anywhere");
    FeedFetcher fetcher(FetchLimits(), isAnywhere ? InsecureHttp::Anywhere : InsecureHttp::LoopbackOnly);
    std::optional<Pelnar::Testing::ScarceMemory> memory;
    if (arguments.value(4) == QLatin1String("without-memory"))
    {
        memory.emplace(Pelnar::Testing::ScarceIn::OtherThreads, 0, 1);
    }
    QElapsedTimer clock;
    clock.start();
    fetcher.Start(QUrl(arguments.value(1)),
                  [before, clock](FetchOutcome const& outcome)
                  {
                      std::printf("cause=%d bytes=%d grown=%ld ms=%lld sentence=%s\n",
                                  outcome.error ? static_cast<int>(outcome.error->cause) : 0, outcome.bytes.size(),
                                  peakKibibytes() - before, clock.elapsed(),
                                  outcome.error ? qPrintable(outcome.error->sentence.English()) : "");
                      QCoreApplication::quit();
                  });
    return QCoreApplication::exec();
}
