// WindowCases.h: every window of the engine in every way it can be shown, as rows for tests.
// Thread: the Qt main thread.
#pragma once

#include "Engine/ui/WidgetUserInterface.h"

#include <functional>
#include <string>
#include <vector>

namespace Pelnar::Testing
{

struct WindowButton
{
    char const* objectName;
    char const* answer; ///< what the recorder hears when it is clicked
};

struct WindowCase
{
    char const* name;
    char const* objectName;
    Engine::CheckOrigin origin;
    /// Shows the window; the recorder hears the answer in words.
    std::function<void(Engine::IUserInterface&, std::function<void(std::string)>)> show;
    std::vector<WindowButton> buttons;
    char const* dismissal;     ///< the answer of Esc and of the close button
    char const* defaultButton; ///< empty when there is none
};

[[nodiscard]] std::vector<WindowCase> AllWindowCases();

/// An update with everything a window can show of it.
[[nodiscard]] Engine::UpdateOffer FullOffer();

} // namespace Pelnar::Testing
