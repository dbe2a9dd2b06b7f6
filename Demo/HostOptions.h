// HostOptions.h: the command-line options that both demo programs have, and one way to read and refuse values. Every
// function throws std::runtime_error, whose text says what is wrong with the arguments.
// Thread: the Qt main thread.
#pragma once

#include "App/UpdateChecker/UpdateCheckMode.h"
#include "HostFramework/Version.h"

#include <QCommandLineParser>

#include <map>
#include <string>

namespace Pelnar::Demo
{

/// The name of an option, its description and the name of its value, which is empty for a flag.
[[nodiscard]] QCommandLineOption MakeOption(char const* name, char const* description, char const* value = "",
                                            char const* usual = "");

struct HostOptions
{
    QCommandLineOption feed = MakeOption("feed", "Address or path of the feed.", "URL-or-path");
    QCommandLineOption local = MakeOption("local-version", "Version that the application reports.", "V");
    QCommandLineOption system =
        MakeOption("system-version", "Version of the operating system; default: that of the running system.", "V");
    QCommandLineOption platform =
        MakeOption("platform", "Platform whose items are offered; default: this system's.", "macos|linux");
    QCommandLineOption mode =
        MakeOption("mode", "How a check is started; default: user.", "user|automatic|silent", "user");

    App::UpdateCheckMode Mode(QCommandLineParser const& parser) const;
    /// Null without the option.
    QString System(QCommandLineParser const& parser) const;
    QString Platform(QCommandLineParser const& parser) const;
};

/// Thrown if an argument requests the help.
struct HelpRequest
{
    QString text;
};

/// Reads \a arguments, which begin with the program's name. Throws HelpRequest.
void ParseLine(QCommandLineParser& parser, QStringList const& arguments);

[[noreturn]] void RefuseValue(QCommandLineParser const& parser, QCommandLineOption const& option,
                              std::string const& wanted);

Core::Version ParseVersion(QCommandLineParser const& parser, QCommandLineOption const& option);

/// The value's meaning in \a choices, whose names are those of the option's value.
template <class T>
T Choose(QCommandLineParser const& parser, QCommandLineOption const& option, std::map<std::string, T> const& choices)
{
    auto const found = choices.find(parser.value(option).toStdString());
    if (found == choices.end())
    {
        RefuseValue(parser, option, "one of " + option.valueName().toStdString());
    }
    return found->second;
}

} // namespace Pelnar::Demo
