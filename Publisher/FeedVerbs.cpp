// FeedVerbs.cpp: the verbs that look at feeds and logs, in the order of the help text.

#include "Publisher/Verb.h"

#include "Publisher/diff/DiffVerb.h"
#include "Publisher/explain/ExplainVerb.h"
#include "Publisher/lint/LintVerb.h"
#include "Publisher/matrix/MatrixVerb.h"
#include "Publisher/simulate/SimulateVerb.h"
#include "Publisher/timeline/TimelineVerb.h"

namespace Pelnar::Publisher
{

void AddFeedVerbs(CLI::App& program, VerbContext& context)
{
    AddExplain(program, context);
    AddLint(program, context);
    AddMatrix(program, context);
    AddDiff(program, context);
    AddSimulate(program, context);
    AddTimeline(program, context);
}

} // namespace Pelnar::Publisher
