// SignedFeed.h: separates the bytes of a signed feed from its signature; docs/formats/signed-feed.md. The bytes are not
// read as XML.
#pragma once

#include <QByteArray>

#include <string>

namespace Pelnar::Engine
{

/// Why the bytes are not a content followed by one signature block.
enum class SignedFeedFault
{
    None,
    Missing,           ///< no block
    Repeated,          ///< more than one
    NotAtEnd,          ///< markup follows the block
    BytesAfter,        ///< something else follows
    LineEndsRewritten, ///< the block's line ends with a carriage return
    AlgorithmUnknown,
    Malformed, ///< not alone on its line, without the end of the line, or not of the right form
};

struct SignedFeed
{
    SignedFeedFault fault = SignedFeedFault::None;
    int contentBytes = 0;  ///< from the first byte; without a fault these bytes are signed
    int blockOffset = -1;  ///< of the block, or of the last one; -1 without one
    std::string signature; ///< base64 of 64 bytes; empty unless fault is None
};

/// VerifySignature says whether the signature fits. Every byte belongs to the content or to the block: without a fault,
/// \a bytes are the content followed by SignatureBlock(signature).
[[nodiscard]] SignedFeed SplitSignedFeed(QByteArray const& bytes);

/// The line after the content, including its end. REQUIRES: \a signature is base64 of 64 bytes.
[[nodiscard]] QByteArray SignatureBlock(std::string const& signature);

} // namespace Pelnar::Engine
