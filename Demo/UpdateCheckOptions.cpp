#include "Demo/UpdateCheckOptions.h"

#include "Demo/CheckRun.h"
#include "HostFramework/VersionText.h"

#include <QCommandLineParser>

#include <optional>
#include <stdexcept>

namespace Pelnar::Demo
{
namespace
{

constexpr int MAX_TIMEOUT_SECONDS = 3600;

std::optional<Core::Version> ParseVersion(QString const& text)
{
    try
    {
        return Util::VersionFromString(text, QStringLiteral("."));
    }
    catch (std::invalid_argument const&)
    {
        return std::nullopt;
    }
}

UsageError BadValue(QCommandLineOption const& option, QString const& value, QString const& expected)
{
    return {QStringLiteral("--%1: \"%2\" is not %3").arg(option.names().constFirst(), value, expected)};
}

struct Options
{
    QCommandLineOption feed{QStringLiteral("feed"), QStringLiteral("Address or path of the feed; required."),
                            QStringLiteral("URL-or-path")};
    QCommandLineOption local{QStringLiteral("local-version"),
                             QStringLiteral("Version of the application that asks; required."), QStringLiteral("V")};
    QCommandLineOption runningSystem{
        QStringLiteral("system-version"),
        QStringLiteral("Version of the operating system; default: that of the running system."), QStringLiteral("V")};
    QCommandLineOption platform{QStringLiteral("platform"),
                                QStringLiteral("Platform whose items are offered; default: this system's."),
                                QStringLiteral("macos|linux")};
    QCommandLineOption mode{QStringLiteral("mode"), QStringLiteral("How the check is started; default: user."),
                            QStringLiteral("user|automatic|silent"), QStringLiteral("user")};
    QCommandLineOption timeout{QStringLiteral("timeout"),
                               QStringLiteral("Give up after this many seconds; default: 120."),
                               QStringLiteral("seconds"), QStringLiteral("120")};
    QCommandLineOption json{QStringLiteral("json"), QStringLiteral("Print one JSON object at the end.")};
    QCommandLineOption verbose{QStringLiteral("verbose"),
                               QStringLiteral("Write the log, at level 30, to standard error.")};
    QCommandLineOption exitCode{QStringLiteral("exit-code"),
                                QStringLiteral("Exit with 10 for an update and with 11 for a major update.")};
};

using Parsed = std::variant<UpdateCheckOptions, UsageError, UsageHelp>;

/// The values of a line that has the required options.
Parsed ReadValues(QCommandLineParser const& parser, Options const& options)
{
    QString const version = QStringLiteral("a version such as 5.10");
    UpdateCheckOptions result;
    result.feed = FeedAddress(parser.value(options.feed));
    if (!result.feed.isValid())
    {
        return BadValue(options.feed, parser.value(options.feed), QStringLiteral("an address or a path"));
    }
    std::optional<Core::Version> const localVersion = ParseVersion(parser.value(options.local));
    if (!localVersion)
    {
        return BadValue(options.local, parser.value(options.local), version);
    }
    result.localVersion = *localVersion;
    result.systemVersion = parser.value(options.runningSystem);
    if (parser.isSet(options.runningSystem) && !ParseVersion(result.systemVersion))
    {
        return BadValue(options.runningSystem, result.systemVersion, version);
    }
    result.platform = parser.value(options.platform);
    if (parser.isSet(options.platform) && result.platform != QLatin1String("macos") &&
        result.platform != QLatin1String("linux"))
    {
        return BadValue(options.platform, result.platform, QStringLiteral("macos or linux"));
    }
    std::optional<App::UpdateCheckMode> const mode = ModeFromText(parser.value(options.mode));
    if (!mode)
    {
        return BadValue(options.mode, parser.value(options.mode), QStringLiteral("user, automatic or silent"));
    }
    result.mode = *mode;
    bool isNumber = false;
    int const seconds = parser.value(options.timeout).toInt(&isNumber);
    if (!isNumber || seconds < 1 || seconds > MAX_TIMEOUT_SECONDS)
    {
        return BadValue(options.timeout, parser.value(options.timeout),
                        QStringLiteral("a number of seconds from 1 to 3600"));
    }
    result.timeout = std::chrono::seconds(seconds);
    result.json = parser.isSet(options.json);
    result.verbose = parser.isSet(options.verbose);
    result.outcomeInExitStatus = parser.isSet(options.exitCode);
    return result;
}

} // namespace

Parsed ParseUpdateCheckOptions(QStringList const& arguments)
{
    Options const options;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Runs one check for updates and prints the notifications of its observers.\nExit status: 0 "
                       "check completed, 1 check not completed, 2 bad arguments."));
    parser.addOptions({options.feed, options.local, options.runningSystem, options.platform, options.mode,
                       options.timeout, options.json, options.verbose, options.exitCode});
    QCommandLineOption const help = parser.addHelpOption();
    if (!parser.parse(arguments))
    {
        return UsageError{parser.errorText()};
    }
    if (parser.isSet(help))
    {
        return UsageHelp{parser.helpText()};
    }
    if (!parser.positionalArguments().isEmpty())
    {
        return UsageError{QStringLiteral("unexpected argument \"%1\"").arg(parser.positionalArguments().constFirst())};
    }
    if (parser.value(options.feed).isEmpty())
    {
        return UsageError{QStringLiteral("--feed is required")};
    }
    if (!parser.isSet(options.local))
    {
        return UsageError{QStringLiteral("--local-version is required")};
    }
    return ReadValues(parser, options);
}

} // namespace Pelnar::Demo
