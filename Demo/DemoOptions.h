// DemoOptions.h: the command line of pelnar-demo.
#pragma once

#include "App/UpdateChecker/UpdateCheckMode.h"
#include "Demo/WindowClicker.h"
#include "HostFramework/Reference/ReferenceCustomizationManager.h"
#include "HostFramework/Reference/ReferenceLinksManager.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Pelnar::Demo
{

enum class NagContent
{
    Available, ///< a major update shows the nag screen
    None,      ///< a major update is handled like any other
    Later,     ///< unknown until the content arrives, some seconds after the start
};

enum class Script
{
    None,        ///< a person uses the window
    CheckOnce,   ///< one check, every dialog dismissed, then quit
    ShowDialogs, ///< every dialog and the nag screen, dismissed immediately, then quit
    Start,       ///< only the window, then quit
    Answer,      ///< one check, its windows answered by clicks, then quit
    Update,      ///< the same, but the update makes the application quit
};

struct DemoOptions
{
    App::Customization customization;
    App::Links links;
    QString systemVersion; ///< null: the system's own
    QString platform;      ///< null: the engine's own
    App::UpdateCheckMode mode = App::UpdateCheckMode::UserInitiated;
    NagContent nagContent = NagContent::Available;
    Script script = Script::None;
    QString screenshotFolder;  ///< null: no pictures
    std::vector<Click> clicks; ///< for Answer and Update
};

/// The name and version of the program outside a bundle.
App::Customization UnbundledApplication();

/// \a arguments begin with the program's name; \a application has the default values. Throws std::runtime_error whose
/// text says what is wrong with the arguments, and HelpRequest.
DemoOptions ParseDemoOptions(QStringList const& arguments, App::Customization const& application);

/// \a arguments, or, if they are only the program's name, those of the environment variable PELNAR_DEMO_OPTIONS: an
/// application restarted by an update gets no arguments, but the environment of the previous process.
QStringList ArgumentsOrEnvironment(QStringList const& arguments);

} // namespace Pelnar::Demo
