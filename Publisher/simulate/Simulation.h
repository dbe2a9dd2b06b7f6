// Simulation.h: who has which version when: clients that check a feed once a day and take what they are offered.
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
    std::vector<NamedVersion> startVersions; ///< the clients begin with them in turn
    Core::Version systemVersion;
    Engine::Installation installation; ///< what all clients have in common
    int clients = 1;
    int days = 1;
    QDateTime start;
    std::uint32_t seed = 1; ///< of the hours at which clients check, and of their groups
};

struct Simulation
{
    QStringList versions;                 ///< that some client has on some day, oldest first
    std::vector<std::vector<int>> counts; ///< by day, from the start, then by version
};

/// Every client checks by itself once a day, at an hour of its own, and is in groups of its own. REQUIRES: there is a
/// version to start with.
Simulation Simulate(std::vector<Engine::FeedItem> const& items, SimulationRequest const& request);

/// A line for each day.
QStringList TextOf(Simulation const& simulation, QDateTime const& start);

} // namespace Pelnar::Publisher
