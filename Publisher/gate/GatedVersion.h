// GatedVersion.h: one version as the gate sees it: an update for installed clients, and later a client itself.
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

/// What the gate needs of a bundle when it is at hand.
struct GatedBundle
{
    std::string identifier;
    std::string name; ///< of its folder
    Engine::TrustedKeys publicKeys;
    bool allowsInstallerPrograms = false;
    std::string rootKey = {};                ///< empty when the bundle names none
    std::vector<std::string> knownKeys = {}; ///< its own, and those that the key statement says are valid
};

struct GatedVersion
{
    QString path; ///< of the archive, or the feed's name and line
    QString versionText;
    Core::Version version; ///< all four components present
    Engine::FeedPlatform platform = Engine::FeedPlatform::Linux;
    Engine::PayloadKind kind = Engine::PayloadKind::WholeBundle;
    QStringList machines = {}; ///< that its program is for; empty for every one
    QStringList signerIds;     ///< of the keys that signed its download; empty while unknown
    QStringList trustedIds;    ///< of the keys that its clients trust; empty while unknown, and with a root key
    std::optional<GatedBundle> bundle;

    /// Whether people run this version: an installer program is never installed itself.
    [[nodiscard]] bool HasClients() const { return kind == Engine::PayloadKind::WholeBundle; }
};

/// Its keys, for the paths from one version to another.
[[nodiscard]] Engine::KeyedVersion KeysOf(GatedVersion const& version);

/// Whether clients of \a older are offered \a newer.
[[nodiscard]] bool IsOffered(GatedVersion const& newer, GatedVersion const& older);

/// The keys that \a bundle trusts. Throws Refusal for a text that is no key: every key must be usable.
Engine::TrustedKeys KeysOf(BundleTree const& bundle, QString const& path);

/// What \a bundle, from the archive \a path, is to the gate. Throws Refusal when a key is malformed.
GatedVersion VersionOf(BundleTree const& bundle, QString const& path, Engine::PayloadKind kind);

/// Gives \a version, when its bundle names a root key, the keys that the key statement in \a feed says are valid.
/// Throws Refusal when its clients would not believe that, and so refuse the feed.
void BelieveStatement(GatedVersion& version, QByteArray const& feed);

/// What the feed \a feedName says of \a item. The version is invalid when the item's cannot be read.
GatedVersion VersionOf(Engine::FeedItem const& item, Engine::FeedPlatform platform, QString const& feedName);

} // namespace Pelnar::Publisher
