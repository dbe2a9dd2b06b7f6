// NotificationBench.h: an event of two numbers, for observers of the list and for slots of a signal.
// Thread: the benchmark's.
#pragma once

#include <QObject>

namespace Pelnar::Bench
{

class IObserver
{
public:
    virtual void OnEvent(int a, int b) = 0;

protected:
    ~IObserver() = default;
};

class Sender : public QObject
{
    Q_OBJECT

public:
    void Emit(int a, int b) { Q_EMIT Event(a, b); }

Q_SIGNALS:
    void Event(int a, int b);
};

/// Receives both kinds of event.
class Listener : public QObject, public IObserver
{
    Q_OBJECT

public:
    void OnEvent(int a, int b) override { sum += a + b; }

    long sum = 0;
};

} // namespace Pelnar::Bench
