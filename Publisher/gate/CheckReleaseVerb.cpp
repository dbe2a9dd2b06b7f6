#include "Publisher/Verb.h"

#include "Publisher/Refusal.h"
#include "Publisher/SharedOptions.h"
#include "Publisher/gate/ReleaseCheck.h"

#include <QDir>
#include <QFileInfo>

namespace Pelnar::Publisher
{
namespace
{

constexpr char FEED_FILE[] = "appcast.xml";

struct Options
{
    std::string release;
    std::vector<std::string> machines;
    std::vector<std::string> publicKeys;
};

ExitStatus Check(Options const& options, Console const& console)
{
    QString const name = QString::fromStdString(options.release);
    QFileInfo const place(name);
    QString const feedName = place.isDir() ? QDir(name).filePath(QLatin1String(FEED_FILE)) : name;
    FeedBytes feed = ReadFeed(feedName, {}, console);
    ReleaseCheckRequest request;
    request.feedName = feed.name;
    request.feedAddress = feed.address;
    request.feed = std::move(feed.bytes);
    request.folder = feed.address.isLocalFile() ? QFileInfo(feedName).path() : QString();
    request.publicKeys = options.publicKeys;
    request.machines = options.machines;
    return CheckRelease(request, console);
}

} // namespace

void AddCheckRelease(CLI::App& program, VerbContext& context)
{
    auto const [verb, options] =
        AddVerb<Options>(program, context, "check-release",
                         "Check a release as the clients of every version will: each archive is unpacked and checked "
                         "by the code that installs it, with the keys that the older bundles trust. The exit status is "
                         "1 if a client would refuse anything",
                         [](Options const& given, Console const& console)
                         { return JudgeRelease(console, [&] { return Check(given, console); }); });
    verb.add_option("RELEASE", options.release,
                    "Folder with appcast.xml and its archives, the feed file in it, or the address of a published "
                    "feed, whose downloads are then fetched. The folder must contain every download that clients take; "
                    "downloads of older versions may be missing and are then not checked")
        ->required();
    AddMachineOption(verb, options.machines, "this machine, and all machines that the feed names");
    AddKeysOption(verb, "--public-key", options.publicKeys,
                  "Public key that signed a download and that no available bundle trusts, in base64; may be repeated");
}

} // namespace Pelnar::Publisher
