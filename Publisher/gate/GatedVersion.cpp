#include "Publisher/gate/GatedVersion.h"

#include "App/UpdateChecker/SparkleImpl/Choice/UpdateType.h"
#include "Engine/core/bundle/CheckBundle.h"
#include "Engine/core/check/KeyStatement.h"
#include "Engine/core/feed/ReleaseRules.h"
#include "Engine/core/fetch/FetchRules.h"
#include "Publisher/Refusal.h"
#include "Publisher/choice/FeedChoice.h"
#include "Publisher/keys/Signer.h"

#include <cstdlib>

namespace Pelnar::Publisher
{
namespace
{

/// The machine in the header of the program in \a bundle. Empty for another system, a script, and a program that the
/// gate refuses.
QStringList MachinesOf(BundleTree const& bundle)
{
    QStringList machines;
    for (std::string const& name : Engine::MachineNames())
    {
        try
        {
            Engine::CheckExecutable(bundle.Descriptor(), bundle.Information().executable, *Engine::MachineOfName(name));
            machines.append(QString::fromStdString(name));
        }
        catch (Engine::UpdateRefusal const&)
        {
            continue;
        }
    }
    return bundle.Platform() == Engine::FeedPlatform::Linux && machines.size() == 1 ? machines : QStringList();
}

} // namespace

Engine::KeyedVersion KeysOf(GatedVersion const& version)
{
    return {version.versionText, version.signerIds, version.HasClients() ? version.trustedIds : QStringList()};
}

bool IsOffered(GatedVersion const& newer, GatedVersion const& older)
{
    return older.HasClients() && older.platform == newer.platform && older.version.IsValid() &&
           newer.version.IsValid() && older.version < newer.version &&
           Engine::ShareMachine(older.machines, newer.machines);
}

Engine::TrustedKeys KeysOf(BundleTree const& bundle, QString const& path)
{
    Engine::TrustedKeys const& keys = bundle.Information().publicKeys;
    for (std::string const& text : keys.Texts())
    {
        if (KeyIdOf(text).isEmpty())
        {
            throw Refusal(
                {path,
                 u"%1 \"%2\" in the bundle's information file is not an Ed25519 key; its clients could never be updated again"_s
                     .arg(QLatin1String(&text == &keys.Texts().front() ? "SUPublicEDKey" : "PelnarNextPublicEDKey"),
                          QString::fromStdString(text).left(60)),
                 u"write the entry that \"keys show\" prints"_s},
                RefusalCause::Content);
        }
    }
    return keys;
}

GatedVersion VersionOf(BundleTree const& bundle, QString const& path, Engine::PayloadKind kind)
{
    Engine::BundleInformation const& information = bundle.Information();
    GatedVersion version;
    version.path = path;
    version.versionText = QString::fromStdString(information.version);
    version.version = WholeVersion(version.versionText);
    version.platform = bundle.Platform();
    version.kind = kind;
    version.machines = MachinesOf(bundle);
    version.bundle = GatedBundle{information.identifier, bundle.Name(), KeysOf(bundle, path),
                                 information.allowsInstallerPrograms, information.rootPublicKey};
    // On macOS another framework fetches the feed.
    version.bundle->requiresSignedFeed =
        information.requiresSignedFeed && version.HasClients() && version.platform == Engine::FeedPlatform::Linux;
    version.bundle->hasFeedAddress = !information.feedUrl.empty();
    version.bundle->maximumFeedBytes = MaximumFeedBytesOf(information);
    // With a root key, the feed's key statement says which keys clients trust, and it can change.
    if (information.rootPublicKey.empty())
    {
        version.trustedIds = KeyIdsOf(version.bundle->publicKeys);
    }
    else if (KeyIdOf(information.rootPublicKey).isEmpty())
    {
        throw Refusal(
            {path,
             u"PelnarRootPublicEDKey \"%1\" in the bundle's information file is not an Ed25519 key; its clients would refuse every feed"_s
                 .arg(QString::fromStdString(information.rootPublicKey).left(60)),
             u"write the public key that \"keys show\" prints for the root key"_s},
            RefusalCause::Content);
    }
    return version;
}

void BelieveStatement(GatedVersion& version, QByteArray const& feed)
{
    GatedBundle& bundle = version.bundle.value();
    auto const believed = Engine::BelieveKeys(feed, {bundle.publicKeys, bundle.rootKey, bundle.identifier, 0},
                                              QDateTime::currentDateTimeUtc());
    if (!believed)
    {
        throw Refusal({version.path,
                       u"its clients require a key statement and would refuse the feed: %1"_s.arg(
                           believed.error().sentence.English()),
                       u"make one with \"keys state\", and put it into the feed with the option "
                       "--key-statement of generate or sign-feed"_s},
                      RefusalCause::Content);
    }
    Engine::TrustedKeys const& keys = believed->keys;
    bundle.knownKeys = bundle.publicKeys.Texts();
    bundle.knownKeys.insert(bundle.knownKeys.end(), keys.Texts().begin(), keys.Texts().end());
    version.trustedIds = KeyIdsOf(keys);
    bundle.clientKeys = keys;
}

void CheckFeedSignature(GatedVersion const& version, FeedSignature signature)
{
    if (version.bundle && version.bundle->requiresSignedFeed && signature == FeedSignature::Missing)
    {
        throw Refusal({version.path, u"its clients require a signed feed and would refuse this one"_s,
                       u"sign the feed with a key that they trust: use generate --sign-feed, or sign-feed; during a "
                       "change of keys, generate with the old key as --key and the new one as --second-key"_s},
                      RefusalCause::Content);
    }
}

// As clients read the setting: an unusable value counts as the default.
qint64 MaximumFeedBytesOf(Engine::BundleInformation const& information)
{
    qint64 const bytes = std::strtoll(information.maximumFeedBytes.c_str(), nullptr, 10);
    return bytes < 1 || bytes > Engine::MAX_FEED_BYTES ? Engine::FetchLimits().maxBodyBytes : bytes;
}

void CheckFeedSize(QString const& path, qint64 maximumBytes, qint64 feedBytes)
{
    if (feedBytes > maximumBytes)
    {
        throw Refusal(
            {path,
             u"its clients refuse the feed, because it has %1 bytes, and they accept at most %2"_s.arg(
                 QString::number(feedBytes), QString::number(maximumBytes)),
             u"remove old items with \"prune\", or shorten the notes; in a new version, write a greater PelnarMaximumFeedBytes into its information file"_s},
            RefusalCause::Content);
    }
}

GatedVersion VersionOf(Engine::FeedItem const& item, Engine::FeedPlatform platform, QString const& feedName)
{
    GatedVersion version;
    version.path = u"%1:%2"_s.arg(feedName, QString::number(item.line));
    version.versionText = item.versionString;
    version.version = WholeVersion(item.versionString);
    version.platform = platform;
    version.kind = UpdateTypeOf(item) == App::Session::UpdateType::INSTALLER ? Engine::PayloadKind::Installer
                                                                             : Engine::PayloadKind::WholeBundle;
    version.machines = item.policy.machines;
    version.signerIds = Engine::SignersOf(item);
    version.trustedIds = item.trustedKeys;
    return version;
}

} // namespace Pelnar::Publisher
