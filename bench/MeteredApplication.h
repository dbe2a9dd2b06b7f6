// MeteredApplication.h: measures how long each event blocks the event loop. Thread: main. Ownership: that of an
// application object.
#pragma once

#include <QCoreApplication>
#include <QThread>

#include <algorithm>

namespace Pelnar::Bench
{

struct Moment
{
    Moment();

    double wall; ///< this and the next two in nanoseconds
    double computing;
    double withoutProcessor;
    long waits = 0;
};

/// The thread's computing time, and its time waiting for a disk, a lock or another process, in nanoseconds. Time in
/// which it was ready while other programs or guests of the machine ran is not included.
double StallBetween(Moment const& begin, Moment const& end);

/// Measures the time of each event.
template <class Application>
class Metered : public Application
{
public:
    using Application::Application;

    bool notify(QObject* receiver, QEvent* event) override
    {
        if (m_depth > 0 || QThread::currentThread() != this->thread())
        {
            return Application::notify(receiver, event);
        }
        ++m_depth;
        Moment const begin;
        bool const answer = Application::notify(receiver, event);
        m_longest = std::max(m_longest, StallBetween(begin, Moment()));
        --m_depth;
        return answer;
    }

    /// The longest event since the start or the last call of Restart.
    double LongestStallMilliseconds() const { return m_longest / 1e6; }
    void Restart() { m_longest = 0; }

private:
    double m_longest = 0;
    int m_depth = 0;
};

using MeteredApplication = Metered<QCoreApplication>;

} // namespace Pelnar::Bench
