#include "Publisher/Verb.h"

#include <QRegularExpression>

#include <algorithm>
#include <memory>
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

/// The letters to add, remove, replace or exchange with their neighbour to make \a b of \a a.
std::size_t Difference(std::string const& a, std::string const& b)
{
    std::vector<std::vector<std::size_t>> steps(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i)
    {
        for (std::size_t j = 0; j <= b.size(); ++j)
        {
            if (i == 0 || j == 0)
            {
                steps[i][j] = i + j;
                continue;
            }
            std::size_t const replaced = steps[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            steps[i][j] = std::min({steps[i - 1][j] + 1, steps[i][j - 1] + 1, replaced});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
            {
                steps[i][j] = std::min(steps[i][j], steps[i - 2][j - 2] + 1);
            }
        }
    }
    return steps[a.size()][b.size()];
}

/// The name that a person probably meant by \a word; empty if it resembles none.
std::string MeantBy(std::string const& word, std::vector<std::string> const& names)
{
    std::size_t least = std::min<std::size_t>(2, word.size() / 3) + 1;
    std::string meant;
    for (std::string const& name : names)
    {
        std::size_t const difference = Difference(word, name);
        meant = difference < least ? name : meant;
        least = std::min(least, difference);
    }
    return meant;
}

/// What is wrong with a word that \a verb does not know.
struct UnknownWord
{
    std::string what;
    std::string meant; ///< empty if nobody can tell
};

UnknownWord Unknown(CLI::App const& verb, std::string const& word, bool isVerbWanted)
{
    std::vector<std::string> names;
    if (word.rfind('-', 0) == 0)
    {
        for (CLI::Option const* const option : verb.get_options())
        {
            for (std::string const& name : option->get_lnames())
            {
                names.push_back("--" + name);
            }
        }
        return {'"' + word + "\" is not an option", MeantBy(word, names)};
    }
    for (CLI::App const* const below : verb.get_subcommands({}))
    {
        names.push_back(below->get_name());
    }
    return {'"' + word + (isVerbWanted ? "\" is not a verb" : "\" is one argument too many"), MeantBy(word, names)};
}

/// The library's message about a value, as this program says it.
QString Reworded(QString const& message)
{
    struct Wording
    {
        QRegularExpression theirs;
        QString ours;
    };
    static std::vector<Wording> const WORDINGS{
        {QRegularExpression(u"^(\\S+): Value (.*) not in range (.*) to (.*)$"_s),
         u"\\1: \"\\2\" is not a number from \\3 to \\4"_s},
        {QRegularExpression(u"^(\\S+): (.*) not in \\{(.*)\\}$"_s), u"\\1: \"\\2\" is not one of \\3"_s},
        {QRegularExpression(u"^(\\S+): 1 required (\\S+) missing$"_s), u"\\1: no \\2 is given"_s},
    };
    for (Wording const& wording : WORDINGS)
    {
        if (wording.theirs.match(message).hasMatch())
        {
            return QString(message).replace(wording.theirs, wording.ours);
        }
    }
    return message;
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
    UnknownWord problem{isVerbMissing ? "a verb is required" : error.what(), {}};
    std::vector<std::string> const words = verb->remaining();
    if (!words.empty() && (isVerbMissing || error.get_exit_code() == int(CLI::ExitCodes::ExtrasError)))
    {
        auto const option =
            std::find_if(words.begin(), words.end(), [](std::string const& word) { return word.rfind('-', 0) == 0; });
        problem = Unknown(*verb, isVerbMissing || option == words.end() ? words.front() : *option, isVerbMissing);
    }
    std::string const help = understood + " --help";
    return console.Refuse(
        {Reworded(QString::fromStdString(problem.what)),
         QString::fromStdString(problem.meant.empty() ? "see " + help
                                                      : "did you mean " + problem.meant + "? See " + help)});
}

/// Lists each verb in one line. The verb's own help has the rest of its description.
class ShortList final : public CLI::Formatter
{
    std::string make_subcommand(CLI::App const* verb) const override
    {
        std::string const whole = verb->get_description();
        std::ostringstream line;
        CLI::detail::format_help(line, verb->get_name(), whole.substr(0, std::min(whole.find(". "), whole.find(": "))),
                                 get_column_width());
        return line.str();
    }
};

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
    program.formatter(std::make_shared<ShortList>());
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
