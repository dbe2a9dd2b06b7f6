// SessionModel.h: follows a session record by record: its current state and the records that may come next. Thread: one
// at a time. Ownership: owns its events.
#pragma once

#include "Publisher/timeline/Timeline.h"

#include <vector>

namespace Pelnar::Publisher
{

class SessionModel
{
public:
    void Take(SessionRecord const& record);
    /// The events, after all records have been added.
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
    /// Notes that the operation will change the state, if it does so in the current state.
    void Open(Core::LogSite const* site);
    /// A guard failed: the operation that called it ends early.
    void GiveUp();
    [[nodiscard]] bool CloseOperationFor(App::Session::State from, App::Session::State to);
    void Add(SessionRecord const& record, EventKind kind, QString const& text);
    void AddWrong(SessionRecord const& record, QString const& text);

    Timeline m_timeline;
    std::optional<App::Session::State> m_state;
    std::optional<bool> m_isLocked;
    std::optional<bool> m_isUnlockRequested;
    /// Operations that have begun and will change the state, the latest last. Others can run inside them while a dialog
    /// is open.
    std::vector<Core::LogSite const*> m_open;
    /// A change to WAITING that only the end of the session explains. The next two records confirm it.
    std::optional<SessionRecord> m_unexplainedIdle;
    SessionRecord m_previous;
    bool m_mustUnlock = false;
    bool m_isBestItemNext = false; ///< the next item in the log is the chosen one
    QString m_dumpedVersion;
    int m_holders = 0;
    int m_holder = 0;
    int m_checks = 0;
};

} // namespace Pelnar::Publisher
