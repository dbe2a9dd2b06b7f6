// EventPublisher.h: the place where handlers of one kind of event are registered.
//
//     using Observer = Pelnar::App::IUpdateManagerObserver;
//     auto const follow = [](Pelnar::Core::EventPublisher<Observer>& publisher, Observer& observer)
//     { publisher.RegisterEventHandler(&observer); };
//
// Thread: any. Ownership: the publisher owns no handler; a handler must be unregistered before it dies.
#pragma once

namespace Pelnar::Core
{

template <class T>
class EventPublisher
{
public:
    /// Appends \a handler; null and a handler that is registered already are ignored.
    virtual void RegisterEventHandler(T* handler) = 0;
    /// Removes \a handler, keeping the order of the others; null and an unknown handler are ignored.
    virtual void UnregisterEventHandler(T* handler) = 0;
    virtual ~EventPublisher() = default;
};

} // namespace Pelnar::Core
