#include "Demo/DemoOptions.h"

#include "Demo/CheckRun.h"
#include "HostFramework/VersionText.h"

#include <QCommandLineParser>
#include <QProcess>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <stdexcept>

namespace Pelnar::Demo
{
namespace
{

constexpr char OPTIONS_VARIABLE[] = "PELNAR_DEMO_OPTIONS";

struct Options
{
    QCommandLineOption settings{QStringLiteral("settings"),
                                QStringLiteral("Settings file with the sections [Application] and [Links]."),
                                QStringLiteral("file")};
    QCommandLineOption feed{QStringLiteral("feed"), QStringLiteral("Address or path of the feed."),
                            QStringLiteral("URL-or-path")};
    QCommandLineOption local{QStringLiteral("local-version"),
                             QStringLiteral("Version that this application reports; default: 5.9."),
                             QStringLiteral("V")};
    QCommandLineOption system{QStringLiteral("system-version"),
                              QStringLiteral("Version of the operating system; default: that of the running system."),
                              QStringLiteral("V")};
    QCommandLineOption platform{QStringLiteral("platform"),
                                QStringLiteral("Platform whose items are offered; default: this system's."),
                                QStringLiteral("macos|linux")};
    QCommandLineOption mode{QStringLiteral("mode"), QStringLiteral("How checks are started; default: user."),
                            QStringLiteral("user|automatic|silent"), QStringLiteral("user")};
    QCommandLineOption nag{QStringLiteral("nag"), QStringLiteral("Content of the nag screen; default: available."),
                           QStringLiteral("available|none|later"), QStringLiteral("available")};
    QCommandLineOption scenario{
        QStringLiteral("scenario"),
        QStringLiteral("Runs without a person and quits: \"check\" makes one check, \"dialogs\" shows every dialog, "
                       "\"start\" only starts, \"answer\" makes a check and the clicks, \"update\" does the same and "
                       "waits until the update ends the program."),
        QStringLiteral("check|dialogs|start|answer|update")};
    QCommandLineOption click{QStringLiteral("click"),
                             QStringLiteral("A click to make when its window opens, as WINDOW/BUTTON; may be repeated, "
                                            "in this order. The button is named by its object name or its text."),
                             QStringLiteral("window/button")};
    QCommandLineOption screenshots{QStringLiteral("screenshot-dir"),
                                   QStringLiteral("Saves a picture of every window that opens in this folder."),
                                   QStringLiteral("folder")};
};

[[noreturn]] void Fail(QCommandLineOption const& option, QString const& value)
{
    throw std::runtime_error("--" + option.names().constFirst().toStdString() + ": \"" + value.toStdString() +
                             "\" is not " +
                             (option.valueName() == QLatin1String("V") ? "a version such as 5.10"
                                                                       : "one of " + option.valueName().toStdString()));
}

template <class T>
T Choose(QCommandLineParser const& parser, QCommandLineOption const& option, std::map<QString, T> const& choices)
{
    auto const found = choices.find(parser.value(option));
    if (found == choices.end())
    {
        Fail(option, parser.value(option));
    }
    return found->second;
}

Core::Version ParseVersion(QCommandLineParser const& parser, QCommandLineOption const& option)
{
    try
    {
        return Util::VersionFromString(parser.value(option), QStringLiteral("."));
    }
    catch (std::invalid_argument const&)
    {
        Fail(option, parser.value(option));
    }
}

std::vector<Click> ReadClicks(QCommandLineParser const& parser, Options const& options)
{
    std::vector<Click> clicks;
    for (QString const& text : parser.values(options.click))
    {
        int const slash = text.indexOf(QLatin1Char('/'));
        if (slash < 1 || slash == text.size() - 1)
        {
            throw std::runtime_error("--click: \"" + text.toStdString() + "\" is not window/button");
        }
        clicks.push_back({text.left(slash), text.mid(slash + 1)});
    }
    return clicks;
}

void ReadHost(QCommandLineParser const& parser, Options const& options, DemoOptions& result)
{
    if (parser.isSet(options.settings))
    {
        result.customization = App::ReadCustomization(parser.value(options.settings));
        result.links = App::ReadLinks(parser.value(options.settings));
    }
    if (parser.isSet(options.local))
    {
        result.customization.applicationVersion = ParseVersion(parser, options.local);
    }
    if (parser.isSet(options.feed))
    {
        result.links[URLKeys::SPARKLE_APPCAST_URL] =
            FeedAddress(parser.value(options.feed)).toString(QUrl::FullyEncoded);
    }
    if (parser.isSet(options.system))
    {
        (void)ParseVersion(parser, options.system);
        result.systemVersion = parser.value(options.system);
    }
    if (parser.isSet(options.platform))
    {
        QString const macOS = QStringLiteral("macos");
        QString const linuxName = QStringLiteral("linux");
        result.platform = Choose<QString>(parser, options.platform, {{macOS, macOS}, {linuxName, linuxName}});
    }
}

} // namespace

App::Customization UnbundledApplication()
{
    return {"Pelnar Demo", Core::Version(5, 9), "Pelnar", "Demo"};
}

QStringList ArgumentsOrEnvironment(QStringList const& arguments)
{
    return arguments.size() > 1 ? arguments
                                : arguments + QProcess::splitCommand(qEnvironmentVariable(OPTIONS_VARIABLE));
}

DemoOptions ParseDemoOptions(QStringList const& arguments, App::Customization const& application)
{
    Options const options;
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A small host application of the update checker."));
    parser.addOptions({options.settings, options.feed, options.local, options.system, options.platform, options.mode,
                       options.nag, options.scenario, options.click, options.screenshots});
    QCommandLineOption const help = parser.addHelpOption();
    if (!parser.parse(arguments))
    {
        throw std::runtime_error(parser.errorText().toStdString());
    }
    if (parser.isSet(help))
    {
        std::printf("%s\n", parser.helpText().trimmed().toUtf8().constData());
        std::exit(EXIT_SUCCESS);
    }
    if (!parser.positionalArguments().isEmpty())
    {
        throw std::runtime_error("unexpected argument \"" + parser.positionalArguments().constFirst().toStdString() +
                                 "\"");
    }

    DemoOptions result;
    result.customization = application;
    ReadHost(parser, options, result);
    auto const mode = ModeFromText(parser.value(options.mode));
    if (!mode)
    {
        Fail(options.mode, parser.value(options.mode));
    }
    result.mode = *mode;
    result.nagContent = Choose<NagContent>(parser, options.nag,
                                           {{QStringLiteral("available"), NagContent::Available},
                                            {QStringLiteral("none"), NagContent::None},
                                            {QStringLiteral("later"), NagContent::Later}});
    if (parser.isSet(options.scenario))
    {
        result.script = Choose<Script>(parser, options.scenario,
                                       {{QStringLiteral("check"), Script::CheckOnce},
                                        {QStringLiteral("dialogs"), Script::ShowDialogs},
                                        {QStringLiteral("start"), Script::Start},
                                        {QStringLiteral("answer"), Script::Answer},
                                        {QStringLiteral("update"), Script::Update}});
    }
    result.clicks = ReadClicks(parser, options);
    bool const isAnswering = result.script == Script::Answer || result.script == Script::Update;
    if (isAnswering == result.clicks.empty())
    {
        throw std::runtime_error("--click requires --scenario answer or update, and these require --click");
    }
    result.screenshotFolder = parser.value(options.screenshots);
    return result;
}

} // namespace Pelnar::Demo
