// SessionModel.h: follows a session record by record: its state, and what may come next. Thread: one at a time.
// Ownership: its own events.
#pragma once

#include "Publisher/timeline/Timeline.h"

#include <vector>

namespace Pelnar::Publisher
{

class SessionModel
{
public:
    void Take(SessionRecord const& record);
    /// The events, once all records were taken.
    Timeline Finish();

private:
    void CheckFollowUp(SessionRecord const& record);
    void TakeStatedState(SessionRecord const& record);
    void TakeSwitch(SessionRecord const& record);
    void TakeLock(SessionRecord const& record);
    void TakeUnlock(SessionRecord const& record);
    void TakeCommand(SessionRecord const& record);
    void TakeCallback(SessionRecord const& record);
    void TakeChoice(SessionRecord const& record);
    void TakeRest(SessionRecord const& record);
    void Release();
    /// Notes that the operation will switch the state, if it is one that does so from here.
    void Open(Core::LogSite const* site);
    /// A guard failed: the operation that asked it gives up.
    void GiveUp();
    [[nodiscard]] bool CloseOperationFor(App::Session::State from, App::Session::State to);
    void Add(SessionRecord const& record, EventKind kind, QString const& text);
    void AddWrong(SessionRecord const& record, QString const& text);

    Timeline m_timeline;
    std::optional<App::Session::State> m_state;
    std::optional<bool> m_isLocked;
    std::optional<bool> m_isUnlockRequested;
    /// What was begun and will switch the state, the latest last: dialogs let others in between.
    std::vector<Core::LogSite const*> m_open;
    /// A switch to WAITING that nothing explains but the end of the session, which shows by the next two records.
    std::optional<SessionRecord> m_unexplainedIdle;
    SessionRecord m_previous;
    bool m_mustUnlock = false;
    bool m_isBestItemNext = false; ///< the item that is dumped next was chosen
    QString m_dumpedVersion;
    int m_holders = 0;
    int m_holder = 0;
    int m_checks = 0;
};

} // namespace Pelnar::Publisher
