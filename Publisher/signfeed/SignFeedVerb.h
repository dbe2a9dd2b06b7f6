// SignFeedVerb.h: the verb "sign-feed", and the options for signing a feed.
#pragma once

#include "Publisher/Verb.h"

namespace Pelnar::Publisher
{

/// "--key-statement", the name of a file.
void AddKeyStatementOption(CLI::App& verb, std::string& file);

/// "--valid-for"; \a days contains the default.
void AddValidForOption(CLI::App& verb, int& days);

} // namespace Pelnar::Publisher
