// IUserInterface.h: the windows of an update, as the engine drives them.
// One window at a time: showing one puts the one before away without an answer. Every callback is called at most once,
// after its window has gone, and may show the next window or destroy the user interface.
// Thread: the Qt main thread. Ownership: the engine owns it; it keeps each callback as long as its window.
#pragma once

#include "Engine/core/Sentence.h"
#include "Engine/core/update/WindowContent.h"

#include <functional>

namespace Pelnar::Engine
{

class IUserInterface
{
public:
    virtual ~IUserInterface() = default;

    /// Only for a check that a person asked for.
    virtual void ShowChecking(std::function<void()> onCancelled) = 0;
    virtual void ShowUpToDate(NamedVersion const& installed, std::function<void()> onClosed) = 0;
    virtual void ShowUpdate(UpdateOffer const& offer, CheckOrigin origin,
                            std::function<void(UpdateChoice)> onChosen) = 0;
    /// Notes that came after the update window was shown; nothing when another window is shown by now.
    virtual void ReplaceReleaseNotes(ReleaseNotes const& notes) = 0;
    virtual void ShowDownload(NamedVersion const& update, std::function<void()> onCancelled) = 0;
    /// Nothing when no download is shown.
    virtual void SetProgress(UpdateProgress const& progress) = 0;
    virtual void ShowReadyToInstall(NamedVersion const& update, CheckOrigin origin,
                                    std::function<void(ReadyChoice)> onChosen) = 0;
    /// \a sentence says what happened and what to do; the window shows it in its own language.
    virtual void ShowError(Sentence const& sentence, std::function<void()> onClosed) = 0;
    /// For a person who asks again while a window waits for an answer.
    virtual void BringToFront() = 0;
    /// Puts the window away without an answer.
    virtual void Close() = 0;
};

} // namespace Pelnar::Engine
