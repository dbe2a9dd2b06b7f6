// SimulationPicture.h: a simulation as a picture: how many clients have each version, from day to day.
#pragma once

#include "Publisher/simulate/Simulation.h"

#include <QByteArray>

namespace Pelnar::Publisher
{

/// SVG: the versions lie on each other, the oldest below. REQUIRES: there is a client.
QByteArray PictureOf(Simulation const& simulation, QDateTime const& start);

} // namespace Pelnar::Publisher
