// ClientShares.h: the versions that clients run, as their publisher counts them.
#pragma once

#include "HostFramework/Version.h"

#include <QString>

#include <vector>

namespace Pelnar::Publisher
{

struct ClientShare
{
    Core::Version version; ///< all four components present
    double share = 0;
};

/// What the file \a name lists, the largest share first. A line has a version and its share, any number above 0; empty
/// lines and lines that begin with "#" are left out. Throws Refusal for another line, and for a version that stands
/// there twice.
std::vector<ClientShare> ReadClientShares(QString const& name);

} // namespace Pelnar::Publisher
