// DescribedCommand.h: one verb of a command line and its options, as plain texts.
#pragma once

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

namespace Pelnar::Publisher
{

struct DescribedOption
{
    std::vector<std::string> names;   ///< "-o", "--output"; of a positional argument its name alone
    std::string placeholder;          ///< of its value, "TEXT"; empty for a flag
    std::string description;          ///< without the full stop
    std::vector<std::string> choices; ///< the values that it takes; empty for any
    std::string defaultText;          ///< empty when there is none
    bool isRequired = false;
    bool isPositional = false;
};

struct DescribedCommand
{
    std::string path; ///< "keys show"; empty for the program itself
    std::string description;
    std::vector<DescribedOption> options; ///< positional arguments first
    std::vector<std::string> verbs;       ///< the names of those below it
};

/// The program, and every verb before those below it, in the order of the help text.
std::vector<DescribedCommand> DescribeCommands(CLI::App const& program);

} // namespace Pelnar::Publisher
