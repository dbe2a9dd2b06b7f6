#include "Publisher/Verb.h"

#include "Publisher/Refusal.h"
#include "Publisher/delta/DeltaVerb.h"
#include "Publisher/gate/CheckReleaseVerb.h"
#include "Publisher/generate/FeedGenerator.h"
#include "Publisher/signfeed/SignFeedVerb.h"

namespace Pelnar::Publisher
{

void AddGenerate(CLI::App& program, VerbContext& context)
{
    auto const [verb, request] = AddVerb<GenerateRequest>(
        program, context, "generate",
        "Make a feed of a folder of archives, or add what is new in the folder to the feed that is there; "
        "what is published stays as it is",
        [](GenerateRequest const& given, Console const& console)
        { return JudgeRelease(console, [&] { return GenerateFeed(given, console); }); });
    verb.add_option("FOLDER", request.folder,
                    "Folder of zip and tar archives of bundles, installers, deltas, and release notes beside them "
                    "(NAME.html, .md or .txt, and in a language NAME.de.html)")
        ->required();
    AddSignerOptions(verb, request.signer);
    AddSignerOptions(verb, request.secondSigner,
                     ": a second key that signs the archives as well, for clients that trust only that one");
    CLI::Option* const prefix =
        verb.add_option("--url-prefix", request.urlPrefix, "Address at which the folder's files are published")
            ->type_name("URL");
    verb.add_option("--url-template", request.urlTemplate,
                    "Instead of a prefix, where each release has a place of its own: an address that ends in {file} "
                    "and may hold {version}")
        ->type_name("URL")
        ->excludes(prefix);
    AddMachineOption(
        verb, request.machines,
        "it is this one, and every other that has an archive of the same version beside that for this one");
    AddPublicKeysOption(verb, request.publicKeys,
                        "A key that signed what is published and that no bundle in the folder trusts, in base64; may "
                        "be given again");
    verb.add_option("-o,--output", request.feedFile, "Feed to write; without this appcast.xml in the folder")
        ->type_name("FILE");
    verb.add_option("--title", request.title, "Title of a new feed; without this the product's name");
    verb.add_option("--link", request.link, "Web page of a new feed; without this the address of the files")
        ->type_name("URL");
    verb.add_option("--deltas", request.deltaCount, "How many versions before the newest get a delta to it")
        ->type_name("NUMBER")
        ->check(CLI::Range(0, 100))
        ->capture_default_str();
    verb.add_option("--clients", request.clientsFile,
                    "File with the versions that clients run, a line each: the version and its share, any number. "
                    "Those with the largest shares get the deltas, instead of the newest")
        ->type_name("FILE");
    AddEffortOption(verb, request.deltaEffort);
    verb.add_flag("--recompress", request.isRecompressed,
                  "Pack each new bundle for Linux a second time, as a zstd tar with a long window, and name it in the "
                  "feed beside the archive; older clients take the archive");
    AddKeyStatementOption(verb, request.keyStatementFile);
    verb.add_flag("--sign-feed", request.isFeedSigned,
                  "Sign the feed itself as well; one that has a signature is always signed again when it changes");
    AddValidForOption(verb, request.validDays);
}

} // namespace Pelnar::Publisher
