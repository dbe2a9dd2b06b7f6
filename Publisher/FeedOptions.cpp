#include "Publisher/FeedOptions.h"

#include "Publisher/choice/ClientOptions.h"

namespace Pelnar::Publisher
{

void AddPlatformOption(CLI::App& verb, std::string& platform)
{
    verb.add_option("--platform", platform, "Whose items count")
        ->capture_default_str()
        ->check(CLI::IsMember(PlatformNames()));
}

void AddPublishedAtOption(CLI::App& verb, std::string& address)
{
    verb.add_option("--published-at", address,
                    "Address of the published feed, for its relative addresses; default: where it is read")
        ->type_name("URL");
}

} // namespace Pelnar::Publisher
