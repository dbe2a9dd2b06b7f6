#include "Publisher/explain/ExplainVerb.h"

#include "Publisher/FeedOptions.h"
#include "Publisher/Refusal.h"
#include "Publisher/choice/ClientOptions.h"
#include "Publisher/explain/ExplanationText.h"

namespace Pelnar::Publisher
{
namespace
{

struct ExplainOptions
{
    std::string feed;
    std::string publishedAt;
    std::string localVersion;
    std::string systemVersion;
    std::string platform = OwnPlatformName().toStdString();
    InstallationOptions installation;
    bool isAfterDelta = false;
    bool isJson = false;
};

ExitStatus Explain(ExplainOptions const& options, Console const& console)
{
    auto const local =
        ParseLocalVersion(QStringLiteral("--local-version"), QString::fromStdString(options.localVersion));
    auto const system =
        ParseSystemVersion(QStringLiteral("--system-version"), QString::fromStdString(options.systemVersion));
    for (auto const* version : {&local, &system})
    {
        if (auto const* const problem = std::get_if<Problem>(version))
        {
            return console.Refuse(*problem);
        }
    }
    auto const installation = InstallationOf(options.installation);
    if (auto const* const problem = std::get_if<Problem>(&installation))
    {
        return console.Refuse(*problem);
    }
    QString const platform = QString::fromStdString(options.platform);
    auto const feed =
        ReadItems(QString::fromStdString(options.feed), QString::fromStdString(options.publishedAt),
                  {PlatformFromName(platform), std::get<Engine::Installation>(installation).machine}, console);
    if (auto const* const problem = std::get_if<Problem>(&feed))
    {
        return console.Refuse(*problem);
    }
    PreviousAnswer const previous = options.isAfterDelta ? PreviousAnswer::DELTA : PreviousAnswer::NONE;
    Explanation const explanation =
        ExplainFeed(std::get<ParsedFeed>(feed).items,
                    {std::get<NamedVersion>(local).version, std::get<NamedVersion>(system).version, previous},
                    std::get<Engine::Installation>(installation));
    ExplainQuestion const question{std::get<ParsedFeed>(feed).source.name, std::get<NamedVersion>(local).text,
                                   std::get<NamedVersion>(system).text, platform, previous};
    if (options.isJson)
    {
        QJsonObject json = JsonOf(explanation, question);
        AddInstallation(json, options.installation);
        console.PrintJson(json);
    }
    else
    {
        PrintExplanation(explanation, question, console);
    }
    return ExitStatus::Clean;
}

} // namespace

void AddExplain(CLI::App& program, VerbContext& context)
{
    auto const options = std::make_shared<ExplainOptions>();
    CLI::App* const verb =
        program.add_subcommand("explain", "Says which item a client takes, and why not each of the others");
    verb->add_option("FEED", options->feed, "Path or address of the feed, or - for standard input")->required();
    verb->add_option("--local-version", options->localVersion, "Installed version of the application")
        ->required()
        ->type_name("V");
    verb->add_option("--system-version", options->systemVersion,
                     "Version of the client's operating system, or \"unknown\"")
        ->required()
        ->type_name("V");
    AddPlatformOption(*verb, options->platform);
    AddInstallationOptions(*verb, options->installation);
    AddRolloutGroupOption(*verb, options->installation);
    AddPublishedAtOption(*verb, options->publishedAt);
    verb->add_flag("--after-delta", options->isAfterDelta,
                   "Answer as when the client has been given a delta and asks for a full item to fall back on");
    verb->add_flag("--json", options->isJson, "Print one JSON object");
    SetWork(*verb, context, [options, &context] { return Explain(*options, context.console); });
}

} // namespace Pelnar::Publisher
