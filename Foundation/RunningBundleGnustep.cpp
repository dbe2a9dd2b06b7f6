#include "Foundation/RunningBundle.h"

#include <QFile>

#include <climits>
#include <cstdlib>
#include <string>

#include <sys/stat.h>

namespace Pelnar::Foundation
{

QString InformationFileOfRunningBundle()
{
    // As bytes: not every path is valid text.
    char program[PATH_MAX];
    if (!::realpath("/proc/self/exe", program))
    {
        return {};
    }
    std::string path = program;
    path.erase(path.rfind('/'));
    path += "/Resources/Info-gnustep.plist";
    struct stat status;
    bool const isFile = ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
    return isFile ? QFile::decodeName(path.c_str()) : QString();
}

} // namespace Pelnar::Foundation
