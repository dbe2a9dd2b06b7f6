#include "Demo/HostOptions.h"

#include "HostFramework/VersionText.h"

#include <stdexcept>

namespace Pelnar::Demo
{

QCommandLineOption MakeOption(char const* name, char const* description, char const* value, char const* usual)
{
    return {QString::fromLatin1(name), QString::fromLatin1(description), QString::fromLatin1(value),
            QString::fromLatin1(usual)};
}

App::UpdateCheckMode HostOptions::Mode(QCommandLineParser const& parser) const
{
    return Choose<App::UpdateCheckMode>(parser, mode,
                                        {{"user", App::UpdateCheckMode::UserInitiated},
                                         {"automatic", App::UpdateCheckMode::Automatic},
                                         {"silent", App::UpdateCheckMode::Silent}});
}

QString HostOptions::System(QCommandLineParser const& parser) const
{
    if (!parser.isSet(system))
    {
        return {};
    }
    static_cast<void>(ParseVersion(parser, system));
    return parser.value(system);
}

QString HostOptions::Platform(QCommandLineParser const& parser) const
{
    return parser.isSet(platform)
               ? QString::fromLatin1(Choose<char const*>(parser, platform, {{"macos", "macos"}, {"linux", "linux"}}))
               : QString();
}

void ParseLine(QCommandLineParser& parser, QStringList const& arguments)
{
    QCommandLineOption const help = parser.addHelpOption();
    if (!parser.parse(arguments))
    {
        throw std::runtime_error(parser.errorText().toStdString());
    }
    if (parser.isSet(help))
    {
        throw HelpRequest{parser.helpText().trimmed()};
    }
    if (!parser.positionalArguments().isEmpty())
    {
        throw std::runtime_error("unexpected argument \"" + parser.positionalArguments().constFirst().toStdString() +
                                 "\"");
    }
}

void RefuseValue(QCommandLineParser const& parser, QCommandLineOption const& option, std::string const& wanted)
{
    throw std::runtime_error("--" + option.names().constFirst().toStdString() + ": \"" +
                             parser.value(option).toStdString() + "\" is not " + wanted);
}

Core::Version ParseVersion(QCommandLineParser const& parser, QCommandLineOption const& option)
{
    try
    {
        return Util::VersionFromString(parser.value(option), QStringLiteral("."));
    }
    catch (std::invalid_argument const&)
    {
        RefuseValue(parser, option, "a version such as 5.10");
    }
}

} // namespace Pelnar::Demo
