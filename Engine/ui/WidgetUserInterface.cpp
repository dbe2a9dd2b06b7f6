#include "Engine/ui/WidgetUserInterface.h"

#include "Engine/ui/CheckingWindow.h"
#include "Engine/ui/ErrorWindow.h"
#include "Engine/ui/ProgressWindow.h"
#include "Engine/ui/ReadyWindow.h"
#include "Engine/ui/UpToDateWindow.h"
#include "Engine/ui/UpdateWindow.h"

#include <utility>

namespace Pelnar::Engine
{

void WidgetUserInterface::DeleteLater::operator()(EngineWindow* window) const
{
    window->disconnect();
    window->hide();
    window->deleteLater();
}

WidgetUserInterface::WidgetUserInterface(std::function<void(QUrl const&)> openLink) : m_openLink(std::move(openLink)) {}

WidgetUserInterface::~WidgetUserInterface() = default;

template <typename Window, typename Signal, typename Callback>
void WidgetUserInterface::Show(Window* window, Signal answered, Callback callback)
{
    m_window.reset(window);
    QObject::connect(window, answered, window,
                     [this, callback](auto... answer)
                     {
                         // Both are copied: the callback may show the next window or destroy this object.
                         Callback const kept = callback;
                         m_window.reset();
                         kept(answer...);
                     });
    window->Present();
}

void WidgetUserInterface::ShowChecking(std::function<void()> onCancelled)
{
    Show(new CheckingWindow, &CheckingWindow::Cancelled, std::move(onCancelled));
}

void WidgetUserInterface::ShowUpToDate(NamedVersion const& installed, std::function<void()> onClosed)
{
    Show(new UpToDateWindow(installed), &UpToDateWindow::Closed, std::move(onClosed));
}

void WidgetUserInterface::ShowUpdate(UpdateOffer const& offer, CheckOrigin origin,
                                     std::function<void(UpdateChoice)> onChosen)
{
    auto* const window = new UpdateWindow(offer, origin);
    QObject::connect(window, &UpdateWindow::LinkActivated, window,
                     [openLink = m_openLink](QUrl const& address) { openLink(address); });
    Show(window, &UpdateWindow::Chosen, std::move(onChosen));
}

void WidgetUserInterface::ReplaceReleaseNotes(ReleaseNotes const& notes)
{
    if (auto* const window = qobject_cast<UpdateWindow*>(m_window.get()))
    {
        window->SetReleaseNotes(notes);
    }
}

void WidgetUserInterface::ShowDownload(NamedVersion const& update, std::function<void()> onCancelled)
{
    Show(new ProgressWindow(update), &ProgressWindow::Cancelled, std::move(onCancelled));
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
    Show(new ReadyWindow(update, origin), &ReadyWindow::Chosen, std::move(onChosen));
}

void WidgetUserInterface::ShowError(Sentence const& sentence, std::function<void()> onClosed)
{
    Show(new ErrorWindow(sentence), &ErrorWindow::Closed, std::move(onClosed));
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
