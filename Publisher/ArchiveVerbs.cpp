// ArchiveVerbs.cpp: the verbs that make and check keys, archives, deltas and whole feeds, in the order of the help
// text.

#include "Publisher/Verb.h"
#include "Publisher/delta/DeltaVerb.h"
#include "Publisher/edit/EditVerbs.h"
#include "Publisher/gate/CheckReleaseVerb.h"
#include "Publisher/generate/GenerateVerb.h"
#include "Publisher/keys/KeysVerbs.h"
#include "Publisher/serve/ServeVerb.h"
#include "Publisher/signfeed/SignFeedVerb.h"

namespace Pelnar::Publisher
{

void AddArchiveVerbs(CLI::App& program, VerbContext& context)
{
    AddKeys(program, context);
    AddSign(program, context);
    AddVerify(program, context);
    AddGenerate(program, context);
    AddCheckRelease(program, context);
    AddSignFeed(program, context);
    AddEdits(program, context);
    AddDelta(program, context);
    AddServe(program, context);
}

} // namespace Pelnar::Publisher
