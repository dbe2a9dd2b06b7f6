// Simulation.h: simulates which clients have which version on which day, if clients check a feed once a day and take
// the update.
#pragma once

#include "Publisher/choice/FeedChoice.h"

#include <QDateTime>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace Pelnar::Publisher
{

struct SimulationRequest
{
    std::vector<NamedVersion> startVersions; ///< clients start with them in turn
    Core::Version systemVersion;
    Engine::Installation installation; ///< common to all clients
    int clients = 1;
    int days = 1;
    QDateTime start;
    std::uint32_t seed = 1; ///< for the clients' check times and rollout groups
};

struct Simulation
{
    QStringList versions;                 ///< all versions that a client has on some day, oldest first
    std::vector<std::vector<int>> counts; ///< by day from the start, then by version
};

/// Every client checks once a day at its own time and has its own rollout groups. REQUIRES: there is a version to start
/// with.
Simulation Simulate(std::vector<Engine::FeedItem> const& items, SimulationRequest const& request);

/// A line for each day.
QStringList TextOf(Simulation const& simulation, QDateTime const& start);

} // namespace Pelnar::Publisher
