// HostQuit_p.h: asks the host application to quit for an installation. Plain C++, private to the session.
// Thread: the Qt main thread.
#pragma once

namespace Pelnar::App::Session
{

/// Asks the application once, from the next pass of the event loop. The application decides. REQUIRES: the process has
/// an application object.
void PostTryToQuit();

} // namespace Pelnar::App::Session
