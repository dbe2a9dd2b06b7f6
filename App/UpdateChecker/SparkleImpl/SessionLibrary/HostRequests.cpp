// Passes on the host's calls and questions to the engine outside a check.

#include "App/UpdateChecker/SparkleImpl/SessionLibrary/SessionExport_p.h"
#include "App/UpdateChecker/SparkleImpl/SessionLibrary/SessionLibrary_p.h"
#include "App/UpdateChecker/SparkleImpl/SessionLibrary/UpdateTraces_p.h"
#include "common/LogReadiness.h"
#include "common/LogSite.h"

#include "common/RelaunchLimits.h"
#include <Pelnar/AutomaticDownloads.h>
#include <Pelnar/Channels.h>
#include <Pelnar/FeedAge.h>
#include <Pelnar/GoodStart.h>
#include <Pelnar/RelaunchArguments.h>

using Pelnar::App::SessionExport;
using Pelnar::App::SessionLibrary;

namespace
{

Pelnar::Core::LogFile const LOG_FILE("App/UpdateChecker/SparkleImpl/HostRequests");
Pelnar::Core::LogSite const ARGUMENTS_REFUSED{Pelnar::Core::LogSeverity::Error, LOG_FILE, 24, ""};

} // namespace

void Pelnar::ConfirmGoodStart()
{
    SessionLibrary& library = SessionLibrary::Instance();
    // Loads before it returns, which is rarely needed: a host that ends right after the call has started well, too.
    SessionExport const* const loaded = App::MayHaveUpdateFiles() ? library.Load() : library.Loaded();
    if (loaded)
    {
        loaded->confirmGoodStart();
    }
}

int Pelnar::UnchangedFeedDays()
{
    SessionExport const* const loaded = SessionLibrary::Instance().Load();
    return loaded ? loaded->unchangedFeedDays() : 0;
}

Pelnar::AutomaticDownload Pelnar::AutomaticDownloads()
{
    SessionExport const* const loaded = SessionLibrary::Instance().Load();
    return loaded ? loaded->automaticDownloads() : AutomaticDownload::Off;
}

void Pelnar::SetAutomaticDownloads(AutomaticDownload wish)
{
    if (SessionExport const* const loaded = SessionLibrary::Instance().Load())
    {
        loaded->setAutomaticDownloads(wish);
    }
}

std::vector<std::string> Pelnar::Channels()
{
    SessionExport const* const loaded = SessionLibrary::Instance().Load();
    return loaded ? loaded->channels() : std::vector<std::string>();
}

bool Pelnar::SetChannels(std::vector<std::string> const& names)
{
    SessionExport const* const loaded = SessionLibrary::Instance().Load();
    return loaded && loaded->setChannels(names);
}

bool Pelnar::SetRelaunchArguments(std::vector<std::string> const& arguments)
{
    if (char const* const fault = Engine::FaultOfRelaunchArguments(arguments))
    {
        (void)Core::ReadyLog();
        Core::Write(ARGUMENTS_REFUSED, std::string("The arguments for the next start are refused, because ") + fault);
        return false;
    }
    SessionLibrary& library = SessionLibrary::Instance();
    if (SessionExport const* const loaded = library.Loaded())
    {
        return loaded->setRelaunchArguments(arguments);
    }
    // Without the engine there is no update to start anything after.
    library.WhenLoaded([arguments](SessionExport const& loaded) { (void)loaded.setRelaunchArguments(arguments); });
    return true;
}
