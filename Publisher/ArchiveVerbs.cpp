// ArchiveVerbs.cpp: the verbs that make and check keys, archives, deltas and whole feeds, in the order of the help
// text.

#include "Publisher/Verb.h"

namespace Pelnar::Publisher
{

void AddArchiveVerbs(CLI::App&, VerbContext&) {}

} // namespace Pelnar::Publisher
