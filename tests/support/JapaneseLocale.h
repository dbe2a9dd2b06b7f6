// JapaneseLocale.h: a locale in which file names are not UTF-8, made for this process.
// Thread: one. Ownership: values only; the locale's files are gone with the process.
#pragma once

#include <string>
#include <vector>

namespace Pelnar::Testing
{

/// Variables under which programs find the locale ja_JP.eucJP; nothing where the system has no sources of locales.
std::vector<std::string> JapaneseVariables();

} // namespace Pelnar::Testing
