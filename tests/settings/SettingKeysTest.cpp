// SettingKeysTest.cpp: the table of all settings is complete, and their page is generated from it.
#include "common/SettingKeys.h"
#include "Settings/SettingsDocument.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using namespace Pelnar;
namespace fs = std::filesystem;

/// Names in quotes that look like the name of a setting.
std::set<std::string> const OTHER_NAMES = {
    "SUSparkleErrorDomain",     "PelnarUpdateCheckErrorDomain", "PelnarHTTPStatusErrorDomain",
    "PelnarEnglishDescription", "PelnarUpdateEngine",           "PelnarDemoWindow",
    "PelnarIsolationProbe",     "PelnarUpdateChecker",          "SUBCOMMAND"};

std::string TextOf(fs::path const& path)
{
    std::ifstream file(path);
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

std::vector<std::string> NamesIn(std::string const& text)
{
    static std::regex const pattern("\"((?:SU|Pelnar)[A-Z][A-Za-z0-9]*)\"");
    std::vector<std::string> names;
    for (std::sregex_iterator match(text.begin(), text.end(), pattern); match != std::sregex_iterator(); ++match)
    {
        names.push_back((*match)[1]);
    }
    return names;
}

bool IsInTheTable(std::string const& name)
{
    for (Core::SettingKey const& key : Core::SETTING_KEYS)
    {
        if (key.name == name)
        {
            return true;
        }
    }
    return false;
}

TEST(SettingKeys, EveryNameInTheSourcesIsInTheTable)
{
    int files = 0;
    for (char const* const folder :
         {"App", "Demo", "Engine", "Foundation", "HostFramework", "Installer", "Publisher", "Settings", "common"})
    {
        for (fs::directory_entry const& entry : fs::recursive_directory_iterator(fs::path(PELNAR_SOURCES) / folder))
        {
            std::string const ending = entry.path().extension().string();
            if (ending != ".cpp" && ending != ".mm" && ending != ".h")
            {
                continue;
            }
            ++files;
            for (std::string const& name : NamesIn(TextOf(entry.path())))
            {
                EXPECT_TRUE(IsInTheTable(name) || OTHER_NAMES.count(name) > 0)
                    << entry.path() << " names " << name << ", which common/SettingKeys.h does not know";
            }
        }
    }
    EXPECT_GT(files, 300);
}

TEST(SettingKeys, ANameIsFoundInEveryLanguageOfTheSources)
{
    EXPECT_EQ(
        NamesIn(
            "objectForKey:@\"SUFeedURL\"]; f(\"PelnarX\"), u\"SU\" \"PelnarLower case\" QLatin1String(\"PelnarY1\")"),
        (std::vector<std::string>{"SUFeedURL", "PelnarX", "PelnarY1"}));
}

TEST(SettingKeys, AreEachSaidOnceInWholeSentences)
{
    std::set<std::string_view> names;
    for (Core::SettingKey const& key : Core::SETTING_KEYS)
    {
        EXPECT_TRUE(names.insert(key.name).second) << key.name;
        EXPECT_EQ(key.meaning.back(), '.') << key.name;
        EXPECT_FALSE(key.whenAbsent.empty()) << key.name;
        EXPECT_EQ(&Core::KeyOf(key.setting), &key);
    }
}

TEST(SettingKeys, ThePageIsMadeFromTheTable)
{
    EXPECT_EQ(TextOf(fs::path(PELNAR_SOURCES) / "docs/guide/settings.md"), Settings::SettingsAsMarkdown())
        << "write it again: ninja settings_document";
}

} // namespace
