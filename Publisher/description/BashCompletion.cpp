// BashCompletion.cpp: the command line as a completion for bash.

#include "Publisher/description/CommandDescription.h"

#include "Publisher/description/DescribedCommand.h"

#include <boost/algorithm/string/join.hpp>

namespace Pelnar::Publisher
{
namespace
{

constexpr char OPENING[] =
    R"(# Completion of pelnar-appcast for bash, made from the program's own description of its command line.
_pelnar_appcast()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local verb="" words="" word
    for word in "${COMP_WORDS[@]:1:COMP_CWORD - 1}"; do
        case "$verb/$word" in
)";
constexpr char AFTER_VERBS[] = R"(                verb="${verb:+$verb }$word" ;;
        esac
    done
    case "$verb $previous" in
)";
constexpr char AFTER_CHOICES[] = R"(    esac
    if [ -z "$words" ]; then
        case "$verb" in
)";
constexpr char ENDING[] = R"(        esac
        # A verb with verbs takes nothing else; any other takes files besides its options.
        case "$verb" in
)";
constexpr char CLOSING[] = R"(            *)
                if [[ $current != -* ]]; then
                    mapfile -t COMPREPLY < <(compgen -f -- "$current")
                    return
                fi ;;
        esac
    fi
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}
complete -o filenames -F _pelnar_appcast pelnar-appcast
)";

std::vector<std::string> WordsOf(DescribedCommand const& command)
{
    std::vector<std::string> words = command.verbs;
    for (DescribedOption const& option : command.options)
    {
        if (!option.isPositional)
        {
            words.insert(words.end(), option.names.begin(), option.names.end());
        }
    }
    return words;
}

/// One line for each option whose values are known.
std::string ChoiceLines(DescribedCommand const& command)
{
    std::string lines;
    for (DescribedOption const& option : command.options)
    {
        if (option.choices.empty() || option.isPositional)
        {
            continue;
        }
        std::vector<std::string> patterns;
        for (std::string const& name : option.names)
        {
            patterns.push_back('"' + command.path + ' ' + name + '"');
        }
        lines +=
            "        " + boost::join(patterns, " | ") + ") words=\"" + boost::join(option.choices, " ") + "\" ;;\n";
    }
    return lines;
}

} // namespace

std::string BashCompletion(CLI::App const& program)
{
    std::vector<std::string> steps;
    std::vector<std::string> holders;
    std::string choices;
    std::string words;
    for (DescribedCommand const& command : DescribeCommands(program))
    {
        for (std::string const& verb : command.verbs)
        {
            steps.push_back('"' + command.path + '/' + verb + '"');
        }
        if (!command.verbs.empty())
        {
            holders.push_back('"' + command.path + '"');
        }
        choices += ChoiceLines(command);
        words += "            \"" + command.path + "\") words=\"" + boost::join(WordsOf(command), " ") + "\" ;;\n";
    }
    return OPENING + ("            " + boost::join(steps, " | \\\n            ")) + ")\n" + AFTER_VERBS + choices +
           AFTER_CHOICES + words + ENDING + "            " + boost::join(holders, " | ") + ") ;;\n" + CLOSING;
}

} // namespace Pelnar::Publisher
