// SessionExport_p.h: the interface of the library with the session and the engine to the update checker, which loads
// it.
// Thread: the Qt main thread. Ownership: the library's, which stays loaded.
#pragma once

#include "common/Export.h"

#include <Pelnar/AutomaticDownloads.h>

#include <string>
#include <vector>

namespace Pelnar::App
{

class ISession;

struct SessionExport
{
    /// PELNAR_SESSION_STAMP of the build that made the library. It must stay the first field: it is read before the
    /// meaning of the others is known.
    char const* stamp;
    ISession& (*session)();
    void (*confirmGoodStart)();
    int (*unchangedFeedDays)();
    bool (*setRelaunchArguments)(std::vector<std::string> const& arguments);
    AutomaticDownload (*automaticDownloads)();
    void (*setAutomaticDownloads)(AutomaticDownload wish);
    std::vector<std::string> (*channels)();
    bool (*setChannels)(std::vector<std::string> const& names);
};

/// The name of the library's only SessionExport.
inline constexpr char SESSION_EXPORT_NAME[] = "pelnarUpdateSession";

} // namespace Pelnar::App

extern "C" PELNAR_EXPORT Pelnar::App::SessionExport const pelnarUpdateSession;
