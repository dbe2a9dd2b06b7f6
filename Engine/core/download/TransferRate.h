// TransferRate.h: the rate of a transfer over its last seconds.
// Thread: one at a time.
#pragma once

#include <QElapsedTimer>

#include <deque>

namespace Pelnar::Engine
{

class TransferRate
{
public:
    TransferRate();

    /// \a doneBytes is the total so far.
    void Add(quint64 doneBytes);
    /// 0 while unknown.
    quint64 BytesPerSecond() const;

private:
    struct Sample
    {
        qint64 milliseconds;
        quint64 doneBytes;
    };

    QElapsedTimer m_clock;
    std::deque<Sample> m_samples;
};

} // namespace Pelnar::Engine
