// ShellCompletions.cpp: the command line as completions for zsh and fish.

#include "Publisher/description/CommandDescription.h"

#include "Publisher/description/DescribedCommand.h"

#include <boost/algorithm/string/join.hpp>
#include <boost/algorithm/string/replace.hpp>

#include <algorithm>

namespace Pelnar::Publisher
{
namespace
{

/// The first sentence, or a part of it, that fits next to a word.
std::string Short(std::string const& text)
{
    return text.substr(0, std::min(text.find_first_of(";:(,\n"), text.size()));
}

/// \a text in single quotes, in which shells interpret nothing.
std::string Quoted(std::string const& text)
{
    return "'" + boost::replace_all_copy(text, "'", "'\\''") + "'";
}

std::string LastWord(std::string const& path)
{
    return path.substr(path.rfind(' ') + 1); // a single word stays whole
}

/// The possible next words, each as 'word:description'.
std::string ZshWords(DescribedCommand const& command, std::vector<DescribedCommand> const& all)
{
    std::string words;
    for (std::string const& verb : command.verbs)
    {
        std::string const path = command.path.empty() ? verb : command.path + ' ' + verb;
        auto const described =
            std::find_if(all.begin(), all.end(), [&](DescribedCommand const& each) { return each.path == path; });
        words += ' ' + Quoted(verb + ':' + (described == all.end() ? "" : Short(described->description)));
    }
    for (DescribedOption const& option : command.options)
    {
        for (std::string const& name : option.isPositional ? std::vector<std::string>() : option.names)
        {
            words += ' ' + Quoted(name + ':' + Short(option.description));
        }
    }
    return words;
}

std::string FishCondition(std::string const& path)
{
    if (path.empty())
    {
        return "__fish_use_subcommand";
    }
    std::size_t const blank = path.find(' ');
    std::string const first = "__fish_seen_subcommand_from " + path.substr(0, blank);
    return blank == std::string::npos ? first : first + "; and __fish_seen_subcommand_from " + path.substr(blank + 1);
}

std::string FishOption(DescribedOption const& option, std::string const& condition)
{
    std::string line = "complete -c pelnar-appcast -n " + Quoted(condition);
    for (std::string const& name : option.names)
    {
        bool const isLong = name.compare(0, 2, "--") == 0;
        line += isLong ? " -l " + name.substr(2) : " -s " + name.substr(1);
    }
    line += option.placeholder.empty() ? "" : " -r";
    if (!option.choices.empty())
    {
        line += " -f -a " + Quoted(boost::join(option.choices, " "));
    }
    return line + " -d " + Quoted(Short(option.description)) + '\n';
}

} // namespace

std::string ZshCompletion(CLI::App const& program)
{
    std::vector<DescribedCommand> const commands = DescribeCommands(program);
    std::string steps;
    std::string words;
    for (DescribedCommand const& command : commands)
    {
        for (std::string const& verb : command.verbs)
        {
            steps += (steps.empty() ? "" : "|") + Quoted(command.path + '/' + verb);
        }
        words += "        " + Quoted(command.path) + ") known=(" + ZshWords(command, commands) + ") ;;\n";
    }
    return "#compdef pelnar-appcast\n"
           "# Completion of pelnar-appcast for zsh, made from the program's own description of its command line.\n"
           "_pelnar_appcast()\n{\n"
           "    local verb=\"\" word\n"
           "    local -a known\n"
           "    for word in ${words[2,CURRENT-1]}; do\n"
           "        case \"$verb/$word\" in\n"
           "            " +
           steps +
           ") verb=\"${verb:+$verb }$word\" ;;\n"
           "        esac\n"
           "    done\n"
           "    case \"$verb\" in\n" +
           words +
           "    esac\n"
           "    _describe 'argument' known\n"
           "    [[ -n $verb ]] && _files\n"
           "}\n"
           "_pelnar_appcast \"$@\"\n";
}

std::string FishCompletion(CLI::App const& program)
{
    std::vector<DescribedCommand> const commands = DescribeCommands(program);
    std::string text =
        "# Completion of pelnar-appcast for fish, made from the program's own description of its command line.\n";
    for (DescribedCommand const& command : commands)
    {
        std::string const condition = FishCondition(command.path);
        if (!command.path.empty())
        {
            std::size_t const blank = command.path.rfind(' ');
            std::string const parent = blank == std::string::npos ? "" : command.path.substr(0, blank);
            text += "complete -c pelnar-appcast -f -n " + Quoted(FishCondition(parent)) + " -a " +
                    Quoted(LastWord(command.path)) + " -d " + Quoted(Short(command.description)) + '\n';
        }
        for (DescribedOption const& option : command.options)
        {
            text += option.isPositional ? "" : FishOption(option, condition);
        }
    }
    return text;
}

} // namespace Pelnar::Publisher
