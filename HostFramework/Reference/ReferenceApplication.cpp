#include "HostFramework/Reference/ReferenceApplication.h"

#include "Foundation/QuitAnnouncement.h"
#include "HostFramework/ICustomizationManager.h"
#include "HostFramework/ILinksManager.h"
#include "HostFramework/Reference/ReferenceNagScreenManager.h"
#include "common/ValueGuard.h"

#include <QCloseEvent>
#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

namespace Pelnar::App
{
namespace
{

bool IsWindowToAsk(QWidget const& widget)
{
    Qt::WindowType const type = widget.windowType();
    return widget.isVisible() && type != Qt::Popup && type != Qt::ToolTip && type != Qt::Desktop;
}

/// Guarded, because a window that is asked may delete others.
std::vector<QPointer<QWidget>> WindowsToAsk()
{
    QWidgetList widgets = QApplication::topLevelWidgets();
    std::stable_partition(widgets.begin(), widgets.end(), [](QWidget const* widget) { return widget->isModal(); });
    return {widgets.begin(), widgets.end()};
}

template <typename Service>
std::shared_ptr<Service> Required(std::shared_ptr<Service> const& service, char const* name)
{
    if (!service)
    {
        throw std::logic_error("The application has no " + std::string(name) +
                               " service: give one to ReferenceApplication::SetServices() before the first check for "
                               "updates.");
    }
    return service;
}

} // namespace

ReferenceApplication::ReferenceApplication(int& argc, char** argv) : Application(argc, argv)
{
    SetServices({});
    Foundation::AnnounceQuitOf(*this);
}

ReferenceApplication::~ReferenceApplication() = default;

void ReferenceApplication::SetServices(ReferenceServices const& services)
{
    m_services = services;
    if (!m_services.nagScreenManager)
    {
        m_services.nagScreenManager = std::make_shared<NagScreen::ReferenceManager>();
    }
}

std::shared_ptr<NagScreen::Manager> ReferenceApplication::GetNagScreenManager() const
{
    return m_services.nagScreenManager;
}

std::shared_ptr<ICustomizationManager> ReferenceApplication::GetCustomizationManager() const
{
    return Required(m_services.customizationManager, "customization");
}

std::shared_ptr<ILinksManager> ReferenceApplication::GetLinksManager() const
{
    return Required(m_services.linksManager, "links");
}

bool ReferenceApplication::TryToQuit()
{
    if (m_isAskingWindows)
    {
        return false;
    }
    Core::ValueGuard<bool> const asking(m_isAskingWindows, true);
    for (QPointer<QWidget> const& window : WindowsToAsk())
    {
        if (!window || !IsWindowToAsk(*window))
        {
            continue;
        }
        // Deliberate: only the event, not QWidget::close. A window that accepts stays open, so that a later refusal
        // leaves the user's windows unchanged.
        QCloseEvent event;
        QCoreApplication::sendEvent(window, &event);
        if (!event.isAccepted())
        {
            return false;
        }
    }
    QCoreApplication::quit();
    return true;
}

} // namespace Pelnar::App
