// FeedEncoding.h: which text a feed's bytes stand for, decided before a tag is looked at.
#pragma once

#include <QByteArray>
#include <QString>

namespace Pelnar::Engine
{

/// A feed ready to be scanned and read. UTF-8 is not copied.
struct FeedDocument
{
    bool isDecodable = false; ///< false: the encoding is unknown or the bytes are not of it
    int badOffset = 0;        ///< of UTF-8 that is not decodable: the first wrong byte
    QByteArray utf8;
    QString text; ///< of a feed in another encoding, else null; the declaration in it then names an encoding that no
                  ///< longer counts
};

/// By byte order mark, else by zero bytes beside the first "<", else by the declaration, else UTF-8.
[[nodiscard]] FeedDocument DecodeFeed(QByteArray const& bytes);

/// The offset of the first byte that is not UTF-8 (overlong forms, surrogates and values past U+10FFFF are not); the
/// size of \a bytes when there is none.
[[nodiscard]] int FirstBadUtf8(QByteArray const& bytes);

} // namespace Pelnar::Engine
