#include "Publisher/simulate/Simulation.h"

#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "Engine/core/check/RolloutSeed.h"

#include <algorithm>
#include <map>
#include <memory>
#include <random>

namespace Pelnar::Publisher
{
namespace
{

constexpr int SECONDS_OF_A_DAY = 24 * 60 * 60;

struct SimulatedClient
{
    NamedVersion version;
    QByteArray rolloutSeed;
    int secondOfDay = 0;
};

/// The feed for a client whose group must still wait for some staged items.
class ReachedFeed
{
public:
    ReachedFeed(std::vector<Engine::FeedItem> items, Engine::Installation const& installation,
                std::vector<Engine::FeedItem> const& allItems)
        : m_items(std::move(items)), m_chooser(m_items, installation, allItems)
    {
    }

    /// The version that a client of \a version is offered; its own version if there is no offer or only a web page.
    NamedVersion const& Next(NamedVersion const& version, Core::Version const& systemVersion,
                             Engine::Installation const& installation)
    {
        auto const [next, isNew] = m_next.try_emplace(version.text, version);
        if (isNew)
        {
            Client const client{version.version, systemVersion};
            Engine::FeedItem const* const item = m_chooser.Answer(client).chosen;
            bool const isTaken =
                item && PolicyOf(*item, InstallationOf(client, installation)) != Engine::PolicyVerdict::Informational;
            if (isTaken)
            {
                next->second = {item->versionString, App::Session::VersionFromStringNoexcept(item->versionString)};
            }
        }
        return next->second;
    }

private:
    std::vector<Engine::FeedItem> const m_items;
    FeedChooser m_chooser;
    std::map<QString, NamedVersion> m_next;
};

class Simulator
{
public:
    Simulator(std::vector<Engine::FeedItem> const& items, SimulationRequest const& request)
        : m_items(items), m_request(request)
    {
        m_request.installation.rolloutGroup = nullptr;
    }

    /// One automatic check.
    void Check(SimulatedClient& client, QDateTime const& now)
    {
        std::vector<bool> const waits = Waiting(client, now);
        std::unique_ptr<ReachedFeed>& feed = m_feeds[waits];
        if (!feed)
        {
            std::vector<Engine::FeedItem> reached;
            for (std::size_t i = 0; i < m_items.size(); ++i)
            {
                if (!waits[i])
                {
                    reached.push_back(m_items[i]);
                }
            }
            feed = std::make_unique<ReachedFeed>(std::move(reached), m_request.installation, m_items);
        }
        client.version = feed->Next(client.version, m_request.systemVersion, m_request.installation);
    }

private:
    std::vector<bool> Waiting(SimulatedClient const& client, QDateTime const& now) const
    {
        Engine::Installation installation =
            InstallationOf({client.version.version, m_request.systemVersion}, m_request.installation);
        installation.now = now;
        installation.rolloutGroup = [&client](QString const& version)
        { return Engine::RolloutGroup(client.rolloutSeed, version); };
        std::vector<bool> waits(m_items.size());
        for (std::size_t i = 0; i < m_items.size(); ++i)
        {
            waits[i] = m_items[i].policy.rolloutSeconds != 0 &&
                       PolicyOf(m_items[i], installation) == Engine::PolicyVerdict::NotYetRolledOut;
        }
        return waits;
    }

    std::vector<Engine::FeedItem> const& m_items;
    SimulationRequest m_request;
    std::map<std::vector<bool>, std::unique_ptr<ReachedFeed>> m_feeds; ///< by the staged items that have not reached
                                                                       ///< the client yet
};

std::vector<SimulatedClient> MakeClients(SimulationRequest const& request)
{
    std::mt19937 random(request.seed);
    std::vector<SimulatedClient> clients;
    for (int i = 0; i < request.clients; ++i)
    {
        SimulatedClient client;
        client.version = request.startVersions[std::size_t(i) % request.startVersions.size()];
        client.secondOfDay = int(random() % SECONDS_OF_A_DAY);
        client.rolloutSeed = QByteArray::number(qulonglong(random())) + QByteArray::number(qulonglong(random()));
        clients.push_back(client);
    }
    return clients;
}

/// Two spellings of one version count as one version.
void Count(std::vector<SimulatedClient> const& clients, std::vector<NamedVersion>& versions, std::vector<int>& counts)
{
    counts.assign(versions.size(), 0);
    for (SimulatedClient const& client : clients)
    {
        auto const known = std::find_if(versions.begin(), versions.end(),
                                        [&](NamedVersion const& each)
                                        { return App::Session::IsSameVersion(each.version, client.version.version); });
        std::size_t const place = std::size_t(known - versions.begin());
        if (known == versions.end())
        {
            versions.push_back(client.version);
            counts.push_back(0);
        }
        ++counts[place];
    }
}

/// With the versions from the oldest to the newest, and a count of each for every day.
Simulation Ordered(std::vector<NamedVersion> const& versions, std::vector<std::vector<int>> const& counts)
{
    std::vector<std::size_t> order(versions.size());
    for (std::size_t i = 0; i < order.size(); ++i)
    {
        order[i] = i;
    }
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b)
              { return App::Session::IsOlderVersion(versions[a].version, versions[b].version); });
    Simulation simulation;
    for (std::size_t const place : order)
    {
        simulation.versions.append(versions[place].text);
    }
    for (std::vector<int> const& day : counts)
    {
        std::vector<int>& row = simulation.counts.emplace_back();
        for (std::size_t const place : order)
        {
            row.push_back(place < day.size() ? day[place] : 0);
        }
    }
    return simulation;
}

} // namespace

Simulation Simulate(std::vector<Engine::FeedItem> const& items, SimulationRequest const& request)
{
    Simulator simulator(items, request);
    std::vector<SimulatedClient> clients = MakeClients(request);
    std::vector<NamedVersion> versions;
    std::vector<std::vector<int>> counts(std::size_t(request.days) + 1);
    Count(clients, versions, counts.front());
    for (int day = 0; day < request.days; ++day)
    {
        for (SimulatedClient& client : clients)
        {
            simulator.Check(client, request.start.addDays(day).addSecs(client.secondOfDay));
        }
        Count(clients, versions, counts[std::size_t(day) + 1]);
    }
    return Ordered(versions, counts);
}

QStringList TextOf(Simulation const& simulation, QDateTime const& start)
{
    constexpr int DATE_WIDTH = 12;
    constexpr int COUNT_WIDTH = 8;
    QString head = u"day"_s.leftJustified(DATE_WIDTH);
    for (QString const& version : simulation.versions)
    {
        head += u"  "_s + version.rightJustified(COUNT_WIDTH);
    }
    QStringList lines{head};
    for (std::size_t day = 0; day < simulation.counts.size(); ++day)
    {
        QString line = start.addDays(qint64(day)).toUTC().date().toString(Qt::ISODate).leftJustified(DATE_WIDTH);
        for (std::size_t i = 0; i < simulation.counts[day].size(); ++i)
        {
            int const width = std::max(COUNT_WIDTH, simulation.versions.at(int(i)).size());
            line += u"  "_s + QString::number(simulation.counts[day][i]).rightJustified(width);
        }
        lines.append(line);
    }
    return lines;
}

} // namespace Pelnar::Publisher
