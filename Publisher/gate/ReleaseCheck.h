// ReleaseCheck.h: judges all items of a published feed as the installed clients of its versions do. Thread: the main
// thread, with Qt's event loop.
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
    QString folder; ///< of the downloads; empty if they are fetched
    std::vector<std::string> publicKeys;
    std::vector<std::string> machines; ///< names; empty: this machine, and all that the feed names
};

/// Prints the judged items, and throws one Refusal for all that a client would refuse.
ExitStatus CheckRelease(ReleaseCheckRequest const& request, Console const& console);

} // namespace Pelnar::Publisher
