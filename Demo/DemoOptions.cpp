#include "Demo/DemoOptions.h"

#include "Demo/CheckRun.h"
#include "Demo/HostOptions.h"

#include <QProcess>

#include <stdexcept>

namespace Pelnar::Demo
{
namespace
{

constexpr char OPTIONS_VARIABLE[] = "PELNAR_DEMO_OPTIONS";

struct Options : HostOptions
{
    QCommandLineOption settings =
        MakeOption("settings", "Settings file with the sections [Application] and [Links].", "file");
    QCommandLineOption nag =
        MakeOption("nag", "Content of the nag screen; default: available.", "available|none|later", "available");
    QCommandLineOption scenario = MakeOption(
        "scenario",
        "Runs without a person and quits: \"check\" makes one check, \"dialogs\" shows every dialog, \"start\" only "
        "starts, \"answer\" makes a check and the clicks, \"update\" does the same and waits until the update ends the "
        "program.",
        "check|dialogs|start|answer|update");
    QCommandLineOption click = MakeOption(
        "click",
        "A click to make when its window opens, as WINDOW/BUTTON; may be repeated, in this order. The button "
        "is named by its object name or its text.",
        "window/button");
    QCommandLineOption screenshots =
        MakeOption("screenshot-dir", "Saves a picture of every window that opens in this folder.", "folder");
};

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
    result.systemVersion = options.System(parser);
    result.platform = options.Platform(parser);
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
    ParseLine(parser, arguments);

    DemoOptions result;
    result.customization = application;
    ReadHost(parser, options, result);
    result.mode = options.Mode(parser);
    result.nagContent = Choose<NagContent>(
        parser, options.nag,
        {{"available", NagContent::Available}, {"none", NagContent::None}, {"later", NagContent::Later}});
    if (parser.isSet(options.scenario))
    {
        result.script = Choose<Script>(parser, options.scenario,
                                       {{"check", Script::CheckOnce},
                                        {"dialogs", Script::ShowDialogs},
                                        {"start", Script::Start},
                                        {"answer", Script::Answer},
                                        {"update", Script::Update}});
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
