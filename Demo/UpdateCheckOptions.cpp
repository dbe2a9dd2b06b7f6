#include "Demo/UpdateCheckOptions.h"

#include "Demo/CheckRun.h"
#include "HostFramework/VersionText.h"

#include <QCommandLineParser>

#include <optional>

namespace Pelnar::Demo
{
namespace
{

constexpr int MAX_TIMEOUT_SECONDS = 3600;

std::optional<Core::Version> ParseVersion(QString const& text)
{
    return Util::TryVersionFromString(text, QStringLiteral("."));
}

UsageError BadValue(QCommandLineOption const& option, QString const& value, QString const& expected)
{
    return {QStringLiteral("--%1: \"%2\" is not %3").arg(option.names().constFirst(), value, expected)};
}

} // namespace

std::variant<UpdateCheckOptions, UsageError, UsageHelp> ParseUpdateCheckOptions(QStringList const& arguments)
{
    QString const version = QStringLiteral("a version such as 5.10");
    QCommandLineOption const feed(QStringLiteral("feed"), QStringLiteral("Address or path of the feed; required."),
                                  QStringLiteral("URL-or-path"));
    QCommandLineOption const local(QStringLiteral("local-version"),
                                   QStringLiteral("Version of the application that asks; required."),
                                   QStringLiteral("V"));
    QCommandLineOption const system(QStringLiteral("system-version"),
                                    QStringLiteral("Version of the operating system; default: the running one's."),
                                    QStringLiteral("V"));
    QCommandLineOption const platform(QStringLiteral("platform"),
                                      QStringLiteral("Whose items of the feed count; default: this system's."),
                                      QStringLiteral("macos|linux"));
    QCommandLineOption const mode(QStringLiteral("mode"), QStringLiteral("How the check is started; default: user."),
                                  QStringLiteral("user|automatic|silent"), QStringLiteral("user"));
    QCommandLineOption const timeout(QStringLiteral("timeout"),
                                     QStringLiteral("Give up after so many seconds; default: 120."),
                                     QStringLiteral("seconds"), QStringLiteral("120"));
    QCommandLineOption const json(QStringLiteral("json"), QStringLiteral("Print one JSON object at the end."));
    QCommandLineOption const verbose(QStringLiteral("verbose"),
                                     QStringLiteral("Write the log, at level 30, to standard error."));
    QCommandLineOption const exitCode(QStringLiteral("exit-code"),
                                      QStringLiteral("Exit with 10 for an update and with 11 for a major update."));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Runs one check for updates and prints what its observers are told.\n"
                       "Exit status: 0 the check was completed, 1 it could not be, 2 bad arguments."));
    parser.addOptions({feed, local, system, platform, mode, timeout, json, verbose, exitCode});
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
    if (parser.value(feed).isEmpty())
    {
        return UsageError{QStringLiteral("--feed is required")};
    }
    if (!parser.isSet(local))
    {
        return UsageError{QStringLiteral("--local-version is required")};
    }

    UpdateCheckOptions options;
    options.feed = FeedAddress(parser.value(feed));
    if (!options.feed.isValid())
    {
        return BadValue(feed, parser.value(feed), QStringLiteral("an address or a path"));
    }
    std::optional<Core::Version> const localVersion = ParseVersion(parser.value(local));
    if (!localVersion)
    {
        return BadValue(local, parser.value(local), version);
    }
    options.localVersion = *localVersion;
    if (parser.isSet(system) && !ParseVersion(parser.value(system)))
    {
        return BadValue(system, parser.value(system), version);
    }
    options.systemVersion = parser.value(system);
    QString const platformText = parser.value(platform);
    if (parser.isSet(platform) && platformText != QLatin1String("macos") && platformText != QLatin1String("linux"))
    {
        return BadValue(platform, platformText, QStringLiteral("macos or linux"));
    }
    options.platform = platformText;
    std::optional<App::UpdateCheckMode> const checkMode = ModeFromText(parser.value(mode));
    if (!checkMode)
    {
        return BadValue(mode, parser.value(mode), QStringLiteral("user, automatic or silent"));
    }
    options.mode = *checkMode;
    bool isNumber = false;
    int const seconds = parser.value(timeout).toInt(&isNumber);
    if (!isNumber || seconds < 1 || seconds > MAX_TIMEOUT_SECONDS)
    {
        return BadValue(timeout, parser.value(timeout), QStringLiteral("a number of seconds from 1 to 3600"));
    }
    options.timeout = std::chrono::seconds(seconds);
    options.json = parser.isSet(json);
    options.verbose = parser.isSet(verbose);
    options.outcomeInExitStatus = parser.isSet(exitCode);
    return options;
}

} // namespace Pelnar::Demo
