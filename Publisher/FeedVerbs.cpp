// FeedVerbs.cpp: the verbs that look at feeds and logs, in the order of the help text.

#include "Publisher/Verb.h"

namespace Pelnar::Publisher
{

void AddFeedVerbs(CLI::App&, VerbContext&) {}

} // namespace Pelnar::Publisher
