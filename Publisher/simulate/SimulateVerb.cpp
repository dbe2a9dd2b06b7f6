#include "Publisher/Verb.h"

#include "Publisher/Refusal.h"
#include "Publisher/SharedOptions.h"
#include "Publisher/files/AtomicFile.h"
#include "Publisher/matrix/Outcome.h"
#include "Publisher/simulate/SimulationPicture.h"

#include <QJsonArray>

#include <algorithm>

namespace Pelnar::Publisher
{
namespace
{

struct SimulateOptions : FeedQuestion
{
    std::string versions;
    std::string systemVersion = UNKNOWN_SYSTEM;
    std::string picture;
    int clients = 1000;
    int days = 10;
    std::uint32_t seed = 1;
};

/// The time from the command line; otherwise the newest item's readable date, otherwise now.
QDateTime StartOf(std::vector<Engine::FeedItem> const& items, SimulateOptions const& options, QDateTime const& given)
{
    QDateTime newest;
    for (Engine::FeedItem const& item : items)
    {
        QDateTime const time = Engine::FeedTime(item.dateString);
        newest = time.isValid() && (!newest.isValid() || newest < time) ? time : newest;
    }
    return options.installation.moment.empty() && newest.isValid() ? newest.toUTC() : given;
}

QJsonObject JsonOf(Simulation const& simulation, SimulateOptions const& options, QString const& feed,
                   QDateTime const& start)
{
    QJsonArray days;
    for (std::size_t day = 0; day < simulation.counts.size(); ++day)
    {
        QJsonArray counts;
        std::copy(simulation.counts[day].begin(), simulation.counts[day].end(), std::back_inserter(counts));
        days.append(counts);
    }
    return {{u"feed"_s, feed},
            {u"platform"_s, Engine::NameOf(options.platform)},
            {u"clients"_s, options.clients},
            {u"start"_s, start.toUTC().toString(Qt::ISODate)},
            {u"versions"_s, QJsonArray::fromStringList(simulation.versions)},
            {u"counts"_s, days}};
}

ExitStatus RunSimulation(SimulateOptions const& options, Console const& console)
{
    SimulationRequest request;
    request.installation = InstallationOf(options.installation);
    request.systemVersion =
        ParseSystemVersion(u"--system-version"_s, QString::fromStdString(options.systemVersion)).version;
    ParsedFeed const feed = ReadItems(options, options.feed, request.installation.machine, console);
    request.startVersions = options.versions.empty()
                                ? VersionsOfFeed(feed.items)
                                : ParseVersionList(u"--versions"_s, options.versions, ParseLocalVersion);
    if (request.startVersions.empty())
    {
        throw Refusal({feed.source.name, u"names no version to start with"_s, u"give --versions"_s});
    }
    request.clients = options.clients;
    request.days = options.days;
    request.seed = options.seed;
    request.start = StartOf(feed.items, options, request.installation.now);
    Simulation const simulation = Simulate(feed.items, request);
    if (!options.picture.empty())
    {
        ReplaceFile(QString::fromStdString(options.picture), PictureOf(simulation, request.start));
    }
    if (options.isJson)
    {
        console.PrintJson(JsonOf(simulation, options, feed.source.name, request.start));
        return ExitStatus::Clean;
    }
    console.Print(TextOf(simulation, request.start));
    return ExitStatus::Clean;
}

} // namespace

void AddSimulate(CLI::App& program, VerbContext& context)
{
    auto const [verb, options] = AddVerb<SimulateOptions>(
        program, context, "simulate",
        "Simulate how clients move to new versions, if they check once a day and take every update", RunSimulation);
    AddFeedOption(verb, options.feed);
    verb.add_option("--clients", options.clients, "Number of clients")
        ->type_name("N")
        ->check(CLI::Range(1, 1000000))
        ->capture_default_str();
    verb.add_option("--days", options.days, "Number of days")
        ->type_name("D")
        ->check(CLI::Range(1, 3650))
        ->capture_default_str();
    verb.add_option(
            "--versions", options.versions,
            "Versions that the clients start with in turn, separated by commas; default: all that the feed names")
        ->type_name("LIST");
    verb.add_option("--system-version", options.systemVersion, "Version of the clients' operating system")
        ->type_name("V")
        ->capture_default_str();
    verb.add_option("--seed", options.seed, "Another number gives the clients other check times and rollout groups")
        ->type_name("NUMBER")
        ->capture_default_str();
    verb.add_option("--svg", options.picture, "Also write a picture")->type_name("FILE");
    AddClientOptions(verb, options);
}

} // namespace Pelnar::Publisher
