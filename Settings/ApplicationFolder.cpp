#include "Settings/ApplicationFolder.h"

#include "Engine/core/helper/FolderSafety.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/StagingFolder.h"

#include <QCryptographicHash>
#include <QUrl>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <vector>

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Settings
{
namespace
{

using Engine::UniqueFd;

constexpr std::size_t USER_ENTRY_BYTES = std::size_t{64} << 10;
constexpr int LONGEST_NAME = 200; ///< leaves space below the limit of file systems
constexpr int KEPT_OF_LONG_NAME = 120;

std::string AbsolutePathIn(char const* variable)
{
    char const* const value = std::getenv(variable);
    return value && value[0] == '/' ? value : "";
}

std::string HomeFolder()
{
    std::string const home = AbsolutePathIn("HOME");
    if (!home.empty())
    {
        return home;
    }
    std::vector<char> buffer(USER_ENTRY_BYTES);
    passwd entry{};
    passwd* found = nullptr;
    bool const isKnown = ::getpwuid_r(::geteuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found;
    return isKnown && entry.pw_dir[0] == '/' ? entry.pw_dir : "";
}

OpenedFolder Refused(int errorNumber, std::string const& path, std::string const& why)
{
    return {UniqueFd(), errorNumber, "the folder " + path + " " + why};
}

OpenedFolder Failed(int errorNumber, std::string const& path)
{
    return Refused(errorNumber, path, std::string("cannot be opened: ") + std::strerror(errorNumber));
}

bool IsOpenToOthers(int folder, struct stat const& status)
{
    if ((status.st_mode & (S_IWGRP | S_IWOTH)) == 0)
    {
        return false;
    }
    // A group without other members is safe.
    Engine::FolderFinding const finding = Engine::LookUpToTheRoot(folder);
    return finding.safety != Engine::FolderSafety::Safe && finding.path == Engine::RealPathOf(folder);
}

OpenedFolder OpenIn(UniqueFd const& base, ApplicationFolder const& place)
{
    std::string const path = place.Path();
    UniqueFd folder(::openat(base.Get(), place.name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!folder)
    {
        bool const isOther = errno == ENOTDIR || errno == ELOOP;
        return isOther ? Refused(errno, path, "is a link, or not a folder") : Failed(errno, path);
    }
    struct stat status;
    if (::fstat(folder.Get(), &status) != 0)
    {
        return Failed(errno, path);
    }
    if (status.st_uid != ::geteuid())
    {
        return Refused(EPERM, path, "belongs to another user");
    }
    if (IsOpenToOthers(folder.Get(), status))
    {
        return Refused(EPERM, path, "can be changed by other users; remove their write permission");
    }
    return {std::move(folder), 0, {}};
}

} // namespace

std::string BaseFolderPath(BaseFolder base)
{
    struct Place
    {
        char const* variable;
        char const* below;
    };
    constexpr Place PLACES[] = {
        {"XDG_CONFIG_HOME", "/.config"}, {"XDG_STATE_HOME", "/.local/state"}, {"XDG_CACHE_HOME", "/.cache"}};
    Place const place = PLACES[static_cast<int>(base)];
    std::string const named = AbsolutePathIn(place.variable);
    if (!named.empty())
    {
        return named;
    }
    std::string const home = HomeFolder();
    return home.empty() ? std::string() : home + place.below;
}

std::string RunningProgramName()
{
    char target[PATH_MAX];
    ssize_t const size = ::readlink("/proc/self/exe", target, sizeof target);
    std::string path(target, size > 0 ? static_cast<std::size_t>(size) : 0);
    // The kernel's mark of a program whose file has been replaced.
    std::string const mark = " (deleted)";
    if (path.size() > mark.size() && path.compare(path.size() - mark.size(), mark.size(), mark) == 0)
    {
        path.erase(path.size() - mark.size());
    }
    return path.substr(path.rfind('/') + 1);
}

std::string ApplicationFolderName(QString const& bundleIdentifier)
{
    QString const text = bundleIdentifier.isEmpty()
                             ? QStringLiteral("unidentified.") + QString::fromStdString(RunningProgramName())
                             : bundleIdentifier;
    QByteArray name = QUrl::toPercentEncoding(text, {}, "~");
    if (name.startsWith('.'))
    {
        name.replace(0, 1, "%2E");
    }
    if (name.size() > LONGEST_NAME)
    {
        name = name.left(KEPT_OF_LONG_NAME) + '~' + QCryptographicHash::hash(name, QCryptographicHash::Sha256).toHex();
    }
    return name.toStdString();
}

ApplicationFolder FolderOf(BaseFolder base, QString const& bundleIdentifier)
{
    return {BaseFolderPath(base), ApplicationFolderName(bundleIdentifier)};
}

OpenedFolder OpenApplicationFolder(ApplicationFolder const& place, MissingFolder missing)
{
    if (place.base.empty())
    {
        return {UniqueFd(), ENOTDIR, "this user has no home folder; set HOME"};
    }
    if (missing == MissingFolder::Make)
    {
        Engine::MakeFoldersAbove(place.Path());
    }
    UniqueFd const above(::open(place.base.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    struct stat status;
    if (!above || ::fstat(above.Get(), &status) != 0)
    {
        return Failed(errno, place.base);
    }
    // The person could no longer change files that the administrator leaves in their home.
    if (status.st_uid != ::geteuid() && status.st_uid != 0)
    {
        return Refused(EPERM, place.base, "belongs to another user");
    }
    if (missing == MissingFolder::Make)
    {
        static_cast<void>(Engine::MakePrivateFolder(above.Get(), place.name)); // it may exist
    }
    return OpenIn(above, place);
}

} // namespace Pelnar::Settings
