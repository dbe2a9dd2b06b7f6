// FeedSource.h: the bytes of a feed from a path, an address, or "-" for standard input. Thread: the main thread, with
// Qt's event loop. A feed that a client would not fetch (too large, too slow, a web page) is refused with the same
// message.
#pragma once

#include "Engine/core/fetch/FeedFetcher.h"
#include "Publisher/Console.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <variant>

namespace Pelnar::Publisher
{

struct FeedBytes
{
    QString name; ///< as the person typed it; "<stdin>" for "-"
    QUrl address; ///< for the feed's relative addresses
    QByteArray bytes;
};

/// \a name: an address (http, https or file), a path, or "-". \a publishedAt: where the feed will be published; empty:
/// where it was read.
[[nodiscard]] std::variant<FeedBytes, Problem> ReadFeed(QString const& name, QString const& publishedAt,
                                                        Console const& console);

/// The bytes at \a address, fetched as a client does: a local file, or a server's answer. Throws Refusal if the late
/// part cannot be loaded.
[[nodiscard]] Engine::FetchOutcome FetchAddress(QUrl const& address);

} // namespace Pelnar::Publisher
