// DescribedCommand.h: one verb of a command line and its options, as plain texts.
#pragma once

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

namespace Pelnar::Publisher
{

struct DescribedOption
{
    std::vector<std::string> names;   ///< "-o", "--output"; for a positional argument only its name
    std::string placeholder;          ///< of its value, such as "TEXT"; empty for a flag
    std::string description;          ///< without the full stop
    std::vector<std::string> choices; ///< the allowed values; empty if any value is allowed
    std::string defaultText;          ///< empty if the option has no default
    bool isRequired = false;
    bool isPositional = false;
};

struct DescribedCommand
{
    std::string path; ///< "keys show"; empty for the program itself
    std::string description;
    std::vector<DescribedOption> options; ///< positional arguments first
    std::vector<std::string> verbs;       ///< the names of the verbs below it
};

/// The program and all its verbs, in the order of the help text. A verb comes before the verbs below it.
std::vector<DescribedCommand> DescribeCommands(CLI::App const& program);

} // namespace Pelnar::Publisher
