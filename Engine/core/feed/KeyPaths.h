// KeyPaths.h: whose signatures an item bears, and which versions lead an installation to a key that it does not
// trust yet: docs/formats/item-keys.md.
#pragma once

#include "Engine/core/feed/FeedItem.h"

#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace Pelnar::Engine
{

/// Negative when the first version is older than the second, positive when it is newer. May throw.
using VersionOrder = std::function<int(QString const&, QString const&)>;

/// The ids of the keys that signed \a item, as far as the feed says.
[[nodiscard]] QStringList SignersOf(FeedItem const& item);

/// The signature of \a item by one of the keys with the ids \a trusted; nothing when the feed says that other keys
/// signed it. What is not said to be of any key is taken as it is: the download will show it. Without \a trusted
/// nothing is asked.
[[nodiscard]] std::optional<QString> SignatureFor(FeedItem const& item, QStringList const& trusted);

/// A version by its keys.
struct KeyedVersion
{
    QString version;
    QStringList signers; ///< empty while not known
    QStringList trusted; ///< by its bundle; empty while not known, and for what is not installed itself
};

/// The most steps that are looked for, so that a hostile feed costs no more.
constexpr std::size_t MOST_STEPPING_STONES = 16;

/// The versions of \a all that an installation of \a from takes one after the other: each time the newest that it can
/// verify. Lets exceptions of \a order through.
[[nodiscard]] std::vector<KeyedVersion>
SteppingStonesFrom(KeyedVersion const& from, std::vector<KeyedVersion> const& all, VersionOrder const& order);

/// Whether an older one of \a stones trusts a key of \a target.
[[nodiscard]] bool IsBehindStone(KeyedVersion const& target, std::vector<KeyedVersion> const& stones,
                                 VersionOrder const& order);

/// Whether \a stones lead to the version of \a target, or beyond it.
[[nodiscard]] bool IsReached(KeyedVersion const& target, std::vector<KeyedVersion> const& stones,
                             VersionOrder const& order);

} // namespace Pelnar::Engine
