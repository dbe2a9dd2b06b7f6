// QuitAnnouncement.h: announces the application's end to all code in the process that waits for it. Plain C++.
// Thread: the Qt main thread. Ownership: a connection that ends with the application object.
#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QCoreApplication;
QT_END_NAMESPACE

namespace Pelnar::Foundation
{

/// From now on the end of \a application's event loop is announced in the platform's way. On macOS this is
/// NSApplicationWillTerminateNotification: an update that is installed on quit waits for it, and Qt 5 does not post it.
/// On Linux Qt's own signal is the announcement.
void AnnounceQuitOf(QCoreApplication& application);

} // namespace Pelnar::Foundation
