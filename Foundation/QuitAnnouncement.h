// QuitAnnouncement.h: tells everybody in the process who waits for the application's end that it comes. Plain C++.
// Thread: the Qt main thread. Ownership: a connection that goes with the application object.
#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QCoreApplication;
QT_END_NAMESPACE

namespace Pelnar::Foundation
{

/// From now on the end of \a application's event loop is announced as the platform announces it. On macOS that is
/// NSApplicationWillTerminateNotification, for which an update that is installed on quit waits and which Qt 5 does not
/// post. On Linux Qt's own signal is the announcement.
void AnnounceQuitOf(QCoreApplication& application);

} // namespace Pelnar::Foundation
