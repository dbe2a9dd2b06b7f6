// JapaneseLocale.h: a locale in which file names are not UTF-8, made for this process.
// Thread: one. Ownership: the locale's files are removed at the end of the process.
#pragma once

#include <string>
#include <vector>

namespace Pelnar::Testing
{

/// The environment variables with which programs find the locale ja_JP.eucJP; empty if the system has no sources of
/// locales.
std::vector<std::string> JapaneseVariables();

} // namespace Pelnar::Testing
