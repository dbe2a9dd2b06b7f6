// GoodStart.h: an application confirms that its running version has started well.
//
//     // The main window is shown, and documents can be opened.
//     QTimer::singleShot(0, qApp, [] { Pelnar::ConfirmGoodStart(); });
//
// Thread: the Qt main thread.
#pragma once

namespace Pelnar
{

#ifdef __APPLE__
inline void ConfirmGoodStart() {} // no version is rolled back on this system
#else
/// Confirms that the running version has started well. The previous version is then no longer needed and is removed in
/// the background. Call this once at every start, when the application is usable: its window is shown and its documents
/// can be opened. More calls, and calls without an update, do nothing.
///
/// It matters for bundles whose information file says PelnarConfirmsGoodStart = YES. After an update of such a bundle,
/// each start that ends without this call is counted, and the third one restores the previous version. The helper that
/// has restarted the application also restores it if the application ends immediately twice. The rolled-back version is
/// offered again only to a person who asks. Without the key, a version is kept once it has started, and no call is
/// needed.
///
/// REQUIRES: Qt's application object. Without one, an error is logged and nothing else happens. Returns immediately. A
/// failure is logged and tried again at the next start. Throws nothing.
__attribute__((visibility("default"))) void ConfirmGoodStart();
#endif

} // namespace Pelnar
