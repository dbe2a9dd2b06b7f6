// FeedSource.h: the bytes of a feed that is named by a path, by an address, or by "-" for standard input.
// Thread: the main thread, with Qt's event loop. What a client would not fetch (too large, too slow, a web page) is
// refused here as well, in the same words.
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
    QUrl address; ///< against which relative addresses of the feed resolve
    QByteArray bytes;
};

/// \a name: an address (http, https or file), a path, or "-".
/// \a publishedAt: where the feed will be published; empty stands for where it was read.
[[nodiscard]] std::variant<FeedBytes, Problem> ReadFeed(QString const& name, QString const& publishedAt,
                                                        Console const& console);

/// What is at \a address, as a client fetches it: a file of this computer, or what a server sends. Throws Refusal if
/// the late part cannot be loaded.
[[nodiscard]] Engine::FetchOutcome FetchAddress(QUrl const& address);

} // namespace Pelnar::Publisher
