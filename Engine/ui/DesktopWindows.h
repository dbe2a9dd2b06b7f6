// DesktopWindows.h: the engine's windows on the desktop of the running application, and the end of its session there.
// Thread: the Qt main thread, with an application object. Ownership: the caller's.
#pragma once

#include "Engine/core/update/IUserInterface.h"

#include <functional>
#include <memory>

namespace Pelnar::Engine
{

/// Windows in the language of the default locale whose links the desktop opens; the user interface of a program without
/// one when the application object cannot show windows.
std::unique_ptr<IUserInterface> MakeDesktopWindows();

/// Calls \a ended when the desktop's session is about to end, for as long as the application object lives. A desktop
/// that does not tell calls nothing.
void WatchSessionEnd(std::function<void()> ended);

} // namespace Pelnar::Engine
