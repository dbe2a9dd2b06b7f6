// FeedGenerator.h: from a folder of archives to a feed: what is new in the folder is read, signed and added; what is
// published stays as it is. Thread: the main thread. Ownership: values only.
// Nothing is lost or left when it is interrupted: deltas get their names when all of them are whole and proved and the
// feed is ready, which is written last, at once.
#pragma once

#include "Publisher/Console.h"
#include "Publisher/keys/Signer.h"

#include <string>
#include <vector>

namespace Pelnar::Publisher
{

struct GenerateRequest
{
    std::string folder;
    SignerOptions signer;
    SignerOptions secondSigner{"--second-key", "--second-signer"}; ///< of archives as well, if it is given
    std::string urlPrefix;                                         ///< where the folder's files are published
    std::string urlTemplate;             ///< the same with "{file}" and "{version}" in it; one of the two is empty
    std::vector<std::string> machines;   ///< that the programs for Linux are for; empty: see Workplace
    std::vector<std::string> publicKeys; ///< by which something was published, besides the one that signs now
    std::string feedFile;                ///< empty for appcast.xml in the folder
    std::string title;                   ///< of a new feed; empty for the product's name
    std::string link;                    ///< of a new feed; empty for the address of the files
    int deltaCount = 3;                  ///< how many versions before the newest get a delta to it
    std::string clientsFile;             ///< of the shares by which these are chosen; empty for the newest ones
    std::string deltaEffort = "usual";   ///< a name that EffortOf knows
    std::string keyStatementFile;        ///< of the line that is put into the feed; empty for none
    bool isRecompressed = false;         ///< new bundles are packed a second time
    bool isFeedSigned = false;           ///< a feed that has a signature is signed again in any case
    int validDays = 30;                  ///< until the feed's signature expires
};

/// Writes the feed, or leaves it when nothing is new, and prints what the strictest lint finds in it, which makes the
/// status ExitStatus::Findings. What clients would refuse of what is new, or of what is published and lies in the
/// folder, is told all at once. Throws Refusal, and has touched nothing then.
ExitStatus GenerateFeed(GenerateRequest const& request, Console const& console);

} // namespace Pelnar::Publisher
