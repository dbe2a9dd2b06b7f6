#include "Publisher/Verb.h"

#include "Publisher/Refusal.h"
#include "Publisher/SharedOptions.h"
#include "Publisher/explain/ExplanationText.h"

#include <QJsonArray>

namespace Pelnar::Publisher
{
namespace
{

struct ExplainOptions : FeedQuestion
{
    std::string localVersion;
    std::string systemVersion;
    bool isAfterDelta = false;
};

ExitStatus Explain(ExplainOptions const& options, Console const& console)
{
    NamedVersion const local = ParseLocalVersion(u"--local-version"_s, QString::fromStdString(options.localVersion));
    NamedVersion const system =
        ParseSystemVersion(u"--system-version"_s, QString::fromStdString(options.systemVersion));
    Engine::Installation const installation = InstallationOf(options.installation);
    ParsedFeed const feed = ReadItems(options, options.feed, installation.machine, console);
    PreviousAnswer const previous = options.isAfterDelta ? PreviousAnswer::DELTA : PreviousAnswer::NONE;
    Explanation const explanation = ExplainFeed(feed.items, {local.version, system.version, previous}, installation);
    ExplainQuestion const question{feed.source.name, local.text, system.text, Engine::NameOf(options.platform),
                                   previous};
    if (options.isJson)
    {
        QJsonObject json = JsonOf(explanation, question);
        AddInstallation(json, options.installation);
        json.insert(u"trustedKeys"_s, QJsonArray::fromStringList(installation.trustedKeys));
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
    auto const [verb, options] = AddVerb<ExplainOptions>(
        program, context, "explain", "Show which item a client takes, and why it does not take the others", Explain);
    AddFeedOption(verb, options.feed);
    verb.add_option("--local-version", options.localVersion, "Installed version of the application")
        ->required()
        ->type_name("V");
    verb.add_option("--system-version", options.systemVersion,
                    "Version of the client's operating system, or \"unknown\"")
        ->required()
        ->type_name("V");
    AddClientOptions(verb, options);
    AddRolloutGroupOption(verb, options.installation);
    AddKeysOption(verb, "--public-key", options.installation.publicKeys,
                  "Public key that the client trusts, in base64; may be repeated; default: the keys that the "
                  "feed names for its version");
    verb.add_flag("--after-delta", options.isAfterDelta,
                  "Answer for a client that was offered a delta and now asks for a full item as the fallback");
}

} // namespace Pelnar::Publisher
