// FeedVerbs.cpp: the verbs that look at feeds and logs, in the order of the help text.

#include "Publisher/Verb.h"

#include "Publisher/explain/ExplainVerb.h"
#include "Publisher/lint/LintVerb.h"

namespace Pelnar::Publisher
{

void AddFeedVerbs(CLI::App& program, VerbContext& context)
{
    AddExplain(program, context);
    AddLint(program, context);
}

} // namespace Pelnar::Publisher
