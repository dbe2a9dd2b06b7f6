// Verb.h: how the verbs of the publisher's tool join its command line.
// Thread: the main thread. Ownership: the program owns its verbs; the console outlives it.
#pragma once

#include "Publisher/Console.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <string>
#include <vector>

namespace Pelnar::Publisher
{

/// What every verb is given. The verb that was named sets the status.
struct VerbContext
{
    Console& console;
    ExitStatus status = ExitStatus::Clean;
};

// A verb lives in a folder of its own, whose header declares `void Add…(CLI::App& program, VerbContext& context)`: it
// adds one verb, or a verb with verbs of its own, and leaves a callback with it that does the work when it was named.

/// The verbs that look at feeds and logs.
void AddFeedVerbs(CLI::App& program, VerbContext& context);
/// The verbs that make and check keys, archives, deltas and whole feeds.
void AddArchiveVerbs(CLI::App& program, VerbContext& context);

/// Calls \a use with the program's whole command line, to run or to describe it.
void WithProgram(VerbContext& context, std::function<void(CLI::App&)> const& use);

/// Runs the program with \a arguments, its name left out.
ExitStatus RunProgram(std::vector<std::string> const& arguments, Console& console);

} // namespace Pelnar::Publisher
