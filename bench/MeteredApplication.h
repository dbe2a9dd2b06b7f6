// MeteredApplication.h: how long an event loop is kept from coming round.
// Thread: main. Ownership: as QCoreApplication.
#pragma once

#include <QCoreApplication>

namespace Pelnar::Bench
{

/// Takes the time of each event: what it computed, and what it waited for a disk, a lock or another process. Not the
/// time in which it was ready and other programs, or the machine's other guests, had the processor.
class MeteredApplication : public QCoreApplication
{
public:
    using QCoreApplication::QCoreApplication;

    bool notify(QObject* receiver, QEvent* event) override;

    /// The longest event since the start, or since the last call of Restart.
    double LongestStallMilliseconds() const { return m_longest / 1e6; }
    void Restart() { m_longest = 0; }

private:
    double m_longest = 0;
    int m_depth = 0;
};

} // namespace Pelnar::Bench
