// KeyPaths.h: which keys signed an item, and which versions lead an installation to a key that it does not trust yet:
// docs/formats/item-keys.md.
#pragma once

#include "Engine/core/feed/FeedItem.h"

#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace Pelnar::Engine
{

/// Negative if the first version is older than the second, positive if it is newer. May throw.
using VersionOrder = std::function<int(QString const&, QString const&)>;

/// True if an id is in both lists.
[[nodiscard]] bool HasCommon(QStringList const& a, QStringList const& b);

/// The ids of the keys that signed \a item, according to the feed.
[[nodiscard]] QStringList SignersOf(FeedItem const& item);

/// The signature of \a item by one of the keys with the ids \a trusted. Empty if the feed says that other keys signed
/// the item. A signature for which the feed names no key is returned as it is: the download will be verified with it.
/// Without \a trusted the keys do not matter.
[[nodiscard]] std::optional<QString> SignatureFor(FeedItem const& item, QStringList const& trusted);

/// A version and its keys.
struct KeyedVersion
{
    QString version;
    QStringList signers; ///< empty if not known
    QStringList trusted; ///< by its bundle; empty if not known, or if it is not installed itself
};

/// The version of \a item and its keys, according to the feed.
[[nodiscard]] KeyedVersion KeysOf(FeedItem const& item);

/// The limit of steps, so that a hostile feed costs no more.
constexpr std::size_t MOST_STEPPING_STONES = 16;

/// The versions of \a all that an installation of \a from installs one after another. Each is the newest one that it
/// can verify. Passes exceptions of \a order on.
[[nodiscard]] std::vector<KeyedVersion>
SteppingStonesFrom(KeyedVersion const& from, std::vector<KeyedVersion> const& all, VersionOrder const& order);

/// True if an older one of \a stones trusts a key of \a target.
[[nodiscard]] bool IsBehindStone(KeyedVersion const& target, std::vector<KeyedVersion> const& stones,
                                 VersionOrder const& order);

/// True if \a stones lead to the version of \a target or to a newer one.
[[nodiscard]] bool IsReached(KeyedVersion const& target, std::vector<KeyedVersion> const& stones,
                             VersionOrder const& order);

} // namespace Pelnar::Engine
