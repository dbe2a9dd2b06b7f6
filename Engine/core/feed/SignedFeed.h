// SignedFeed.h: where the bytes of a signed feed end and its signature begins; docs/formats/signed-feed.md.
// No byte is looked at as XML.
#pragma once

#include <QByteArray>

#include <string>

namespace Pelnar::Engine
{

/// Why a feed's bytes are not content and one signature block behind it.
enum class SignedFeedFault
{
    None,
    Missing,           ///< no block
    Repeated,          ///< more than one
    NotAtEnd,          ///< markup follows the block
    BytesAfter,        ///< something else follows
    LineEndsRewritten, ///< the block's line ends with a carriage return
    AlgorithmUnknown,
    Malformed, ///< not alone on its line, without its line's end, or not of the right form
};

struct SignedFeed
{
    SignedFeedFault fault = SignedFeedFault::None;
    int contentBytes = 0;  ///< from the first byte; with None, what is signed
    int blockOffset = -1;  ///< of the block, or of the last one; -1 without one
    std::string signature; ///< base64 of 64 bytes; empty unless fault is None
};

/// Whether the signature fits is VerifySignature's matter. Every byte belongs to the content or to the block: with
/// None, \a bytes are the content and what SignatureBlock makes of the signature.
[[nodiscard]] SignedFeed SplitSignedFeed(QByteArray const& bytes);

/// The line behind the content, its end included. REQUIRES: \a signature is base64 of 64 bytes.
[[nodiscard]] QByteArray SignatureBlock(std::string const& signature);

} // namespace Pelnar::Engine
