// UpdateJob.h: the request of the host to the installer's helper, and its bytes. Pure functions. The format and the
// descriptors are in docs/formats/update-job.md.
#pragma once

#include "Engine/core/base/ContentHasher.h"
#include "Engine/core/bundle/PayloadKind.h"
#include "Engine/core/bundle/TrustedKeys.h"
#include "Engine/core/helper/InstallRecord.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Pelnar::Engine
{

/// The numbers of the descriptors that the helper inherits.
struct HelperDescriptors
{
    static constexpr int JOB = 3;
    static constexpr int REPORT = 4;
    static constexpr int STAGING = 5;   ///< prepare, install, rehearse
    static constexpr int ARCHIVE = 6;   ///< prepare
    static constexpr int TARGET = 7;    ///< prepare, a delta or an installer program: the installed bundle's folder
    static constexpr int PARENT = 6;    ///< install, recover, rehearse: the folder that holds the installed bundle
    static constexpr int HOST = 7;      ///< install, rehearse: a pidfd of the host
    static constexpr int RECORDS = 8;   ///< install, when a record is kept: the folder of the downloads
    static constexpr int ARGUMENTS = 9; ///< install, when a program is started: a file of RelaunchArguments.h
    static constexpr int COUNT = 10;
};

/// Verify the archive, unpack it into the staging folder, check the bundle.
struct PrepareJob
{
    PayloadKind kind = PayloadKind::WholeBundle;
    std::uint64_t archiveBytes = 0; ///< as declared in the feed
    std::string signature;          ///< base64
    TrustedKeys publicKeys;         ///< with which the host judges updates
    std::string bundleName;         ///< the installed bundle's folder name; the name for a delta's result
    std::string bundleIdentifier;   ///< the running bundle's
    std::string expectedVersion;    ///< the item's version
    std::string installedVersion;   ///< the running bundle's
};

/// After the host has ended: put the staged bundle in the place of the installed one, or run the staged installer
/// program. Then start the requested program.
struct InstallJob
{
    PayloadKind kind = PayloadKind::WholeBundle; ///< of the prepared update; a delta's result is a whole bundle
    std::string targetName;                      ///< of the installed bundle's folder
    std::string stagingName;                     ///< of the staging folder, next to the bundle
    std::string stagedName;                      ///< of the new bundle's folder, in the staging folder
    ContentHash digest{};                        ///< of the new bundle's tree
    std::string bundleIdentifier;
    std::string expectedVersion;
    std::string installedVersion;
    std::uint64_t waitSeconds = 0;         ///< for the host's end; 0: no limit
    std::uint64_t installerSeconds = 3600; ///< for an installer program's end
    std::string targetPath;                ///< absolute; started afterwards; empty: start nothing
    std::string relaunchPath;              ///< absolute; started instead of targetPath if it is safe; may be empty
    std::vector<std::string> environment;  ///< for the started program, "NAME=value"
    std::string workingFolder;             ///< for the started program; absolute; empty: the root
    std::uint64_t creationMask = 022;      ///< umask of the started program
    std::string recordName;                ///< of the file that keeps the outcome; empty: the outcome is not kept
    std::optional<InstallRecord> record;   ///< before anything has happened; set together with the name
};

enum class RecoverPurpose : std::uint8_t
{
    Start = 0,        ///< the bundle that asks has been started
    Confirmation = 1, ///< it has started well
};

/// Finish or undo what an interrupted helper left next to the bundle.
struct RecoverJob
{
    std::string targetName;
    std::string runningVersion; ///< of the bundle that asks, which is running
    RecoverPurpose purpose = RecoverPurpose::Start;
    std::uint64_t hostProcess = 0; ///< the number of the process that asks; 0: unknown
};

/// Do the steps of an update next to the bundle, with folders created for this purpose, and report what prevents an
/// update.
struct RehearseJob
{
    std::string targetName;
};

/// The descriptors of each kind of job, besides job and report: the host's own numbers, or the helper's.
struct PrepareDescriptors
{
    int staging = -1;
    int archive = -1;
    int target = -1; ///< the installed bundle's folder; only for deltas and installer programs
};
struct InstallDescriptors
{
    int staging = -1;   ///< locked by the host
    int parent = -1;    ///< the folder that holds the installed bundle
    int host = -1;      ///< a pidfd
    int records = -1;   ///< the folder of the outcome's record, if one is kept
    int arguments = -1; ///< the file of the new version's arguments, if a program is started
};
struct RecoverDescriptors
{
    int parent = -1;
};
struct RehearseDescriptors
{
    int staging = -1; ///< empty; its owner removes what is put there
    int parent = -1;
    int host = -1;
};

/// In the order of their numbers in the bytes, from 1.
using UpdateJob = std::variant<PrepareJob, InstallJob, RecoverJob, RehearseJob>;

/// Enough for the kernel's maximum of environment variables, six mebibytes, and everything else.
constexpr std::size_t UPDATE_JOB_MAX_BYTES = std::size_t{8} << 20;

std::string EncodeUpdateJob(UpdateJob const& job);
/// The job in \a bytes. Empty unless they are one complete job, every name is a single component and every path is
/// absolute.
std::optional<UpdateJob> DecodeUpdateJob(std::string_view bytes);

} // namespace Pelnar::Engine
