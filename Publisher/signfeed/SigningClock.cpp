#include "Publisher/signfeed/SigningClock.h"

#include "Engine/core/feed/ReleaseRules.h"
#include "Publisher/Refusal.h"

#include <QFileInfo>

#include <algorithm>
#include <limits>

namespace Pelnar::Publisher
{
namespace
{

constexpr qint64 A_DAY = 86400;
constexpr qint64 A_YEAR = 366 * A_DAY;
/// The years 2020 and 2100. A clock that has lost its time begins long before; a greater serial is not a time.
constexpr qint64 FIRST_TIME = 1577836800;
constexpr qint64 LAST_TIME = 4102444800;

bool IsTime(qint64 seconds)
{
    return seconds >= FIRST_TIME && seconds < LAST_TIME;
}

QString MomentText(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC).toString(Qt::ISODate);
}

/// The newest date of an item, not after \a last; 0 without one.
qint64 NewestDate(Engine::FeedContent const& content, qint64 last)
{
    qint64 newest = 0;
    for (Engine::FeedItem const& item : content.items)
    {
        QDateTime const date = Engine::FeedTime(item.dateString);
        qint64 const seconds = date.isValid() ? date.toSecsSinceEpoch() : 0;
        newest = seconds <= last ? std::max(newest, seconds) : newest;
    }
    return newest;
}

[[noreturn]] void RefuseClock(QString const& name, QString const& known, qint64 now, QString const& mend)
{
    throw Refusal({name, u"%1, but this computer's clock says %2"_s.arg(known, MomentText(now)), mend});
}

} // namespace

void CheckClock(QString const& name, Engine::FeedContent const& content, FeedSerials const& serials,
                QDateTime const& time, Console const& console)
{
    qint64 const now = time.toSecsSinceEpoch();
    if (!IsTime(now))
    {
        throw Refusal({name, u"cannot be signed, because this computer's clock says %1"_s.arg(MomentText(now)),
                       u"set the clock"_s});
    }
    if (serials.isNextGiven)
    {
        return;
    }
    qint64 const signedAt = IsTime(serials.published) ? serials.published : 0;
    if (signedAt > now + A_DAY)
    {
        RefuseClock(name, u"was signed at %1 according to its serial"_s.arg(MomentText(signedAt)), now,
                    u"set the clock; if it is right, and nobody has got this feed yet, put the previous one back; "
                    "otherwise add --serial %1, and a greater one each time until then"_s.arg(serials.published + 1));
    }
    qint64 const changedAt = QFileInfo(name).lastModified().toSecsSinceEpoch();
    if (QFileInfo::exists(name) && changedAt > now + A_DAY)
    {
        RefuseClock(name, u"was changed at %1"_s.arg(MomentText(changedAt)), now,
                    u"set the clock; if it is right, use touch on the file"_s);
    }
    QString const vouch = u"if it is right, add --serial %1 this time"_s.arg(std::max(serials.published + 1, now));
    qint64 const newest = NewestDate(content, std::numeric_limits<qint64>::max());
    if (newest > now + A_YEAR)
    {
        RefuseClock(name, u"has an item of %1"_s.arg(MomentText(newest)), now,
                    u"set the clock, or correct the item's pubDate; "_s + vouch);
    }
    if (signedAt > 0 && now > signedAt + A_YEAR)
    {
        RefuseClock(name, u"was last signed at %1"_s.arg(MomentText(signedAt)), now, u"set the clock; "_s + vouch);
    }
    // This run may have dated the newest items, with the same clock.
    qint64 const before = NewestDate(content, now - A_DAY);
    if (signedAt == 0 && before > 0 && now > before + A_YEAR)
    {
        console.Warn({name,
                      u"has no item between %1 and %2, the time on this computer's clock"_s.arg(MomentText(before),
                                                                                                MomentText(now)),
                      u"check the clock before you upload the feed: clients that get it refuse every lower serial from "
                      "then on; if the clock is ahead, set it, put the previous feed back, and sign that"_s});
    }
}

} // namespace Pelnar::Publisher
