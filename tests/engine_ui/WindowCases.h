// WindowCases.h: every window of the engine in each of its forms, as rows for tests.
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
    char const* answer; ///< the recorder's text after a click
};

struct WindowCase
{
    char const* name;
    char const* objectName;
    Engine::CheckOrigin origin;
    /// Shows the window. The recorder gets the answer in words.
    std::function<void(Engine::IUserInterface&, std::function<void(std::string)>)> show;
    std::vector<WindowButton> buttons;
    char const* dismissal;     ///< the answer of Esc and of the close button
    char const* defaultButton; ///< empty if there is none
};

[[nodiscard]] std::vector<WindowCase> AllWindowCases();

/// An update with all that a window can show.
[[nodiscard]] Engine::UpdateOffer FullOffer();

} // namespace Pelnar::Testing
