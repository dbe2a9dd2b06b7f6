// Timeline.h: the course of a session, rebuilt from its log records: states, the holder of its lock, callbacks, and
// every sequence of records that the session cannot write.
#pragma once

#include "App/UpdateChecker/SparkleImpl/Choice/SessionState.h"
#include "Publisher/timeline/SessionLog.h"

#include <QString>

#include <optional>
#include <vector>

namespace Pelnar::Publisher
{

enum class EventKind
{
    Process,  ///< the session begins or ends
    Lock,     ///< requested, taken, refused or released
    Command,  ///< the holder gives a command; starts a check
    State,    ///< the state changes
    Callback, ///< the framework calls the delegate
    Told,     ///< the holder is notified that its check is over
    Choice,   ///< an item was chosen, or no update was found
    Error,    ///< an error or warning of the session
    Wrong,    ///< a sequence that is impossible
};

struct TimelineEvent
{
    int logLine = 0;
    QString time;
    EventKind kind = EventKind::Process;
    QString text;
    int holder = 0;                           ///< the holder of the lock, counted from 1; 0 while it is free
    int check = 0;                            ///< counts commands that start one, from 1; 0 before the first
    std::optional<App::Session::State> state; ///< after the event; empty if it is unknown
};

struct Timeline
{
    std::vector<TimelineEvent> events;

    [[nodiscard]] int WrongEvents() const;
};

/// A log may begin anywhere. An unknown value is taken from the first record that contains it.
Timeline RebuildTimeline(SessionLog const& log);

} // namespace Pelnar::Publisher
