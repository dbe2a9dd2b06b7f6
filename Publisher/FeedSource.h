// FeedSource.h: the bytes of a feed from a path, an address, or "-" for standard input. Thread: the main thread, with
// Qt's event loop. A feed that a client would not fetch (too large, too slow, a web page) is refused with the same
// message.
#pragma once

#include "Engine/core/feed/FeedParser.h"
#include "Engine/core/fetch/FeedFetcher.h"
#include "Publisher/Console.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace Pelnar::Publisher
{

struct FeedBytes
{
    QString name; ///< as the person typed it; "<stdin>" for "-"
    QUrl address; ///< for the feed's relative addresses
    QByteArray bytes;
};

/// \a name: an address (http, https or file), a path, or "-". \a publishedAt: where the feed will be published; empty:
/// where it was read. Throws Refusal.
[[nodiscard]] FeedBytes ReadFeed(QString const& name, QString const& publishedAt, Console const& console);

/// The bytes of a feed that will be changed: of any size, so that old items can be removed. Throws Refusal.
[[nodiscard]] QByteArray ReadFeedFile(QString const& name);

/// The feed as clients for \a target read it. Throws Refusal with \a mend if they cannot. Messages call it \a name.
[[nodiscard]] Engine::FeedContent ParseAsClient(QString const& name, QByteArray const& bytes, QUrl const& address,
                                                Engine::FeedTarget const& target, QString const& mend);

/// The bytes at \a address, fetched as a client does: a local file, or a server's answer. Throws Refusal if the late
/// part cannot be loaded.
[[nodiscard]] Engine::FetchOutcome FetchAddress(QUrl const& address);

} // namespace Pelnar::Publisher
