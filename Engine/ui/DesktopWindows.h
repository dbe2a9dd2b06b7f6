// DesktopWindows.h: the engine's windows on the desktop, and the end of the desktop session.
// Thread: the Qt main thread, with an application object.
#pragma once

#include "Engine/core/update/IUserInterface.h"

#include <functional>
#include <memory>

namespace Pelnar::Engine
{

/// Windows in the language of the default locale, whose links the desktop opens. If the application object cannot show
/// windows, it returns the user interface without windows.
std::unique_ptr<IUserInterface> MakeDesktopWindows();

/// Calls \a ended when the desktop session is about to end, while the application object lives. On a desktop that does
/// not report this, it calls nothing.
void WatchSessionEnd(std::function<void()> ended);

} // namespace Pelnar::Engine
