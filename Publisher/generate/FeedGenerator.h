// FeedGenerator.h: makes a feed from a folder of archives. It reads, signs and adds what is new, and leaves published
// items unchanged. An interruption loses nothing and leaves nothing behind: deltas get their names once all are proved
// and the feed is ready, and the feed is replaced last.
#pragma once

#include "Engine/core/delta/DeltaContainerWriter.h"
#include "Publisher/Console.h"
#include "Publisher/signfeed/FeedSigner.h"

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
    std::vector<std::string> machines;   ///< for which the programs for Linux are made; empty: see Workplace
    std::vector<std::string> publicKeys; ///< that have signed published archives, besides the current one
    std::string feedFile;                ///< empty for appcast.xml in the folder
    std::string title;                   ///< of a new feed; empty for the product's name
    std::string link;                    ///< of a new feed; empty for the address of the files
    int deltaCount = 3;                  ///< how many versions before the newest get a delta to it
    std::string clientsFile;             ///< with the shares for the choice of these; empty for the newest ones
    Engine::DeltaEffort deltaEffort = Engine::DeltaEffort::Usual;
    std::string keyStatementFile; ///< of the line that is added to the feed; empty for none
    bool isRecompressed = false;  ///< new bundles are packed a second time
    bool isFeedSigned = false;    ///< a feed that has a signature is always signed again
    SigningTerms terms;           ///< of the feed's signature
};

/// Writes the feed if there is a new item, and prints the findings of the strictest lint; a finding gives
/// ExitStatus::Findings. Throws one Refusal for all files that clients would refuse, and has then changed nothing.
ExitStatus GenerateFeed(GenerateRequest const& request, Console const& console);

} // namespace Pelnar::Publisher
