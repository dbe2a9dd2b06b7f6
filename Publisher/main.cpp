// main.cpp: pelnar-appcast, the publisher's tool, on the streams of its process.

#include "Publisher/Verb.h"
#include "Publisher/files/Leftovers.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QTextCodec>

#include <clocale>
#include <csignal>
#include <iostream>

#include <unistd.h>

namespace
{

/// Messages of libraries are for developers and are dropped, so that only the program's own lines appear.
void KeepLibrariesQuiet(char const* programName)
{
    google::InitGoogleLogging(programName);
    for (google::LogSeverity severity = google::GLOG_INFO; severity < google::NUM_SEVERITIES; ++severity)
    {
        google::SetLogDestination(severity, ""); // no files
    }
    FLAGS_stderrthreshold = google::GLOG_FATAL;
    qInstallMessageHandler([](QtMsgType, QMessageLogContext const&, QString const&) {});
}

/// The tool writes English and reads file names as UTF-8 in every locale, so that it makes the same feed everywhere.
void UseOwnWords()
{
    std::setlocale(LC_ALL, "C");
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

} // namespace

int main(int argc, char** argv)
{
    std::signal(SIGXFSZ, SIG_IGN); // a write past the limit of a file's size fails instead
    Pelnar::Publisher::RemoveLeftoversWhenInterrupted();
    KeepLibrariesQuiet(argv[0]);
    // Qt gets only the program's name, because it would interpret some options itself.
    int qtArgumentCount = 1;
    QCoreApplication const application(qtArgumentCount, argv);
    UseOwnWords();
    Pelnar::Publisher::Console console{
        std::cin,
        {std::cout, ::isatty(STDOUT_FILENO) == 1, Pelnar::Publisher::ShowsColour(STDOUT_FILENO)},
        {std::cerr, ::isatty(STDERR_FILENO) == 1, Pelnar::Publisher::ShowsColour(STDERR_FILENO)}};
    auto const status = Pelnar::Publisher::RunProgram(std::vector<std::string>(argv + 1, argv + argc), console);
    Pelnar::Publisher::RemoveLeftovers();
    return int(status);
}
