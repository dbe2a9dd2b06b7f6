#include "Publisher/description/DescribedCommand.h"

#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/split.hpp>

#include <algorithm>

namespace Pelnar::Publisher
{
namespace
{

/// The values in "TEXT:{xml,gnustep}".
std::vector<std::string> ChoicesIn(std::string const& typeName)
{
    std::vector<std::string> choices;
    std::size_t const open = typeName.find(":{");
    std::size_t const close = typeName.find('}', open);
    if (open != std::string::npos && close != std::string::npos)
    {
        boost::split(choices, typeName.substr(open + 2, close - open - 2), boost::is_any_of(","));
    }
    return choices;
}

DescribedOption Describe(CLI::Option const& option)
{
    DescribedOption described;
    described.isPositional = option.get_positional();
    described.isRequired = option.get_required();
    described.description = option.get_description();
    described.defaultText = option.get_default_str();
    if (described.isPositional)
    {
        described.names = {option.get_name(true)};
    }
    else
    {
        for (std::string const& name : option.get_snames())
        {
            described.names.push_back("-" + name);
        }
        for (std::string const& name : option.get_lnames())
        {
            described.names.push_back("--" + name);
        }
    }
    bool const isFlag = option.get_items_expected_max() == 0;
    if (!isFlag)
    {
        std::string const typeName = option.get_type_name();
        described.choices = ChoicesIn(typeName);
        described.placeholder = typeName.substr(0, typeName.find(':'));
    }
    return described;
}

void Collect(CLI::App const& app, std::string const& path, std::vector<DescribedCommand>& commands)
{
    auto const any = [](auto const*) { return true; };
    DescribedCommand command;
    command.path = path;
    command.description = app.get_description();
    for (CLI::Option const* const option : app.get_options(any))
    {
        command.options.push_back(Describe(*option));
    }
    std::stable_partition(command.options.begin(), command.options.end(),
                          [](DescribedOption const& option) { return option.isPositional; });
    std::vector<CLI::App const*> const verbs = app.get_subcommands(any);
    for (CLI::App const* const verb : verbs)
    {
        command.verbs.push_back(verb->get_name());
    }
    commands.push_back(std::move(command));
    for (CLI::App const* const verb : verbs)
    {
        Collect(*verb, path.empty() ? verb->get_name() : path + ' ' + verb->get_name(), commands);
    }
}

} // namespace

std::vector<DescribedCommand> DescribeCommands(CLI::App const& program)
{
    std::vector<DescribedCommand> commands;
    Collect(program, {}, commands);
    return commands;
}

} // namespace Pelnar::Publisher
