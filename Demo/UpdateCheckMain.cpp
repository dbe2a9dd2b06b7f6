// UpdateCheckMain.cpp: pelnar-update-check, a host without windows that runs one real check. It needs no display and
// changes no settings of the person who runs it. Its gateway grants the update dialog immediately. Windows of the
// dialog would need an event loop, which has ended by then.

#include "Demo/CheckFailureLog.h"
#include "Demo/CheckRun.h"
#include "Demo/EngineDefaults.h"
#include "Demo/HostOptions.h"
#include "Demo/UpdateCheckOptions.h"
#include "Demo/UpdateCheckReport.h"
#include "Foundation/IsolatedUserDefaults.h"
#include "HostFramework/Reference/ReferenceApplication.h"
#include "HostFramework/Reference/ReferenceCustomizationManager.h"
#include "HostFramework/Reference/ReferenceLinksManager.h"
#include "HostFramework/Reference/ReferenceNagScreenManager.h"
#include "HostFramework/Reference/ReferenceOSVersion.h"

#include <glog/logging.h>

#include <QTimer>

#include <cstdio>
#include <stdexcept>

namespace Pelnar::Demo
{
namespace
{

constexpr int STATUS_BAD_ARGUMENTS = 2;

void PrintLine(std::FILE* stream, QByteArray const& line)
{
    std::fprintf(stream, "%s\n", line.constData());
    std::fflush(stream);
}

/// Grants every request immediately; the first one also reports that the search is over.
class TerminalGateway : public ExternalStimulus::IGateway
{
public:
    explicit TerminalGateway(CheckFailureLog& failures) : m_failures(failures) {}

    void ProposeAction(ExternalStimulus::Action const& action) override
    {
        m_failures.StopListening();
        if (action.callback)
        {
            action.callback();
        }
    }
    void CancelActions(std::string const&) override {}

private:
    CheckFailureLog& m_failures;
};

App::ReferenceServices MakeServices(UpdateCheckOptions const& options)
{
    auto const nagScreens = std::make_shared<App::NagScreen::ReferenceManager>();
    // Without a nag screen a major update is handled like any other, and observers get its version.
    nagScreens->SetUnavailable(App::NagScreen::MajorUpdate);
    return {nagScreens,
            std::make_shared<App::ReferenceCustomizationManager>(
                App::Customization{"Pelnar", options.localVersion, "Pelnar", "Demo"}),
            std::make_shared<App::ReferenceLinksManager>(
                App::Links{{URLKeys::SPARKLE_APPCAST_URL, options.feed.toString(QUrl::FullyEncoded)}})};
}

int RunCheck(App::ReferenceApplication& application, UpdateCheckOptions const& options)
{
    Util::SetOSVersion(options.systemVersion);
    if (!options.platform.isEmpty())
    {
        SetFeedPlatform(options.platform);
    }
    application.SetServices(MakeServices(options));

    UpdateCheckReport report;
    report.localVersion = options.localVersion;
    NotificationRecorder recorder(
        [&](Notification const& notification)
        {
            report.notifications.push_back(notification);
            if (!options.json)
            {
                PrintLine(stdout, TextOf(notification).toUtf8());
            }
        });
    CheckFailureLog failures;
    QTimer timeout;
    QObject::connect(&timeout, &QTimer::timeout, &application,
                     [&]
                     {
                         report.failure = "no answer within " + std::to_string(options.timeout.count()) + " s";
                         QCoreApplication::exit();
                     });
    timeout.start(options.timeout);
    {
        QObject owner;
        App::UpdateManager::Initializer check(&owner);
        check.checkMode = options.mode;
        check.observers = {&recorder};
        check.gateway = std::make_shared<TerminalGateway>(failures);
        // The queued call runs inside exec, where quitting has an effect.
        QTimer::singleShot(0, &owner, [check] { StartCheck(check, [] { QCoreApplication::exit(); }); });
        QCoreApplication::exec();
    }
    if (report.failure.empty())
    {
        report.failure = failures.FirstFailure();
    }

    CheckOutcome const outcome = OutcomeOf(report);
    if (options.json)
    {
        PrintLine(stdout, JsonOf(report));
    }
    if (outcome == CheckOutcome::Failed)
    {
        PrintLine(stderr, "pelnar-update-check: " + SummaryOf(report).toUtf8());
    }
    else if (!options.json)
    {
        PrintLine(stdout, SummaryOf(report).toUtf8());
    }
    return ExitStatusOf(outcome, options.outcomeInExitStatus);
}

/// Qt's messages go to the log, which is quiet by default: only the program's own lines appear.
void WriteQtMessage(QtMsgType type, QMessageLogContext const&, QString const& message)
{
    google::LogSeverity const severity = type == QtFatalMsg      ? google::GLOG_FATAL
                                         : type == QtCriticalMsg ? google::GLOG_ERROR
                                         : type == QtWarningMsg  ? google::GLOG_WARNING
                                                                 : google::GLOG_INFO;
    google::LogMessage("Qt", 0, severity).stream() << message.toStdString();
}

void StartQuietLogging(char const* programName)
{
    google::InitGoogleLogging(programName);
    for (google::LogSeverity severity = google::GLOG_INFO; severity < google::NUM_SEVERITIES; ++severity)
    {
        google::SetLogDestination(severity, ""); // no files
    }
    FLAGS_stderrthreshold = google::GLOG_FATAL;
    qInstallMessageHandler(WriteQtMessage);
}

void SpeakUp()
{
    FLAGS_logtostderr = true;
    FLAGS_v = 30;
}

int Main(int argc, char** argv)
{
    StartQuietLogging(argv[0]);
    qunsetenv("XDG_CACHE_HOME"); // this program keeps no fetched files
    Foundation::IsolatedUserDefaults const defaults;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt gets only the program's name: it would take --platform for its own option.
    int qtArgumentCount = 1;
    App::ReferenceApplication application(qtArgumentCount, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
    {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }

    UpdateCheckOptions options;
    try
    {
        options = ParseUpdateCheckOptions(arguments);
    }
    catch (HelpRequest const& help)
    {
        PrintLine(stdout, help.text.toUtf8());
        return 0;
    }
    catch (std::runtime_error const& error)
    {
        PrintLine(stderr, QByteArray("pelnar-update-check: ") + error.what() + "; see --help");
        return STATUS_BAD_ARGUMENTS;
    }
    if (options.verbose)
    {
        SpeakUp();
    }
    return RunCheck(application, options);
}

} // namespace
} // namespace Pelnar::Demo

int main(int argc, char** argv)
{
    return Pelnar::Demo::Main(argc, argv);
}
