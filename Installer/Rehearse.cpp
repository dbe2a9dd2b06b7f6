#include "Installer/Rehearse.h"

#include "Engine/core/base/TreeWalk.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/StagingFolder.h"
#include "Installer/BundleRights.h"
#include "Installer/Confinement.h"
#include "Installer/SwapBundle.h"
#include "Installer/SwapLock.h"

#include <cerrno>

#include <sys/stat.h>
#include <sys/syscall.h>

#include <stdio.h>
#include <unistd.h>

namespace Pelnar::Installer
{
namespace
{

using Engine::OpenFolderOrThrow;
using Engine::StagingFolder;
using Engine::UpdateFault;
using Engine::UpdateRefusal;

constexpr long PATIENCE_SECONDS = 5; ///< a process that holds the lock for longer installs an update
constexpr char NEW_NAME[] = "new";
constexpr char FULL_NAME[] = "full";
constexpr mode_t PRIVATE_MODE = 0700;

/// A temporary folder in the parent.
class Standin
{
public:
    Standin(int parentFd, std::string const& targetName)
        : m_parentFd(parentFd), m_folder(StagingFolder::Create(parentFd, targetName))
    {
    }
    ~Standin() { static_cast<void>(Engine::RemoveTree(m_parentFd, m_folder.Name())); }
    Standin(Standin const&) = delete;
    Standin& operator=(Standin const&) = delete;

    std::string const& Name() const { return m_folder.Name(); }

private:
    int m_parentFd;
    StagingFolder m_folder;
};

void MakeFolder(int parentFd, char const* name)
{
    if (::mkdirat(parentFd, name, PRIVATE_MODE) != 0)
    {
        Engine::ThrowErrno(errno);
    }
}

/// Exchanges a folder that has the bundle's rights with one next to the bundle, and syncs as the update does.
void RehearseSwap(Engine::RehearseDescriptors const& descriptors, std::string const& targetName)
{
    Standin const standin(descriptors.parent, targetName);
    MakeFolder(descriptors.staging, NEW_NAME);
    static_cast<void>(GiveRights(OpenFolderOrThrow(descriptors.staging, NEW_NAME).Get(),
                                 RightsOf(OpenFolderOrThrow(descriptors.parent, targetName).Get())));
    Engine::WriteNote(descriptors.staging, "note", "rehearsed");
    SwapBundle(descriptors.parent, standin.Name(), descriptors.staging, {{}, NEW_NAME, {}, {}});
}

/// Some file systems do not move certain folders: an overlay does not move folders of a lower layer, and with projects
/// a folder of another project cannot move. They report this before they check the destination. The destination exists,
/// so nothing moves.
void RehearseMove(Engine::RehearseDescriptors const& descriptors, std::string const& targetName)
{
    MakeFolder(descriptors.staging, FULL_NAME);
    MakeFolder(descriptors.staging, (std::string(FULL_NAME) + "/file").c_str());
    if (::renameat(descriptors.parent, targetName.c_str(), descriptors.staging, FULL_NAME) == 0)
    {
        // A file system that replaces a non-empty folder is not safe for an exchange.
        static_cast<void>(::renameat(descriptors.staging, FULL_NAME, descriptors.parent, targetName.c_str()));
        throw UpdateRefusal(UpdateFault::SwapFailed, ENOTEMPTY);
    }
    if (errno == EXDEV)
    {
        throw UpdateRefusal(UpdateFault::OtherFileSystem, EXDEV);
    }
}

void RequireProcessHandle(int hostFd)
{
    if (::syscall(SYS_pidfd_send_signal, hostFd, 0, nullptr, 0) != 0)
    {
        bool const isMissing = errno == ENOSYS || errno == EPERM;
        throw UpdateRefusal(isMissing ? UpdateFault::ProcessHandlesUnavailable : UpdateFault::DescriptorUnusable,
                            errno);
    }
}

} // namespace

void Rehearse(Engine::RehearseJob const& job, Engine::RehearseDescriptors const& descriptors)
{
    RequireProcessHandle(descriptors.host);
    {
        SwapLock const lock(descriptors.parent, job.targetName, PATIENCE_SECONDS);
        RehearseMove(descriptors, job.targetName);
        RehearseSwap(descriptors, job.targetName);
    }
    ConfineTo(descriptors.staging, {});
}

} // namespace Pelnar::Installer
