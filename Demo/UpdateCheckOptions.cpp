#include "Demo/UpdateCheckOptions.h"

#include "Demo/CheckRun.h"
#include "Demo/HostOptions.h"

#include <stdexcept>

namespace Pelnar::Demo
{
namespace
{

constexpr int MAX_TIMEOUT_SECONDS = 3600;

struct Options : HostOptions
{
    QCommandLineOption timeout =
        MakeOption("timeout", "Give up after this many seconds; default: 120.", "seconds", "120");
    QCommandLineOption json = MakeOption("json", "Print one JSON object at the end.");
    QCommandLineOption verbose = MakeOption("verbose", "Write the log, at level 30, to standard error.");
    QCommandLineOption exitCode = MakeOption("exit-code", "Exit with 10 for an update and with 11 for a major update.");
};

std::chrono::seconds ReadTimeout(QCommandLineParser const& parser, Options const& options)
{
    bool isNumber = false;
    int const seconds = parser.value(options.timeout).toInt(&isNumber);
    if (!isNumber || seconds < 1 || seconds > MAX_TIMEOUT_SECONDS)
    {
        RefuseValue(parser, options.timeout, "a number of seconds from 1 to 3600");
    }
    return std::chrono::seconds(seconds);
}

} // namespace

UpdateCheckOptions ParseUpdateCheckOptions(QStringList const& arguments)
{
    Options const options;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Runs one check for updates and prints the notifications of its observers. The options --feed "
                       "and --local-version are required.\nExit status: 0 check completed, 1 check not completed, 2 "
                       "bad arguments."));
    parser.addOptions({options.feed, options.local, options.system, options.platform, options.mode, options.timeout,
                       options.json, options.verbose, options.exitCode});
    ParseLine(parser, arguments);
    if (parser.value(options.feed).isEmpty())
    {
        throw std::runtime_error("--feed is required");
    }
    if (!parser.isSet(options.local))
    {
        throw std::runtime_error("--local-version is required");
    }
    UpdateCheckOptions result;
    result.feed = FeedAddress(parser.value(options.feed));
    if (!result.feed.isValid())
    {
        RefuseValue(parser, options.feed, "an address or a path");
    }
    result.localVersion = ParseVersion(parser, options.local);
    result.systemVersion = options.System(parser);
    result.platform = options.Platform(parser);
    result.mode = options.Mode(parser);
    result.timeout = ReadTimeout(parser, options);
    result.json = parser.isSet(options.json);
    result.verbose = parser.isSet(options.verbose);
    result.outcomeInExitStatus = parser.isSet(options.exitCode);
    return result;
}

} // namespace Pelnar::Demo
