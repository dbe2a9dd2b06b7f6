// Progress.h: a bar on a terminal while long work runs; nothing anywhere else.
// Thread: the main thread. Ownership: refers to the output, which outlives it.
#pragma once

#include "Publisher/Console.h"

#include <QElapsedTimer>

namespace Pelnar::Publisher
{

class Progress
{
public:
    /// \a output is the stream that no program reads: the error stream.
    Progress(Output const& output, QString label);
    /// Wipes the bar.
    ~Progress();
    Progress(Progress const&) = delete;
    Progress& operator=(Progress const&) = delete;

    /// Draws the bar at \a done of \a total steps or bytes, at most ten times a second.
    void Show(qint64 done, qint64 total);

private:
    Output const& m_output;
    QString const m_label;
    QElapsedTimer m_sinceDrawn;
    int m_drawnWidth = 0;
};

} // namespace Pelnar::Publisher
