// HostQuit_p.h: asks the host application to quit for an installation. Plain C++, private to the session.
// Thread: the Qt main thread.
#pragma once

namespace Pelnar::App::Session
{

/// From the event loop's next pass on, asks the application once; whether it follows is its own matter.
/// REQUIRES: the process has an application object.
void PostTryToQuit();

} // namespace Pelnar::App::Session
