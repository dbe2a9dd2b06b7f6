#include "Publisher/Verb.h"

#include <algorithm>
#include <ostream>
#include <sstream>

#include <sys/ioctl.h>
#include <unistd.h>

namespace Pelnar::Publisher
{
namespace
{

constexpr char const* PROGRAM_NAME = "pelnar-appcast";
/// In the order of the help text.
constexpr decltype(&AddExplain) VERBS[] = {AddExplain,      AddLint,     AddMatrix, AddDiff,   AddSimulate,
                                           AddTimeline,     AddKeys,     AddSign,   AddVerify, AddGenerate,
                                           AddCheckRelease, AddSignFeed, AddEdits,  AddDelta,  AddServe};

/// Columns of a line; 0 for lines of any length.
std::size_t WidthOf(Output const& output)
{
    constexpr int FEWEST = 40;
    int width = qEnvironmentVariableIntValue("COLUMNS");
    winsize size{};
    if (width <= 0 && output.isTerminal && ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0)
    {
        width = size.ws_col;
    }
    return width <= 0 ? 0 : std::size_t(std::max(width, FEWEST));
}

/// Breaks long lines of \a text at blanks. The rest of a line is indented to the option's description.
std::string Wrapped(std::string const& text, std::size_t width)
{
    constexpr std::size_t DESCRIPTION_COLUMN = 30;
    std::istringstream lines(text);
    std::string result;
    for (std::string line; std::getline(lines, line);)
    {
        bool const isOption = line.compare(0, 2, "  ") == 0 && width > DESCRIPTION_COLUMN + 8;
        std::string const indent(isOption ? DESCRIPTION_COLUMN : 0, ' ');
        while (width > 0 && line.size() > width)
        {
            std::size_t const blank = line.rfind(' ', width);
            if (blank == std::string::npos || blank <= indent.size())
            {
                break;
            }
            result += line.substr(0, blank) + '\n';
            line = indent + line.substr(blank + 1);
        }
        result += line + '\n';
    }
    return result;
}

ExitStatus AnswerParseError(CLI::App const& program, CLI::ParseError const& error, Console const& console)
{
    if (error.get_exit_code() == int(CLI::ExitCodes::Success))
    {
        // A request for help, in which the verb that was asked describes itself, or for the version.
        std::ostringstream text;
        program.exit(error, text, console.err.stream);
        console.out.stream << Wrapped(text.str(), WidthOf(console.out));
        return ExitStatus::Clean;
    }
    std::string understood = PROGRAM_NAME;
    CLI::App const* verb = &program;
    while (!verb->get_subcommands().empty())
    {
        verb = verb->get_subcommands().front();
        understood += ' ' + verb->get_name();
    }
    bool const isVerbMissing =
        error.get_exit_code() == int(CLI::ExitCodes::RequiredError) && !verb->get_subcommands({}).empty();
    std::string what = isVerbMissing ? "a verb is required" : error.what();
    if (isVerbMissing && !verb->remaining().empty())
    {
        std::string const word = verb->remaining().front();
        what = '"' + word + (word.rfind('-', 0) == 0 ? "\" is not an option" : "\" is not a verb");
    }
    return console.Refuse({QString::fromStdString(what), QString::fromStdString("see " + understood + " --help")});
}

/// What all verbs share. An empty value usually comes from an unset variable of a script, so no verb accepts one.
void CompleteVerbs(CLI::App& app)
{
    for (CLI::Option* const option : app.get_options())
    {
        if (option->get_items_expected_max() > 0)
        {
            option->check([](std::string const& value)
                          { return value.empty() ? std::string("no value is given") : std::string(); });
        }
    }
    for (CLI::App* const verb : app.get_subcommands({}))
    {
        verb->group("Verbs");
        CompleteVerbs(*verb);
    }
}

} // namespace

void WithProgram(VerbContext& context, std::function<void(CLI::App&)> const& use)
{
    CLI::App program("Makes, signs, checks and explains the feeds that applications update from.\nExit status: 0 no "
                     "problem, 1 problems found, 2 bad arguments or unreadable input.",
                     PROGRAM_NAME);
    program.require_subcommand(1);
    program.get_formatter()->label("SUBCOMMAND", "VERB");
    program.get_formatter()->label("Positionals", "Arguments");
    program.set_version_flag("--version", std::string(PROGRAM_NAME) + " " + PELNAR_VERSION,
                             "Print the version and exit");
    for (auto* const add : VERBS)
    {
        add(program, context);
    }
    CompleteVerbs(program);
    use(program);
}

ExitStatus RunProgram(std::vector<std::string> const& arguments, Console& console)
{
    VerbContext context{console};
    WithProgram(context,
                [&](CLI::App& program)
                {
                    try
                    {
                        // The parser expects the arguments in reverse order.
                        program.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
                    }
                    catch (CLI::ParseError const& error)
                    {
                        context.status = AnswerParseError(program, error, console);
                    }
                });
    console.out.stream.flush();
    if (!console.out.stream)
    {
        console.Refuse({u"<stdout>"_s, u"cannot be written"_s,
                        u"check the space on the disk, and the program that reads the output"_s});
        return ExitStatus::Findings;
    }
    return context.status;
}

} // namespace Pelnar::Publisher
