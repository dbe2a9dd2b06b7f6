#include "Engine/core/fetch/KeptFeed.h"

#include "Engine/core/fetch/FetchRules.h"

#include <QCryptographicHash>

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

constexpr qint64 LONGEST_SECONDS = 30 * 24 * 3600;

/// True if a field named \a lowerCaseName has \a word in its list.
bool HasWord(HttpHead const& head, QByteArray const& lowerCaseName, QByteArray const& word)
{
    for (QByteArray const& value : head.Values(lowerCaseName))
    {
        QList<QByteArray> const words = value.toLower().split(',');
        if (std::any_of(words.begin(), words.end(),
                        [&word](QByteArray const& listed) { return listed.trimmed() == word; }))
        {
            return true;
        }
    }
    return false;
}

/// An attacker on the network could give a false feed the validators of the true one, and the false feed would then
/// stay.
bool IsFromWhoItSays(QUrl const& answered, AddressReach reach)
{
    return IsHttps(answered) || reach == AddressReach::ThisComputer;
}

} // namespace

QByteArray PlaceOf(QUrl const& feedUrl, QUrl const& answered)
{
    QByteArray const both =
        feedUrl.adjusted(QUrl::RemoveFragment).toEncoded() + '\n' + answered.adjusted(QUrl::RemoveFragment).toEncoded();
    return QCryptographicHash::hash(both, QCryptographicHash::Sha256).toHex();
}

std::optional<KeptFeed> KeepableFeed(HttpHead const& head, QUrl const& feedUrl, QUrl const& answered,
                                     AddressReach reach)
{
    KeptFeed feed;
    feed.place = PlaceOf(feedUrl, answered);
    feed.reach = reach;
    feed.validators = FeedValidators(head);
    // The request's fields are always the same. If an answer depends on anything else, it is valid for one request
    // only.
    bool const mayBeKept = !ForbidsKeeping(head) && !HasWord(head, "vary", "*") && IsFromWhoItSays(answered, reach);
    return mayBeKept && !feed.validators.IsEmpty() ? std::optional(feed) : std::nullopt;
}

bool ForbidsKeeping(HttpHead const& head)
{
    return HasWord(head, "cache-control", "no-store");
}

HeaderField ConditionOf(KeptFeed const& feed)
{
    bool const hasTag = !feed.validators.entityTag.isEmpty();
    return {hasTag ? "If-None-Match" : "If-Modified-Since", PreferredValidator(feed.validators)};
}

bool IsAbout(KeptFeed const& feed, HttpHead const& head, AddressReach reach)
{
    std::vector<QByteArray> const tags = head.Values("etag");
    std::vector<QByteArray> const dates = head.Values("last-modified");
    bool const isTagSame = tags.empty() || (tags.size() == 1 && IsSameTag(tags.front(), feed.validators.entityTag));
    bool const isDateSame = !feed.validators.entityTag.isEmpty() || dates.empty() ||
                            (dates.size() == 1 && dates.front() == feed.validators.lastModified);
    // If the name now resolves to another place, the feed of one place must not count as the feed of the other.
    return isTagSame && isDateSame && reach == feed.reach;
}

bool IsFresh(KeptFeed const& feed, qint64 now)
{
    return feed.cameAt <= now && now - feed.cameAt < LONGEST_SECONDS;
}

} // namespace Pelnar::Engine
