// SessionLibrary_p.h: loads the library with the session and the engine, once, at its first use. So a host pays for the
// engine at its first check and not at its start. The library must be in the same folder as this one and from the same
// build.
// Thread: the Qt main thread; a separate thread does the loading. Ownership: a singleton. Its destructor waits for a
// running load. The library stays loaded.
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

    /// The library's interface if it is loaded, otherwise null.
    SessionExport const* Loaded() const { return m_loaded; }
    /// Loads the library, unless it is loaded, before it returns. Returns null and logs the reason if that fails; the
    /// next call tries again.
    SessionExport const* Load();
    /// Calls \a use once with the library's interface: immediately if it is loaded. Otherwise a thread loads it, and
    /// the event loop calls \a use if \a context still lives. Null, with a log line, if that fails.
    void LoadThen(QObject& context, std::function<void(SessionExport const*)> const& use);
    /// Calls \a tell when the library is loaded next, before any other use of it. It replaces the function of an
    /// earlier call.
    void WhenLoaded(std::function<void(SessionExport const&)> const& tell) { m_whenLoaded = tell; }

private:
    /// Exactly one of the two is empty.
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

    static Answer Open() noexcept;
    static Answer OpenLibrary();
    void Take(Answer const& answer);
    void TakeLoading();
    void TellWaiters();
    /// Called by the thread that loads the library.
    void CallTellWaiters() noexcept;

    SessionExport const* m_loaded = nullptr;
    std::vector<Waiter> m_waiters;
    std::function<void(SessionExport const&)> m_whenLoaded;
    QObject m_receiver;            ///< receives the thread's end
    std::future<Answer> m_loading; ///< destroyed first: it waits for the thread
};

} // namespace Pelnar::App
