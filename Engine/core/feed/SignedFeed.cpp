#include "Engine/core/feed/SignedFeed.h"

#include "Engine/core/bundle/Ed25519Signature.h"

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

QByteArray const BLOCK_START = QByteArrayLiteral("<!-- pelnar-signature: ");
QByteArray const ALGORITHM = QByteArrayLiteral("ed25519");
QByteArray const COMMENT_END = QByteArrayLiteral(" -->");

/// After the block's comment only the end of its line and of the feed may follow.
SignedFeedFault JudgeTail(QByteArray const& tail)
{
    if (tail == "\n")
    {
        return SignedFeedFault::None;
    }
    if (tail.contains('<'))
    {
        return SignedFeedFault::NotAtEnd;
    }
    if (tail == "\r\n" || tail == "\r")
    {
        return SignedFeedFault::LineEndsRewritten;
    }
    return tail.isEmpty() ? SignedFeedFault::Malformed : SignedFeedFault::BytesAfter;
}

bool IsAlgorithmName(QByteArray const& text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(),
                                          [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'); });
}

/// \a value is "ALGORITHM SIGNATURE".
SignedFeedFault ReadValue(QByteArray const& value, std::string& signature)
{
    int const blank = value.indexOf(' ');
    QByteArray const algorithm = value.left(blank);
    if (blank < 0 || !IsAlgorithmName(algorithm))
    {
        return SignedFeedFault::Malformed;
    }
    if (algorithm != ALGORITHM)
    {
        return SignedFeedFault::AlgorithmUnknown;
    }
    std::string const text = value.mid(blank + 1).toStdString();
    Ed25519SignatureBytes parsed;
    if (ParseSignature(text, parsed) != UpdateFault::None)
    {
        return SignedFeedFault::Malformed;
    }
    signature = text;
    return SignedFeedFault::None;
}

} // namespace

SignedFeed SplitSignedFeed(QByteArray const& bytes)
{
    SignedFeed feed;
    int const start = bytes.indexOf(BLOCK_START);
    if (start < 0)
    {
        feed.fault = SignedFeedFault::Missing;
        return feed;
    }
    feed.blockOffset = bytes.lastIndexOf(BLOCK_START);
    if (feed.blockOffset != start)
    {
        feed.fault = SignedFeedFault::Repeated;
        return feed;
    }
    int const valueStart = start + BLOCK_START.size();
    int const end = bytes.indexOf(COMMENT_END, valueStart);
    bool const isAloneOnItsLine = start > 0 && bytes.at(start - 1) == '\n';
    if (end < 0 || !isAloneOnItsLine)
    {
        feed.fault = SignedFeedFault::Malformed;
        return feed;
    }
    feed.fault = JudgeTail(bytes.mid(end + COMMENT_END.size()));
    if (feed.fault == SignedFeedFault::None)
    {
        feed.fault = ReadValue(bytes.mid(valueStart, end - valueStart), feed.signature);
    }
    feed.contentBytes = start;
    return feed;
}

QByteArray SignatureBlock(std::string const& signature)
{
    return BLOCK_START + ALGORITHM + ' ' + QByteArray::fromStdString(signature) + COMMENT_END + '\n';
}

} // namespace Pelnar::Engine
