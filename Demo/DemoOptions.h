// DemoOptions.h: the command line of pelnar-demo.
// Thread: any. Ownership: plain values.
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
    None,      ///< a major update takes the way of any other
    Later,     ///< not known until the content arrives, some seconds after the start
};

enum class Script
{
    None,        ///< a person uses the window
    CheckOnce,   ///< one check, every dialog dismissed, then quit
    ShowDialogs, ///< every dialog and the nag screen, dismissed at once, then quit
    Start,       ///< the window alone, then quit
    Answer,      ///< one check, the windows that it leads to answered by clicks, then quit
    Update,      ///< the same, but it is the update that makes the application quit
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
    std::vector<Click> clicks; ///< of Answer and Update
};

/// What the program calls itself when it runs from no bundle.
App::Customization UnbundledApplication();

/// \a arguments begin with the program's name; \a application is what they need not say. Throws std::runtime_error
/// whose text says what is wrong with them. Prints the help and ends the process when it is asked for.
DemoOptions ParseDemoOptions(QStringList const& arguments, App::Customization const& application);

/// \a arguments, or, when they are only the program's name, those of the environment variable PELNAR_DEMO_OPTIONS: an
/// application that an update starts again gets no arguments, but the environment of the one before it.
QStringList ArgumentsOrEnvironment(QStringList const& arguments);

} // namespace Pelnar::Demo
