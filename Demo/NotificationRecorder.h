// NotificationRecorder.h: an observer that converts each notification to a plain value and passes it on.
// Thread: the Qt main thread. Ownership: the host's; it outlives the checks that it observes.
#pragma once

#include "App/UpdateChecker/IUpdateManagerObserver.h"

#include <QString>

#include <functional>
#include <optional>

namespace Pelnar::Demo
{

struct Versions
{
    Core::Version current;
    Core::Version remote;
};

struct Notification
{
    QString name;                     ///< the observer operation
    std::optional<Versions> versions; ///< its arguments, if it has any
};

/// "OnUpdateFound current=5.9 remote=5.10"
QString TextOf(Notification const& notification);

class NotificationRecorder : public App::IUpdateManagerObserver
{
public:
    explicit NotificationRecorder(std::function<void(Notification const&)> receiver);

    void OnUpdateFound(Core::Version const& current, Core::Version const& remote) override;
    void OnUpdateAccepted(Core::Version const& current, Core::Version const& remote) override;
    void OnUpdateDialogOpening() override;
    void OnUpdateDialogClosed() override;

private:
    std::function<void(Notification const&)> m_receiver;
};

} // namespace Pelnar::Demo
