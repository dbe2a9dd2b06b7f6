// EventPublisher.h: the interface at which handlers of one kind of event are registered.
//
//     using Observer = Pelnar::App::IUpdateManagerObserver;
//     auto const follow = [](Pelnar::Core::EventPublisher<Observer>& publisher, Observer& observer)
//     { publisher.RegisterEventHandler(&observer); };
//
// Ownership: the publisher does not own its handlers; a handler must be unregistered before it is destroyed.
#pragma once

namespace Pelnar::Core
{

template <class T>
class EventPublisher
{
public:
    /// Appends \a handler. Null and a handler that is already registered are ignored.
    virtual void RegisterEventHandler(T* handler) = 0;
    /// Removes \a handler and keeps the order of the others. Null and an unknown handler are ignored.
    virtual void UnregisterEventHandler(T* handler) = 0;
    virtual ~EventPublisher() = default;
};

} // namespace Pelnar::Core
