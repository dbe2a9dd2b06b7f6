// FeedEncoding.h: decodes the bytes of a feed, before any tag is read.
#pragma once

#include <QByteArray>
#include <QString>

namespace Pelnar::Engine
{

/// A feed ready to be scanned and read. UTF-8 is not copied.
struct FeedDocument
{
    bool isDecodable = false; ///< false if the encoding is unknown or the bytes do not fit it
    int badOffset = 0;        ///< of the first wrong byte, if the feed is UTF-8 that cannot be decoded
    QByteArray utf8;
    QString text; ///< of a feed in another encoding, otherwise null. Ignore the encoding in its declaration.
};

/// From the byte order mark; otherwise from zero bytes next to the first "<"; otherwise from the declaration; otherwise
/// UTF-8.
[[nodiscard]] FeedDocument DecodeFeed(QByteArray const& bytes);

/// The offset of the first byte that is not UTF-8; the size of \a bytes if all are UTF-8. Overlong forms, surrogates
/// and values above U+10FFFF are not UTF-8.
[[nodiscard]] int FirstBadUtf8(QByteArray const& bytes);

} // namespace Pelnar::Engine
