// MeteredApplication.h: how long an event loop is kept from coming round.
// Thread: main. Ownership: as the application object that it is made of.
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

/// What this thread computed, and what it waited for a disk, a lock or another process; in nanoseconds. Not the time in
/// which it was ready and other programs, or the machine's other guests, had the processor.
double StallBetween(Moment const& begin, Moment const& end);

/// Takes the time of each event.
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

    /// The longest event since the start, or since the last call of Restart.
    double LongestStallMilliseconds() const { return m_longest / 1e6; }
    void Restart() { m_longest = 0; }

private:
    double m_longest = 0;
    int m_depth = 0;
};

using MeteredApplication = Metered<QCoreApplication>;

} // namespace Pelnar::Bench
