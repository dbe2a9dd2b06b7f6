#include "Publisher/Verb.h"

#include "Publisher/Refusal.h"
#include "Publisher/SharedOptions.h"
#include "Publisher/diff/FeedDiff.h"

#include <QJsonArray>

namespace Pelnar::Publisher
{
namespace
{

/// Its feed is the old one.
struct DiffOptions : FeedQuestion
{
    std::string newFeed;
    std::string versions;
};

QJsonObject JsonOf(std::vector<OutcomeChange> const& changes, QString const& oldName, QString const& newName,
                   QString const& platform)
{
    QJsonArray list;
    for (OutcomeChange const& change : changes)
    {
        list.append(QJsonObject{{u"localVersion"_s, change.localVersion},
                                {u"systems"_s, TextOf(change.systems)},
                                {u"before"_s, JsonOf(change.before)},
                                {u"after"_s, JsonOf(change.after)}});
    }
    return {{u"old"_s, oldName}, {u"new"_s, newName}, {u"platform"_s, platform}, {u"changes"_s, list}};
}

QJsonArray JsonOf(std::vector<ItemChange> const& changes)
{
    QJsonArray list;
    for (ItemChange const& change : changes)
    {
        list.append(QJsonObject{{u"version"_s, change.version},
                                {u"what"_s, QLatin1String(change.what)},
                                {u"before"_s, change.before},
                                {u"after"_s, change.after}});
    }
    return list;
}

ExitStatus Diff(DiffOptions const& options, Console const& console)
{
    Engine::Installation const installation = InstallationOf(options.installation);
    ParsedFeed const before = ReadItems(options, options.feed, installation.machine, console);
    ParsedFeed const after = ReadItems(options, options.newFeed, installation.machine, console);
    std::vector<NamedVersion> const versions =
        options.versions.empty() ? ClientVersions(before.items, after.items)
                                 : ParseVersionList(u"--versions"_s, options.versions, ParseLocalVersion);
    std::vector<OutcomeChange> const changes = DiffFeeds(before.items, after.items, versions, installation);
    std::vector<ItemChange> const itemChanges = DiffItems(before.items, after.items);
    bool const isSame = changes.empty() && itemChanges.empty();
    if (options.isJson)
    {
        QJsonObject json = JsonOf(changes, before.source.name, after.source.name, Engine::NameOf(options.platform));
        json.insert(u"items"_s, JsonOf(itemChanges));
        AddInstallation(json, options.installation);
        console.PrintJson(json);
        return isSame ? ExitStatus::Clean : ExitStatus::Findings;
    }
    console.Print(TextOf(itemChanges) + TextOf(changes, versions));
    if (changes.empty())
    {
        console.Print(u"every client gets the same as before"_s);
    }
    return isSame ? ExitStatus::Clean : ExitStatus::Findings;
}

} // namespace

void AddDiff(CLI::App& program, VerbContext& context)
{
    auto const [verb, options] = AddVerb<DiffOptions>(
        program, context, "diff",
        "Compare the effects of two feeds: which installed versions on which systems get another update", Diff);
    verb.add_option("OLD", options.feed, "Path or address of the old feed")->required();
    verb.add_option("NEW", options.newFeed, "Path or address of the new feed, or - for standard input")->required();
    verb.add_option("--versions", options.versions,
                    "Installed versions, separated by commas; default: all that either feed names, and 0")
        ->type_name("LIST");
    AddClientOptions(verb, options);
    AddRolloutGroupOption(verb, options.installation);
}

} // namespace Pelnar::Publisher
