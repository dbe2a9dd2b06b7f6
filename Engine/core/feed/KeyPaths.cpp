#include "Engine/core/feed/KeyPaths.h"

#include "Engine/core/bundle/TrustedKeys.h"

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

/// The feed's key id for the plain signature; empty if it is not an id.
QString PlainSigner(FeedItem const& item)
{
    return IsKeyId(item.signerKey.toStdString()) && !item.edSignature.isEmpty() ? item.signerKey : QString();
}

bool LeadsTo(KeyedVersion const& from, KeyedVersion const& to, VersionOrder const& order)
{
    return HasCommon(from.trusted, to.signers) && order(from.version, to.version) < 0;
}

} // namespace

bool HasCommon(QStringList const& a, QStringList const& b)
{
    return std::any_of(a.begin(), a.end(), [&b](QString const& id) { return b.contains(id); });
}

QStringList SignersOf(FeedItem const& item)
{
    QStringList ids;
    if (QString const plain = PlainSigner(item); !plain.isEmpty())
    {
        ids.append(plain);
    }
    for (FeedSignature const& each : item.signatures)
    {
        ids.append(each.keyId);
    }
    ids.removeDuplicates();
    return ids;
}

std::optional<QString> SignatureFor(FeedItem const& item, QStringList const& trusted)
{
    QString const plainSigner = PlainSigner(item);
    for (QString const& id : trusted)
    {
        if (id == plainSigner)
        {
            return item.edSignature;
        }
        auto const signature = std::find_if(item.signatures.begin(), item.signatures.end(),
                                            [&id](FeedSignature const& each) { return each.keyId == id; });
        if (signature != item.signatures.end())
        {
            return signature->signature;
        }
    }
    bool const isPlainOfAnother = !plainSigner.isEmpty() || (item.edSignature.isEmpty() && !item.signatures.empty());
    return trusted.isEmpty() || !isPlainOfAnother ? std::optional(item.edSignature) : std::nullopt;
}

KeyedVersion KeysOf(FeedItem const& item)
{
    return {item.versionString, SignersOf(item), item.trustedKeys};
}

std::vector<KeyedVersion> SteppingStonesFrom(KeyedVersion const& from, std::vector<KeyedVersion> const& all,
                                             VersionOrder const& order)
{
    std::vector<KeyedVersion> stones;
    KeyedVersion at = from;
    while (stones.size() < MOST_STEPPING_STONES)
    {
        KeyedVersion const* best = nullptr;
        for (KeyedVersion const& next : all)
        {
            if (LeadsTo(at, next, order) && (!best || order(best->version, next.version) < 0))
            {
                best = &next;
            }
        }
        if (!best)
        {
            break;
        }
        stones.push_back(*best);
        at = *best;
    }
    return stones;
}

bool IsBehindStone(KeyedVersion const& target, std::vector<KeyedVersion> const& stones, VersionOrder const& order)
{
    return std::any_of(stones.begin(), stones.end(),
                       [&](KeyedVersion const& stone) { return LeadsTo(stone, target, order); });
}

bool IsReached(KeyedVersion const& target, std::vector<KeyedVersion> const& stones, VersionOrder const& order)
{
    return std::any_of(stones.begin(), stones.end(),
                       [&](KeyedVersion const& stone) { return order(stone.version, target.version) >= 0; });
}

} // namespace Pelnar::Engine
