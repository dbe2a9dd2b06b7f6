// FeedLength.h: whether clients read a feed that is about to be written: each has a limit for its length.
#pragma once

#include "Publisher/Console.h"

#include <QByteArray>
#include <QString>

namespace Pelnar::Publisher
{

/// A feed before it is written.
struct NewFeed
{
    QString file;   ///< for messages
    QString folder; ///< with the archives of the feed's versions, as far as they are there
    QByteArray bytes;
    qint64 bytesBefore = 0; ///< of the published feed; 0 without one
};

/// Throws Refusal if \a feed has grown beyond what the clients of one of its versions accept. The version's bundle says
/// how much that is. Without its archive it is the usual number of bytes, unless the feed was longer before. A feed
/// that is longer than usual is reported to \a console.
void CheckFeedLength(NewFeed const& feed, Console const& console);

/// Writes \a feed to its file, if clients accept its length. Throws Refusal.
void ReplaceFeed(NewFeed const& feed, Console const& console);

} // namespace Pelnar::Publisher
