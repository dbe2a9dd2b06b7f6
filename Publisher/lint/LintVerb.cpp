#include "Publisher/lint/LintVerb.h"

#include "Engine/core/payload/Ed25519Signature.h"
#include "Publisher/FeedOptions.h"
#include "Publisher/FeedSource.h"
#include "Publisher/Refusal.h"
#include "Publisher/lint/FetchRules.h"
#include "Publisher/lint/LintReport.h"
#include "Publisher/lint/SignatureRules.h"

#include <ostream>

namespace Pelnar::Publisher
{
namespace
{

struct LintOptions
{
    std::string feed;
    std::string publishedAt;
    std::vector<std::string> publicKeys;
    bool isSignatureAsked = false;
    bool isFetching = false;
    bool isStrict = false;
    bool isJson = false;
    bool isListingRules = false;
};

std::optional<Problem> ProblemOf(LintOptions const& options)
{
    if (options.feed.empty())
    {
        return Problem{QString(), 0, 0, QStringLiteral("FEED is required"),
                       QStringLiteral("see pelnar-appcast lint --help")};
    }
    for (std::string const& text : options.publicKeys)
    {
        Engine::Ed25519Key key;
        if (Engine::ParsePublicKey(text, key) != Engine::UpdateFault::None)
        {
            return Problem{QString(), 0, 0,
                           QStringLiteral("--public-key: \"%1\" is no Ed25519 key").arg(QString::fromStdString(text)),
                           QStringLiteral("give the 32 bytes in base64 that pelnar-appcast keys show prints")};
        }
    }
    return std::nullopt;
}

ExitStatus Lint(LintOptions const& options, Console const& console)
{
    if (options.isListingRules)
    {
        console.out.stream << LintRulesAsMarkdown().toStdString();
        return ExitStatus::Clean;
    }
    if (std::optional<Problem> const problem = ProblemOf(options))
    {
        return console.Refuse(*problem);
    }
    auto const source =
        ReadFeed(QString::fromStdString(options.feed), QString::fromStdString(options.publishedAt), console);
    if (auto const* const problem = std::get_if<Problem>(&source))
    {
        return console.Refuse(*problem);
    }
    FeedBytes const& feed = std::get<FeedBytes>(source);
    LintResult result = LintFeed(feed.bytes, feed.address);
    auto const add = [&result](std::vector<LintFinding> const& findings)
    { result.findings.insert(result.findings.end(), findings.begin(), findings.end()); };
    FeedSigningWish const wish = options.isSignatureAsked ? FeedSigningWish::Signed : FeedSigningWish::None;
    add(CheckFeedSignature(feed.bytes, result.subject.get(),
                           {options.publicKeys, wish, QDateTime::currentDateTimeUtc()}));
    if (result.subject && options.isFetching)
    {
        add(CheckArchives(*result.subject, options.publicKeys, console));
    }
    if (options.isJson)
    {
        console.PrintJson(JsonOf(feed.name, result.findings));
    }
    else
    {
        PrintFindings(feed.name, result.findings, console);
    }
    return StatusOf(result.findings, options.isStrict ? Strictness::Everything : Strictness::ErrorsAndWarnings);
}

} // namespace

void AddLint(CLI::App& program, VerbContext& context)
{
    auto const options = std::make_shared<LintOptions>();
    CLI::App* const verb =
        program.add_subcommand("lint", "Finds what clients would refuse or misread, with place and mend");
    verb->add_option("FEED", options->feed, "Path or address of the feed, or - for standard input");
    AddPublishedAtOption(*verb, options->publishedAt);
    verb->add_flag("--fetch", options->isFetching, "Fetch every download and check its size and its signature");
    verb->add_flag("--signed", options->isSignatureAsked,
                   "The feed must be signed itself, as for clients that require it");
    verb->add_option("--public-key", options->publicKeys,
                     "Key that the signatures of the feed and of fetched downloads are checked by, in base64; may be "
                     "given again for a second key")
        ->type_name("KEY");
    verb->add_flag("--strict", options->isStrict, "Exit with 1 for notes as well");
    verb->add_flag("--json", options->isJson, "Print one JSON object");
    verb->add_flag("--rules", options->isListingRules, "Print the table of all rules, in Markdown, and nothing else");
    SetWork(*verb, context, [options, &context] { return Lint(*options, context.console); });
}

} // namespace Pelnar::Publisher
