// UpdateJob.h: what the host asks of the installer's helper, and the bytes in which it does.
// Thread: any; plain values. The format and the descriptors that go with it are described in
// docs/formats/update-job.md.
#pragma once

#include "Engine/core/delta/DeltaManifest.h"
#include "Engine/core/payload/InstallRecord.h"
#include "Engine/core/payload/TrustedKeys.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Pelnar::Engine
{

/// The numbers under which the helper finds what it inherits.
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

enum class PayloadKind : std::uint8_t
{
    WholeBundle = 0,
    Delta = 1,
    Installer = 2, ///< a bundle whose program installs the new version; only for a host that allows such programs
};

/// Verify the archive, unpack it into the staging folder, check the bundle.
struct PrepareJob
{
    PayloadKind kind = PayloadKind::WholeBundle;
    std::uint64_t archiveBytes = 0;      ///< as the feed declared them
    std::string signature;               ///< base64
    TrustedKeys publicKeys;              ///< by which the host judges updates
    std::string bundleName;              ///< the installed bundle's folder name; what a delta's result is named
    std::string bundleIdentifier;        ///< the running bundle's
    std::string expectedVersion;         ///< the item's
    std::string installedVersion;        ///< the running bundle's
};

/// Once the host has ended, put the staged bundle in the installed one's place, or run the staged installer program;
/// then start what is asked for.
struct InstallJob
{
    PayloadKind kind = PayloadKind::WholeBundle; ///< of the prepared update; a delta's result is a whole bundle
    std::string targetName;                      ///< of the installed bundle's folder
    std::string stagingName;                     ///< of the staging folder, beside it
    std::string stagedName;                      ///< of the new bundle's folder, in the staging folder
    ContentHash digest{};                        ///< of the new bundle's tree
    std::string bundleIdentifier;
    std::string expectedVersion;
    std::string installedVersion;
    std::uint64_t waitSeconds = 0;         ///< for the host to end; 0: as long as it takes
    std::uint64_t installerSeconds = 3600; ///< for an installer program to end
    std::string targetPath;                ///< absolute; to be started afterwards; empty: start nothing
    std::string relaunchPath;              ///< absolute; started instead of targetPath if it is safe; may be empty
    std::vector<std::string> environment;  ///< of what is started, "NAME=value"
    std::string workingFolder;             ///< of what is started; absolute; empty: the root
    std::uint64_t creationMask = 022;      ///< of what is started: its umask
    std::string recordName;                ///< of the file that keeps the outcome; empty: it is not kept
    std::optional<InstallRecord> record;   ///< as it is when nothing has happened; set with the name
};

enum class RecoverPurpose : std::uint8_t
{
    Start = 0,        ///< the bundle that asks has been started
    Confirmation = 1, ///< it has started well
};

/// Finish or undo what an interrupted helper left beside the bundle.
struct RecoverJob
{
    std::string targetName;
    std::string runningVersion; ///< of the bundle that asks, and so has started
    RecoverPurpose purpose = RecoverPurpose::Start;
    std::uint64_t hostProcess = 0; ///< the number of the process that asks; 0: not told
};

/// Do beside the bundle what an update will do, with folders that are made for it, and report what stands in the way.
struct RehearseJob
{
    std::string targetName;
};

using UpdateJob = std::variant<PrepareJob, InstallJob, RecoverJob, RehearseJob>;

/// With as many variables as the kernel gives a program at most, six mebibytes, and all else.
constexpr std::size_t UPDATE_JOB_MAX_BYTES = std::size_t{8} << 20;

std::string EncodeUpdateJob(UpdateJob const& job);
/// The job of \a bytes; nothing unless they are one, whole, with every name a single component, every path absolute.
std::optional<UpdateJob> DecodeUpdateJob(std::string_view bytes);

} // namespace Pelnar::Engine
