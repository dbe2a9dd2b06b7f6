// Progress.h: shows the progress of long work: a bar on a terminal, otherwise a line every few seconds. Ownership:
// refers to the output, which outlives it.
#pragma once

#include "Publisher/Console.h"

#include <QElapsedTimer>

#include <chrono>

namespace Pelnar::Publisher
{

class Progress
{
public:
    /// \a output is the stream that programs do not read: the error stream.
    Progress(Output const& output, QString label, std::chrono::milliseconds lineInterval = std::chrono::seconds(3));
    /// Wipes the bar.
    ~Progress();
    Progress(Progress const&) = delete;
    Progress& operator=(Progress const&) = delete;

    /// Draws the bar at \a done of \a total steps or bytes, at most ten times a second. Without a terminal, prints at
    /// most one line in each interval.
    void Show(qint64 done, qint64 total);
    /// The same, for std::ref.
    void operator()(std::uint64_t done, std::uint64_t total) { Show(qint64(done), qint64(total)); }

private:
    Output const& m_output;
    QString const m_label;
    std::chrono::milliseconds const m_lineInterval;
    QElapsedTimer m_sinceLine;
    QElapsedTimer m_sinceDrawn;
    int m_drawnWidth = 0;
};

} // namespace Pelnar::Publisher
