#include "App/UpdateChecker/SparkleImpl/SessionLibrary/SessionLibrary_p.h"

#include "App/UpdateChecker/SparkleImpl/SessionLibrary/LibraryFile_p.h"
#include "App/UpdateChecker/SparkleImpl/SessionLibrary/SessionExport_p.h"
#include "Engine/ui/Translations.h"
#include "HostFramework/SpontaneousDialog.h"
#include "common/LogReadiness.h"
#include "common/LogSite.h"

#include <QCoreApplication>
#include <QLocale>

#include <chrono>
#include <climits>
#include <cstring>
#include <exception>
#include <memory>
#include <thread>
#include <utility>

#include <dlfcn.h>

namespace Pelnar::App
{
namespace
{

Core::LogFile const LOG_FILE("App/UpdateChecker/SparkleImpl/SessionLibrary");
/// A check waits for an answer, so its thread tries for five seconds to give one, even if memory is short.
constexpr int MOST_TRIES = 50;
constexpr std::chrono::milliseconds BETWEEN_TRIES{100};

Core::LogSite const NOT_LOADED{Core::LogSeverity::Error, LOG_FILE, 41, ""};

std::string LastLoaderError()
{
    char const* const text = ::dlerror();
    return text ? text : "the loader does not say why";
}

/// Lets the session use the host framework that this library uses. The session's library names no framework. If a
/// program itself opens the host, the loader would find none.
void LendHostFramework()
{
    Dl_info framework{};
    if (::dladdr(reinterpret_cast<void const*>(&Util::SpontaneousDialog::findParent), &framework) != 0)
    {
        // It stays loaded. A framework that is linked with the program is visible already, and dlopen refuses a
        // program.
        (void)::dlopen(framework.dli_fname, RTLD_LAZY | RTLD_NOLOAD | RTLD_GLOBAL);
    }
}

/// The folder that this library was loaded from; empty if it cannot be read. The loader gives it: the path may be
/// relative, and the working directory may have changed.
std::string OwnFolder()
{
    Dl_info own{};
    if (::dladdr(reinterpret_cast<void const*>(&OwnFolder), &own) == 0 || !own.dli_fname)
    {
        return {};
    }
    std::unique_ptr<void, decltype(&::dlclose)> const handle(::dlopen(own.dli_fname, RTLD_LAZY | RTLD_NOLOAD),
                                                             &::dlclose);
    char folder[2 * PATH_MAX] = {}; // the working directory and a relative path, each of PATH_MAX at most
    return handle && ::dlinfo(handle.get(), RTLD_DI_ORIGIN, folder) == 0 ? folder : std::string();
}

} // namespace

SessionLibrary& SessionLibrary::Instance()
{
    static SessionLibrary library;
    return library;
}

SessionExport const* SessionLibrary::Load()
{
    if (!m_loaded)
    {
        (void)Core::ReadyLog();
        if (m_loading.valid())
        {
            TakeLoading();
        }
        else
        {
            Take(Open());
        }
    }
    return m_loaded;
}

void SessionLibrary::LoadThen(QObject& context, std::function<void(SessionExport const*)> const& use)
{
    if (m_loaded)
    {
        use(m_loaded);
        return;
    }
    (void)Core::ReadyLog();
    if (!m_loading.valid())
    {
        try
        {
            m_loading = std::async(std::launch::async,
                                   [this]
                                   {
                                       Answer answer = Open();
                                       CallTellWaiters();
                                       return answer;
                                   });
        }
        catch (std::exception const&) // no thread can be created
        {
            use(Load());
            return;
        }
    }
    m_waiters.push_back({&context, use});
}

void SessionLibrary::CallTellWaiters() noexcept
{
    for (int triesLeft = MOST_TRIES; triesLeft > 0; --triesLeft)
    {
        try
        {
            QMetaObject::invokeMethod(
                &m_receiver, [this] { TellWaiters(); }, Qt::QueuedConnection);
            return;
        }
        catch (std::exception const&) // out of memory
        {
            std::this_thread::sleep_for(BETWEEN_TRIES);
        }
    }
}

SessionLibrary::Answer SessionLibrary::Open() noexcept
{
    try
    {
        return OpenLibrary();
    }
    catch (std::exception const& exception) // those who wait for the library must get an answer
    {
        return {nullptr, exception.what()};
    }
}

SessionLibrary::Answer SessionLibrary::OpenLibrary()
{
    std::string const folder = OwnFolder();
    if (folder.empty())
    {
        return {nullptr, "the folder of this library is not known"};
    }
    std::string const path = folder + "/" PELNAR_SESSION_LIBRARY;
    // The loader maps a truncated file, and the process dies where the file ends.
    if (std::optional<std::string> const fault = FaultOfLibrary(path))
    {
        return {nullptr, *fault};
    }
    LendHostFramework();
    void* const handle = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    if (!handle)
    {
        return {nullptr, LastLoaderError()};
    }
    auto const* const library = static_cast<SessionExport const*>(::dlsym(handle, SESSION_EXPORT_NAME));
    if (!library)
    {
        return {nullptr, LastLoaderError()};
    }
    if (std::strcmp(library->stamp, PELNAR_SESSION_STAMP) != 0)
    {
        return {nullptr, path + ": is of another build, " + library->stamp + " instead of " PELNAR_SESSION_STAMP};
    }
    return {library, {}};
}

void SessionLibrary::Take(Answer const& answer)
{
    m_loaded = answer.library;
    if (!m_loaded)
    {
        Core::Write(NOT_LOADED, "The update session cannot be loaded: " + answer.failure);
        // The message for the person needs translations, which otherwise the engine installs.
        if (QCoreApplication::instance())
        {
            Engine::InstallTranslations(QLocale());
        }
    }
    else if (auto const tell = std::exchange(m_whenLoaded, nullptr))
    {
        tell(*m_loaded);
    }
}

void SessionLibrary::TakeLoading()
{
    Take(m_loading.get());
}

void SessionLibrary::TellWaiters()
{
    if (m_loading.valid())
    {
        TakeLoading();
    }
    // A callback may ask again.
    for (Waiter const& waiter : std::exchange(m_waiters, {}))
    {
        if (waiter.context)
        {
            waiter.use(m_loaded);
        }
    }
}

} // namespace Pelnar::App
