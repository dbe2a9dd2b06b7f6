#include "Publisher/timeline/SessionModel.h"

#include "App/UpdateChecker/SparkleImpl/Choice/CallbackRules.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

namespace Pelnar::Publisher
{
namespace
{

using App::Session::AbortReaction;
using App::Session::CheckReaction;
using App::Session::State;
namespace Sites = App::Session::Sites;

QLatin1String const CURRENT_STATE("Current state = ");

constexpr State STATES[] = {
    State::WAITING,           State::FETCHING_INFO,  State::PREPARING_TO_SHOW_CHANGELOG, State::SILENT_DOWNLOADING,
    State::SILENT_INSTALLING, State::SILENT_ABORTING};

std::optional<State> StateFromName(QString const& name)
{
    auto const* const found =
        std::find_if(std::begin(STATES), std::end(STATES),
                     [&](State state) { return name == QLatin1String(App::Session::StateName(state)); });
    return found == std::end(STATES) ? std::nullopt : std::optional(*found);
}

QString NameOf(std::optional<State> state)
{
    return state ? QString::fromLatin1(App::Session::StateName(*state)) : u"unknown"_s;
}

bool EndsWithResult(State state)
{
    CheckReaction const reaction = App::Session::ReactionToResult(state);
    return reaction == CheckReaction::ReportAndIdle || reaction == CheckReaction::Idle;
}

bool EndsWithAbort(State state)
{
    AbortReaction const reaction = App::Session::ReactionToAbort(state);
    return reaction != AbortReaction::Nothing && reaction != AbortReaction::Unspecified;
}

/// True if the operation may change the first state to the second, by the session's own table.
bool MaySwitch(Core::LogSite const* site, State from, State to)
{
    if (site == &Sites::CHECK)
    {
        return to == State::FETCHING_INFO;
    }
    if (site == &Sites::SHOW_DIALOG)
    {
        return to == State::SILENT_DOWNLOADING || to == State::PREPARING_TO_SHOW_CHANGELOG;
    }
    if (site == &Sites::CHECK_RAISED || site == &Sites::SHOW_DIALOG_RAISED)
    {
        return to == State::WAITING;
    }
    if (site == &Sites::WILL_INSTALL)
    {
        return to == State::SILENT_INSTALLING || to == State::SILENT_ABORTING;
    }
    if (to != State::WAITING)
    {
        return false;
    }
    return ((site == &Sites::FOUND || site == &Sites::NOT_FOUND) && EndsWithResult(from)) ||
           (site == &Sites::ABORTED && EndsWithAbort(from)) ||
           (site == &Sites::DID_CANCEL && App::Session::IsCancelledInstallExpected(from));
}

/// True if the session handles the callback in this state.
bool IsExpected(Core::LogSite const* site, State state)
{
    if (site == &Sites::FOUND || site == &Sites::NOT_FOUND)
    {
        return App::Session::ReactionToResult(state) != CheckReaction::Unspecified;
    }
    if (site == &Sites::SHOULD_RELAUNCH)
    {
        return App::Session::ReactionToRelaunch(state) != App::Session::RelaunchReaction::Unspecified;
    }
    if (site == &Sites::WILL_RELAUNCH)
    {
        return App::Session::ReactionToRelaunch(state) == App::Session::RelaunchReaction::Allowed;
    }
    if (site == &Sites::DID_CANCEL)
    {
        return App::Session::IsCancelledInstallExpected(state);
    }
    if (site == &Sites::BEST_ITEM)
    {
        // Asked only during a request, and every request has its own state.
        return state != State::WAITING;
    }
    return true;
}

template <std::size_t N>
bool IsOneOf(Core::LogSite const* site, Core::LogSite const* const (&sites)[N])
{
    return std::find(std::begin(sites), std::end(sites), site) != std::end(sites);
}

Core::LogSite const* const CALLBACKS[] = {&Sites::FOUND,        &Sites::NOT_FOUND,       &Sites::ABORTED,
                                          &Sites::WILL_INSTALL, &Sites::SHOULD_RELAUNCH, &Sites::WILL_RELAUNCH,
                                          &Sites::DID_CANCEL,   &Sites::RELAUNCH_PATH,   &Sites::BEST_ITEM};

/// Callbacks that change some states to WAITING.
Core::LogSite const* const OUTCOMES[] = {&Sites::FOUND, &Sites::NOT_FOUND, &Sites::ABORTED, &Sites::DID_CANCEL};
/// Operations that change the state from every state.
Core::LogSite const* const SWITCHING[] = {&Sites::CHECK, &Sites::CHECK_RAISED, &Sites::SHOW_DIALOG,
                                          &Sites::SHOW_DIALOG_RAISED, &Sites::WILL_INSTALL};
/// Operations that end early if a guard fails, with their guards.
Core::LogSite const* const GUARDED[] = {&Sites::CHECK, &Sites::SHOW_DIALOG, &Sites::FOUND, &Sites::NOT_FOUND};
Core::LogSite const* const GUARDS[] = {&Sites::ENSURE_CONTEXT, &Sites::ENSURE_CALLBACK, &Sites::ENSURE_LOCAL_VERSION,
                                       &Sites::ENSURE_REMOTE_VERSION};

} // namespace

void SessionModel::Take(SessionRecord const& record)
{
    CheckFollowUp(record);
    if (record.text.startsWith(CURRENT_STATE))
    {
        TakeStatedState(record);
    }
    if (record.site == &Sites::SET_STATE)
    {
        TakeSwitch(record);
    }
    else if (IsOneOf(record.site, CALLBACKS))
    {
        TakeCallback(record);
    }
    else
    {
        TakeLock(record);
        TakeUnlock(record);
        TakeCommand(record);
        TakeChoice(record);
        TakeRest(record);
    }
    m_previous = record;
}

/// Some records must follow others immediately.
void SessionModel::CheckFollowUp(SessionRecord const& record)
{
    if (m_mustUnlock && record.site != &Sites::UNLOCK)
    {
        AddWrong(record, u"the lock should have been released here, because its holder had left"_s);
    }
    m_mustUnlock = false;
    if (m_unexplainedIdle && record.site != &Sites::UNLOCK && record.site != &Sites::DESTROY_UPDATER)
    {
        AddWrong(*m_unexplainedIdle, u"no running operation ends in WAITING here"_s);
        m_unexplainedIdle.reset();
    }
}

void SessionModel::TakeStatedState(SessionRecord const& record)
{
    QString const name = record.text.mid(CURRENT_STATE.size());
    std::optional<State> const stated = StateFromName(name);
    if (!stated)
    {
        AddWrong(record, u"%1 is not a state"_s.arg(name));
        return;
    }
    if (m_state && *m_state != *stated)
    {
        AddWrong(record, u"the state is %1, but the last change led to %2"_s.arg(name, NameOf(m_state)));
    }
    m_state = stated;
}

void SessionModel::TakeSwitch(SessionRecord const& record)
{
    QStringList const words = record.text.split(u' ');
    std::optional<State> const from = words.size() == 5 ? StateFromName(words.at(2)) : std::nullopt;
    std::optional<State> const to = words.size() == 5 ? StateFromName(words.at(4)) : std::nullopt;
    if (!from || !to)
    {
        AddWrong(record, u"not a change between two states: %1"_s.arg(record.text));
        return;
    }
    bool const isFirst = m_previous.site == nullptr;
    if (m_state && *m_state != *from)
    {
        AddWrong(record, u"the change starts from %1, but the state was %2"_s.arg(NameOf(from), NameOf(m_state)));
    }
    m_state = to;
    Add(record, EventKind::State, u"%1 -> %2"_s.arg(NameOf(from), NameOf(to)));
    if (CloseOperationFor(*from, *to) || isFirst)
    {
        return;
    }
    if (*to == State::WAITING)
    {
        m_unexplainedIdle = record;
        return;
    }
    AddWrong(record, u"no running operation leads from %1 to %2"_s.arg(NameOf(from), NameOf(to)));
}

bool SessionModel::CloseOperationFor(State from, State to)
{
    auto const found = std::find_if(m_open.rbegin(), m_open.rend(),
                                    [&](Core::LogSite const* site) { return MaySwitch(site, from, to); });
    if (found == m_open.rend())
    {
        return false;
    }
    m_open.erase(std::next(found).base());
    return true;
}

void SessionModel::TakeLock(SessionRecord const& record)
{
    if (record.site == &Sites::LOCK_UPDATER_REFUSED)
    {
        Add(record, EventKind::Lock,
            m_isLocked.value_or(false) ? u"refused: holder %1 has it"_s.arg(m_holder)
                                       : u"refused: the framework is busy"_s);
    }
    else if (record.site == &Sites::SET_CONTEXT)
    {
        if (m_isLocked.value_or(false))
        {
            AddWrong(record, u"the lock is taken while holder %1 has it"_s.arg(m_holder));
        }
        if (m_previous.site && m_previous.site != &Sites::LOCK)
        {
            AddWrong(record, u"the session is used without its lock"_s);
        }
        m_isLocked = true;
        m_isUnlockRequested = false;
        m_holder = ++m_holders;
    }
    else if (record.site == &Sites::SET_CONTEXT_FEED)
    {
        Add(record, EventKind::Lock, u"taken by holder %1, %2"_s.arg(m_holder).arg(record.text));
    }
}

void SessionModel::TakeUnlock(SessionRecord const& record)
{
    if (record.site == &Sites::UNLOCK_WHEN_POSSIBLE)
    {
        bool const isIdle = m_state == State::WAITING;
        Add(record, EventKind::Lock,
            isIdle ? u"the holder leaves"_s : u"the holder leaves; the lock waits for WAITING"_s);
        m_mustUnlock = isIdle;
        m_isUnlockRequested = isIdle ? m_isUnlockRequested : true;
    }
    else if (record.site == &Sites::UNLOCK_IF_REQUESTED)
    {
        m_mustUnlock = m_isUnlockRequested.value_or(false);
    }
    else if (record.site == &Sites::UNLOCK)
    {
        bool const wasAsked = m_previous.site == &Sites::UNLOCK_WHEN_POSSIBLE || m_unexplainedIdle ||
                              (m_previous.site == &Sites::UNLOCK_IF_REQUESTED && m_isUnlockRequested.value_or(true)) ||
                              !m_previous.site;
        if (!wasAsked)
        {
            AddWrong(record, u"the lock is released without a request"_s);
        }
        Release();
        Add(record, EventKind::Lock, u"free"_s);
    }
}

void SessionModel::Release()
{
    m_isLocked = false;
    m_isUnlockRequested = false;
    m_holder = 0;
}

void SessionModel::TakeCommand(SessionRecord const& record)
{
    if (record.site == &Sites::CHECK || record.site == &Sites::SHOW_DIALOG)
    {
        ++m_checks;
        Open(record.site);
        Add(record, EventKind::Command,
            record.site == &Sites::CHECK ? u"check %1: information only"_s.arg(m_checks)
                                         : u"check %1: the update dialog"_s.arg(m_checks));
        if (m_isLocked && !*m_isLocked)
        {
            AddWrong(record, u"a check starts while nobody holds the lock"_s);
        }
    }
    else if (record.site == &Sites::CHECK_RAISED || record.site == &Sites::SHOW_DIALOG_RAISED)
    {
        Open(record.site);
        Add(record, EventKind::Error, record.text);
    }
    else if (record.site == &Sites::REJECT)
    {
        Add(record, EventKind::Command, u"the update is rejected and the dialog is closed"_s);
    }
}

void SessionModel::TakeCallback(SessionRecord const& record)
{
    Open(record.site);
    Add(record, EventKind::Callback, OperationName(*record.site));
    if (m_state && !IsExpected(record.site, *m_state))
    {
        AddWrong(record, u"%1 cannot occur in %2"_s.arg(OperationName(*record.site), NameOf(m_state)));
    }
}

void SessionModel::TakeChoice(SessionRecord const& record)
{
    QString const value = record.text.mid(record.text.indexOf(" = "_l) + 3);
    if (record.site == &Sites::BEST_ITEM_DETECTED)
    {
        m_isBestItemNext = true;
    }
    else if (record.site == &Sites::DUMP_VERSION)
    {
        m_dumpedVersion = value;
    }
    else if (record.site == &Sites::DUMP_UPDATE_TYPE && m_isBestItemNext)
    {
        m_isBestItemNext = false;
        Add(record, EventKind::Choice, u"the best item is %1, %2"_s.arg(m_dumpedVersion, value));
    }
    else if (record.site == &Sites::FOUND_UPDATE_TYPE || record.site == &Sites::BEST_ITEM_NOT_DETECTED ||
             record.site == &Sites::RELAUNCH_PATH_ANSWER)
    {
        Add(record, EventKind::Choice, record.text);
    }
}

void SessionModel::TakeRest(SessionRecord const& record)
{
    if (record.site == &Sites::CREATE_UPDATER)
    {
        // A new process: the events of the previous one are complete.
        m_state = State::WAITING;
        Release();
        m_open.clear();
        Add(record, EventKind::Process, u"the session starts"_s);
    }
    else if (record.site == &Sites::DESTROY_UPDATER)
    {
        m_unexplainedIdle.reset();
        Add(record, EventKind::Process, u"the session ends"_s);
    }
    else if (record.site == &Sites::NOTIFY_CHECK_FINISHED)
    {
        if (m_state && *m_state != State::WAITING)
        {
            AddWrong(record, u"the holder is notified before the state is WAITING"_s);
        }
        Add(record, EventKind::Told, u"the check is over"_s);
    }
    else if (record.site->severity == Core::LogSeverity::Error && record.site != &Sites::LOCK_UPDATER_REFUSED &&
             record.site != &Sites::CHECK_RAISED && record.site != &Sites::SHOW_DIALOG_RAISED)
    {
        Add(record, EventKind::Error, record.text);
        if (IsOneOf(record.site, GUARDS))
        {
            GiveUp();
        }
    }
}

void SessionModel::Open(Core::LogSite const* site)
{
    bool const isOutcome = IsOneOf(site, OUTCOMES);
    bool const mayBegin = !isOutcome || !m_state || MaySwitch(site, *m_state, State::WAITING);
    if (mayBegin && (isOutcome || IsOneOf(site, SWITCHING)))
    {
        m_open.push_back(site);
    }
}

void SessionModel::GiveUp()
{
    bool const isAsked = !m_open.empty() && m_previous.site != &Sites::NOTIFY_CHECK_FINISHED;
    if (isAsked && IsOneOf(m_open.back(), GUARDED))
    {
        m_open.pop_back();
    }
}

void SessionModel::Add(SessionRecord const& record, EventKind kind, QString const& text)
{
    m_timeline.events.push_back({record.logLine, record.time, kind, text, m_holder, m_checks, m_state});
}

void SessionModel::AddWrong(SessionRecord const& record, QString const& text)
{
    Add(record, EventKind::Wrong, text);
}

Timeline SessionModel::Finish()
{
    if (m_unexplainedIdle)
    {
        AddWrong(*m_unexplainedIdle, u"no running operation ends in WAITING here"_s);
    }
    return std::move(m_timeline);
}

} // namespace Pelnar::Publisher
