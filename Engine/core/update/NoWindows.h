// NoWindows.h: the user interface of a program without one: nobody is asked, so every update is put off.
// Thread: the one that made it, with Qt's event loop. Ownership: as IUserInterface.
#pragma once

#include "Engine/core/update/IUserInterface.h"

#include <QObject>

namespace Pelnar::Engine
{

class NoWindows final : public IUserInterface
{
public:
    void ShowChecking(std::function<void()>) override {}
    void ShowUpToDate(NamedVersion const&, std::function<void()>) override {}
    void ShowUpdate(UpdateOffer const& offer, CheckOrigin origin, std::function<void(UpdateChoice)> onChosen) override;
    void ReplaceReleaseNotes(ReleaseNotes const&) override {}
    void ShowDownload(NamedVersion const&, std::function<void()>) override {}
    void SetProgress(UpdateProgress const&) override {}
    void ShowReadyToInstall(NamedVersion const& update, CheckOrigin origin,
                            std::function<void(ReadyChoice)> onChosen) override;
    void ShowError(Sentence const&, std::function<void()>) override {}
    void BringToFront() override {}
    void Close() override {}

private:
    QObject m_context; ///< of answers that are on their way
};

} // namespace Pelnar::Engine
