// ClientShares.h: the versions that clients run, as counted by their publisher.
#pragma once

#include "HostFramework/Version.h"

#include <QString>

#include <vector>

namespace Pelnar::Publisher
{

struct ClientShare
{
    QString versionText;
    Core::Version version; ///< all four components present
    double share = 0;
};

/// The list in the file \a name, the largest share first. A line has a version and its share, a number above 0. Empty
/// lines and lines that begin with "#" are ignored. Throws Refusal for any other line, for a version that is listed
/// twice, and for a list without a version.
std::vector<ClientShare> ReadClientShares(QString const& name);

} // namespace Pelnar::Publisher
