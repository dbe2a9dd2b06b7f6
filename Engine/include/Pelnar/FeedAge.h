// FeedAge.h: for how long an application has been getting the same update feed.
//
//     if (Pelnar::UnchangedFeedDays() > 90)
//     {
//         qWarning("We publish every month: the update server sends an old feed.");
//     }
//
// Thread: the Qt main thread. Ownership: none.
#pragma once

namespace Pelnar
{

#ifdef __APPLE__
inline int UnchangedFeedDays()
{
    return 0; // not counted there
}
#else
/// The number of whole days between the first and the last check that were answered with the very bytes of the last
/// feed; 0 as long as there was none. A check that fails counts for nothing.
///
/// Anyone who stands between an application and its server can keep answering with an old feed, so that the application
/// never hears of an update. A feed that must be signed says when it expires, and is refused then. Any other feed only
/// grows old: from 180 days on every check logs a warning, and a host that publishes often may ask here, after a check,
/// and tell a person to look at the publisher's page. Nothing else happens.
///
/// Read from the user defaults; what cannot be read there counts as no feed. Throws nothing.
__attribute__((visibility("default"))) int UnchangedFeedDays();
#endif

} // namespace Pelnar
