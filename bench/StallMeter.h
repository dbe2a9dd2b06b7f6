// StallMeter.h: whether an event loop comes round in time.
// Thread: the loop's. Ownership: its timer.
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

namespace Pelnar::Bench
{

/// The longest time that the event loop was away from a timer that is always due.
class StallMeter
{
public:
    StallMeter()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout,
                         [this] { m_longest = std::max(m_longest, m_clock.nsecsElapsed()), m_clock.restart(); });
        m_clock.start();
        m_timer.start(1);
    }

    double LongestMilliseconds() const { return static_cast<double>(m_longest) / 1e6; }

    /// From now on a new longest one.
    void Restart()
    {
        m_longest = 0;
        m_clock.restart();
    }

private:
    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_longest = 0;
};

} // namespace Pelnar::Bench
