// ManualPage.cpp: the command line as a manual page.

#include "Publisher/description/CommandDescription.h"

#include "Publisher/description/DescribedCommand.h"

#include <boost/algorithm/string/join.hpp>

namespace Pelnar::Publisher
{
namespace
{

constexpr char INTRODUCTION[] = R"(.TH PELNAR-APPCAST 1 "" "" "Pelnar update checker"
.SH NAME
pelnar\-appcast \- makes, signs, checks and explains the feeds that applications update from
)";

constexpr char ENDING[] = R"(.SH EXIT STATUS
.TP
.B 0
Done. No problem was found.
.TP
.B 1
Done. The input has problems.
.TP
.B 2
Not done. The arguments are wrong, or the input cannot be read.
.PP
An error is one line on standard error: the file, the line and the column if they are known, the problem, and after a
semicolon the correction.
.SH ENVIRONMENT
.TP
.B COLUMNS
Width of the help text in columns.
.TP
.B NO_COLOR
If it is set and not empty, the output has no colours.
.TP
.B SOURCE_DATE_EPOCH
Date of new items, in seconds since 1970; default: now.
.TP
.B TMPDIR
Folder for temporary files; default: /tmp.
.SH FILES
A private key is one line of base64 in a file that only its owner may read. It is never an argument and never in the
environment; "\-" stands for standard input.
.SH EXAMPLES
.nf
pelnar\-appcast keys generate ~/.config/app.key
pelnar\-appcast generate releases \-\-key ~/.config/app.key \-\-url\-prefix https://updates.example.com/app/
pelnar\-appcast lint releases/appcast.xml \-\-strict
pelnar\-appcast explain releases/appcast.xml \-\-local\-version 5.0 \-\-system\-version 11.0
pelnar\-appcast serve releases \-\-fault truncate:App\-5.1.zip:100000
.fi
)";

/// \a text with the formatter's commands escaped.
std::string Roff(std::string const& text)
{
    std::string result;
    for (char const character : text)
    {
        bool const isLineStart = result.empty() || result.back() == '\n';
        if (isLineStart && (character == '.' || character == '\''))
        {
            result += "\\&";
        }
        if (character == '\\')
        {
            result += "\\e";
        }
        else if (character == '-')
        {
            result += "\\-";
        }
        else
        {
            result += character;
        }
    }
    return result;
}

/// A sentence with a full stop.
std::string Sentence(std::string const& text)
{
    bool const hasEnd = !text.empty() && (text.back() == '.' || text.back() == '?' || text.back() == ')');
    return Roff(text) + (hasEnd ? "" : ".");
}

std::string Placeholder(DescribedOption const& option)
{
    return option.placeholder.empty() ? std::string() : " \\fI" + Roff(option.placeholder) + "\\fR";
}

std::string Synopsis(DescribedCommand const& command)
{
    std::string text = ".B pelnar\\-appcast " + Roff(command.path) + "\n";
    bool hasOptions = false;
    std::string arguments;
    for (DescribedOption const& option : command.options)
    {
        if (option.isPositional)
        {
            arguments += ".I " + Roff(option.names.front()) + '\n';
        }
        else if (option.isRequired)
        {
            arguments += "\\fB" + Roff(option.names.back()) + "\\fR" + Placeholder(option) + '\n';
        }
        else
        {
            hasOptions = true;
        }
    }
    return text + arguments + (hasOptions ? ".RI [ options ]\n" : "");
}

std::string OptionText(DescribedOption const& option)
{
    std::string text = ".TP\n";
    if (option.isPositional)
    {
        text += ".I " + Roff(option.names.front()) + '\n';
    }
    else
    {
        std::string names;
        for (std::string const& name : option.names)
        {
            names += (names.empty() ? "" : ", ") + ("\\fB" + Roff(name) + "\\fR");
        }
        text += names + Placeholder(option) + '\n';
    }
    text += Sentence(option.description) + '\n';
    if (!option.choices.empty())
    {
        text += "One of: " + Roff(boost::join(option.choices, ", ")) + ".\n";
    }
    return option.defaultText.empty() ? text : text + "Default: " + Roff(option.defaultText) + ".\n";
}

} // namespace

std::string ManualPage(CLI::App const& program)
{
    std::vector<DescribedCommand> const commands = DescribeCommands(program);
    std::string text = INTRODUCTION;
    text += ".SH SYNOPSIS\n";
    for (DescribedCommand const& command : commands)
    {
        if (command.verbs.empty())
        {
            text += Synopsis(command) + ".br\n";
        }
    }
    text += ".SH DESCRIPTION\n" + Roff(commands.front().description) + '\n';
    for (DescribedOption const& option : commands.front().options)
    {
        text += option.names.back() == "--help" ? "" : OptionText(option);
    }
    text += ".SH VERBS\n";
    for (DescribedCommand const& command : commands)
    {
        if (command.path.empty())
        {
            continue;
        }
        text += ".SS " + Roff(command.path) + '\n' + Sentence(command.description) + '\n';
        for (DescribedOption const& option : command.options)
        {
            bool const isHelp = option.names.back() == "--help"; // the same for every verb
            text += isHelp ? "" : OptionText(option);
        }
    }
    return text + ".PP\nEvery verb describes itself with \\fB\\-\\-help\\fR.\n" + ENDING;
}

} // namespace Pelnar::Publisher
