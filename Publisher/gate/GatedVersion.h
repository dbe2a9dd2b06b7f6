// GatedVersion.h: one version in the gate: an update for installed clients, and later a client itself.
#pragma once

#include "Engine/core/feed/KeyPaths.h"
#include "Engine/core/helper/UpdateJob.h"
#include "HostFramework/Version.h"
#include "Publisher/files/BundleTree.h"

#include <QStringList>

#include <optional>
#include <string>

namespace Pelnar::Publisher
{

/// The bundle's properties for the gate, if the bundle is available.
struct GatedBundle
{
    std::string identifier;
    std::string name; ///< of its folder
    Engine::TrustedKeys publicKeys;
    bool allowsInstallerPrograms = false;
    std::string rootKey = {};                ///< empty if the bundle has none
    std::vector<std::string> knownKeys = {}; ///< its own, and those that the key statement declares valid
    Engine::TrustedKeys clientKeys = {};     ///< those that its clients believe
    bool requiresSignedFeed = false;
    bool hasFeedAddress = false;
    qint64 maximumFeedBytes = 0; ///< that its clients read
};

struct GatedVersion
{
    QString path; ///< of the archive, or the feed's name and line
    QString versionText;
    Core::Version version; ///< all four components present
    Engine::FeedPlatform platform = Engine::FeedPlatform::Linux;
    Engine::PayloadKind kind = Engine::PayloadKind::WholeBundle;
    QStringList machines = {}; ///< of its program; empty for every machine
    QStringList signerIds;     ///< of the keys that signed its download; empty if unknown
    QStringList trustedIds;    ///< of the keys that its clients trust; empty if unknown, and with a root key
    std::optional<GatedBundle> bundle;

    /// True if people run this version: an installer program is not installed itself.
    [[nodiscard]] bool HasClients() const { return kind == Engine::PayloadKind::WholeBundle; }
};

/// Its keys, for the search of paths between versions.
[[nodiscard]] Engine::KeyedVersion KeysOf(GatedVersion const& version);

/// True if clients of \a older are offered \a newer.
[[nodiscard]] bool IsOffered(GatedVersion const& newer, GatedVersion const& older);

/// The keys that \a bundle trusts. Throws Refusal if one is malformed: every key must be usable.
Engine::TrustedKeys KeysOf(BundleTree const& bundle, QString const& path);

/// The version of \a bundle, from the archive \a path. Throws Refusal if a key is malformed.
GatedVersion VersionOf(BundleTree const& bundle, QString const& path, Engine::PayloadKind kind);

/// If the bundle of \a version has a root key: adds the keys that the key statement in \a feed declares valid. Throws
/// Refusal if its clients would refuse the statement and so the feed.
void BelieveStatement(GatedVersion& version, QByteArray const& feed);

/// Whether a feed has a signature that clients accept.
enum class FeedSignature
{
    Missing,
    Present,
};

/// Throws Refusal if the clients of \a version require a signed feed, and \a signature is missing.
void CheckFeedSignature(GatedVersion const& version, FeedSignature signature);

/// The longest feed that clients with this information file accept.
qint64 MaximumFeedBytesOf(Engine::BundleInformation const& information);

/// Throws Refusal if a feed of \a feedBytes is longer than \a maximumBytes, which the clients of the version in the
/// archive \a path accept.
void CheckFeedSize(QString const& path, qint64 maximumBytes, qint64 feedBytes);

/// The version of \a item in the feed \a feedName. It is invalid if the item's version cannot be read.
GatedVersion VersionOf(Engine::FeedItem const& item, Engine::FeedPlatform platform, QString const& feedName);

} // namespace Pelnar::Publisher
