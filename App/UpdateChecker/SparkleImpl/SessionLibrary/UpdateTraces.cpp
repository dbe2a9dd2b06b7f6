#include "App/UpdateChecker/SparkleImpl/SessionLibrary/UpdateTraces_p.h"

#include "common/UpdateFiles.h"

#include <climits>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include <dirent.h>

namespace Pelnar::App
{
namespace
{

bool BeginsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

} // namespace

bool MayHaveUpdateFiles()
{
    char program[PATH_MAX];
    if (!::realpath("/proc/self/exe", program))
    {
        return true;
    }
    // The program is in the bundle, and the files are next to the bundle. Deliberate: the kernel walks up from there,
    // because the bundle's path may be an alias such as "/proc/self/fd/N".
    std::string folder = program;
    folder.erase(folder.rfind('/'));
    std::unique_ptr<DIR, decltype(&::closedir)> const stream(::opendir((folder + "/..").c_str()), &::closedir);
    while (dirent const* const entry = stream ? ::readdir(stream.get()) : nullptr)
    {
        std::string_view const name = entry->d_name;
        if (BeginsWith(name, Engine::UPDATE_FILES_BEGIN) && !BeginsWith(name, Engine::ASIDE_FILES_BEGIN))
        {
            return true;
        }
    }
    return !stream;
}

} // namespace Pelnar::App
