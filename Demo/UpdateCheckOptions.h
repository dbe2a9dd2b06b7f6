// UpdateCheckOptions.h: the command line of pelnar-update-check.
#pragma once

#include "App/UpdateChecker/UpdateCheckMode.h"
#include "HostFramework/Version.h"

#include <QString>
#include <QStringList>
#include <QUrl>

#include <chrono>

namespace Pelnar::Demo
{

struct UpdateCheckOptions
{
    QUrl feed;
    Core::Version localVersion;
    QString systemVersion; ///< null: the system's own
    QString platform;      ///< null: the engine's own
    App::UpdateCheckMode mode = App::UpdateCheckMode::UserInitiated;
    std::chrono::seconds timeout{0};
    bool json = false;
    bool verbose = false;
    bool outcomeInExitStatus = false;
};

/// \a arguments begin with the program's name. Throws std::runtime_error whose text says what is wrong with the
/// arguments, and HelpRequest.
UpdateCheckOptions ParseUpdateCheckOptions(QStringList const& arguments);

} // namespace Pelnar::Demo
