// PlainWindows.h: the windows of the engine that stay as they are once they are open.
// Thread: the Qt main thread. Each answer comes once; a window that is dismissed gives none.
#pragma once

#include "Engine/core/faults/Sentence.h"
#include "Engine/ui/EngineWindow.h"

#include <memory>

namespace Pelnar::Engine
{

/// Shows that a requested check is running, with a button to cancel it.
std::unique_ptr<EngineWindow> MakeCheckingWindow(std::function<void()> const& onCancelled);

/// Reports after a requested check that there is no update.
std::unique_ptr<EngineWindow> MakeUpToDateWindow(NamedVersion const& installed, std::function<void()> const& onClosed);

/// Offers to install an update that is downloaded, verified and unpacked; the installation restarts the application.
std::unique_ptr<EngineWindow> MakeReadyWindow(NamedVersion const& update, CheckOrigin origin,
                                              std::function<void(ReadyChoice)> const& onChosen);

/// Reports that a requested update could not be completed.
std::unique_ptr<EngineWindow> MakeErrorWindow(Sentence const& sentence, std::function<void()> const& onClosed);

} // namespace Pelnar::Engine
