// KeptFeed.h: an accepted feed that is kept, so that an unchanged one need not be sent again: which feed may be kept,
// which condition a request carries, and which answer means "unchanged". Pure functions.
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
    AddressReach reach = AddressReach::Network; ///< of the place that it came from
    Validators validators;
    qint64 cameAt = 0; ///< when its bytes arrived, in seconds since 1970
    QByteArray bytes;
};

/// Identifies a feed's address, without its fragment, together with the address that answered in the end. It is a
/// digest, so that it reveals no password.
QByteArray PlaceOf(QUrl const& feedUrl, QUrl const& answered);

/// The feed of the answer \a head, without its bytes and its time; empty if it must not be kept or has no validator.
std::optional<KeptFeed> KeepableFeed(HttpHead const& head, QUrl const& feedUrl, QUrl const& answered,
                                     AddressReach reach);

/// True if the server forbids storing its answer.
[[nodiscard]] bool ForbidsKeeping(HttpHead const& head);

/// The field with which a request for \a feed avoids receiving the same bytes again.
HeaderField ConditionOf(KeptFeed const& feed);

/// True if the answer \a head (304) from \a reach is about exactly this \a feed.
[[nodiscard]] bool IsAbout(KeptFeed const& feed, HttpHead const& head, AddressReach reach);

/// True while \a feed may be used for an answer "unchanged". After that the whole feed is requested. This limits how
/// long a wrong server, or an attacker who controlled it, can keep a feed in use.
[[nodiscard]] bool IsFresh(KeptFeed const& feed, qint64 now);

} // namespace Pelnar::Engine
