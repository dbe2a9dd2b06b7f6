// NoWindows.h: the user interface of a program without windows: no person can answer, so every update is postponed.
// Thread: its maker's, with Qt's event loop. Ownership: like IUserInterface.
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
    void ShowDownload(NamedVersion const&, std::function<void()>) override {}
    void SetProgress(UpdateProgress const&) override {}
    void ShowReadyToInstall(NamedVersion const& update, CheckOrigin origin,
                            std::function<void(ReadyChoice)> onChosen) override;
    void ShowError(Sentence const&, std::function<void()>) override {}
    void BringToFront() override {}
    void Close() override {}

private:
    QObject m_context; ///< of pending answers
};

} // namespace Pelnar::Engine
