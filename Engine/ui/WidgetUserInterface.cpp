#include "Engine/ui/WidgetUserInterface.h"

#include "Engine/ui/PlainWindows.h"
#include "Engine/ui/ProgressWindow.h"
#include "Engine/ui/UpdateWindow.h"

#include <utility>

namespace Pelnar::Engine
{

void WidgetUserInterface::DeleteLater::operator()(EngineWindow* window) const
{
    window->Dismiss();
}

WidgetUserInterface::WidgetUserInterface(std::function<void(QUrl const&)> openLink) : m_openLink(std::move(openLink)) {}

WidgetUserInterface::~WidgetUserInterface() = default;

void WidgetUserInterface::Show(std::unique_ptr<EngineWindow> window)
{
    m_window.reset(window.release());
    m_window->Present();
}

template <typename... Answer>
std::function<void(Answer...)> WidgetUserInterface::Ending(std::function<void(Answer...)> callback)
{
    return [this, callback = std::move(callback)](Answer... answer)
    {
        // Both are copied: the callback may show the next window or destroy this object.
        std::function<void(Answer...)> const kept = callback;
        m_window.reset();
        kept(answer...);
    };
}

void WidgetUserInterface::ShowChecking(std::function<void()> onCancelled)
{
    Show(MakeCheckingWindow(Ending(std::move(onCancelled))));
}

void WidgetUserInterface::ShowUpToDate(NamedVersion const& installed, std::function<void()> onClosed)
{
    Show(MakeUpToDateWindow(installed, Ending(std::move(onClosed))));
}

void WidgetUserInterface::ShowUpdate(UpdateOffer const& offer, CheckOrigin origin,
                                     std::function<void(UpdateChoice)> onChosen)
{
    Show(std::make_unique<UpdateWindow>(offer, origin, Ending(std::move(onChosen)), m_openLink));
}

void WidgetUserInterface::ShowDownload(NamedVersion const& update, std::function<void()> onCancelled)
{
    Show(std::make_unique<ProgressWindow>(update, Ending(std::move(onCancelled))));
}

void WidgetUserInterface::SetProgress(UpdateProgress const& progress)
{
    if (auto* const window = qobject_cast<ProgressWindow*>(m_window.get()))
    {
        window->SetProgress(progress);
    }
}

void WidgetUserInterface::ShowReadyToInstall(NamedVersion const& update, CheckOrigin origin,
                                             std::function<void(ReadyChoice)> onChosen)
{
    Show(MakeReadyWindow(update, origin, Ending(std::move(onChosen))));
}

void WidgetUserInterface::ShowError(Sentence const& sentence, std::function<void()> onClosed)
{
    Show(MakeErrorWindow(sentence, Ending(std::move(onClosed))));
}

void WidgetUserInterface::BringToFront()
{
    if (m_window)
    {
        m_window->BringToFront();
    }
}

void WidgetUserInterface::Close()
{
    m_window.reset();
}

} // namespace Pelnar::Engine
