// KeptFeed.h: a feed that was accepted and is kept, so that an unchanged one need not be sent again: what may be kept,
// what is asked with it, and which answer means "unchanged". Pure decisions.
// Thread: any; no state.
#pragma once

#include "Engine/core/fetch/AddressReach.h"
#include "Engine/core/fetch/Validators.h"

#include <QByteArray>
#include <QUrl>

#include <optional>

namespace Pelnar::Engine
{

struct KeptFeed
{
    QByteArray place;                           ///< of PlaceOf()
    AddressReach reach = AddressReach::Network; ///< of the place where it came from
    Validators validators;
    qint64 cameAt = 0; ///< when its bytes came, in seconds since 1970
    QByteArray bytes;
};

/// Stands for a feed's address, fragment left out, and for the address that answered in the end. A digest, so that
/// nobody reads a password out of it.
QByteArray PlaceOf(QUrl const& feedUrl, QUrl const& answered);

/// The feed of the answer \a head, without its bytes and its time; nothing when it must not be kept or cannot be asked
/// for again.
std::optional<KeptFeed> KeepableFeed(HttpHead const& head, QUrl const& feedUrl, QUrl const& answered,
                                     AddressReach reach);

/// True when the server wants its answer to be forgotten.
[[nodiscard]] bool ForbidsKeeping(HttpHead const& head);

/// What a request for \a feed carries, so that its bytes are not sent again.
HeaderField ConditionOf(KeptFeed const& feed);

/// True when the answer \a head (304) from \a reach means the very \a feed.
[[nodiscard]] bool IsAbout(KeptFeed const& feed, HttpHead const& head, AddressReach reach);

/// True while \a feed may stand for what a server says is unchanged. A server that is wrong about it, or was while
/// somebody else had it, is asked for the whole once in a while.
[[nodiscard]] bool IsFresh(KeptFeed const& feed, qint64 now);

} // namespace Pelnar::Engine
