#include "Engine/core/download/TransferRate.h"

namespace Pelnar::Engine
{
namespace
{

constexpr qint64 WINDOW_MILLISECONDS = 5000;

} // namespace

TransferRate::TransferRate()
{
    m_clock.start();
}

void TransferRate::Add(quint64 doneBytes)
{
    m_samples.push_back({m_clock.elapsed(), doneBytes});
    while (m_samples.size() > 2 && m_samples.back().milliseconds - m_samples[1].milliseconds >= WINDOW_MILLISECONDS)
    {
        m_samples.pop_front();
    }
}

quint64 TransferRate::BytesPerSecond() const
{
    if (m_samples.empty())
    {
        return 0;
    }
    qint64 const elapsed = m_samples.back().milliseconds - m_samples.front().milliseconds;
    quint64 const bytes = m_samples.back().doneBytes - m_samples.front().doneBytes;
    return elapsed > 0 ? bytes * 1000 / static_cast<quint64>(elapsed) : 0;
}

} // namespace Pelnar::Engine
