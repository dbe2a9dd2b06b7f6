// IUserInterface.h: the windows of an update, as the engine controls them. One window is open at a time: opening one
// closes the previous one without an answer. Every callback is called at most once, after its window is closed. It may
// open the next window or destroy the user interface.
// Thread: the Qt main thread. Ownership: the engine owns it; it keeps each callback as long as its window.
#pragma once

#include "Engine/core/faults/Sentence.h"
#include "Engine/core/update/WindowContent.h"

#include <functional>

namespace Pelnar::Engine
{

class IUserInterface
{
public:
    virtual ~IUserInterface() = default;

    /// Only for a check that a person requested.
    virtual void ShowChecking(std::function<void()> onCancelled) = 0;
    virtual void ShowUpToDate(NamedVersion const& installed, std::function<void()> onClosed) = 0;
    virtual void ShowUpdate(UpdateOffer const& offer, CheckOrigin origin,
                            std::function<void(UpdateChoice)> onChosen) = 0;
    virtual void ShowDownload(NamedVersion const& update, std::function<void()> onCancelled) = 0;
    /// Does nothing if no download is shown.
    virtual void SetProgress(UpdateProgress const& progress) = 0;
    virtual void ShowReadyToInstall(NamedVersion const& update, CheckOrigin origin,
                                    std::function<void(ReadyChoice)> onChosen) = 0;
    /// \a sentence says what happened and what to do; the window shows it in its own language.
    virtual void ShowError(Sentence const& sentence, std::function<void()> onClosed) = 0;
    /// For a person who asks again while a window waits for an answer.
    virtual void BringToFront() = 0;
    /// Closes the window without an answer.
    virtual void Close() = 0;
};

} // namespace Pelnar::Engine
