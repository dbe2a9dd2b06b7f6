#include "Publisher/Verb.h"

#include "Publisher/Refusal.h"
#include "Publisher/SharedOptions.h"
#include "Publisher/generate/FeedGenerator.h"

namespace Pelnar::Publisher
{

void AddGenerate(CLI::App& program, VerbContext& context)
{
    auto const [verb, request] = AddVerb<GenerateRequest>(
        program, context, "generate",
        "Make a feed from a folder of archives, or add new archives to its feed. Published items stay unchanged",
        [](GenerateRequest const& given, Console const& console)
        { return JudgeRelease(console, [&] { return GenerateFeed(given, console); }); });
    verb.add_option("FOLDER", request.folder,
                    "Folder with zip and tar archives of bundles, installers, deltas, and their release notes "
                    "(NAME.html, .md or .txt; for a language NAME.de.html)")
        ->required();
    AddSignerOptions(verb, request.signer);
    AddSignerOptions(verb, request.secondSigner,
                     ": a second key that also signs the archives, for clients that trust only this key");
    CLI::Option* const prefix =
        verb.add_option("--url-prefix", request.urlPrefix, "Address where the folder's files are published")
            ->type_name("URL");
    verb.add_option("--url-template", request.urlTemplate,
                    "Instead of a prefix, if each release has its own folder: an address that ends in {file} and may "
                    "contain {version}")
        ->type_name("URL")
        ->excludes(prefix);
    AddMachineOption(verb, request.machines,
                     "this machine, and every other machine with an archive of the same version");
    AddKeysOption(verb, "--public-key", request.publicKeys,
                  "Public key that signed a published download and that no bundle in the folder trusts, in "
                  "base64; may be repeated");
    verb.add_option("-o,--output", request.feedFile, "Feed to write; default: appcast.xml in the folder")
        ->type_name("FILE");
    verb.add_option("--title", request.title, "Title of a new feed; default: the product's name");
    verb.add_option("--link", request.link, "Web page of a new feed; default: the address of the files")
        ->type_name("URL");
    verb.add_option("--deltas", request.deltaCount, "Number of versions before the newest that get a delta to it")
        ->type_name("NUMBER")
        ->check(CLI::Range(0, 100))
        ->capture_default_str();
    verb.add_option("--clients", request.clientsFile,
                    "File with the versions that clients run. Each line has a version and its share, which may be any "
                    "number. The versions with the largest shares get the deltas, instead of the newest versions")
        ->type_name("FILE");
    AddEffortOption(verb, request.deltaEffort);
    verb.add_flag("--recompress", request.isRecompressed,
                  "Also pack each new bundle for Linux as a zstd tar with a long window, and add it to the feed as a "
                  "smaller download. Older clients download the archive");
    AddKeyStatementOption(verb, request.keyStatementFile);
    verb.add_flag("--sign-feed", request.isFeedSigned,
                  "Also sign the feed itself. A feed that has a signature is always signed again if it changes");
    AddSigningOptions(verb, request.terms);
}

} // namespace Pelnar::Publisher
