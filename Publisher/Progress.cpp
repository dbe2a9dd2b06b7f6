#include "Publisher/Progress.h"

#include <algorithm>
#include <ostream>

namespace Pelnar::Publisher
{
namespace
{

constexpr int BAR_WIDTH = 30;
constexpr qint64 REDRAW_MILLISECONDS = 100;

} // namespace

Progress::Progress(Output const& output, QString label, std::chrono::milliseconds lineInterval)
    : m_output(output), m_label(std::move(label)), m_lineInterval(lineInterval)
{
    m_sinceLine.start();
}

Progress::~Progress()
{
    if (m_drawnWidth > 0)
    {
        m_output.stream << '\r' << std::string(std::size_t(m_drawnWidth), ' ') << '\r' << std::flush;
    }
}

void Progress::Show(qint64 done, qint64 total)
{
    bool const isRecent = m_output.isTerminal
                              ? m_sinceDrawn.isValid() && m_sinceDrawn.elapsed() < REDRAW_MILLISECONDS && done < total
                              : m_sinceLine.elapsed() < m_lineInterval.count();
    if (total <= 0 || isRecent)
    {
        return;
    }
    double const share = double(std::clamp<qint64>(done, 0, total)) / double(total);
    QString const percent = QString::number(int(share * 100));
    if (!m_output.isTerminal)
    {
        m_sinceLine.start();
        m_output.stream << u"%1: %2 %"_s.arg(m_label, percent).toStdString() << std::endl;
        return;
    }
    m_sinceDrawn.start();
    int const filled = int(share * BAR_WIDTH);
    QString const bar =
        u"%1 [%2%3] %4 %"_s.arg(m_label, QString(filled, u'#'), QString(BAR_WIDTH - filled, u'.'), percent);
    m_drawnWidth = std::max(m_drawnWidth, bar.size());
    m_output.stream << '\r' << bar.toStdString() << std::flush;
}

} // namespace Pelnar::Publisher
