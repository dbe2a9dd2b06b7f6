#include "Demo/NotificationRecorder.h"

#include "Demo/CheckRun.h"

#include <utility>

namespace Pelnar::Demo
{

QString TextOf(Notification const& notification)
{
    if (!notification.versions)
    {
        return notification.name;
    }
    return QStringLiteral("%1 current=%2 remote=%3")
        .arg(notification.name, TextOf(notification.versions->current), TextOf(notification.versions->remote));
}

NotificationRecorder::NotificationRecorder(std::function<void(Notification const&)> receiver)
    : m_receiver(std::move(receiver))
{
}

void NotificationRecorder::OnUpdateFound(Core::Version const& current, Core::Version const& remote)
{
    m_receiver({QStringLiteral("OnUpdateFound"), Versions{current, remote}});
}

void NotificationRecorder::OnUpdateAccepted(Core::Version const& current, Core::Version const& remote)
{
    m_receiver({QStringLiteral("OnUpdateAccepted"), Versions{current, remote}});
}

void NotificationRecorder::OnUpdateDialogOpening()
{
    m_receiver({QStringLiteral("OnUpdateDialogOpening"), std::nullopt});
}

void NotificationRecorder::OnUpdateDialogClosed()
{
    m_receiver({QStringLiteral("OnUpdateDialogClosed"), std::nullopt});
}

} // namespace Pelnar::Demo
