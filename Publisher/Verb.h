// Verb.h: adds the verbs of the publisher's tool to its command line. Ownership: the program owns its verbs; the
// console outlives it.
#pragma once

#include "Publisher/Console.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <string>
#include <vector>

namespace Pelnar::Publisher
{

/// The arguments of every verb. The verb sets the status.
struct VerbContext
{
    Console& console;
    ExitStatus status = ExitStatus::Clean;
};

// Each verb has its own folder. Each of these functions adds one verb, or a verb with verbs below it, and the callback
// for its work. If other folders need more of a verb, its folder has a header for them.
void AddExplain(CLI::App& program, VerbContext& context);
void AddLint(CLI::App& program, VerbContext& context);
void AddMatrix(CLI::App& program, VerbContext& context);
void AddDiff(CLI::App& program, VerbContext& context);
void AddSimulate(CLI::App& program, VerbContext& context);
void AddTimeline(CLI::App& program, VerbContext& context);
void AddKeys(CLI::App& program, VerbContext& context);
/// "keys state" and "keys rotate".
void AddState(CLI::App& keys, VerbContext& context);
void AddRotate(CLI::App& keys, VerbContext& context);
void AddSign(CLI::App& program, VerbContext& context);
void AddVerify(CLI::App& program, VerbContext& context);
void AddGenerate(CLI::App& program, VerbContext& context);
void AddCheckRelease(CLI::App& program, VerbContext& context);
void AddSignFeed(CLI::App& program, VerbContext& context);
/// "promote", "withdraw", "edit-notes" and "prune".
void AddEdits(CLI::App& program, VerbContext& context);
void AddDelta(CLI::App& program, VerbContext& context);
void AddServe(CLI::App& program, VerbContext& context);

/// Calls \a use with the program's whole command line, to run or to describe it.
void WithProgram(VerbContext& context, std::function<void(CLI::App&)> const& use);

/// Runs the program with \a arguments, which do not include its name.
ExitStatus RunProgram(std::vector<std::string> const& arguments, Console& console);

} // namespace Pelnar::Publisher
