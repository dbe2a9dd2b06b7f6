// FeedAge.h: for how many days the application has received the same update feed.
//
//     if (Pelnar::UnchangedFeedDays() > 90)
//     {
//         qWarning("We publish every month: the update server sends an old feed.");
//     }
//
// Thread: the Qt main thread.
#pragma once

namespace Pelnar
{

#ifdef __APPLE__
inline int UnchangedFeedDays()
{
    return 0; // not counted on this system
}
#else
/// Returns the number of whole days between the first and the last check that received exactly the bytes of the last
/// feed. Returns 0 if there was no feed yet. A failed check does not count.
///
/// An attacker between an application and its server can keep sending an old feed, so that the application never learns
/// of an update. A feed that must be signed has an expiry date and is refused after it. Any other feed only becomes
/// older. After 180 days every check logs a warning. A host that publishes often can call this after a check and ask
/// the person to look at the publisher's page. The number has no other effect.
///
/// The number comes from the user defaults. If they cannot be read, it is 0. Throws nothing.
__attribute__((visibility("default"))) int UnchangedFeedDays();
#endif

} // namespace Pelnar
