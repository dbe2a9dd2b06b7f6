// ReleaseCheck.h: everything that a published feed offers, judged as the installed clients of its versions judge it.
// Thread: the main thread, with Qt's event loop.
#pragma once

#include "Publisher/Console.h"

#include <QByteArray>
#include <QUrl>

#include <string>
#include <vector>

namespace Pelnar::Publisher
{

struct ReleaseCheckRequest
{
    QString feedName;
    QUrl feedAddress;
    QByteArray feed;
    QString folder; ///< of the downloads; empty when they are fetched
    std::vector<std::string> publicKeys;
    std::vector<std::string> machines; ///< names; empty for this one, and all that the feed names
};

/// Prints what was judged, and throws one Refusal for everything that a client would refuse.
ExitStatus CheckRelease(ReleaseCheckRequest const& request, Console const& console);

} // namespace Pelnar::Publisher
