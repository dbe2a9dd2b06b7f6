// SignFeedVerb.h: the verb "sign-feed", and the options that say how a feed is signed.
#pragma once

#include "Publisher/Verb.h"

namespace Pelnar::Publisher
{

/// "--key-statement", the name of a file.
void AddKeyStatementOption(CLI::App& verb, std::string& file);

/// "--valid-for"; \a days is what it is without the option.
void AddValidForOption(CLI::App& verb, int& days);

} // namespace Pelnar::Publisher
