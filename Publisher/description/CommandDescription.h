// CommandDescription.h: the command line of the publisher's tool as a manual page and as completions for shells, made
// from the same definition that parses it and prints its help.
#pragma once

#include <CLI/CLI.hpp>

#include <string>

namespace Pelnar::Publisher
{

/// In roff, for section 1.
std::string ManualPage(CLI::App const& program);
/// To be sourced by bash.
std::string BashCompletion(CLI::App const& program);
/// A function file for zsh's fpath.
std::string ZshCompletion(CLI::App const& program);
/// To be read by fish.
std::string FishCompletion(CLI::App const& program);

} // namespace Pelnar::Publisher
