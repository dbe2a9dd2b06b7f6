#include "Publisher/Verb.h"

#include <algorithm>
#include <ostream>

namespace Pelnar::Publisher
{
namespace
{

constexpr char const* PROGRAM_NAME = "pelnar-appcast";

/// The command line as far as its verbs were understood: "pelnar-appcast keys show".
std::string UnderstoodPart(CLI::App const& program)
{
    std::string text = PROGRAM_NAME;
    for (CLI::App const* verb = &program; !verb->get_subcommands().empty();)
    {
        verb = verb->get_subcommands().front();
        text += ' ' + verb->get_name();
    }
    return text;
}

ExitStatus AnswerParseError(CLI::App const& program, CLI::ParseError const& error, Console const& console)
{
    if (error.get_exit_code() == int(CLI::ExitCodes::Success))
    {
        // A request for help; whichever verb it was asked of describes itself.
        program.exit(error, console.out.stream, console.err.stream);
        return ExitStatus::Clean;
    }
    return console.Refuse({QString(), 0, 0, QString::fromStdString(error.what()),
                           QString::fromStdString("see " + UnderstoodPart(program) + " --help")});
}

} // namespace

void WithProgram(VerbContext& context, std::function<void(CLI::App&)> const& use)
{
    CLI::App program("Explains, checks, signs and makes the feeds that applications update from.\n"
                     "Exit status: 0 clean, 1 findings, 2 bad arguments or unreadable input.",
                     PROGRAM_NAME);
    program.require_subcommand(1);
    AddFeedVerbs(program, context);
    AddArchiveVerbs(program, context);
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
                        // The parser takes its arguments last first.
                        program.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
                    }
                    catch (CLI::ParseError const& error)
                    {
                        context.status = AnswerParseError(program, error, console);
                    }
                });
    console.out.stream.flush();
    return context.status;
}

} // namespace Pelnar::Publisher
