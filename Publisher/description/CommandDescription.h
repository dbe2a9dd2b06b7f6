// CommandDescription.h: describes the command line of the publisher's tool as a manual page and as completions for
// shells. Both are made from the definition that parses the command line and prints its help.
#pragma once

#include <CLI/CLI.hpp>

#include <string>

namespace Pelnar::Publisher
{

/// In roff, for section 1.
std::string ManualPage(CLI::App const& program);
/// Bash sources it.
std::string BashCompletion(CLI::App const& program);
/// A function file for zsh's fpath.
std::string ZshCompletion(CLI::App const& program);
/// fish reads it.
std::string FishCompletion(CLI::App const& program);

} // namespace Pelnar::Publisher
