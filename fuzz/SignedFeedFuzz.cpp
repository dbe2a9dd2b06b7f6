// SignedFeedFuzz.cpp: any bytes as a signed feed. Every byte is signed or belongs to the signature's line. No text that
// looks like a signature is part of the accepted content. A signature that is added to any bytes is found again. The
// same bytes are also read as the record of a feed, and as a kept feed with and without its digest.

#include "Engine/core/bundle/Ed25519Signature.h"
#include "Engine/core/check/FeedRecordFile.h"
#include "Engine/core/check/FeedTrust.h"
#include "Engine/core/check/KeptFeedFile.h"
#include "Engine/core/feed/SignedFeed.h"

#include <QCryptographicHash>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace
{

using namespace Pelnar::Engine;

constexpr char KEY[] = "6kpsY+KcUgq+9VB7Ey7F+ZVHdq6+vnuSQh7qaRRG0iw=";
constexpr char BLOCK_START[] = "<!-- pelnar-signature: ";

void Require(bool holds, char const* promise)
{
    if (!holds)
    {
        std::fprintf(stderr, "broken: %s\n", promise);
        std::abort();
    }
}

void RequireWhole(QByteArray const& bytes, SignedFeed const& feed)
{
    QByteArray const content = bytes.left(feed.contentBytes);
    Require(content + SignatureBlock(feed.signature) == bytes, "what is split is content and block, and nothing else");
    Require(content.endsWith('\n') && !content.contains(BLOCK_START), "the content has no signature of its own");
    Ed25519SignatureBytes signature;
    Require(ParseSignature(feed.signature, signature) == UpdateFault::None, "the signature is one");
}

void RequireTerms(QByteArray const& bytes)
{
    FeedParseResult const feed = ParseFeed(bytes, QUrl(), FeedPlatform::Linux);
    if (auto const terms = ReadFeedValidity(feed.value_or(FeedContent()).channel))
    {
        Require(feed && terms->serial > 0 && terms->expires.isValid(), "terms are usable");
        Require(JudgeFeedValidity(*terms, terms->serial, terms->expires.addSecs(-1)).has_value(),
                "the same feed again is accepted");
        Require(!JudgeFeedValidity(*terms, 0, terms->expires), "an expired feed is refused");
    }
}

void RequireRecord(QByteArray const& bytes)
{
    std::string_view const all(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    if (auto const record = DecodeFeedRecord(all))
    {
        Require(record->serial >= 0, "no serial is below nothing");
        auto const again = DecodeFeedRecord(EncodeFeedRecord(*record));
        Require(again && again->serial == record->serial && again->address == record->address &&
                    again->digest == record->digest && again->firstSeen == record->firstSeen &&
                    again->lastSeen == record->lastSeen,
                "a record is read as it was written");
    }
}

void RequireKept(std::string const& bytes)
{
    constexpr qint64 MAX_BYTES = 1000;
    auto const kept = DecodeKeptFeed(bytes, QStringLiteral("a"), MAX_BYTES);
    if (!kept)
    {
        return;
    }
    Require(kept->bytes.size() <= MAX_BYTES, "no kept feed is longer than it may be");
    HeaderField const condition = ConditionOf(*kept);
    Require(!condition.value.isEmpty() && !condition.value.contains('\r') && !condition.value.contains('\n') &&
                !condition.value.contains('\0'),
            "a request may carry its condition");
    Require(EncodeKeptFeed(*kept, QStringLiteral("a")) == bytes, "a kept feed is read as it was written");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    QByteArray const bytes(reinterpret_cast<char const*>(data), static_cast<int>(size));
    SignedFeed const feed = SplitSignedFeed(bytes);
    Require((feed.fault == SignedFeedFault::Missing) == !bytes.contains(BLOCK_START), "a missing block is missing");
    if (feed.fault == SignedFeedFault::None)
    {
        RequireWhole(bytes, feed);
    }
    else
    {
        Require(feed.signature.empty(), "a refused feed has no signature");
        Require(!VerifyFeed(bytes, {KEY}), "what cannot be split is not believed");
    }
    if (feed.fault == SignedFeedFault::Missing && bytes.endsWith('\n'))
    {
        QByteArray const block = SignatureBlock(std::string(86, 'A') + "==");
        SignedFeed const added = SplitSignedFeed(bytes + block);
        Require(added.fault == SignedFeedFault::None && added.contentBytes == bytes.size(), "an added block is found");
        Require(SplitSignedFeed(bytes + block + block).fault == SignedFeedFault::Repeated, "a second one is refused");
    }
    RequireTerms(bytes);
    RequireRecord(bytes);
    std::string const plain = bytes.toStdString();
    RequireKept(plain);
    // No mutation finds a matching digest.
    RequireKept(plain + QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toStdString());
    return 0;
}
