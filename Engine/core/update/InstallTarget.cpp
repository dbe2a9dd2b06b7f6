#include "Engine/core/update/InstallTarget.h"

#include "Engine/core/base/PathText.h"
#include "Engine/core/base/TreeWalk.h"
#include "Engine/core/download/DownloadBudget.h"
#include "Engine/core/faults/EngineError.h"
#include "Engine/core/helper/FolderSafety.h"
#include "Engine/core/helper/StagingFolder.h"

#include <algorithm>
#include <cerrno>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

constexpr int FOLDER_FLAGS = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

EngineError Error(ErrorCause cause, std::string const& path)
{
    return MakeError(cause, PathText(path));
}

EngineError ErrorOf(PackageOwner const& owner, std::string const& path)
{
    EngineError error = Error(
        owner.manager == PackageManager::AppImage ? ErrorCause::BundleInImage : ErrorCause::BundleOfPackage, path);
    char const* const text = error.sentence.Source();
    switch (owner.manager)
    {
    case PackageManager::AppImage:
        error.sentence = Sentence(text, {owner.package});
        break;
    case PackageManager::Flatpak:
        error.sentence = Sentence(text, {QStringLiteral("Flatpak"), owner.command});
        break;
    case PackageManager::Snap:
        error.sentence = Sentence(text, {QStringLiteral("Snap"), owner.command});
        break;
    case PackageManager::Dpkg:
        error.sentence = Sentence(QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                                    "The application was installed by the system's package manager, "
                                                    "which also updates it. Use the command \"%1\"."),
                                  {owner.command});
        break;
    }
    return error;
}

bool IsReadOnly(UniqueFd const& folder)
{
    struct statvfs status;
    return ::fstatvfs(folder.Get(), &status) == 0 && (status.f_flag & ST_RDONLY) != 0;
}

constexpr std::uint64_t PROTECTED = STATX_ATTR_IMMUTABLE | STATX_ATTR_APPEND;

struct Facts
{
    bool isImmutable = false;
    bool isMountRoot = false;
    uid_t owner = 0;
};

Facts FactsOf(UniqueFd const& folder)
{
    Facts facts;
    struct stat status
    {
    };
    facts.owner = ::fstat(folder.Get(), &status) == 0 ? status.st_uid : 0;
    struct statx more
    {
    };
    if (::statx(folder.Get(), "", AT_EMPTY_PATH, STATX_BASIC_STATS, &more) == 0) // otherwise the rehearsal will show it
    {
        facts.isImmutable = (more.stx_attributes & PROTECTED) != 0;
        facts.isMountRoot = (more.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0;
    }
    return facts;
}

/// Finds content of the bundle that could not be removed once the bundle is the previous version.
std::optional<ErrorCause> ObstacleWithin(UniqueFd const& bundle)
{
    std::optional<ErrorCause> cause;
    uid_t const user = ::geteuid();
    auto const look = [&](std::string const&, int parentFd, std::string const& name, struct stat const& status)
    {
        if (cause || S_ISLNK(status.st_mode))
        {
            return;
        }
        struct statx more
        {
        };
        bool const isKnown = ::statx(parentFd, name.c_str(), AT_SYMLINK_NOFOLLOW, STATX_BASIC_STATS, &more) == 0;
        if (isKnown && (more.stx_attributes & PROTECTED) != 0)
        {
            cause = ErrorCause::BundleImmutable;
        }
        else if (isKnown && (more.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0)
        {
            cause = ErrorCause::BundleIsMountPoint;
        }
        else if (S_ISDIR(status.st_mode) && status.st_uid != user && user != 0) // the administrator can empty any
                                                                                // folder
        {
            cause = ErrorCause::BundleOfAnotherUser;
        }
    };
    static_cast<void>(WalkTree(bundle.Get(), look)); // unreadable content is no reason to refuse
    return cause;
}

/// Deliberate: for the effective user, and by the kernel, which includes access lists.
bool IsWritable(UniqueFd const& folder)
{
    // EPERM is a filter's answer to an unknown call: the rehearsal will show the truth.
    return ::faccessat(folder.Get(), ".", W_OK | X_OK, AT_EACCESS) == 0 || errno == EPERM;
}

/// Finds an obstacle at the bundle's folder and the folder that holds it.
std::optional<ErrorCause> Obstacle(InstallTarget const& target)
{
    if (IsReadOnly(target.parent) || IsReadOnly(target.bundle))
    {
        return ErrorCause::BundleOnReadOnlyFileSystem;
    }
    Facts const parent = FactsOf(target.parent);
    Facts const bundle = FactsOf(target.bundle);
    if (bundle.isMountRoot)
    {
        return ErrorCause::BundleIsMountPoint;
    }
    if (parent.isImmutable || bundle.isImmutable)
    {
        return ErrorCause::BundleImmutable;
    }
    if (bundle.owner != ::geteuid())
    {
        return ErrorCause::BundleOfAnotherUser;
    }
    // The bundle too: a folder that gets a new parent is written, because it contains its parent's entry.
    if (!IsWritable(target.parent) || !IsWritable(target.bundle))
    {
        return ErrorCause::BundleNotWritable;
    }
    return std::nullopt;
}

/// \a text as one word for a shell.
QString Quoted(QString text)
{
    return QLatin1Char('\'') + text.replace(QLatin1Char('\''), QStringLiteral("'\\''")) + QLatin1Char('\'');
}

EngineError ErrorWith(ErrorCause cause, std::string const& path, std::initializer_list<Sentence::Value> values)
{
    EngineError error = Error(cause, path);
    error.sentence = Sentence(error.sentence.Source(), values);
    return error;
}

/// Fails if other users could change a folder up to the root.
Result<void> JudgeFolders(InstallTarget const& target, std::string const& path)
{
    for (UniqueFd const* const folder : {&target.bundle, &target.parent})
    {
        FolderFinding const finding = LookUpToTheRoot(folder->Get());
        QString const place = PathText(finding.path);
        switch (finding.safety)
        {
        case FolderSafety::Safe:
            continue;
        case FolderSafety::Shared:
            return Failure(ErrorWith(ErrorCause::BundleInSharedFolder, path, {place}));
        case FolderSafety::OpenToGroup:
            return Failure(ErrorWith(
                ErrorCause::BundleOpenToGroup, path,
                {QString::fromStdString(GroupName(finding.writer)), QStringLiteral("chmod g-w ") + Quoted(place)}));
        case FolderSafety::OpenToUser: // the command takes the right from the list's mask
            return Failure(ErrorWith(
                ErrorCause::BundleOpenToUser, path,
                {QString::fromStdString(UserName(finding.writer)), QStringLiteral("chmod g-w ") + Quoted(place)}));
        case FolderSafety::OwnerHidden:
            return Failure(ErrorWith(ErrorCause::BundleOwnerHidden, path, {place}));
        case FolderSafety::OfAnotherUser:
        case FolderSafety::OpenToAll:
        case FolderSafety::Unreadable:
            return Failure(Error(ErrorCause::BundleFolderUnsafe, path));
        }
    }
    return {};
}

Result<void> JudgeRoom(InstallTarget const& target, quint64 neededBytes)
{
    struct statvfs status;
    if (::fstatvfs(target.parent.Get(), &status) != 0)
    {
        return {}; // the write will show it
    }
    quint64 const freeBytes = static_cast<quint64>(status.f_bavail) * status.f_frsize;
    quint64 const reserve = DiskReserve(static_cast<quint64>(status.f_blocks) * status.f_frsize);
    if (freeBytes >= neededBytes && freeBytes - neededBytes >= reserve)
    {
        return {};
    }
    quint64 const allBytes = std::max(neededBytes, neededBytes + reserve); // the larger one, if the sum overflows
    EngineError error = MakeRoomError(ErrorCause::NoRoomForUpdate, allBytes, freeBytes);
    error.detail = EscapedRemoteText(target.path);
    return Failure(std::move(error));
}

} // namespace

EngineError MakeTargetError(InstallTarget const& target, UpdateFault fault, int errorNumber)
{
    EngineError error = MakeFaultError(fault, errorNumber);
    QString const detail = error.detail;
    if (fault == UpdateFault::LocksUnavailable)
    {
        error = ErrorWith(ErrorCause::BundleCannotBeLocked, {}, {PathText(RealPathOf(target.parent.Get()))});
    }
    else if (fault == UpdateFault::OtherFileSystem)
    {
        error = ErrorWith(ErrorCause::BundleCannotBeMoved, {}, {target.path});
    }
    error.detail = detail;
    return error;
}

EngineError WithRoom(EngineError const& error, InstallTarget const& target, quint64 neededBytes)
{
    bool const isForRoom = error.cause == ErrorCause::Fault && error.fault == UpdateFault::NoSpace;
    Result<void> const room = isForRoom ? JudgeRoom(target, neededBytes) : Result<void>();
    return room ? error : room.error();
}

OpenedTarget OpenInstalledBundle(QString const& bundlePath)
{
    std::string path = PathBytes(bundlePath);
    while (path.size() > 1 && path.back() == '/')
    {
        path.pop_back(); // a link followed by a slash would be resolved
    }
    std::size_t const slash = path.rfind('/');
    std::string const name = slash == std::string::npos ? std::string() : path.substr(slash + 1);
    if (path.empty() || path.front() != '/' || name.empty() || name == "." || name == "..")
    {
        return Failure(Error(ErrorCause::BundleMissing, path));
    }
    InstallTarget target;
    target.name = name;
    target.parent = UniqueFd(::open(path.substr(0, slash + 1).c_str(), FOLDER_FLAGS));
    struct stat status;
    if (!target.parent || ::fstatat(target.parent.Get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
    {
        return Failure(Error(errno == EACCES ? ErrorCause::BundleNotWritable : ErrorCause::BundleMissing, path));
    }
    if (S_ISLNK(status.st_mode))
    {
        return Failure(Error(ErrorCause::BundleIsLink, path));
    }
    target.bundle = OpenFolder(target.parent.Get(), name);
    std::string const realPath = target.bundle ? RealPathOf(target.parent.Get(), name) : std::string();
    if (realPath.empty())
    {
        return Failure(Error(errno == EACCES ? ErrorCause::BundleNotWritable : ErrorCause::BundleMissing, path));
    }
    target.path = PathText(realPath);
    return target;
}

OpenedTarget OpenInstallTarget(QString const& bundlePath, quint64 neededBytes, PackageSources const& sources)
{
    auto opened = OpenInstalledBundle(bundlePath);
    if (!opened)
    {
        return opened;
    }
    std::string const path = PathBytes(opened->path);
    if (auto const owner = FindPackageOwner(opened->path, sources))
    {
        return Failure(ErrorOf(*owner, path));
    }
    auto const outside = Obstacle(*opened);
    if (auto const cause = outside ? outside : ObstacleWithin(opened->bundle))
    {
        return Failure(Error(*cause, path));
    }
    Result<void> const verdict = JudgeFolders(*opened, path).and_then([&] { return JudgeRoom(*opened, neededBytes); });
    return verdict ? std::move(opened) : Failure(verdict.error());
}

Result<void> JudgeAgain(InstallTarget const& target)
{
    std::string const path = PathBytes(target.path);
    struct stat named;
    if (::fstatat(target.parent.Get(), target.name.c_str(), &named, AT_SYMLINK_NOFOLLOW) != 0)
    {
        return errno == EACCES ? Failure(Error(ErrorCause::BundleNotWritable, path))
                               : Failure(MakeFaultError(UpdateFault::TargetMissing, errno));
    }
    if (RealPathOf(target.parent.Get(), target.name) != path)
    {
        return Failure(MakeFaultError(UpdateFault::TargetMissing, 0)); // the folder that holds it was moved
    }
    if (!IsAt(target.bundle.Get(), target.parent.Get(), target.name))
    {
        return Failure(MakeFaultError(UpdateFault::TargetChanged, 0));
    }
    if (auto const cause = Obstacle(target))
    {
        return Failure(Error(*cause, path));
    }
    return JudgeFolders(target, path);
}

} // namespace Pelnar::Engine
