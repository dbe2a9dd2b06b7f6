// SessionExport_p.h: what the library of the session and the engine offers to the update checker, which loads it.
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
    /// PELNAR_SESSION_STAMP of the build that made the library. It stays the first field: it is read before it is known
    /// what the others are.
    char const* stamp;
    ISession& (*session)();
    void (*confirmGoodStart)();
    int (*unchangedFeedDays)();
    bool (*setRelaunchArguments)(std::vector<std::string> const& arguments);
    AutomaticDownload (*automaticDownloads)();
    void (*setAutomaticDownloads)(AutomaticDownload wish);
};

/// The name by which the library's one SessionExport is found.
inline constexpr char SESSION_EXPORT_NAME[] = "pelnarUpdateSession";

} // namespace Pelnar::App

extern "C" PELNAR_EXPORT Pelnar::App::SessionExport const pelnarUpdateSession;
