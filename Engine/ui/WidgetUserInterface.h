// WidgetUserInterface.h: the user interface with windows.
// Thread: the Qt main thread. Ownership: it owns the open window. The event loop deletes a closed window, because it
// may still be delivering its answer.
#pragma once

#include "Engine/core/update/IUserInterface.h"

#include <QUrl>

#include <functional>
#include <memory>

namespace Pelnar::Engine
{

class EngineWindow;
class ProgressWindow;
class UpdateWindow;

class WidgetUserInterface final : public IUserInterface
{
public:
    /// \a openLink passes an address that a person clicked to the desktop; http, https and mailto only.
    explicit WidgetUserInterface(std::function<void(QUrl const&)> openLink);
    ~WidgetUserInterface() override;

    void ShowChecking(std::function<void()> onCancelled) override;
    void ShowUpToDate(NamedVersion const& installed, std::function<void()> onClosed) override;
    void ShowUpdate(UpdateOffer const& offer, CheckOrigin origin, std::function<void(UpdateChoice)> onChosen) override;
    void ShowDownload(NamedVersion const& update, std::function<void()> onCancelled) override;
    void SetProgress(UpdateProgress const& progress) override;
    void ShowReadyToInstall(NamedVersion const& update, CheckOrigin origin,
                            std::function<void(ReadyChoice)> onChosen) override;
    void ShowError(Sentence const& sentence, std::function<void()> onClosed) override;
    void BringToFront() override;
    void Close() override;

private:
    struct DeleteLater
    {
        void operator()(EngineWindow* window) const;
    };

    /// Replaces the open window with \a window.
    void Show(std::unique_ptr<EngineWindow> window);
    /// Ends the open window and calls \a callback.
    template <typename... Answer>
    std::function<void(Answer...)> Ending(std::function<void(Answer...)> callback);

    std::function<void(QUrl const&)> m_openLink;
    std::unique_ptr<EngineWindow, DeleteLater> m_window;
};

} // namespace Pelnar::Engine
