// FeedGenerator.h: from a folder of archives to a feed: what is new in the folder is read, signed and added; what is
// published stays as it is. Thread: the main thread. Ownership: values only.
// Nothing is lost when it is interrupted: deltas get their names when they are whole and proved, and the feed is
// written last, at once.
#pragma once

#include "Publisher/Console.h"

#include <string>

namespace Pelnar::Publisher
{

struct GenerateRequest
{
    std::string folder;
    std::string keyFile;
    std::string urlPrefix;     ///< where the folder's files are published
    std::string feedFile;      ///< empty for appcast.xml in the folder
    std::string title;         ///< of a new feed; empty for the product's name
    std::string link;          ///< of a new feed; empty for urlPrefix
    int deltaCount = 3;        ///< how many versions before the newest get a delta to it
    bool isFeedSigned = false; ///< a feed that has a signature is signed again in any case
    int validDays = 30;        ///< until the feed's signature expires
};

/// Writes the feed, or leaves it when nothing is new, and prints what the strictest lint finds in it, which makes the
/// status ExitStatus::Findings. Throws Refusal, and has not touched the feed then.
ExitStatus GenerateFeed(GenerateRequest const& request, Console const& console);

} // namespace Pelnar::Publisher
