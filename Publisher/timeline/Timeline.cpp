#include "Publisher/timeline/Timeline.h"

#include "Publisher/timeline/SessionModel.h"

#include <algorithm>

namespace Pelnar::Publisher
{

int Timeline::WrongEvents() const
{
    return int(std::count_if(events.begin(), events.end(),
                             [](TimelineEvent const& event) { return event.kind == EventKind::Wrong; }));
}

Timeline RebuildTimeline(SessionLog const& log)
{
    SessionModel model;
    for (SessionRecord const& record : log.records)
    {
        model.Take(record);
    }
    Timeline timeline = model.Finish();
    for (SessionRecord const& stranger : log.strangers)
    {
        TimelineEvent event{stranger.logLine, stranger.time, EventKind::Wrong, QString(), 0, 0, std::nullopt};
        event.text =
            u"line %1 of the session's source does not write this record in this version: %2"_s.arg(stranger.siteLine)
                .arg(stranger.text);
        timeline.events.push_back(event);
    }
    std::stable_sort(timeline.events.begin(), timeline.events.end(),
                     [](TimelineEvent const& a, TimelineEvent const& b) { return a.logLine < b.logLine; });
    return timeline;
}

} // namespace Pelnar::Publisher
