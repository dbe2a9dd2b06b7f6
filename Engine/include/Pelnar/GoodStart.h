// GoodStart.h: an application's word that the version that runs has started well.
//
//     // The main window is shown, and documents can be opened.
//     QTimer::singleShot(0, qApp, [] { Pelnar::ConfirmGoodStart(); });
//
// Thread: the Qt main thread. Ownership: none.
#pragma once

namespace Pelnar
{

#ifdef __APPLE__
inline void ConfirmGoodStart() {} // versions are not taken back there
#else
/// Says that the running version has started well: the version that an update has replaced is not needed any more and
/// is removed, in the background. To be called once at every start, when the application is of use: its window is shown
/// and its documents can be opened. More calls, and calls where there was no update, do nothing.
///
/// It matters to bundles whose information file says PelnarConfirmsGoodStart = YES. After an update of such a bundle,
/// each start that ends without this call is counted, and the third one puts the previous version back, as does the
/// helper that has restarted the application when that ends at once twice. The version that was taken back is offered
/// again only to a person who asks. Without the entry a version is kept once it has started, and nobody has to call.
///
/// REQUIRES: Qt's application object; without one an error is logged and nothing else happens. Returns at once; what
/// fails is logged and tried again at the next start. Throws nothing.
__attribute__((visibility("default"))) void ConfirmGoodStart();
#endif

} // namespace Pelnar
