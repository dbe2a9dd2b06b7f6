// SimulationPicture.h: a simulation as a picture: the number of clients of each version from day to day.
#pragma once

#include "Publisher/simulate/Simulation.h"

#include <QByteArray>

namespace Pelnar::Publisher
{

/// SVG: stacked areas, the oldest version at the bottom. REQUIRES: there is a client.
QByteArray PictureOf(Simulation const& simulation, QDateTime const& start);

} // namespace Pelnar::Publisher
