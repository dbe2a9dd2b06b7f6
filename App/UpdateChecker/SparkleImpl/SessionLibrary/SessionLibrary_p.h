// SessionLibrary_p.h: loads the library of the session and the engine, once, when it is first needed.
// A host pays for the engine with its first check and not with its start. The library stands in the same folder as this
// one and is looked for nowhere else. It comes from the same build, or it is refused.
// Thread: the Qt main thread; the loading itself has a thread of its own. Ownership: a singleton; it waits at its end
// for a loading that runs. The library stays loaded.
#pragma once

#include <QObject>
#include <QPointer>

#include <functional>
#include <future>
#include <string>
#include <vector>

namespace Pelnar::App
{

struct SessionExport;

class SessionLibrary
{
public:
    static SessionLibrary& Instance();

    /// What the library offers when it is loaded, otherwise null.
    SessionExport const* Loaded() const { return m_loaded; }
    /// Loads the library, if it is not loaded, before it returns. Null, logged, when that fails; the next call tries
    /// again.
    SessionExport const* Load();
    /// Calls \a use once with what the library offers: at once when it is loaded, otherwise it is loaded beside the
    /// event loop, and \a use is called from there if \a context still lives. Null, logged, when that fails.
    void LoadThen(QObject& context, std::function<void(SessionExport const*)> const& use);
    /// Calls \a tell when the library is next loaded, before anybody else may use it, in the place of what an earlier
    /// call wanted called.
    void WhenLoaded(std::function<void(SessionExport const&)> const& tell) { m_whenLoaded = tell; }

private:
    /// One of the two is empty.
    struct Answer
    {
        SessionExport const* library = nullptr;
        std::string failure;
    };
    struct Waiter
    {
        QPointer<QObject> context;
        std::function<void(SessionExport const*)> use;
    };

    SessionLibrary() = default;

    static Answer Open();
    void Take(Answer const& answer);
    void TakeLoading();
    void TellWaiters();

    SessionExport const* m_loaded = nullptr;
    std::vector<Waiter> m_waiters;
    std::function<void(SessionExport const&)> m_whenLoaded;
    QObject m_receiver;            ///< of the thread's word that it has ended
    std::future<Answer> m_loading; ///< the first to go: it waits for the thread
};

} // namespace Pelnar::App
