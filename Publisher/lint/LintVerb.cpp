#include "Publisher/Verb.h"

#include "Publisher/Refusal.h"
#include "Publisher/SharedOptions.h"
#include "Publisher/files/InputFile.h"
#include "Publisher/lint/FetchRules.h"
#include "Publisher/lint/KeyStatementRules.h"
#include "Publisher/lint/LintReport.h"
#include "Publisher/lint/SignatureRules.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <map>
#include <ostream>
#include <tuple>

namespace Pelnar::Publisher
{
namespace
{

struct LintOptions
{
    std::vector<std::string> feeds;
    std::string publishedAt;
    std::vector<std::string> publicKeys;
    std::vector<std::string> rootKeys;
    std::string previous;
    std::string baseline;
    bool isSignatureAsked = false;
    bool isFetching = false;
    bool isStrict = false;
    bool isJson = false;
    bool isSarif = false;
    bool isEach = false;
    bool isListingRules = false;
};

using FeedFindings = std::pair<QString, std::vector<LintFinding>>;

/// How often each finding occurs in a feed. Line numbers do not count, because they change when the feed is edited.
using KnownFindings = std::map<std::tuple<QString, QString, QString>, int>;

void CheckOptions(LintOptions const& options)
{
    QString const mend = u"see pelnar-appcast lint --help"_s;
    if (options.feeds.empty())
    {
        throw Refusal({u"FEED is required"_s, mend});
    }
    if (options.feeds.size() > 1 && !(options.publishedAt.empty() && options.previous.empty()))
    {
        throw Refusal({u"--published-at and --previous need exactly one feed"_s, mend});
    }
}

KnownFindings ReadBaseline(std::string const& path)
{
    KnownFindings known;
    if (path.empty())
    {
        return known;
    }
    constexpr std::uint64_t MOST_BYTES = 64 << 20;
    QString const name = QString::fromStdString(path);
    QString const mend = u"give the output of an earlier run with --json"_s;
    QJsonObject const written = QJsonDocument::fromJson(ReadInputFile(OpenInputFile(name), MOST_BYTES, mend)).object();
    bool const isOfOne = written.contains(u"findings"_s);
    QJsonArray const feeds = isOfOne ? QJsonArray{written} : written.value(u"feeds"_s).toArray();
    if (!isOfOne && !written.contains(u"feeds"_s))
    {
        throw Refusal({name, u"is not the JSON of pelnar-appcast lint"_s, mend});
    }
    for (QJsonValue const& feed : feeds)
    {
        QJsonArray const findings = feed[u"findings"_s].toArray();
        for (QJsonValue const& finding : findings)
        {
            ++known[{feed[u"feed"_s].toString(), finding[u"rule"_s].toString(), finding[u"what"_s].toString()}];
        }
    }
    return known;
}

/// Removes the known findings; returns their number.
std::size_t TakeOutKnown(FeedFindings& feed, KnownFindings& known)
{
    std::vector<LintFinding>& findings = feed.second;
    std::size_t const before = findings.size();
    findings.erase(
        std::remove_if(
            findings.begin(), findings.end(),
            [&](LintFinding const& finding)
            {
                auto const found = known.find({feed.first, QLatin1String(EntryOf(finding.rule).name), finding.what});
                return found != known.end() && found->second-- > 0;
            }),
        findings.end());
    return before - findings.size();
}

FeedBytes Read(std::string const& name, LintOptions const& options, Console const& console)
{
    return ReadFeed(QString::fromStdString(name), QString::fromStdString(options.publishedAt), console);
}

FeedFindings LintOne(std::string const& name, LintOptions const& options, Console const& console)
{
    FeedBytes const feed = Read(name, options, console);
    LintResult result = LintFeed(feed.bytes, feed.address);
    auto const add = [&result](std::vector<LintFinding> const& findings)
    { result.findings.insert(result.findings.end(), findings.begin(), findings.end()); };
    FeedSigningWish const wish = options.isSignatureAsked ? FeedSigningWish::Signed : FeedSigningWish::None;
    add(CheckFeedSignature(feed.bytes, result.subject.get(),
                           {options.publicKeys, wish, QDateTime::currentDateTimeUtc()}));
    QByteArray const previous =
        options.previous.empty() ? QByteArray() : Read(options.previous, options, console).bytes;
    add(CheckKeyStatement(feed.bytes, result.subject.get(),
                          {options.rootKeys, previous, QDateTime::currentDateTimeUtc()}));
    if (result.subject)
    {
        add(CheckKeyUse(feed.bytes, *result.subject));
    }
    if (result.subject && options.isFetching)
    {
        add(CheckArchives(*result.subject, options.publicKeys, console));
    }
    return {feed.name, std::move(result.findings)};
}

void Print(std::vector<FeedFindings> const& feeds, std::size_t knownCount, LintOptions const& options,
           Console const& console)
{
    if (options.isSarif)
    {
        console.PrintJson(SarifOf(feeds));
        return;
    }
    if (options.isJson)
    {
        QJsonArray list;
        for (auto const& [name, findings] : feeds)
        {
            list.append(JsonOf(name, findings));
        }
        console.PrintJson(feeds.size() == 1 ? list.first().toObject() : QJsonObject{{u"feeds"_s, list}});
        return;
    }
    for (auto const& [name, findings] : feeds)
    {
        if (options.isEach)
        {
            PrintFindings(name, findings, console);
        }
        else
        {
            PrintGroupedFindings(name, findings, console);
        }
    }
    if (knownCount > 0)
    {
        console.Print(u"%1 known from the baseline"_s.arg(CountOf(knownCount, u"finding"_s)));
    }
}

ExitStatus Lint(LintOptions const& options, Console const& console)
{
    if (options.isListingRules)
    {
        console.out.stream << LintRulesAsMarkdown().toStdString();
        return ExitStatus::Clean;
    }
    CheckOptions(options);
    KnownFindings known = ReadBaseline(options.baseline);
    Strictness const strictness = options.isStrict ? Strictness::Everything : Strictness::ErrorsAndWarnings;
    std::vector<FeedFindings> feeds;
    std::size_t knownCount = 0;
    ExitStatus status = ExitStatus::Clean;
    for (std::string const& name : options.feeds)
    {
        FeedFindings feed = LintOne(name, options, console);
        knownCount += TakeOutKnown(feed, known);
        status = std::max(status, StatusOf(feed.second, strictness));
        feeds.push_back(std::move(feed));
    }
    Print(feeds, knownCount, options, console);
    return status;
}

} // namespace

void AddLint(CLI::App& program, VerbContext& context)
{
    auto const [verb, options] = AddVerb<LintOptions>(
        program, context, "lint", "Find what clients would refuse or misread, with the place and the correction", Lint);
    verb.add_option("FEED", options.feeds, "Paths or addresses of feeds, or - for standard input");
    AddPublishedAtOption(verb, options.publishedAt);
    verb.add_flag("--fetch", options.isFetching, "Fetch every download, and check its size and signature");
    verb.add_flag("--signed", options.isSignatureAsked, "Require a signature of the feed itself, as some clients do");
    AddKeysOption(
        verb, "--public-key", options.publicKeys,
        "Public key that verifies the signatures of the feed and of fetched downloads, in base64; may be repeated");
    AddKeysOption(verb, "--root-public-key", options.rootKeys,
                  "PelnarRootPublicEDKey of the bundles, in base64: the feed must have a key statement signed by it; "
                  "may be repeated");
    verb.add_option("--previous", options.previous,
                    "The feed that was published before: no serial may be lower than in it")
        ->type_name("FEED");
    verb.add_option("--baseline", options.baseline,
                    "Output of an earlier run with --json: its findings are known and not reported again")
        ->type_name("FILE");
    verb.add_flag("--strict", options.isStrict, "Exit with 1 for notes too");
    verb.add_flag("--json", options.isJson, "Print one JSON object");
    verb.add_flag("--sarif", options.isSarif, "Print one SARIF log, for code hosts and editors");
    verb.add_flag("--each", options.isEach, "Print every finding on its own line, not grouped by rule");
    verb.add_flag("--rules", options.isListingRules, "Print the table of all rules, in Markdown, and nothing else");
}

} // namespace Pelnar::Publisher
